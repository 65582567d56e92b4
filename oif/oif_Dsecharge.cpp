#include "oif/oif_Dsecharge.h"

qkw_Keyword* oif_Dsecharge::Copy() const { return new oif_Dsecharge(*this); }

void oif_Dsecharge::Write(utl_Stream& s) const {
  keydeck::WriteChargeForm(s, "*Dsecharge", card_, ",ES,");
}
