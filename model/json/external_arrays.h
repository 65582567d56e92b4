#pragma once

#include "base/cow_2DArray.h"
#include "base/cow_List.h"
#include "model/mesh.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

// Arrays of numbers that a program hands to the loader in memory instead of
// writing them into the model text: a numpy array from Python is read in one
// pass, with no JSON text and no call per value. The text holds a placeholder
// where the array belongs; the loader takes the array from the table given
// beside the text. A model file is loaded with an empty table, so no text can
// pose as an array: a placeholder counts only at the very byte where the
// table's owner wrote it.

namespace keydeck {

/// A block of numbers in memory, described as a strided array.
struct ExternalArray {
  enum class Kind { Signed, Unsigned, Real, Other };
  const void* data = nullptr;
  Kind kind = Kind::Other;
  int itemSize = 0;                  // bytes per value
  std::string typeName;              // the caller's name of the value type, for messages
  std::vector<std::int64_t> shape;   // values per dimension
  std::vector<std::int64_t> strides; // bytes from one value to the next, per dimension
};

/// The arrays that stand in one model text, each at the place of its
/// placeholder.
class ExternalArrays {
public:
  /// Appends the placeholder of `array` to `json`, which is the text being
  /// built; the caller keeps the memory alive until the text is loaded.
  void Append(std::string& json, ExternalArray array);
  /// The array whose placeholder starts at byte `offset` of the text, or null.
  const ExternalArray* At(std::size_t offset) const;
  bool Empty() const { return arrays_.empty(); }

private:
  struct Placed {
    std::size_t offset;
    ExternalArray array;
  };
  std::vector<Placed> arrays_; // in ascending order of offset
};

/// Where the readers below report a problem: `what` at the array itself
/// (`depth` 0), at item `row` (1) or at value `column` of row `row` (2).
using ArrayFaultSink =
    std::function<void(std::string_view what, int depth, std::size_t row, std::size_t column)>;

/// The readers of the array members of the model. Each checks the dimensions
/// and each value as the file's reader checks the JSON array in its place,
/// with the same messages; integers may come as reals that hold whole numbers.
void ReadIntegers(const ExternalArray& array, cow_List<int>& out, const ArrayFaultSink& fault);
void ReadReals(const ExternalArray& array, cow_List<double>& out, const ArrayFaultSink& fault);
void ReadCoordinates(const ExternalArray& array, uti_CoordCont3D& out, const ArrayFaultSink& fault);
/// `emptyRow` is the message for rows of no values.
void ReadIntegerRows(const ExternalArray& array, cow_2DArray<int>& out, const char* emptyRow,
                     const ArrayFaultSink& fault);
void ReadRealRows(const ExternalArray& array, cow_2DArray<double>& out, const char* emptyRow,
                  const ArrayFaultSink& fault);
/// A fixed number of values: `count` of them into `out`.
void ReadFixed(const ExternalArray& array, int* out, std::size_t count,
               const ArrayFaultSink& fault);
void ReadFixed(const ExternalArray& array, double* out, std::size_t count,
               const ArrayFaultSink& fault);

/// What is wrong with the number `token` where an integer belongs (a fraction,
/// an exponent, or beyond the range of an integer).
std::string IntegerFault(std::string_view token);
/// What is wrong with the number `token` where a coordinate belongs and the
/// number lies beyond the range of a float.
std::string CoordinateRangeFault(std::string_view token);

} // namespace keydeck
