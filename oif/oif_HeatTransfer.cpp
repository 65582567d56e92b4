#include "oif/oif_HeatTransfer.h"

#include "base/utl_Stream.h"
#include "oif/oif_StepCards.h"

using namespace keydeck;

oif_HeatTransfer::oif_HeatTransfer(const kprC_AnalysisStep& step)
    : record_(keydeck::RecordCast<kprC_HeatTransferStep>(step)) {}

qkw_Keyword* oif_HeatTransfer::Copy() const { return new oif_HeatTransfer(*this); }

void oif_HeatTransfer::Write(utl_Stream& s) const {
  s << "*Heat Transfer";
  WriteThermalResponse(s, record_.response, record_.endValue);
  if (record_.timeIncrementationMethod == kprC_AutomaticIncrements) {
    s.OptionalLineBreak();
    s << ", deltmx=" << record_.deltmx;
  }
  // The change of emissivity stands outside the method test here, unlike in
  // the thermal-electrical card.
  if (record_.mxdem != 0.1) {
    s.OptionalLineBreak();
    s << ", mxdem=" << record_.mxdem;
  }
  s.LineBreak();
  if (record_.timeIncrementationMethod == kprC_FixedIncrements &&
      record_.response == kprC_SteadyState) {
    s << record_.initialInc << ", " << record_.timePeriod << ", " << record_.initialInc << ", "
      << record_.initialInc << ", ";
  } else {
    WriteThermalIncrements(s, record_, ", ,");
  }
  if (record_.endValue != NotGivenDouble)
    s << record_.endValue;
  s << endl;
}
