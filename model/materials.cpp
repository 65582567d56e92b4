#include "model/materials.h"

#include <algorithm>
#include <numeric>
#include <vector>

int kmaC_Elastic::DataColumns(TypeEnm type) {
  switch (type) {
  case Isotropic:
    return 2;
  case Orthotropic:
  case EngineeringConstants:
    return 9;
  case Anisotropic:
    return 21;
  case Lamina:
    return 6;
  case Traction:
    return 3;
  case CoupledTraction:
    return 6;
  }
  return 0;
}

keydeck::TableColumns kmaC_Plastic::ExpectedColumns() const {
  // The rate path writes the strain rate in the header, whatever the hardening.
  if (rate)
    return Columns(3);
  switch (hardening) {
  case IsotropicHardening:
  case Kinematic:
  case Mixed:
    return Columns(2);
  case JohnsonCookHardening:
    return Columns(6);
  case User:
    // Only the first column is written, one property per row.
    return {.data = 1, .moreData = true};
  case Combined:
    break;
  }
  switch (dataType) {
  case Parameters:
    return Columns(1 + 2 * numBackstress); // the loader bounds the count
  case Stabilized:
    return Columns(strainRangeDependency ? 3 : 2);
  case NoDataType:
  case HalfCycle:
    break;
  }
  return Columns(2);
}

keydeck::TableColumns kmaC_Creep::ExpectedColumns() const {
  switch (law) {
  case Time:
  case Strain:
    return Columns(3);
  case Hyperbolic:
    return Columns(5);
  case UserLaw:
  case Anand:
  case PowerLaw:
  case TimePowerLaw:
  case DoublePowerLaw:
    break;
  }
  return SomeColumns();
}

void kmaC_MaterialTable::Sort(int column) {
  const int rows = Rows();
  const int columns = Cols();
  std::vector<int> order(static_cast<std::size_t>(rows));
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(), [&](int a, int b) {
    for (int c = columns - 1; c >= column; --c) {
      const double x = values_.ConstGet(a, c);
      const double y = values_.ConstGet(b, c);
      if (x != y)
        return x < y;
    }
    return false;
  });
  cow_2DArray<double> sorted(rows, columns);
  for (int r = 0; r < rows; ++r)
    for (int c = 0; c < columns; ++c)
      sorted.Get(r, c) = values_.ConstGet(order[static_cast<std::size_t>(r)], c);
  values_ = sorted;
}
