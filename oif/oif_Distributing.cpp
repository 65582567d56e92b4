#include "oif/oif_Distributing.h"

#include "base/utl_Stream.h"
#include "oif/oif_ConstraintCards.h"

qkw_Keyword* oif_Distributing::Copy() const { return new oif_Distributing(*this); }

void oif_Distributing::Write(utl_Stream& s) const {
  s << "*Distributing";
  if (const auto* entry = keydeck::FindEnumEntry(coupling_.weightingMethod)) {
    s << ", weighting method=";
    s.Print(entry->deckText);
  }
  s << endl;
  keydeck::WriteCouplingDofs(s, coupling_);
}
