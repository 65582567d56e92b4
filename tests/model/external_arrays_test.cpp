// Arrays handed to the loader in memory: read where their placeholder stands,
// and nowhere else.

#include "model/json/external_arrays.h"
#include "model/json/loader.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace keydeck {
namespace {

ExternalArray Int64s(const std::vector<std::int64_t>& values) {
  ExternalArray array;
  array.data = values.data();
  array.kind = ExternalArray::Kind::Signed;
  array.itemSize = 8;
  array.typeName = "<i8";
  array.shape = {static_cast<std::int64_t>(values.size())};
  array.strides = {8};
  return array;
}

// A model whose part "P" has its node labels from `labels` and one node row
// per label; `before` goes just ahead of the labels' placeholder.
std::string ModelText(ExternalArrays& arrays, const ExternalArray& labels,
                      const std::string& before = "") {
  std::string json = R"({"format": "keydeck-model", "version": 1, "models": {"M": {"parts": {"P": )"
                     R"({"nodes": {"coordinates": [[0, 0, 0], [1, 0, 0]], "labels": )" +
                     before;
  arrays.Append(json, labels);
  return json + "}}}}}}";
}

std::vector<std::string> Messages(const std::string& json, const ExternalArrays& arrays) {
  std::vector<std::string> warnings;
  try {
    LoadModelText(json, arrays, warnings);
  } catch (const ModelFileError& error) {
    return error.Messages();
  }
  return {};
}

TEST(ExternalArrays, ArrayIsReadAtItsPlaceholder) {
  const std::vector<std::int64_t> labels = {7, 9};
  ExternalArrays arrays;
  const std::string json = ModelText(arrays, Int64s(labels));
  std::vector<std::string> warnings;
  const odb_Odb odb = LoadModelText(json, arrays, warnings);
  const cow_List<int>& read =
      odb.ddb().model("M").part().get("P").mesh().nodeData().UserNodeLabels();
  EXPECT_EQ(std::vector<int>(read.begin(), read.end()), (std::vector<int>{7, 9}));
}

TEST(ExternalArrays, PlaceholderCountsOnlyWhereItWasWritten) {
  const std::vector<std::int64_t> labels = {7, 9};
  ExternalArrays arrays;
  const std::string json = ModelText(arrays, Int64s(labels));
  const std::string expected = "models/M/parts/P/nodes/labels: expected an array, found null";
  EXPECT_EQ(Messages(json, ExternalArrays()), std::vector<std::string>{expected});
  ExternalArrays shifted;
  const std::string spaced = ModelText(shifted, Int64s(labels), " ");
  EXPECT_EQ(Messages(json, shifted), std::vector<std::string>{expected});
  EXPECT_TRUE(Messages(spaced, shifted).empty());
}

TEST(ExternalArrays, BadValuesGetTheFileMessagesAtTheirPlaces) {
  const std::vector<std::int64_t> labels = {7, 3000000000};
  ExternalArrays arrays;
  const std::string json = ModelText(arrays, Int64s(labels));
  EXPECT_EQ(Messages(json, arrays),
            std::vector<std::string>{"models/M/parts/P/nodes/labels/1: expected an integer from "
                                     "-2147483648 to 2147483647, found 3000000000"});
}

TEST(ExternalArrays, RealsThatHoldWholeNumbersAreIntegers) {
  const std::vector<double> values = {7.0, 9.5};
  ExternalArray array;
  array.data = values.data();
  array.kind = ExternalArray::Kind::Real;
  array.itemSize = 8;
  array.shape = {2};
  array.strides = {8};
  std::vector<std::string> faults;
  cow_List<int> out;
  ReadIntegers(array, out, [&](std::string_view what, int depth, std::size_t row, std::size_t) {
    faults.push_back(std::to_string(depth) + " " + std::to_string(row) + " " + std::string(what));
  });
  EXPECT_EQ(out.ConstGet(0), 7);
  EXPECT_EQ(faults, std::vector<std::string>{"1 1 expected an integer, found 9.5"});
}

TEST(ExternalArrays, StridedRowsOfCoordinates) {
  // Two rows of three floats taken from rows of four: the fourth value is skipped.
  const std::array<float, 8> values = {1, 2, 3, -1, 4, 5, 6, -1};
  ExternalArray array;
  array.data = values.data();
  array.kind = ExternalArray::Kind::Real;
  array.itemSize = 4;
  array.shape = {2, 3};
  array.strides = {16, 4};
  uti_CoordCont3D out;
  ReadCoordinates(array, out, [](std::string_view, int, std::size_t, std::size_t) { FAIL(); });
  ASSERT_EQ(out.Size(), 2);
  EXPECT_EQ(out.ConstGet(1), (uti_Coord3D{4, 5, 6}));
}

// A value refused in rows read in one flat loop (values one after the other)
// and in rows read with their strides is reported at the same row and column.
TEST(ExternalArrays, FaultsInRowsNameTheirRowAndColumn) {
  const std::array<double, 8> values = {1, 2, 3, 0, 4, 5.5, 6, 0};
  const struct {
    const char* name;
    std::int64_t rowStride;
    const char* place; // depth, row and column of the fault
  } cases[] = {
      {"packed rows of three", 24, "2 1 2"},      // the second row is 0, 4, 5.5
      {"rows of three out of four", 32, "2 1 1"}, // the second row is 4, 5.5, 6
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    ExternalArray array;
    array.data = values.data();
    array.kind = ExternalArray::Kind::Real;
    array.itemSize = 8;
    array.shape = {2, 3};
    array.strides = {c.rowStride, 8};
    std::vector<std::string> faults;
    cow_2DArray<int> out;
    ReadIntegerRows(array, out, "empty row",
                    [&](std::string_view what, int depth, std::size_t row, std::size_t column) {
                      faults.push_back(std::to_string(depth) + " " + std::to_string(row) + " " +
                                       std::to_string(column) + " " + std::string(what));
                    });
    EXPECT_EQ(faults,
              std::vector<std::string>{std::string(c.place) + " expected an integer, found 5.5"});
  }
}

} // namespace
} // namespace keydeck
