#include "oif/oif_Dsecurrent.h"

qkw_Keyword* oif_Dsecurrent::Copy() const { return new oif_Dsecurrent(*this); }

void oif_Dsecurrent::Write(utl_Stream& s) const {
  keydeck::WriteChargeForm(s, "*Dsecurrent", card_, ",CS,");
}
