#include "oif/oif_Orientation.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"

oif_Orientation::oif_Orientation(const cow_String& name) : name_(name), userSystem_(true) {}

oif_Orientation::oif_Orientation(const ddb_Model& model, const dtmC_DatumRef& datum,
                                 const cow_String& name, bool withRotationLine, double angle,
                                 ptoC_MaterialOrientation::axisEnm axis)
    : name_(name), csys_(model, datum, gsl_Matrix()), withRotationLine_(withRotationLine),
      angle_(angle), axis_(axis) {}

oif_Orientation::oif_Orientation(const ddb_Model& model,
                                 const ptoC_MaterialOrientation& orientation,
                                 const cow_String& name, const gsl_Matrix& transform)
    : name_(name), csys_(model, orientation.csys, transform), withRotationLine_(true),
      angle_(orientation.angle), axis_(orientation.axis) {}

qkw_Keyword* oif_Orientation::Copy() const { return new oif_Orientation(*this); }

void oif_Orientation::Write(utl_Stream& s) const {
  const cow_String head = "*Orientation, name=" + name_;
  if (userSystem_) {
    s << head << ", system=user" << endl;
    return;
  }
  if (!csys_.Write(s, head, /*asTransform=*/false) || !withRotationLine_)
    return;
  s << keydeck::EnumDeckText(axis_) << ", " << angle_ << endl;
}
