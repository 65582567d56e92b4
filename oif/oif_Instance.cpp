#include "oif/oif_Instance.h"

#include "base/utl_Stream.h"
#include "model/database.h"
#include "qkw/qkw_QuorvexName.h"

namespace {

void WriteValues(utl_Stream& s, const double* values, int count) {
  for (int i = 0; i < count; ++i) {
    if (i > 0)
      s << ", ";
    s.Print(values[i], 12, 15);
  }
  s << endl;
}

} // namespace

oif_Instance::oif_Instance(const ddb_PartInstance& instance)
    : name_(instance.name()), partName_(instance.partName()) {
  const cow_List<double>& transform = instance.transform();
  const gsl_Vector translation{transform.ConstGet(0), transform.ConstGet(1), transform.ConstGet(2)};
  const gsl_Vector rotation{transform.ConstGet(3), transform.ConstGet(4), transform.ConstGet(5)};
  if (translation.ComputeMagnitude() == 0 && rotation.ComputeMagnitude() == 0)
    return;
  placement_.FillIdentity();
  placement_.AxisRotation(gsl_Point{}, rotation.Normalized(), rotation.ComputeMagnitude());
  placement_.SetTranslation(translation);
}

qkw_Keyword* oif_Instance::Copy() const { return new oif_Instance(*this); }

void oif_Instance::Write(utl_Stream& s) const {
  s << "*Instance, name=" << qkw_QuorvexName(name_, false)
    << ", part=" << qkw_QuorvexName(partName_, false) << endl;
  const gsl_Vector t = placement_.GetTranslation();
  gsl_Point point;
  gsl_Vector axis;
  double angle = 0;
  placement_.GetAxisRotation(point, axis, angle);
  const bool turned = angle > gsl_Util::AngleTolerance;
  if (t.ComputeMagnitude() > gsl_Util::LengthTolerance || turned) {
    const double translation[] = {t.x, t.y, t.z};
    WriteValues(s, translation, 3);
  }
  if (!turned)
    return;
  const gsl_Point second = point + axis;
  const double line[] = {
      point.x, point.y, point.z, second.x, second.y, second.z, angle * 180.0 / 3.141592653589793};
  WriteValues(s, line, 7);
}
