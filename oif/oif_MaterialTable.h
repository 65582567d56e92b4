#pragma once

#include "base/cow_2DArray.h"
#include "base/cow_List.h"
#include "base/cow_String.h"

class kmaC_MaterialTable;
class utl_Stream;

/// A table of doubles laid out for the deck. Every number is turned into text
/// once, at construction, with six significant digits, right-aligned: column 0
/// in a width of its own, all other columns in one shared width. A card may
/// then insert blank columns, swap or skip columns before printing.
///
/// Printing writes each row on lines of at most eight values, separated by
/// ","; a line that breaks after its eighth value has no comma behind it, and
/// a row whose last line holds a single value ends in ",". A table with no
/// rows prints nothing.
class oif_MaterialTable {
public:
  /// `dependencies` and `temperatureDependency` tell what the table's last
  /// columns hold; the blank columns they call for are the card's to insert.
  oif_MaterialTable(const kmaC_MaterialTable& table, int dependencies, bool temperatureDependency);
  oif_MaterialTable(const cow_2DArray<double>& table, int dependencies, bool temperatureDependency);

  /// Moves the cells from `column` on one place to the right and leaves the
  /// cell at `column` blank (" ") in every row. A negative index, or one not
  /// less than the number of columns, is ignored: a blank cannot be appended
  /// at the end of a table.
  void InsertEmptyColumn(int column);
  /// Replaces the columns that are not printed.
  void SkipColumns(const cow_List<int>& columns);
  /// Swaps the text of two columns in every row.
  void SwapColumns(int a, int b);
  /// In every row, the cell of `column` whose text reads back as exactly
  /// `value` becomes `text`. A negative column, or one past the numbers of
  /// the table, is ignored.
  void ReplaceColumnData(int column, double value, const cow_String& text);

  friend utl_Stream& operator<<(utl_Stream& s, const oif_MaterialTable& table);

private:
  void PopulateStringTable(const cow_2DArray<double>& values);
  static cow_String ConvertDouble(double value, int width, int precision);
  void Print(utl_Stream& s) const;

  cow_2DArray<double> values_;
  cow_2DArray<cow_String> cells_;
  cow_List<int> skipColumns_;
};
