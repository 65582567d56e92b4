#include "oif/oif_LoadCase.h"

#include "base/utl_Stream.h"
#include "qkw/qkw_QuorvexName.h"

qkw_Keyword* oif_LoadCase::Copy() const { return new oif_LoadCase(*this); }

void oif_LoadCase::Write(utl_Stream& s) const {
  s << "*Load Case, name=" << qkw_QuorvexName(name_, false) << endl;
}
