#pragma once

#include "base/gsl_Vector.h"

/// A rigid motion: a rotation and a translation. A default matrix is the
/// identity.
class gsl_Matrix {
public:
  void FillIdentity();
  /// Sets the rotation to `angle` radians about `axis` (of length 1) through
  /// the origin; `point` must be the origin, the only centre a placement uses.
  void AxisRotation(const gsl_Point& point, const gsl_Vector& axis, double angle);
  void SetTranslation(const gsl_Vector& translation) { translation_ = translation; }
  gsl_Vector GetTranslation() const { return translation_; }
  /// The rotation as a point on its axis (the origin), the axis (length 1)
  /// and the angle in radians, from 0 to pi. Without rotation the angle is 0
  /// and the axis is z.
  void GetAxisRotation(gsl_Point& point, gsl_Vector& axis, double& angle) const;
  /// The rotation applied to `vector`; a direction ignores the translation.
  gsl_Vector TransformVector(const gsl_Vector& vector) const;
  /// The rotation, then the translation, applied to `point`.
  gsl_Point TransformPoint(const gsl_Point& point) const {
    return TransformVector(point) + translation_;
  }
  /// True for the exact identity, the default matrix.
  bool IsIdentity() const;

private:
  double rotation_[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
  gsl_Vector translation_;
};
