#include "oif/oif_CoupledThermalElectric.h"

#include "base/utl_Stream.h"
#include "oif/oif_StepCards.h"

using namespace keydeck;

oif_CoupledThermalElectric::oif_CoupledThermalElectric(const kprC_AnalysisStep& step)
    : record_(keydeck::RecordCast<kprC_CoupledThermalElectricStep>(step)) {}

qkw_Keyword* oif_CoupledThermalElectric::Copy() const {
  return new oif_CoupledThermalElectric(*this);
}

void oif_CoupledThermalElectric::Write(utl_Stream& s) const {
  s << "*Coupled Thermal-Electrical";
  WriteThermalResponse(s, record_.response, record_.endValue);
  if (record_.timeIncrementationMethod == kprC_AutomaticIncrements) {
    s << ", deltmx=" << record_.deltmx;
    if (record_.mxdem != 0.1)
      s << ", mxdem=" << record_.mxdem;
  }
  s.LineBreak();
  WriteThermalIncrements(s, record_, ", ,");
  if (record_.endValue != NotGivenDouble)
    s << record_.endValue;
  s << endl;
}
