#include "oif/oif_Decurrent.h"

qkw_Keyword* oif_Decurrent::Copy() const { return new oif_Decurrent(*this); }

void oif_Decurrent::Write(utl_Stream& s) const {
  keydeck::WriteChargeForm(s, "*Decurrent", card_, ",CBF,");
}
