#pragma once

#include "model/json/external_arrays.h"

#include <pybind11/pybind11.h>
#include <string>
#include <vector>

namespace keydeck {

/// A model given as Python objects, turned into what the loader reads: the
/// JSON text of its plain values and, in `arrays`, its numpy arrays, which
/// stay in place in memory (`keep` holds them until the text is loaded).
struct PythonModelText {
  std::string json;
  ExternalArrays arrays;
  std::vector<pybind11::object> keep;
};

/// Writes `value` (dicts with string keys, lists, tuples, strings, numbers,
/// booleans, None, numpy arrays and scalars) as a model text. A Python value
/// that JSON cannot hold raises `ModelFileError` with its path.
PythonModelText ModelTextFromPython(pybind11::handle value);

} // namespace keydeck
