#pragma once

#include "model/database.h"
#include "model/json/load_errors.h"

#include <string_view>

namespace keydeck {

/// Completes the boundary conditions of a model whose sets, datums and step
/// states are derived: each condition's region (a node set) and datum from
/// their scoped names; each amplitude it names must exist, and each list of degrees of
/// freedom fit its kind. The boundary conditions that a load case names
/// must exist. Problems go to `errors` under `modelPath`.
void DeriveBoundaryConditions(std::string_view modelPath, ddb_Model& model, LoadErrors& errors);

} // namespace keydeck
