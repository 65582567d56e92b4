#pragma once

#include "base/cow_String.h"
#include "model/orientations.h"
#include "oif/oif_DatumCsys.h"
#include "qkw/qkw_Keyword.h"

/// "*Orientation": a named local system, on a datum coordinate system or
/// the user's own.
class oif_Orientation : public qkw_Keyword {
public:
  /// The user's own system: ", system=user" and no data line.
  explicit oif_Orientation(const cow_String& name);
  /// On a datum, with the additional rotation line `axis`, `angle` when
  /// `withRotationLine`. A null datum writes nothing at all.
  oif_Orientation(const ddb_Model& model, const dtmC_DatumRef& datum, const cow_String& name,
                  bool withRotationLine, double angle, ptoC_MaterialOrientation::axisEnm axis);
  /// On the datum of a material orientation, moved by `transform`, with its
  /// additional rotation line.
  oif_Orientation(const ddb_Model& model, const ptoC_MaterialOrientation& orientation,
                  const cow_String& name, const gsl_Matrix& transform);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String name_;
  bool userSystem_ = false;
  oif_DatumCsys csys_;
  bool withRotationLine_ = false;
  double angle_ = 0;
  ptoC_MaterialOrientation::axisEnm axis_ = ptoC_MaterialOrientation::Axis1;
};
