#include "oif/oif_ModalOutput.h"

#include "base/utl_Stream.h"
#include "oif/oif_OutputCards.h"
#include "oif/oif_Parameters.h"

using namespace keydeck;

oif_ModalOutput::oif_ModalOutput(const korC_OdbRequest& request, unsigned procedure, bool all)
    : request_(request), procedure_(procedure), all_(all) {}

qkw_Keyword* oif_ModalOutput::Copy() const { return new oif_ModalOutput(*this); }

void oif_ModalOutput::Write(utl_Stream& s) const {
  WriteSubCard(s, "*Modal Output", /*preselect=*/false, all_,
               SubCardVariablesOfKinds(request_, procedure_, {korC_ModalKind}), 16,
               [](utl_Stream&) {});
}
