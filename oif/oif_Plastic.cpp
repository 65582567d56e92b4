#include "oif/oif_Plastic.h"

#include "base/utl_Stream.h"
#include "oif/oif_AnnealTemperature.h"
#include "oif/oif_CyclicHardening.h"
#include "oif/oif_MaterialTable.h"
#include "oif/oif_Ornl.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_RateDependent.h"
#include "oif/oif_TableCards.h"

#include <cassert>
#include <utility>

using namespace keydeck;

namespace {

// The column of the strain rate in a rate-dependent table.
constexpr int RateColumn = 2;

void SwapColumns(kmaC_MaterialTable& table, int a, int b) {
  for (int row = 0; row < table.Rows(); ++row)
    std::swap(table.Get(row, a), table.Get(row, b));
}

} // namespace

qkw_Keyword* oif_Plastic::Copy() const { return new oif_Plastic(*this); }

void oif_Plastic::Write(utl_Stream& s) const {
  if (record_.rate)
    WriteRateTables(s);
  else if (record_.hardening == kmaC_Plastic::User)
    WriteUserHardening(s);
  else
    WriteHardeningTable(s);
  WriteIfPresent<oif_RateDependent>(s, record_.rateDependent);
  WriteIfPresent<oif_Potential>(s, record_.potential);
  WriteIfPresent<oif_CyclicHardening>(s, record_.cyclicHardening);
  WriteIfPresent<oif_Ornl>(s, record_.ornl);
  WriteIfPresent<oif_CycledPlastic>(s, record_.cycledPlastic);
  WriteIfPresent<oif_AnnealTemperature>(s, record_.annealTemperature);
}

void oif_Plastic::WriteRateTables(utl_Stream& s) const {
  const int columns = record_.table.Cols();
  assert(columns > RateColumn && "a rate-dependent table has a rate column");
  // Sorting on the columns from the last back decides by the last column
  // first: with the rate moved there, the rows group by ascending rate.
  kmaC_MaterialTable sorted = record_.table;
  SwapColumns(sorted, RateColumn, columns - 1);
  sorted.Sort(1);
  SwapColumns(sorted, RateColumn, columns - 1);

  double previousRate = 0.0;
  for (int row = 0; row < sorted.Rows(); ++row) {
    const double rate = sorted.ConstGet(row, RateColumn);
    if (row == 0 || rate != previousRate) {
      s << "*Plastic, rate=" << rate;
      WriteDependencies(s, record_.dependencies);
      s.LineBreak();
      previousRate = rate;
    }
    // The rate stands in the header, so the data line goes without it.
    cow_2DArray<double> line(1, columns - 1);
    for (int column = 0, to = 0; column < columns; ++column)
      if (column != RateColumn)
        line.Get(0, to++) = sorted.ConstGet(row, column);
    oif_MaterialTable cells(line, 0, false);
    if (!record_.temperatureDependency && record_.dependencies > 0)
      cells.InsertEmptyColumn(columns - record_.dependencies - 1);
    s << cells;
  }
}

void oif_Plastic::WriteUserHardening(utl_Stream& s) const {
  s << "*Plastic";
  WriteDependencies(s, record_.dependencies);
  WriteHardeningParameters(s);
  WriteParameter(s, "properties=", record_.table.Rows());
  s.LineBreak();
  WriteTable(record_.table, s);
}

void oif_Plastic::WriteHardeningTable(utl_Stream& s) const {
  s << "*Plastic";
  WriteDependencies(s, record_.dependencies);
  WriteHardeningParameters(s);
  s.LineBreak();
  const int columns = record_.table.Cols();
  oif_MaterialTable cells(record_.table, record_.dependencies, record_.temperatureDependency);
  if (!record_.temperatureDependency && record_.dependencies > 0)
    cells.InsertEmptyColumn(columns - record_.dependencies);
  // Stabilized combined hardening without strain-range dependency leaves its
  // third data column blank ahead of the temperature and field columns.
  if (record_.hardening == kmaC_Plastic::Combined && record_.dataType == kmaC_Plastic::Stabilized &&
      !record_.strainRangeDependency && (record_.temperatureDependency || record_.dependencies > 0))
    cells.InsertEmptyColumn(2);
  s << cells;
}

void oif_Plastic::WriteHardeningParameters(utl_Stream& s) const {
  WriteParameter(s, "hardening=", record_.hardening, kmaC_Plastic::IsotropicHardening);
  WriteParameter(s, "datatype=", record_.dataType, kmaC_Plastic::NoDataType);
  // Half-cycle data always says how many backstresses it has, even none.
  if (record_.dataType == kmaC_Plastic::HalfCycle)
    WriteParameter(s, "numbackstress=", record_.numBackstress);
}

void oif_Plastic::WriteTable(const kmaC_MaterialTable& table, utl_Stream& s) const {
  cow_2DArray<double> constants(1, table.Rows());
  for (int row = 0; row < table.Rows(); ++row)
    constants.Get(0, row) = table.ConstGet(row, 0);
  s << oif_MaterialTable(constants, 0, false);
}
