#include "oif/oif_ExplicitDynamics.h"

#include "base/utl_Stream.h"
#include "oif/oif_StepCards.h"

using namespace keydeck;

oif_ExplicitDynamics::oif_ExplicitDynamics(const kprC_AnalysisStep& step)
    : record_(RecordCast<kprC_ExplicitDynamicsStep>(step)) {}

qkw_Keyword* oif_ExplicitDynamics::Copy() const { return new oif_ExplicitDynamics(*this); }

void oif_ExplicitDynamics::Write(utl_Stream& s) const {
  s << "*Dynamic, Explicit";
  if (record_.adiabatic)
    s << ", adiabatic";
  WriteExplicitIncrements(s, record_, "Corrupted Explicit Dynamics procedure");
}
