#include "oif/oif_Geostatic.h"

#include "base/utl_Stream.h"
#include "oif/oif_StepCards.h"

using namespace keydeck;

oif_Geostatic::oif_Geostatic(const kprC_AnalysisStep& step)
    : record_(keydeck::RecordCast<kprC_GeostaticStep>(step)) {}

qkw_Keyword* oif_Geostatic::Copy() const { return new oif_Geostatic(*this); }

void oif_Geostatic::Write(utl_Stream& s) const { s << "*Geostatic" << endl; }
