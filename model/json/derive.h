#pragma once

#include "model/database.h"
#include "model/json/load_errors.h"

#include <string_view>

namespace keydeck {

/// Checks what spans the records of a model just read from a file and fills in
/// what the writer reads but the file does not say. `modelPath` is the model's
/// path in the file ("models/Default Model"); problems go to `errors` under
/// paths below it.
///
/// - Each part: node labels and coordinates of equal count, node labels
///   unique, element labels unique across the part's element classes, each
///   class with as many labels as connectivity rows, rows as long as the
///   type's node count (for the types the element table knows), every
///   connectivity label a node of the part; then each class's `nodeIndices`,
///   row by row. A part whose nodes or elements already have a problem in
///   `errors` is left alone, so that one fault is not reported again in other
///   words.
/// - Each part's sets and surfaces: the mesh's `sets`, in ascending byte
///   order of their names. A node set (or node-based surface) has one subset;
///   an element set one per class touched, in class order; a face-based
///   surface one per class in order of first appearance, with its facet ids.
///   Every label must be one of the part, every face label fit its element's
///   type. The labels are found through the same index as the connectivity;
///   a range inside labels numbered in order is taken whole, and its subsets
///   hold it as first, step and count.
/// - Each instance: its name from its key; its mesh, the part's (shared, not
///   copied) under mesh index 1, 2, ... in ascending order of the instance
///   names, with the part's sets stamped with that index; its part must
///   exist; its `transform_` from its translation and rotation.
/// - The assembly's sets and surfaces: `sets_`, one subset per instance mesh
///   and class in order of first appearance. The assembly's own mesh has
///   index 0.
/// - Datums and orientations: `DeriveDatumsAndOrientations`.
/// - Sections and beam profiles: `CheckSections`.
/// - Each amplitude: its tables of pairs of even length, their times in
///   order (`kamC_Amplitude::CheckData`).
/// - Each step-dependent record (a map of records derived from
///   `kprC_PropagatingRecord` among the model's fields): its status and
///   state in every step, by the propagation rule; a fault of its steps is
///   reported under the record's path.
/// - The output requests: `DeriveOutputRequests`.
void DeriveModel(std::string_view modelPath, ddb_Model& model, LoadErrors& errors);

} // namespace keydeck
