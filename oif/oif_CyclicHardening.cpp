#include "oif/oif_CyclicHardening.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_TableCards.h"

using namespace keydeck;

qkw_Keyword* oif_CyclicHardening::Copy() const { return new oif_CyclicHardening(*this); }

void oif_CyclicHardening::Write(utl_Stream& s) const {
  s << "*Cyclic Hardening";
  WriteDependencies(s, record_.dependencies);
  WriteFlag(s, "parameters", record_.parameters);
  s.LineBreak();
  WriteDependentTable(s, record_.table, record_.dependencies, record_.temperatureDependency);
}
