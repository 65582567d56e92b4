#pragma once

#include "base/cow_String.h"
#include "base/gsl_Matrix.h"
#include "base/gsl_Vector.h"

class ddb_Model;
class dtmC_DatumRef;
class utl_Stream;

/// One datum coordinate system as the orientation and transform cards print
/// it. Not a card: a value that those cards hold.
class oif_DatumCsys {
public:
  /// No system: it writes nothing.
  oif_DatumCsys() = default;
  /// The datum of `datum`, moved by `transform` unless that is the identity
  /// (so a datum of an instance reaches the assembly's frame). A null
  /// reference gives a system that writes nothing; a datum that is not a
  /// coordinate system raises.
  oif_DatumCsys(const ddb_Model& model, const dtmC_DatumRef& datum, const gsl_Matrix& transform);

  /// Writes `head`, the system's kind (", type=C" or ", type=S" for a
  /// transform, ", system=CYLINDRICAL" or ", system=SPHERICAL" for an
  /// orientation, nothing for a rectangular system) and the data line of six
  /// reals in 12 columns with 15 digits, magnitudes below `smallReal` as 0:
  /// the x and y axes of a rectangular system, the origin and the tip of the
  /// z axis from the origin otherwise. Returns false, having written
  /// nothing, for a null reference.
  bool Write(utl_Stream& s, const cow_String& head, bool asTransform) const;
  /// `value` times 10 to the power -15.
  static double FindSmallestReal(double value) { return value * 1e-15; }

private:
  void WriteValues(utl_Stream& s) const;

  bool valid_ = false;
  gsl_Point origin_;
  gsl_Vector xAxis_;
  gsl_Vector yAxis_;
  gsl_Vector zAxis_;
  int csysType_ = 0;
  double smallReal_ = FindSmallestReal(1.0);
};
