#include "keydeck/version.h"

const char* keydeck::Version() { return KEYDECK_VERSION; }
