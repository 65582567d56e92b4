#include "oif/oif_Decharge.h"

qkw_Keyword* oif_Decharge::Copy() const { return new oif_Decharge(*this); }

void oif_Decharge::Write(utl_Stream& s) const {
  keydeck::WriteChargeForm(s, "*Decharge", card_, ",EBF,");
}
