#include "oif/oif_MassDiffusion.h"

#include "base/utl_Stream.h"
#include "oif/oif_StepCards.h"

using namespace keydeck;

oif_MassDiffusion::oif_MassDiffusion(const kprC_AnalysisStep& step)
    : record_(keydeck::RecordCast<kprC_MassDiffusionStep>(step)) {}

qkw_Keyword* oif_MassDiffusion::Copy() const { return new oif_MassDiffusion(*this); }

void oif_MassDiffusion::Write(utl_Stream& s) const {
  s << "*Mass Diffusion";
  if (record_.response != kprC_SteadyState)
    s << (record_.endValue == 0.0 ? ", end=PERIOD" : ", end=SS");
  if (record_.timeIncrementationMethod == kprC_AutomaticIncrements) {
    s.OptionalLineBreak();
    s << ", dcmax=" << record_.dcmax;
  }
  if (record_.response == kprC_SteadyState)
    s << ", steady state";
  s.LineBreak();
  WriteThermalIncrements(s, record_, ", ,");
  if (record_.endValue != 0.0)
    s << record_.endValue;
  s << endl;
}
