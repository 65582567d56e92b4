#pragma once

#include "keydeck/export.h"

namespace keydeck {

/// The version of the library that runs, "MAJOR.MINOR.PATCH": the same text
/// that `keydeck --version` prints.
KEYDECK_API const char* Version();

} // namespace keydeck
