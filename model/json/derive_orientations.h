#pragma once

#include "model/database.h"
#include "model/json/load_errors.h"

#include <string_view>

namespace keydeck {

/// Checks and derives the datums and orientations of a model whose meshes,
/// sets and instances are derived (the last step of `DeriveModel`).
///
/// - Every datum system gets its axes from its three points; a first point
///   on the origin and three points on one line are errors. The model's
///   datum list (`ddb_Model::datums_`, ids from 1) holds each part's datums
///   in the part's frame (parts and datums in ascending name order), then the
///   assembly's, then, for each instance in name order, its part's datums
///   moved by the instance's placement into the assembly's frame and named
///   "instance_datum"; such a name that another datum of the assembly has is
///   an error.
/// - Each orientation of a part must name an element set of the part, and a
///   material orientation's datum a datum of the same part; a beam direction
///   of zero length is an error. Each instance of the part gets the part's
///   orientations with their regions in the instance's mesh.
/// - Each section assignment of a part must name an element set of the
///   part; each instance gets the part's assignments with their regions in
///   its mesh.
void DeriveDatumsAndOrientations(std::string_view modelPath, ddb_Model& model, LoadErrors& errors);

} // namespace keydeck
