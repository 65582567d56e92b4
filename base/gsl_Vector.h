#pragma once

#include <cmath>

/// A vector of three reals.
struct gsl_Vector {
  double x = 0;
  double y = 0;
  double z = 0;

  double ComputeMagnitude() const { return std::sqrt(x * x + y * y + z * z); }
  /// The vector scaled to length 1; the zero vector stays zero.
  gsl_Vector Normalized() const {
    const double length = ComputeMagnitude();
    return length == 0 ? *this : gsl_Vector{x / length, y / length, z / length};
  }
  friend gsl_Vector operator+(const gsl_Vector& a, const gsl_Vector& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
  }
  friend gsl_Vector operator-(const gsl_Vector& a, const gsl_Vector& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
  }
  friend bool operator==(const gsl_Vector& a, const gsl_Vector& b) = default;
  /// The cross product a x b.
  friend gsl_Vector Cross(const gsl_Vector& a, const gsl_Vector& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
  }
};

/// A point in space; the same three reals as a vector.
using gsl_Point = gsl_Vector;

/// The geometry tolerances: lengths and angles (radians) at or below these
/// count as zero when a placement is written.
struct gsl_Util {
  static constexpr double LengthTolerance = 1e-12;
  static constexpr double AngleTolerance = 1e-12;
};
