#include "base/gsl_Matrix.h"

#include <algorithm>
#include <cassert>
#include <cmath>

void gsl_Matrix::FillIdentity() { *this = gsl_Matrix(); }

void gsl_Matrix::AxisRotation(const gsl_Point& point, const gsl_Vector& axis, double angle) {
  assert(point.ComputeMagnitude() == 0 && "rotations of a placement are about the origin");
  (void)point;
  const double c = std::cos(angle);
  const double s = std::sin(angle);
  const double t = 1 - c;
  const double x = axis.x;
  const double y = axis.y;
  const double z = axis.z;
  const double rotation[3][3] = {{t * x * x + c, t * x * y - s * z, t * x * z + s * y},
                                 {t * x * y + s * z, t * y * y + c, t * y * z - s * x},
                                 {t * x * z - s * y, t * y * z + s * x, t * z * z + c}};
  std::copy(&rotation[0][0], &rotation[0][0] + 9, &rotation_[0][0]);
}

void gsl_Matrix::GetAxisRotation(gsl_Point& point, gsl_Vector& axis, double& angle) const {
  const double(&r)[3][3] = rotation_;
  point = gsl_Point{};
  const double cosine = std::clamp((r[0][0] + r[1][1] + r[2][2] - 1) / 2, -1.0, 1.0);
  const gsl_Vector skew{r[2][1] - r[1][2], r[0][2] - r[2][0], r[1][0] - r[0][1]};
  // The skew part holds twice the sine: atan2 keeps the angle exact near 0
  // and near a half turn, where acos of the cosine alone loses digits.
  angle = std::atan2(skew.ComputeMagnitude() / 2, cosine);
  if (skew.ComputeMagnitude() > 1e-9) {
    axis = skew.Normalized();
    return;
  }
  if (cosine > 0) { // no rotation
    angle = 0;
    axis = gsl_Vector{0, 0, 1};
    return;
  }
  // A half turn: the rotation is symmetric, R = 2aa' - I; take the axis from
  // the largest diagonal entry, where it is best conditioned.
  const int k = r[0][0] >= r[1][1] && r[0][0] >= r[2][2] ? 0 : r[1][1] >= r[2][2] ? 1 : 2;
  double a[3];
  a[k] = std::sqrt((r[k][k] + 1) / 2);
  for (int i = 0; i < 3; ++i)
    if (i != k)
      a[i] = r[i][k] / (2 * a[k]);
  axis = gsl_Vector{a[0], a[1], a[2]}.Normalized();
}

gsl_Vector gsl_Matrix::TransformVector(const gsl_Vector& vector) const {
  const double(&r)[3][3] = rotation_;
  return {r[0][0] * vector.x + r[0][1] * vector.y + r[0][2] * vector.z,
          r[1][0] * vector.x + r[1][1] * vector.y + r[1][2] * vector.z,
          r[2][0] * vector.x + r[2][1] * vector.y + r[2][2] * vector.z};
}

bool gsl_Matrix::IsIdentity() const {
  const gsl_Matrix identity;
  return std::equal(&rotation_[0][0], &rotation_[0][0] + 9, &identity.rotation_[0][0]) &&
         translation_ == identity.translation_;
}
