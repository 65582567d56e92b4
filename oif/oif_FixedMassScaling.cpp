#include "oif/oif_FixedMassScaling.h"

#include "base/utl_Stream.h"
#include "oif/oif_MassScalingLines.h"

using namespace keydeck;

qkw_Keyword* oif_FixedMassScaling::Copy() const { return new oif_FixedMassScaling(*this); }

void oif_FixedMassScaling::Write(utl_Stream& s) const {
  if (record_.form == kprC_ReinitializeMass) {
    WriteMassScalingComment(s, "Reinitialize Mass", setName_);
    WriteMassScalingKeyword(s, "*Fixed Mass Scaling", setName_);
    s << endl;
    return;
  }
  WriteMassScalingComment(s, "Semi-Automatic", setName_);
  WriteMassScalingKeyword(s, "*Fixed Mass Scaling", setName_);
  WriteTargetIncrement(s, record_);
  if (record_.factor != 0)
    s << ", factor=" << record_.factor;
  if (record_.numberInterval != NotGivenInt)
    s << ", number interval=" << record_.numberInterval;
  else if (record_.frequency != NotGivenInt)
    s << ", frequency=" << record_.frequency;
  s << endl;
}
