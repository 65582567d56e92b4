#pragma once

/// Marks what libkeydeck exports. The library is built with hidden
/// visibility, so everything without this mark stays inside it.
#define KEYDECK_API __attribute__((visibility("default")))
