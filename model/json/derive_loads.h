#pragma once

#include "model/database.h"
#include "model/json/load_errors.h"

#include <string_view>

namespace keydeck {

/// Checks the loads of a model and fills in what the writer reads of them:
///
/// - the region, found by its scoped name (`ResolveRegion`), of the kind the
///   load needs: a node set for concentrated loads, an element set for body
///   loads, a surface for surface loads; gravity, body forces and rotational
///   body forces may leave it out and then act on the whole model, and
///   inertia relief takes none;
/// - the datum system `csys`, an assembly datum "Csys" or an instance's
///   "Beam-1.Csys";
/// - every amplitude that a state names, among the model's amplitudes;
/// - every load case, one of its step's;
/// - imaginary parts only in the steps of a steady-state procedure, and
///   never on a concentrated pore fluid load;
/// - a hydrostatic distribution on pressures only, rotation axes and
///   directions of non-zero length.
///
/// The sets and datums of the assembly and the step states must be derived
/// first.
void DeriveLoads(std::string_view modelPath, ddb_Model& model, LoadErrors& errors);

} // namespace keydeck
