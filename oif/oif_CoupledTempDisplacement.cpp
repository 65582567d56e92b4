#include "oif/oif_CoupledTempDisplacement.h"

#include "base/utl_Stream.h"
#include "oif/oif_StepCards.h"

using namespace keydeck;

oif_CoupledTempDisplacement::oif_CoupledTempDisplacement(const kprC_AnalysisStep& step,
                                                         bool v6Format)
    : record_(keydeck::RecordCast<kprC_CoupledTempDisplacementStep>(step)), v6Format_(v6Format) {}

qkw_Keyword* oif_CoupledTempDisplacement::Copy() const {
  return new oif_CoupledTempDisplacement(*this);
}

void oif_CoupledTempDisplacement::Write(utl_Stream& s) const {
  s << "*Coupled Temperature-Displacement";
  if (record_.creep == kprC_NoCreep)
    s << (v6Format_ ? ", creep=none" : ", no creep");
  else if (record_.creep == kprC_ExplicitCreep)
    s << (v6Format_ ? ", creep=explicit" : ", explicit");
  if (record_.response == kprC_SteadyState) {
    s.OptionalLineBreak();
    s << ", steady state";
  } else if (record_.timeIncrementationMethod == kprC_AutomaticIncrements) {
    if (record_.deltmx > 0)
      s << ", deltmx=" << record_.deltmx;
    if (record_.creep != kprC_NoCreep && record_.cetol > 0)
      s << ", cetol=" << record_.cetol;
  }
  WriteStabilize(s, record_);
  s.LineBreak();
  WriteIncrements(s, record_);
  s << endl;
}
