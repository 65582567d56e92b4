#include "oif/oif_Cecurrent.h"

qkw_Keyword* oif_Cecurrent::Copy() const { return new oif_Cecurrent(*this); }

void oif_Cecurrent::Write(utl_Stream& s) const {
  keydeck::WriteChargeForm(s, "*Cecurrent", card_, ", ,");
}
