#pragma once

#include "base/cow_Shared.h"

#include <cstddef>
#include <vector>

/// A dense rows-by-columns array, row-major; copies share until written.
/// Neither accessor checks its indices.
template <class T> class cow_2DArray {
public:
  cow_2DArray() = default;
  cow_2DArray(int rows, int cols, const T& fill = T())
      : rows_(rows), cols_(cols),
        cells_(std::vector<T>(static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols),
                              fill)) {}

  int Rows() const { return rows_; }
  int Cols() const { return cols_; }
  const T& ConstGet(int r, int c) const { return cells_.Read()[Index(r, c)]; }
  T& Get(int r, int c) { return cells_.Write()[Index(r, c)]; }

private:
  std::size_t Index(int r, int c) const {
    return static_cast<std::size_t>(r) * static_cast<std::size_t>(cols_) +
           static_cast<std::size_t>(c);
  }

  int rows_ = 0;
  int cols_ = 0;
  keydeck::CowBox<std::vector<T>> cells_;
};
