#include "oif/oif_Creep.h"

#include "base/utl_Stream.h"
#include "oif/oif_Ornl.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_TableCards.h"

using namespace keydeck;

qkw_Keyword* oif_Creep::Copy() const { return new oif_Creep(*this); }

void oif_Creep::Write(utl_Stream& s) const {
  s << "*Creep";
  WriteDependencies(s, record_.dependencies);
  // The deck spells the hyperbolic-sine law in short.
  if (record_.law == kmaC_Creep::Hyperbolic)
    WriteParameter(s, "law=", "HYPERB");
  else
    WriteParameter(s, "law=", record_.law, kmaC_Creep::Strain);
  s.LineBreak();
  WriteDependentTable(s, record_.table, record_.dependencies, record_.temperatureDependency);
  WriteIfPresent<oif_Ornl>(s, record_.ornl);
  WriteIfPresent<oif_Potential>(s, record_.potential);
}
