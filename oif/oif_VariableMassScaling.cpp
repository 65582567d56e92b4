#include "oif/oif_VariableMassScaling.h"

#include "base/utl_Stream.h"
#include "oif/oif_MassScalingLines.h"

using namespace keydeck;

qkw_Keyword* oif_VariableMassScaling::Copy() const { return new oif_VariableMassScaling(*this); }

void oif_VariableMassScaling::Write(utl_Stream& s) const {
  if (record_.form == kprC_DisableMassScaling) {
    s << "** Mass Scaling: Disable Throughout Step" << endl;
    s << "*Variable Mass Scaling" << endl;
    return;
  }
  WriteMassScalingComment(s, "Semi-Automatic", setName_);
  WriteMassScalingKeyword(s, "*Variable Mass Scaling", setName_);
  WriteTargetIncrement(s, record_);
  if (record_.frequency != NotGivenInt)
    s << ", frequency=" << record_.frequency;
  s << endl;
}
