#include "oif/oif_Transform.h"

#include "qkw/qkw_QuorvexName.h"

oif_Transform::oif_Transform(const ddb_Model& model, const dtmC_DatumRef& datum,
                             const cow_String& nset)
    : nset_(nset), csys_(model, datum, gsl_Matrix()) {}

qkw_Keyword* oif_Transform::Copy() const { return new oif_Transform(*this); }

void oif_Transform::Write(utl_Stream& s) const {
  csys_.Write(s, "*Transform, nset=" + qkw_QuorvexName(nset_, false).Printable(),
              /*asTransform=*/true);
}
