#include "oif/oif_EnergyOutput.h"

#include "base/utl_Stream.h"
#include "oif/oif_OutputCards.h"
#include "oif/oif_Parameters.h"

using namespace keydeck;

oif_EnergyOutput::oif_EnergyOutput(const korC_OdbRequest& request, unsigned procedure,
                                   const cow_String& name, bool preselect, bool all)
    : request_(request), procedure_(procedure), name_(name), preselect_(preselect), all_(all) {}

qkw_Keyword* oif_EnergyOutput::Copy() const { return new oif_EnergyOutput(*this); }

void oif_EnergyOutput::Write(utl_Stream& s) const {
  WriteSubCard(s, "*Energy Output", preselect_, all_,
               SubCardVariablesOfKinds(request_, procedure_, {korC_EnergyKind}), 16,
               [&](utl_Stream& out) {
                 if (!name_.Empty())
                   WriteParameter(out, "elset=", name_);
               });
}
