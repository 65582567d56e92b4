#pragma once

#include "model/database.h"
#include "model/json/load_errors.h"

#include <string>
#include <string_view>
#include <vector>

namespace keydeck {

class ExternalArrays;

/// Opens the model file at `path` (the format is described in
/// docs/model-format.md) and returns the database it holds, with everything
/// derived that the writer reads. Notes that do not stop the deck (parts of
/// the model that the writer does not write yet) are appended to `warnings`.
///
/// On any problem it throws `ModelFileError` with every problem found (up to
/// 50 of them). Each message reads `path: what is wrong`; the path of the
/// file's top level is `path` itself, and everything inside it is named by
/// its path from the top level ("models/Default Model/parts/Beam/nodes").
odb_Odb LoadModelFile(const char* path, std::vector<std::string>& warnings);

/// `LoadModelFile` for a model file's text already in memory. Problems with
/// the text as a whole carry no path.
odb_Odb LoadModelText(std::string_view json, std::vector<std::string>& warnings);

/// `LoadModelText` for a text whose numeric arrays stand in `arrays` (see
/// external_arrays.h); each is read and checked as the array it stands for.
odb_Odb LoadModelText(std::string_view json, const ExternalArrays& arrays,
                      std::vector<std::string>& warnings);

} // namespace keydeck
