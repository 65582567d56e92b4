#include "oif/oif_StaticRiks.h"

#include "base/utl_Stream.h"
#include "oif/oif_StepCards.h"

using namespace keydeck;

oif_StaticRiks::oif_StaticRiks(const kprC_AnalysisStep& step, const cow_String& limitNodeSetName)
    : record_(keydeck::RecordCast<kprC_StaticRiksStep>(step)), limitNodeSetName_(limitNodeSetName) {
}

qkw_Keyword* oif_StaticRiks::Copy() const { return new oif_StaticRiks(*this); }

void oif_StaticRiks::Write(utl_Stream& s) const {
  WriteStaticHead(s, record_, record_.timeIncrementationMethod);
  if (record_.longTerm) {
    s.OptionalLineBreak();
    s << ", long term";
  }
  s.OptionalLineBreak();
  s << ", riks";
  s.LineBreak();
  s << record_.initialArcInc << ", " << record_.totalArcLength << ", ";
  if (record_.timeIncrementationMethod == kprC_AutomaticIncrements) {
    s << record_.minArcInc << ", ";
    if (record_.maxArcInc != kprC_StaticRiksStep::UnboundedArcIncrement)
      s << record_.maxArcInc;
  } else {
    s << ", ";
  }
  s << ", ";
  if (record_.maxLPF != NotGivenDouble)
    s << record_.maxLPF;
  s << ", ";
  if (record_.HasLimit())
    s << limitNodeSetName_ << ", " << record_.limitDof << ", " << record_.limitValue;
  s << endl;
}
