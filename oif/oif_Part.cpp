#include "oif/oif_Part.h"

#include "base/utl_Stream.h"
#include "qkw/qkw_QuorvexName.h"

qkw_Keyword* oif_Part::Copy() const { return new oif_Part(*this); }

void oif_Part::Write(utl_Stream& s) const {
  s << "*Part, name=" << qkw_QuorvexName(partName_, false) << endl;
}
