#include "oif/oif_Submodel.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "qkw/qkw_QuorvexName.h"

oif_Submodel::oif_Submodel(bool shellToSolid, const kbcC_SubmodelBC& bc, const cow_String& setName)
    : shellToSolid_(shellToSolid), bc_(bc) {
  setNames_.Append(setName);
}

qkw_Keyword* oif_Submodel::Copy() const { return new oif_Submodel(*this); }

void oif_Submodel::Write(utl_Stream& s) const {
  s << "*Submodel";
  keydeck::WriteFlag(s, "shell to solid", shellToSolid_);
  keydeck::WriteParameter(s, "shell thickness=", bc_.shellThickness, 0.0);
  keydeck::WriteParameter(s, "absolute exterior tolerance=", bc_.absoluteExteriorTolerance, 0.0);
  keydeck::WriteParameter(s, "exteriorTolerance=", bc_.exteriorTolerance, 0.0);
  if (!bc_.globalElset.Empty())
    keydeck::WriteParameter(s, "global elset=", qkw_QuorvexName(bc_.globalElset, false));
  s << endl;
  for (const cow_String& setName : setNames_)
    s << setName << ", " << endl;
}
