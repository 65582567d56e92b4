#pragma once

#include "model/database.h"
#include "model/json/load_errors.h"

#include <string>
#include <string_view>
#include <vector>

namespace keydeck {

/// Checks the sections and beam profiles of a model just read: each record's
/// own data (`CheckData`: layers, dimensions, a beam's material), every
/// material that a section names, and the profile of every beam section.
/// Problems go to `errors` below `modelPath`.
void CheckSections(std::string_view modelPath, const ddb_Model& model, LoadErrors& errors);

/// The warning for each section assignment whose section the model lacks:
/// the deck writes the region's comment and no section card for it.
void AddSectionWarnings(std::string_view modelName, const ddb_Model& model,
                        std::vector<std::string>& warnings);

} // namespace keydeck
