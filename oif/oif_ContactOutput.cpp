#include "oif/oif_ContactOutput.h"

#include "base/utl_Stream.h"
#include "oif/oif_OutputCards.h"
#include "oif/oif_Parameters.h"
#include "qkw/qkw_QuorvexName.h"

using namespace keydeck;

oif_ContactOutput::oif_ContactOutput(const korC_OdbRequest& request, unsigned procedure,
                                     bool preselect, bool all, const cow_String& masterName,
                                     const cow_String& slaveName, const cow_String& cpsetName,
                                     const cow_String& setName, bool flag)
    : request_(request), procedure_(procedure), preselect_(preselect), all_(all),
      masterName_(masterName), slaveName_(slaveName), cpsetName_(cpsetName), setName_(setName),
      flag_(flag) {}

qkw_Keyword* oif_ContactOutput::Copy() const { return new oif_ContactOutput(*this); }

void oif_ContactOutput::Write(utl_Stream& s) const {
  const cow_List<cow_String> names =
      SubCardVariablesOfKinds(request_, procedure_, {korC_ContactKind, korC_ContactOrElementKind});
  const bool namesRegion = (flag_ || kprC_IsExplicit(procedure_)) && request_.region.HasSet();
  const bool surface = (RegionKindBits(request_.region) & SurfaceRegionBit) != 0;
  WriteSubCard(s, "*Contact Output", preselect_, all_, names, 16, [&](utl_Stream& out) {
    if (namesRegion && !surface)
      WriteParameter(out, "nset=", setName_);
    if (!masterName_.Empty())
      WriteParameter(out, "master=", masterName_);
    if (!slaveName_.Empty())
      WriteParameter(out, "slave=", slaveName_);
    if (!cpsetName_.Empty())
      WriteParameter(out, "cpset=", qkw_QuorvexName(cpsetName_, false).Printable());
    if (namesRegion && surface)
      WriteParameter(out, "surface=", setName_);
  });
}
