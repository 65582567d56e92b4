#pragma once

#include "model/database.h"
#include "model/json/load_errors.h"

#include <string_view>

namespace keydeck {

/// Checks the constraints of a model and fills in their regions, each found
/// by its scoped name (`ResolveRegion`) and of the kind its card needs:
///
/// - a tie: a surface as main, a surface or a node set as secondary;
/// - a coupling: a node set as reference node, a surface or a node set as
///   the coupled surface; at least one coupled degree of freedom, since the
///   bare card would couple all six; its `orientation`, a datum system
///   (`ResolveDatum`);
/// - a rigid body: a node set as reference node, an element set, and node
///   sets to tie and to pin, the last three each optional;
/// - an equation: at least one term, each on a node set with a degree of
///   freedom from 1 to 6 and an optional datum system `csys`, and a first
///   coefficient that is not 0;
/// - an embedded region: element sets as host and as embedded elements;
/// - every tolerance and distance that is given, above 0; the constraint
///   ratio and the tolerances of an embedded region at least 0.
///
/// The sets and datums of the assembly and its instances must be derived
/// first.
void DeriveConstraints(std::string_view modelPath, ddb_Model& model, LoadErrors& errors);

} // namespace keydeck
