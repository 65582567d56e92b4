#pragma once

#include "model/database.h"

#include <string>

namespace keydeck {

/// The model file of a database, as `LoadModelFile` reads it: loading it gives
/// back an equal database, and so the same deck. Fields at their default are
/// left out; reals are written in the shortest form that reads back exactly
/// (coordinates as single precision); connectivity is given by node label.
/// Named collections follow ascending byte order of the name, lists their own
/// order, so the text depends on the database only.
std::string DumpModel(const odb_Odb& odb);

} // namespace keydeck
