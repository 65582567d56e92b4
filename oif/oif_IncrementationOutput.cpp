#include "oif/oif_IncrementationOutput.h"

#include "base/utl_Stream.h"
#include "oif/oif_OutputCards.h"
#include "oif/oif_Parameters.h"

using namespace keydeck;

oif_IncrementationOutput::oif_IncrementationOutput(const korC_OdbRequest& request,
                                                   unsigned procedure, bool preselect, bool all)
    : request_(request), procedure_(procedure), preselect_(preselect), all_(all) {}

qkw_Keyword* oif_IncrementationOutput::Copy() const { return new oif_IncrementationOutput(*this); }

void oif_IncrementationOutput::Write(utl_Stream& s) const {
  WriteSubCard(s, "*Incrementation Output", preselect_, all_,
               SubCardVariablesOfKinds(request_, procedure_, {korC_IncrementationKind}), 16,
               [](utl_Stream&) {});
}
