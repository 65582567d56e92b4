#include "oif/oif_Anneal.h"

#include "base/utl_Stream.h"
#include "oif/oif_StepCards.h"

using namespace keydeck;

oif_Anneal::oif_Anneal(const kprC_AnalysisStep& step)
    : record_(keydeck::RecordCast<kprC_AnnealStep>(step)) {}

qkw_Keyword* oif_Anneal::Copy() const { return new oif_Anneal(*this); }

void oif_Anneal::Write(utl_Stream& s) const {
  s << "*Anneal";
  if (record_.temperature != NotGivenDouble)
    s << ", temperature=" << record_.temperature;
  s << endl;
}
