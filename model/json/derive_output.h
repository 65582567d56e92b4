#pragma once

#include "model/database.h"
#include "model/json/load_errors.h"

#include <string_view>

namespace keydeck {

/// Completes and checks the output requests of a model whose sets and step
/// states are derived:
///
/// - each request's region, found by its name like any other region;
/// - each frequency the file gives names exactly one kind, with a value the
///   solver takes (increments 0 or more, intervals 1 or more, a positive
///   time interval, modes 1 or more), and a kind that the procedure of the
///   step that sets it allows;
/// - "PRESELECT" and "ALL" stand alone in a list of variables;
/// - in every step where a request is in force, each listed variable is one
///   that the step's procedure knows in the request's channel (field or
///   history), as `korC_OdbRequestTable` says. The message names the
///   variable, the procedure and the step, at the path of the list.
void DeriveOutputRequests(std::string_view modelPath, ddb_Model& model, LoadErrors& errors);

} // namespace keydeck
