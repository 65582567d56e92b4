#pragma once

#include "cli/options.h"

namespace keydeck {

/// The commands of `keydeck`; each returns the exit status. Errors go to
/// stderr; nothing here lets an exception escape.
int RunWrite(const Options& options);
int RunCheck(const Options& options);
int RunSchema();

} // namespace keydeck
