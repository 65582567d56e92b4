#include "python/json_to_python.h"

#include "base/nex_Exception.h"

#include <simdjson.h>

#include <cstdint>
#include <pybind11/numpy.h>
#include <string>

namespace py = pybind11;
namespace dom = simdjson::dom;

namespace keydeck {

namespace {

bool IsNumber(dom::element value) {
  return value.is_int64() || value.is_uint64() || value.is_double();
}

// The shape of an array that fits a numpy array: rows (and columns for an
// array of rows), and whether every number is an integer.
struct NumericShape {
  std::size_t rows = 0;
  std::size_t columns = 0; // 0 for a 1-D array
  bool integers = true;
};

bool Numbers(dom::array array, NumericShape& shape) {
  for (const dom::element item : array) {
    if (!IsNumber(item))
      return false;
    shape.integers = shape.integers && item.is_int64();
  }
  return true;
}

// True when `array` fits a numpy array; `shape` then describes it.
bool NumericArray(dom::array array, NumericShape& shape) {
  shape.rows = array.size();
  if (shape.rows == 0)
    return false;
  const dom::element first = array.at(0);
  if (IsNumber(first))
    return Numbers(array, shape);
  if (!first.is_array())
    return false;
  shape.columns = dom::array(first).size();
  if (shape.columns == 0)
    return false;
  for (const dom::element row : array) {
    if (!row.is_array() || dom::array(row).size() != shape.columns || !Numbers(row, shape))
      return false;
  }
  return true;
}

template <class T> py::array Filled(dom::array array, const NumericShape& shape) {
  py::array_t<T> out = shape.columns == 0
                           ? py::array_t<T>(static_cast<py::ssize_t>(shape.rows))
                           : py::array_t<T>({static_cast<py::ssize_t>(shape.rows),
                                             static_cast<py::ssize_t>(shape.columns)});
  T* cell = out.mutable_data();
  const auto take = [&](dom::element number) {
    if constexpr (std::is_integral_v<T>)
      *cell++ = static_cast<T>(std::int64_t(number));
    else
      *cell++ = static_cast<T>(double(number));
  };
  for (const dom::element item : array) {
    if (shape.columns == 0) {
      take(item);
      continue;
    }
    for (const dom::element number : dom::array(item))
      take(number);
  }
  return out;
}

class Converter {
public:
  explicit Converter(bool numpy) : numpy_(numpy) {}

  py::object Value(dom::element value) {
    switch (value.type()) {
    case dom::element_type::OBJECT:
      return Object(value);
    case dom::element_type::ARRAY:
      return Array(value);
    case dom::element_type::INT64:
      return py::int_(std::int64_t(value));
    case dom::element_type::UINT64:
      return py::int_(std::uint64_t(value));
    case dom::element_type::DOUBLE:
      return py::float_(double(value));
    case dom::element_type::STRING:
      return py::str(std::string_view(value));
    case dom::element_type::BOOL:
      return py::bool_(bool(value));
    case dom::element_type::NULL_VALUE:
      return py::none();
    }
    return py::none();
  }

private:
  py::object Object(dom::object object) {
    py::dict out;
    for (const dom::key_value_pair member : object)
      out[py::str(member.key)] = Value(member.value);
    return out;
  }

  py::object Array(dom::array array) {
    NumericShape shape;
    if (numpy_ && NumericArray(array, shape))
      return shape.integers ? Filled<std::int64_t>(array, shape) : Filled<double>(array, shape);
    py::list out(array.size());
    std::size_t index = 0;
    for (const dom::element item : array)
      out[index++] = Value(item);
    return out;
  }

  bool numpy_;
};

} // namespace

py::object PythonFromJson(std::string_view json, bool numpy) {
  dom::parser parser;
  dom::element root;
  if (const simdjson::error_code error = parser.parse(json.data(), json.size()).get(root))
    Raise(std::string("cannot read a dumped model: ") + simdjson::error_message(error));
  return Converter(numpy).Value(root);
}

} // namespace keydeck
