#include "oif/oif_RadiationOutput.h"

#include "base/utl_Stream.h"
#include "oif/oif_OutputCards.h"
#include "oif/oif_Parameters.h"

using namespace keydeck;

oif_RadiationOutput::oif_RadiationOutput(const korC_OdbRequest& request, unsigned procedure,
                                         const cow_String& name, bool all)
    : request_(request), procedure_(procedure), name_(name), all_(all) {}

qkw_Keyword* oif_RadiationOutput::Copy() const { return new oif_RadiationOutput(*this); }

void oif_RadiationOutput::Write(utl_Stream& s) const {
  WriteSubCard(s, "*Radiation Output", /*preselect=*/false, all_,
               SubCardVariablesOfKinds(request_, procedure_, {korC_RadiationKind}), 16,
               [&](utl_Stream& out) {
                 if (!name_.Empty())
                   WriteParameter(out, "elset=", name_);
               });
}
