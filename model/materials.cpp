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
