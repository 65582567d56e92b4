#include "oif/oif_Viscous.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_TableCards.h"

using namespace keydeck;

qkw_Keyword* oif_Viscous::Copy() const { return new oif_Viscous(*this); }

void oif_Viscous::Write(utl_Stream& s) const {
  s << "*Viscous";
  WriteDependencies(s, record_.dependencies);
  // Any law but strain and time is the user's.
  if (record_.law == kmaC_Viscous::TimeLaw)
    WriteParameter(s, "law=", "TIME");
  else if (record_.law != kmaC_Viscous::StrainLaw)
    WriteParameter(s, "law=", "USER");
  s.LineBreak();
  WriteDependentTable(s, record_.table, record_.dependencies, record_.temperatureDependency);
}
