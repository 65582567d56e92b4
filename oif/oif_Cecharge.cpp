#include "oif/oif_Cecharge.h"

qkw_Keyword* oif_Cecharge::Copy() const { return new oif_Cecharge(*this); }

void oif_Cecharge::Write(utl_Stream& s) const {
  keydeck::WriteChargeForm(s, "*Cecharge", card_, ", ,");
}
