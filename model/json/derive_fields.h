#pragma once

#include "model/database.h"
#include "model/json/load_errors.h"

#include <string_view>

namespace keydeck {

/// Checks the predefined fields of a model and fills in what the writer reads
/// of them:
///
/// - the region, found by its scoped name (`ResolveRegion`), a node set;
/// - a distribution the kind admits; a temperature from a file and a user
///   subroutine only after the initial step;
/// - from a file: the file, and for an initial condition the step and
///   increment it reads;
/// - every amplitude that a state names, among the model's amplitudes;
/// - a field variable's number, 1 or more;
/// - a velocity created in the initial step, with no later changes, and a
///   rotating one with two distinct axis points.
///
/// The sets of the assembly and the step states must be derived first.
void DeriveFields(std::string_view modelPath, ddb_Model& model, LoadErrors& errors);

} // namespace keydeck
