#include "oif/oif_Tie.h"

#include "base/utl_Stream.h"
#include "oif/oif_ConstraintCards.h"
#include "oif/oif_SetName.h"
#include "qkw/qkw_QuorvexName.h"

oif_Tie::oif_Tie(const cow_String& name, const kcoC_Tie& tie, const qkw_ModelInfo& info)
    : name_(name), tie_(tie),
      mainName_(oif_SetName(tie.master.region, info).UniqueSurfaceName(oif_SetName::AssemblyScope)),
      secondaryName_(
          oif_SetName(tie.slave.region, info).UniqueSurfaceName(oif_SetName::AssemblyScope)) {}

qkw_Keyword* oif_Tie::Copy() const { return new oif_Tie(*this); }

void oif_Tie::Write(utl_Stream& s) const {
  s << "*Tie, name=" << qkw_QuorvexName(name_, false);
  s << (tie_.adjust ? ", adjust=yes" : ", adjust=no");
  if (tie_.positionTolerance != keydeck::NotGivenDouble)
    keydeck::WriteBreakableOption(s, "position tolerance=") << tie_.positionTolerance;
  if (!tie_.tieRotation)
    keydeck::WriteBreakableOption(s, "no rotation");
  if (tie_.constraintRatio != keydeck::NotGivenDouble)
    keydeck::WriteBreakableOption(s, "constraint ratio=") << tie_.constraintRatio;
  if (tie_.tieType != kcoC_TieSolverDefault)
    keydeck::WriteBreakableOption(s, "type=").Print(keydeck::FindEnumEntry(tie_.tieType)->deckText);
  if (!tie_.thickness)
    keydeck::WriteBreakableOption(s, "no thickness");
  s << endl << secondaryName_ << ", " << mainName_ << endl;
}
