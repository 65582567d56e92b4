#include "oif/oif_DatumCsys.h"

#include "base/utl_Stream.h"
#include "model/database.h"

oif_DatumCsys::oif_DatumCsys(const ddb_Model& model, const dtmC_DatumRef& datum,
                             const gsl_Matrix& transform) {
  if (datum.IsNullRef())
    return;
  ddb_Datum placed = model.datum(datum.Id());
  if (placed.GetDatumType() != dtu_CoordinateSystem)
    keydeck::Raise("Wrong datum type during input generation");
  if (!transform.IsIdentity())
    placed.TransformData(transform);
  const ddb_DatumCsys& csys = placed.CvtDatumCsys();
  origin_ = csys.GetOrigin();
  xAxis_ = csys.GetXaxis();
  yAxis_ = csys.GetYaxis();
  zAxis_ = csys.GetZaxis();
  csysType_ = csys.GetCsysType();
  valid_ = true;
}

bool oif_DatumCsys::Write(utl_Stream& s, const cow_String& head, bool asTransform) const {
  if (!valid_)
    return false;
  s << head;
  if (csysType_ == dtu_Cylindrical || csysType_ == dtu_Spherical) {
    const bool cylindrical = csysType_ == dtu_Cylindrical;
    s << ", ";
    s.OptionalLineBreak();
    if (asTransform)
      s << (cylindrical ? "type=C" : "type=S");
    else
      s << (cylindrical ? "system=CYLINDRICAL" : "system=SPHERICAL");
  } else if (csysType_ != dtu_Rectangular) {
    return false;
  }
  s << endl;
  WriteValues(s);
  return true;
}

// A rectangular system is told by its axes alone; the solver places it at
// the origin.
void oif_DatumCsys::WriteValues(utl_Stream& s) const {
  const utl_StreamSmallReal guard(s, smallReal_);
  const bool rectangular = csysType_ == dtu_Rectangular;
  const gsl_Vector first = rectangular ? xAxis_ : origin_;
  const gsl_Vector second = rectangular ? yAxis_ : origin_ + zAxis_;
  const double values[] = {first.x, first.y, first.z, second.x, second.y, second.z};
  for (int i = 0; i < 6; ++i) {
    if (i > 0)
      s << ", ";
    s.Print(values[i], 12, 15);
  }
  s << endl;
}
