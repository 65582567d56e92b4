#include "oif/oif_TableCards.h"

#include "base/utl_Stream.h"
#include "oif/oif_MaterialTable.h"
#include "oif/oif_Parameters.h"

namespace keydeck {

void WriteDependentTable(utl_Stream& s, const kmaC_MaterialTable& table, int dependencies,
                         bool temperatureDependency) {
  oif_MaterialTable cells(table, dependencies, temperatureDependency);
  if (!temperatureDependency && dependencies > 0)
    cells.InsertEmptyColumn(table.Cols() - dependencies);
  s << cells;
}

void WritePlainTable(utl_Stream& s, const kmaC_MaterialTable& table) {
  s << oif_MaterialTable(table, 0, false);
}

void WriteDependentTableCard(utl_Stream& s, const char* keyword, int dependencies,
                             bool temperatureDependency, const kmaC_MaterialTable& table) {
  s << keyword;
  WriteDependencies(s, dependencies);
  s.LineBreak();
  WriteDependentTable(s, table, dependencies, temperatureDependency);
}

void WritePlainTableCard(utl_Stream& s, const char* keyword, const kmaC_MaterialTable& table) {
  s << keyword;
  s.LineBreak();
  WritePlainTable(s, table);
}

} // namespace keydeck
