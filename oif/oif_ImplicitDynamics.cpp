#include "oif/oif_ImplicitDynamics.h"

#include "base/utl_Stream.h"
#include "oif/oif_StepCards.h"

using namespace keydeck;

oif_ImplicitDynamics::oif_ImplicitDynamics(const kprC_AnalysisStep& step)
    : record_(keydeck::RecordCast<kprC_ImplicitDynamicsStep>(step)) {}

qkw_Keyword* oif_ImplicitDynamics::Copy() const { return new oif_ImplicitDynamics(*this); }

void oif_ImplicitDynamics::Write(utl_Stream& s) const {
  s << "*Dynamic";
  if (record_.alpha != NotGivenDouble)
    s << ",alpha=" << record_.alpha;
  if (record_.adiabatic)
    s << ",adiabatic";
  if (record_.timeIncrementationMethod != kprC_FixedIncrements) {
    s << ",haftol=" << record_.haftol;
  } else {
    s << (record_.noStop ? ",direct=NO STOP" : ",direct");
    s.OptionalLineBreak();
    if (record_.noHaf)
      s << ",nohaf";
  }
  s.OptionalLineBreak();
  if (!record_.initialAcceleration)
    s << ",initial=NO";
  s.LineBreak();
  WriteIncrements(s, record_, ",");
  s << endl;
}
