#include "oif/oif_Static.h"

#include "base/utl_Stream.h"
#include "oif/oif_StepCards.h"

using namespace keydeck;

oif_Static::oif_Static(const kprC_AnalysisStep& step)
    : record_(keydeck::RecordCast<kprC_StaticStep>(step)) {}

qkw_Keyword* oif_Static::Copy() const { return new oif_Static(*this); }

void oif_Static::Write(utl_Stream& s) const {
  WriteStaticHead(s, record_, record_.timeIncrementationMethod);
  WriteStabilize(s, record_);
  s.LineBreak();
  WriteIncrements(s, record_);
  s << endl;
}
