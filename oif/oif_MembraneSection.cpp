#include "oif/oif_MembraneSection.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "qkw/qkw_QuorvexName.h"

qkw_Keyword* oif_MembraneSection::Copy() const { return new oif_MembraneSection(*this); }

void oif_MembraneSection::Write(utl_Stream& s) const {
  s << "*Membrane Section, elset=" << elsetName_;
  keydeck::WriteParameter(s, "material=", qkw_QuorvexName(section_.material, false));
  keydeck::WriteParameter(s, "orientation=", orientationName_, cow_String());
  keydeck::WriteParameter(s, "controls=", controlsName_, cow_String());
  if (section_.PoissonDefined() != 0)
    keydeck::WriteParameter(s, "poisson=", section_.poisson);
  s << endl;
  s << section_.thickness << "," << endl;
}
