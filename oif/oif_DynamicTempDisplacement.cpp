#include "oif/oif_DynamicTempDisplacement.h"

#include "base/utl_Stream.h"
#include "oif/oif_StepCards.h"

using namespace keydeck;

oif_DynamicTempDisplacement::oif_DynamicTempDisplacement(const kprC_AnalysisStep& step)
    : record_(RecordCast<kprC_TempDisplacementDynamicsStep>(step)) {}

qkw_Keyword* oif_DynamicTempDisplacement::Copy() const {
  return new oif_DynamicTempDisplacement(*this);
}

void oif_DynamicTempDisplacement::Write(utl_Stream& s) const {
  s << "*Dynamic Temperature-displacement, Explicit";
  WriteExplicitIncrements(s, record_, "Corrupted Dynamic, Temp-displacement procedure");
}
