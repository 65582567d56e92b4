#include "oif/oif_MaterialTable.h"

#include "base/utl_Stream.h"
#include "model/materials.h"

#include <algorithm>
#include <cassert>
#include <charconv>
#include <string_view>
#include <utility>

namespace {

// Every table shows six significant digits, whatever the record holds.
constexpr int TablePrecision = 6;
constexpr int ValuesPerLine = 8;

// The value that a cell's text stands for, read as the C library's `atof`
// reads it, but without a locale: leading blanks skipped, 0 for no number.
double CellValue(const cow_String& text) {
  const std::string_view view = text.View();
  const std::size_t first = std::min(view.find_first_not_of(' '), view.size());
  double value = 0;
  std::from_chars(view.data() + first, view.data() + view.size(), value);
  return value;
}

} // namespace

oif_MaterialTable::oif_MaterialTable(const kmaC_MaterialTable& table, int dependencies,
                                     bool temperatureDependency)
    : oif_MaterialTable(table.Values(), dependencies, temperatureDependency) {}

oif_MaterialTable::oif_MaterialTable(const cow_2DArray<double>& table, int /*dependencies*/,
                                     bool /*temperatureDependency*/)
    : values_(table) {
  PopulateStringTable(table);
}

void oif_MaterialTable::PopulateStringTable(const cow_2DArray<double>& values) {
  // The widths come from the shortest exact text of each number, one more
  // than the longest: column 0 has its own, the other columns share one.
  int width0 = 0;
  int widthRest = 0;
  for (int row = 0; row < values.Rows(); ++row)
    for (int column = 0; column < values.Cols(); ++column) {
      const int length = cow_String(values.ConstGet(row, column)).Length();
      int& width = column == 0 ? width0 : widthRest;
      width = std::max(width, length + 1);
    }
  cells_ = cow_2DArray<cow_String>(values.Rows(), values.Cols());
  for (int row = 0; row < values.Rows(); ++row)
    for (int column = 0; column < values.Cols(); ++column)
      cells_.Get(row, column) = ConvertDouble(values.ConstGet(row, column),
                                              column == 0 ? width0 : widthRest, TablePrecision);
}

cow_String oif_MaterialTable::ConvertDouble(double value, int width, int precision) {
  // Widths come from the texts of doubles, 25 characters at the most. The
  // buffer holds the widest column, the one character that the deck's real
  // form may add, and the terminating zero.
  constexpr int MaxWidth = 32;
  assert(width <= MaxWidth && "column wider than any double's text");
  char text[MaxWidth + 2];
  const std::to_chars_result result =
      std::to_chars(text, text + MaxWidth, value, std::chars_format::general, precision);
  *result.ptr = '\0';
  utl_Stream::FixNumericString(text, width);
  return cow_String(text);
}

void oif_MaterialTable::InsertEmptyColumn(int column) {
  const int columns = cells_.Cols();
  if (column < 0 || column >= columns)
    return;
  cow_2DArray<cow_String> wider(cells_.Rows(), columns + 1);
  for (int row = 0; row < cells_.Rows(); ++row) {
    for (int c = 0; c < column; ++c)
      wider.Get(row, c) = cells_.ConstGet(row, c);
    wider.Get(row, column) = cow_String(" ");
    for (int c = column; c < columns; ++c)
      wider.Get(row, c + 1) = cells_.ConstGet(row, c);
  }
  cells_ = std::move(wider);
}

void oif_MaterialTable::SkipColumns(const cow_List<int>& columns) { skipColumns_ = columns; }

void oif_MaterialTable::SwapColumns(int a, int b) {
  assert(a >= 0 && b >= 0 && a < cells_.Cols() && b < cells_.Cols() && "column out of range");
  if (a == b)
    return;
  for (int row = 0; row < cells_.Rows(); ++row)
    std::swap(cells_.Get(row, a), cells_.Get(row, b));
}

void oif_MaterialTable::ReplaceColumnData(int column, double value, const cow_String& text) {
  // A column just past the numbers is admitted: it exists in the text table
  // once a blank column has been inserted.
  if (column < 0 || column > values_.Cols() || column >= cells_.Cols())
    return;
  for (int row = 0; row < cells_.Rows(); ++row)
    if (CellValue(cells_.ConstGet(row, column)) == value)
      cells_.Get(row, column) = text;
}

void oif_MaterialTable::Print(utl_Stream& s) const {
  if (values_.Rows() == 0 || cells_.Rows() == 0)
    return;
  const int total = cells_.Cols() - skipColumns_.Size();
  for (int row = 0; row < cells_.Rows(); ++row) {
    int printed = 0;
    for (int column = 0; column < cells_.Cols(); ++column) {
      if (skipColumns_.IsMember(column))
        continue;
      if (printed > 0 && printed % ValuesPerLine == 0)
        s.LineBreak();
      s.Print(cells_.ConstGet(row, column));
      ++printed;
      if (printed < total && printed % ValuesPerLine != 0)
        s << ",";
    }
    // A last line that would hold a single value ends in a comma.
    if (total == 1 || total % ValuesPerLine == 1)
      s << ",";
    s.LineBreak();
  }
}

utl_Stream& operator<<(utl_Stream& s, const oif_MaterialTable& table) {
  table.Print(s);
  return s;
}
