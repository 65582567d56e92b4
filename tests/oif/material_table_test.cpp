#include "base/qio_ostream.h"
#include "base/utl_Stream.h"
#include "oif/oif_MaterialTable.h"

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace {

using Rows = std::vector<std::vector<double>>;

cow_2DArray<double> Values(const Rows& rows) {
  cow_2DArray<double> values(static_cast<int>(rows.size()),
                             rows.empty() ? 0 : static_cast<int>(rows.front().size()));
  for (int row = 0; row < values.Rows(); ++row)
    for (int column = 0; column < values.Cols(); ++column)
      values.Get(row, column) = rows[row][column];
  return values;
}

std::string Text(const oif_MaterialTable& table) {
  qio_ostringDeck text;
  {
    utl_Stream s(text, 131, 6, 6);
    s << table;
    s.Close();
  }
  return text.Text();
}

std::string Text(const Rows& rows) { return Text(oif_MaterialTable(Values(rows), 0, false)); }

// 1, 2, ... count as one row.
Rows Counting(int count) {
  Rows rows(1);
  for (int i = 1; i <= count; ++i)
    rows[0].push_back(i);
  return rows;
}

TEST(MaterialTable, EightValuesToALine) {
  const struct {
    const char* name;
    Rows rows;
    const char* deck;
  } cases[] = {
      {"no rows", {}, ""},
      {"one cell keeps its comma", {{1}}, "1.,\n"},
      {"eight fill one line", Counting(8), "1.,2.,3.,4.,5.,6.,7.,8.\n"},
      {"the ninth stands alone with a comma", Counting(9), "1.,2.,3.,4.,5.,6.,7.,8.\n9.,\n"},
      {"two on the last line, no comma", Counting(10), "1., 2., 3., 4., 5., 6., 7., 8.\n 9.,10.\n"},
      {"seventeen", Counting(17),
       R"(1., 2., 3., 4., 5., 6., 7., 8.
 9.,10.,11.,12.,13.,14.,15.,16.
17.,
)"},
      {"every row on its lines", {{1, 2}, {3, 4}}, "1.,2.\n3.,4.\n"},
      {"six significant digits", {{1.23456789, 123456789}}, "    1.23457,1.23457e+08\n"},
      // Column 0 is as wide as its widest exact text plus one; the others
      // share one width.
      {"column widths", {{1, 0.5, 100}, {22.25, 3, -4}}, "    1., 0.5,100.\n 22.25,  3., -4.\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(Text(c.rows), c.deck);
  }
}

TEST(MaterialTable, ColumnEdits) {
  using Edit = std::function<void(oif_MaterialTable&)>;
  const struct {
    const char* name;
    Rows rows;
    Edit edit;
    const char* deck;
  } cases[] = {
      {"blank column",
       {{1, 2, 3}},
       [](oif_MaterialTable& t) { t.InsertEmptyColumn(1); },
       "1., ,2.,3.\n"},
      {"no blank appended at the end",
       {{1, 2, 3}},
       [](oif_MaterialTable& t) { t.InsertEmptyColumn(3); },
       "1.,2.,3.\n"},
      {"no blank at a negative index",
       {{1, 2, 3}},
       [](oif_MaterialTable& t) { t.InsertEmptyColumn(-1); },
       "1.,2.,3.\n"},
      {"skipped columns do not count for the commas", Counting(10),
       [](oif_MaterialTable& t) { t.SkipColumns({9}); }, "1., 2., 3., 4., 5., 6., 7., 8.\n 9.,\n"},
      {"skipping down to one",
       {{1, 2, 3}},
       [](oif_MaterialTable& t) {
         t.SkipColumns({0, 2});
       },
       "2.,\n"},
      {"swap", {{1, 2, 3}}, [](oif_MaterialTable& t) { t.SwapColumns(0, 2); }, "3.,2.,1.\n"},
      {"replace matching cells",
       {{1, 2}, {3, 2.5}},
       [](oif_MaterialTable& t) { t.ReplaceColumnData(1, 2.5, "X"); },
       "1.,  2.\n3.,X\n"},
      {"replace in the column past the numbers",
       {{1, 0}},
       [](oif_MaterialTable& t) {
         t.InsertEmptyColumn(0);
         t.ReplaceColumnData(2, 0, "X");
       },
       " ,1.,X\n"},
      {"replace out of range",
       {{1, 2}},
       [](oif_MaterialTable& t) {
         t.ReplaceColumnData(-1, 1, "X");
         t.ReplaceColumnData(2, 2, "X"); // one past the numbers, but no such cell
         t.ReplaceColumnData(3, 0, "X");
       },
       "1.,2.\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    oif_MaterialTable table(Values(c.rows), 0, false);
    c.edit(table);
    EXPECT_EQ(Text(table), c.deck);
  }
}

} // namespace
