#include "model/json/external_arrays.h"

#include "base/large_lists.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstring>
#include <type_traits>
#include <utility>

namespace keydeck {

void ExternalArrays::Append(std::string& json, ExternalArray array) {
  // `null` reads as a value of the wrong kind wherever an array does not
  // belong, so an array in such a place gets the loader's own message.
  arrays_.push_back({json.size(), std::move(array)});
  json.append("null");
}

const ExternalArray* ExternalArrays::At(std::size_t offset) const {
  const auto found = std::lower_bound(
      arrays_.begin(), arrays_.end(), offset,
      [](const Placed& placed, std::size_t value) { return placed.offset < value; });
  return found != arrays_.end() && found->offset == offset ? &found->array : nullptr;
}

std::string IntegerFault(std::string_view token) {
  if (token.find_first_of(".eE") != std::string_view::npos)
    return "expected an integer, found " + std::string(token);
  return "expected an integer from " + std::to_string(INT_MIN) + " to " + std::to_string(INT_MAX) +
         ", found " + std::string(token);
}

std::string CoordinateRangeFault(std::string_view token) {
  return "the number " + std::string(token) + " is out of the range of a coordinate";
}

namespace {

template <class S> S Load(const char* place) {
  S value;
  std::memcpy(&value, place, sizeof value);
  return value;
}

// The shortest text of a value, as a message quotes it.
template <class S> std::string Token(S value) {
  if constexpr (std::is_floating_point_v<S>) {
    char text[64];
    return std::string(text, std::to_chars(text, text + sizeof text, value).ptr);
  } else {
    return std::to_string(value);
  }
}

// Calls `read(tag)` with a value of the array's value type, or returns false
// for a type that holds no numbers.
template <class F> bool WithValueType(const ExternalArray& array, F&& read) {
  using Kind = ExternalArray::Kind;
  const auto is = [&](Kind kind, int size) { return array.kind == kind && array.itemSize == size; };
  if (is(Kind::Signed, 1))
    read(std::int8_t());
  else if (is(Kind::Signed, 2))
    read(std::int16_t());
  else if (is(Kind::Signed, 4))
    read(std::int32_t());
  else if (is(Kind::Signed, 8))
    read(std::int64_t());
  else if (is(Kind::Unsigned, 1))
    read(std::uint8_t());
  else if (is(Kind::Unsigned, 2))
    read(std::uint16_t());
  else if (is(Kind::Unsigned, 4))
    read(std::uint32_t());
  else if (is(Kind::Unsigned, 8))
    read(std::uint64_t());
  else if (is(Kind::Real, 4))
    read(float());
  else if (is(Kind::Real, 8))
    read(double());
  else
    return false;
  return true;
}

std::string ShapeText(const ExternalArray& array) {
  std::string text = "(";
  for (std::size_t i = 0; i < array.shape.size(); ++i)
    text.append(i == 0 ? "" : ", ").append(std::to_string(array.shape[i]));
  return text.append(array.shape.size() == 1 ? ",)" : ")");
}

// Checks the number of dimensions and the value type; false, with the fault
// reported, when the array does not fit.
bool Fits(const ExternalArray& array, std::size_t dimensions, const ArrayFaultSink& fault) {
  if (!WithValueType(array, [](auto) {})) {
    fault("expected an array of numbers, found an array of " + array.typeName, 0, 0, 0);
    return false;
  }
  if (array.shape.size() != dimensions) {
    fault("expected an array of " +
              std::string(dimensions == 1 ? "one dimension" : "two dimensions") +
              ", found an array of shape " + ShapeText(array),
          0, 0, 0);
    return false;
  }
  for (const std::int64_t size : array.shape) {
    if (size > INT_MAX) {
      fault("expected at most " + std::to_string(INT_MAX) + " items, found " + std::to_string(size),
            0, 0, 0);
      return false;
    }
  }
  return true;
}

// Calls `take(value, at)` for each value, row by row, with `at` its place
// in the rows laid end to end; a 1-D array is one column. An array whose
// values lie one after the other, as numpy makes them, is read in one flat
// loop that the compiler vectorises.
template <class S, class Take> void ForEachValue(const ExternalArray& array, Take&& take) {
  const std::int64_t rows = array.shape[0];
  const std::int64_t columns = array.shape.size() > 1 ? array.shape[1] : 1;
  const std::int64_t columnStride = array.strides.size() > 1 ? array.strides[1] : 0;
  const char* const base = static_cast<const char*>(array.data);
  const std::int64_t size = sizeof(S);
  const bool packed =
      (columns == 1 || columnStride == size) && (rows == 1 || array.strides[0] == columns * size);
  if (packed) {
    const std::size_t count = static_cast<std::size_t>(rows * columns);
    for (std::size_t at = 0; at < count; ++at)
      take(Load<S>(base + at * sizeof(S)), at);
    return;
  }
  std::size_t at = 0;
  for (std::int64_t row = 0; row < rows; ++row) {
    const char* const line = base + row * array.strides[0];
    for (std::int64_t column = 0; column < columns; ++column)
      take(Load<S>(line + column * columnStride), at++);
  }
}

template <class S> [[gnu::cold]] std::string NotFinite(S value) {
  return "expected a finite number, found " + Token(value);
}

// Converts `value` to an integer where that loses nothing; false otherwise.
template <class S> bool ToInt(S value, int& out) {
  if constexpr (std::is_floating_point_v<S>) {
    // Compared as doubles: a float cannot hold INT_MAX.
    const double number = static_cast<double>(value);
    if (!(number >= -2147483648.0 && number < 2147483648.0) || number != std::trunc(number))
      return false;
  } else if constexpr (std::is_signed_v<S>) {
    if (value < INT_MIN || value > INT_MAX)
      return false;
  } else if (static_cast<std::uint64_t>(value) > static_cast<std::uint64_t>(INT_MAX)) {
    return false;
  }
  out = static_cast<int>(value);
  return true;
}

template <class S> [[gnu::cold]] std::string NotAnInteger(S value) {
  if constexpr (std::is_floating_point_v<S>)
    if (!std::isfinite(value))
      return NotFinite(value);
  return IntegerFault(Token(value));
}

template <class S> bool ToReal(S value, double& out) {
  out = static_cast<double>(value);
  return std::isfinite(out);
}

// `depth` for values of a 1-D array (1) or of a 2-D one (2).
int DepthOf(const ExternalArray& array) { return static_cast<int>(array.shape.size()); }

// Reads every value through `convert(value, cell)`, which is false for a
// value it refuses, and `describe(value)` then says why.
template <class T, class Convert, class Describe>
void ReadAll(const ExternalArray& array, T* out, Convert&& convert, Describe&& describe,
             const ArrayFaultSink& fault) {
  const std::size_t columns = array.shape.size() > 1 ? static_cast<std::size_t>(array.shape[1]) : 1;
  const int depth = DepthOf(array);
  WithValueType(array, [&](auto tag) {
    using S = decltype(tag);
    ForEachValue<S>(array, [&](S value, std::size_t at) {
      if (!convert(value, out[at])) [[unlikely]]
        fault(describe(value), depth, at / columns, at % columns);
    });
  });
}

template <class T> void ReadInto(const ExternalArray& array, T* out, const ArrayFaultSink& fault) {
  if constexpr (std::is_same_v<T, int>)
    ReadAll(
        array, out, [](auto value, int& cell) { return ToInt(value, cell); },
        [](auto value) { return NotAnInteger(value); }, fault);
  else
    ReadAll(
        array, out, [](auto value, double& cell) { return ToReal(value, cell); },
        [](auto value) { return NotFinite(value); }, fault);
}

// A coordinate is the float nearest to the value; a value beyond the floats
// is refused.
template <class S> bool ToCoordinate(S value, float& out) {
  out = static_cast<float>(value);
  if constexpr (std::is_floating_point_v<S>)
    return std::isfinite(out);
  return true;
}

template <class S> [[gnu::cold]] std::string NotACoordinate(S value) {
  if (!std::isfinite(value))
    return NotFinite(value);
  return CoordinateRangeFault(Token(value));
}

template <class T>
void ReadRows(const ExternalArray& array, cow_2DArray<T>& out, const char* emptyRow,
              const ArrayFaultSink& fault) {
  if (!Fits(array, 2, fault))
    return;
  const int rows = static_cast<int>(array.shape[0]);
  if (array.shape[1] == 0) {
    for (int row = 0; row < rows; ++row)
      fault(emptyRow, 1, static_cast<std::size_t>(row), 0);
    return;
  }
  if (rows == 0)
    return;
  out = cow_2DArray<T>(rows, static_cast<int>(array.shape[1]));
  ReadInto(array, &out.Get(0, 0), fault);
}

template <class T>
void ReadList(const ExternalArray& array, cow_List<T>& out, const ArrayFaultSink& fault) {
  if (!Fits(array, 1, fault))
    return;
  out = LargeList<T>(static_cast<int>(array.shape[0]));
  if (out.Size() > 0)
    ReadInto(array, &out.Get(0), fault);
}

} // namespace

void ReadIntegers(const ExternalArray& array, cow_List<int>& out, const ArrayFaultSink& fault) {
  ReadList(array, out, fault);
}

void ReadReals(const ExternalArray& array, cow_List<double>& out, const ArrayFaultSink& fault) {
  ReadList(array, out, fault);
}

void ReadCoordinates(const ExternalArray& array, uti_CoordCont3D& out,
                     const ArrayFaultSink& fault) {
  if (!Fits(array, 2, fault))
    return;
  const int rows = static_cast<int>(array.shape[0]);
  if (array.shape[1] != 3) {
    for (int row = 0; row < rows; ++row)
      fault("expected 3 coordinates, found " + std::to_string(array.shape[1]), 1,
            static_cast<std::size_t>(row), 0);
    return;
  }
  out = LargeList<uti_Coord3D>(rows);
  if (rows == 0)
    return;
  float* const cells = out.Get(0).data();
  ReadAll(
      array, cells, [](auto value, float& cell) { return ToCoordinate(value, cell); },
      [](auto value) { return NotACoordinate(value); }, fault);
}

void ReadIntegerRows(const ExternalArray& array, cow_2DArray<int>& out, const char* emptyRow,
                     const ArrayFaultSink& fault) {
  ReadRows(array, out, emptyRow, fault);
}

void ReadRealRows(const ExternalArray& array, cow_2DArray<double>& out, const char* emptyRow,
                  const ArrayFaultSink& fault) {
  ReadRows(array, out, emptyRow, fault);
}

namespace {

template <class T>
void ReadFixedValues(const ExternalArray& array, T* out, std::size_t count,
                     const ArrayFaultSink& fault) {
  if (!Fits(array, 1, fault))
    return;
  if (static_cast<std::size_t>(array.shape[0]) != count) {
    fault("expected " + std::to_string(count) + (std::is_integral_v<T> ? " integers" : " numbers") +
              ", found " + std::to_string(array.shape[0]),
          0, 0, 0);
    return;
  }
  ReadInto(array, out, fault);
}

} // namespace

void ReadFixed(const ExternalArray& array, int* out, std::size_t count,
               const ArrayFaultSink& fault) {
  ReadFixedValues(array, out, count, fault);
}

void ReadFixed(const ExternalArray& array, double* out, std::size_t count,
               const ArrayFaultSink& fault) {
  ReadFixedValues(array, out, count, fault);
}

} // namespace keydeck
