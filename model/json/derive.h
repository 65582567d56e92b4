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
///   class with as many labels as connectivity rows, every connectivity label
///   a node of the part; then each class's `nodeIndices`, row by row. A part
///   under which `errors` already holds a problem is left alone, so that one
///   fault is not reported again in other words.
/// - Each instance: its name from its key; its mesh, the part's (shared, not
///   copied) under mesh index 1, 2, ... in ascending order of the instance
///   names; its part must exist. The assembly's own mesh has index 0.
void DeriveModel(std::string_view modelPath, ddb_Model& model, LoadErrors& errors);

} // namespace keydeck
