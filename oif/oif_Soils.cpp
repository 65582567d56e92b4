#include "oif/oif_Soils.h"

#include "base/utl_Stream.h"
#include "oif/oif_StepCards.h"

using namespace keydeck;

oif_Soils::oif_Soils(const kprC_AnalysisStep& step)
    : record_(keydeck::RecordCast<kprC_SoilsStep>(step)) {}

qkw_Keyword* oif_Soils::Copy() const { return new oif_Soils(*this); }

void oif_Soils::Write(utl_Stream& s) const {
  s << "*Soils";
  if (record_.response == kprC_Consolidation) {
    s << ", consolidation";
    WriteThermalEnd(s, record_.endValue);
  }
  if (record_.timeIncrementationMethod == kprC_AutomaticIncrements) {
    s.OptionalLineBreak();
    if (record_.utol > 0)
      s << ", utol=" << record_.utol;
    else
      s << ", utol=1.0";
  }
  if (record_.creep && record_.cetol > 0) {
    s.OptionalLineBreak();
    s << ", cetol=" << record_.cetol;
  }
  if (!record_.creep) {
    s.OptionalLineBreak();
    s << ", creep=none";
  }
  WriteStabilize(s, record_);
  s.LineBreak();
  WriteThermalIncrements(s, record_, ", ,");
  if (record_.endValue != NotGivenDouble)
    s << record_.endValue;
  s << endl;
}
