#pragma once

#include <string>

namespace keydeck {

/// The JSON Schema (draft 2020-12) of the model file, generated from the same
/// field lists that the loader reads: required fields in "required", no
/// properties beyond the listed ones, enumeration words in "enum", defaults in
/// "default" (a field that is "not given" when left out has none). The text
/// is the same on every call.
///
/// The loader checks more than the schema can say: names that refer to other
/// records, unique labels, rows of equal length, integers written without a
/// fraction or exponent.
std::string ModelSchema();

} // namespace keydeck
