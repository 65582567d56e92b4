#include "oif/oif_EmbeddedRegion.h"

#include "base/utl_Stream.h"
#include "oif/oif_SetName.h"

oif_EmbeddedRegion::oif_EmbeddedRegion(const kcoC_EmbeddedRegion& embedded,
                                       const qkw_ModelInfo& info)
    : embedded_(embedded),
      hostName_(oif_SetName(embedded.host.region, info).UniqueSetName(oif_SetName::AssemblyScope)),
      embeddedName_(
          oif_SetName(embedded.embedded.region, info).UniqueSetName(oif_SetName::AssemblyScope)) {}

qkw_Keyword* oif_EmbeddedRegion::Copy() const { return new oif_EmbeddedRegion(*this); }

void oif_EmbeddedRegion::Write(utl_Stream& s) const {
  s << "*Embedded Element, host elset=" << hostName_;
  // The defaults of the record are the solver's, so only a change is written.
  if (embedded_.absoluteExteriorTolerance != 0.0)
    s << ", absolute exterior tolerance=" << embedded_.absoluteExteriorTolerance;
  if (embedded_.exteriorTolerance != 0.05)
    s << ", exterior tolerance=" << embedded_.exteriorTolerance;
  if (embedded_.roundoffTolerance != 1e-06)
    s << ", roundoff tolerance=" << embedded_.roundoffTolerance;
  s << endl << embeddedName_ << endl;
}
