#include "oif/oif_Coupling.h"

#include "base/utl_Stream.h"
#include "oif/oif_SetName.h"
#include "qkw/qkw_ModelInfo.h"
#include "qkw/qkw_QuorvexName.h"

oif_Coupling::oif_Coupling(const cow_String& name, const kcoC_Coupling& coupling,
                           const qkw_ModelInfo& info)
    : name_(name), influenceRadius_(coupling.influenceRadius),
      refNodeName_(
          oif_SetName(coupling.refPoint.region, info).UniqueSetName(oif_SetName::AssemblyScope)),
      surfaceName_(oif_SetName(coupling.surface.region, info)
                       .UniqueSurfaceName(oif_SetName::AssemblyScope)) {
  // The "*Orientation" card of that name comes from the transform builder.
  if (!coupling.orientation.IsNullRef())
    orientationName_ = info.GetOrientationName(coupling.orientation, 0.0, "");
}

qkw_Keyword* oif_Coupling::Copy() const { return new oif_Coupling(*this); }

void oif_Coupling::Write(utl_Stream& s) const {
  s << "*Coupling, constraint name=" << qkw_QuorvexName(name_, false)
    << ", ref node=" << refNodeName_ << ", surface=" << surfaceName_;
  // The largest double stands for the whole surface, which is the solver's default.
  if (influenceRadius_ != keydeck::NotGivenDouble)
    s << ", influence radius=" << influenceRadius_;
  if (!orientationName_.Empty())
    s << ", orientation=" << orientationName_;
  s << endl;
}
