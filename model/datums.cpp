#include "model/datums.h"

namespace {

gsl_Vector VectorOf(const std::array<double, 3>& values) {
  return {values[0], values[1], values[2]};
}

} // namespace

bool ddb_DatumCsys::DeriveAxes(bool& zeroAxis) {
  origin_ = VectorOf(originPoint_);
  const gsl_Vector toFirst = VectorOf(point1_) - origin_;
  const gsl_Vector toSecond = VectorOf(point2_) - origin_;
  zeroAxis = toFirst.ComputeMagnitude() == 0;
  const gsl_Vector normal = Cross(toFirst, toSecond);
  // The plane is judged against the lengths that span it, so the test does
  // not depend on the model's unit of length.
  const double spread = toFirst.ComputeMagnitude() * toSecond.ComputeMagnitude();
  if (zeroAxis || normal.ComputeMagnitude() <= 1e-12 * spread)
    return false;
  xAxis_ = toFirst.Normalized();
  zAxis_ = normal.Normalized();
  yAxis_ = Cross(zAxis_, xAxis_).Normalized();
  return true;
}

void ddb_DatumCsys::Move(const gsl_Matrix& matrix) {
  origin_ = matrix.TransformPoint(origin_);
  xAxis_ = matrix.TransformVector(xAxis_);
  yAxis_ = matrix.TransformVector(yAxis_);
  zAxis_ = matrix.TransformVector(zAxis_);
}
