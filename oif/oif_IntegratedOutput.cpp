#include "oif/oif_IntegratedOutput.h"

#include "base/utl_Stream.h"
#include "oif/oif_OutputCards.h"
#include "oif/oif_Parameters.h"

using namespace keydeck;

oif_IntegratedOutput::oif_IntegratedOutput(const korC_OdbRequest& request, unsigned procedure,
                                           bool preselect, bool all)
    : request_(request), procedure_(procedure), preselect_(preselect), all_(all) {}

qkw_Keyword* oif_IntegratedOutput::Copy() const { return new oif_IntegratedOutput(*this); }

void oif_IntegratedOutput::Write(utl_Stream& s) const {
  WriteSubCard(s, "*Integrated Output, ", preselect_, all_,
               SubCardVariablesOfKinds(request_, procedure_, {korC_IntegratedKind}), 16,
               [&](utl_Stream& out) { out << "section=" << request_.integratedSection; });
}
