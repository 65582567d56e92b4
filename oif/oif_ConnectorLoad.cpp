#include "oif/oif_ConnectorLoad.h"

#include "base/nex_Exception.h"
#include "base/utl_Stream.h"

using namespace keydeck;

qkw_Keyword* oif_ConnectorLoad::Copy() const { return new oif_ConnectorLoad(*this); }

void oif_ConnectorLoad::Write(utl_Stream& s) const {
  constexpr const char* Keyword = "*Connector Load";
  if (card_.deactivate) {
    WriteConcentratedCard(s, Keyword, card_, 0, false);
    return;
  }
  switch (card_.load->DynTypeId()) {
  case kloC_ConnectorForceType:
    WriteVectorLoad(s, Keyword, card_, false, {"1", "2", "3"});
    return;
  case kloC_ConnectorMomentType:
    WriteVectorLoad(s, Keyword, card_, false, {"4", "5", "6"});
    return;
  default:
    Raise("Invalid load type for *Connector Load");
  }
}
