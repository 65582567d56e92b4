#pragma once

#include <pybind11/pybind11.h>
#include <string_view>

namespace keydeck {

/// The Python objects of a JSON text that is known to be valid (a dumped
/// model): objects as dicts, arrays as lists, numbers as int or float. With
/// `numpy`, an array of numbers becomes a 1-D numpy array and an array of
/// equally long arrays of numbers a 2-D one: int64 when every number is an
/// integer, float64 otherwise.
pybind11::object PythonFromJson(std::string_view json, bool numpy);

} // namespace keydeck
