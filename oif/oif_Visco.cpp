#include "oif/oif_Visco.h"

#include "base/utl_Stream.h"
#include "oif/oif_StepCards.h"

using namespace keydeck;

oif_Visco::oif_Visco(const kprC_AnalysisStep& step, bool v6Format)
    : record_(keydeck::RecordCast<kprC_ViscoStep>(step)), v6Format_(v6Format) {}

qkw_Keyword* oif_Visco::Copy() const { return new oif_Visco(*this); }

void oif_Visco::Write(utl_Stream& s) const {
  s << "*Visco";
  if (record_.timeIncrementationMethod == kprC_AutomaticIncrements)
    s << ", cetol=" << record_.cetol;
  if (record_.creep == kprC_ExplicitCreep)
    s << (v6Format_ ? ", creep=explicit" : ", explicit");
  WriteStabilize(s, record_);
  s.LineBreak();
  WriteIncrements(s, record_);
  s << endl;
}
