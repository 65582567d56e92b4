#include "oif/oif_GasketContactArea.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_TableCards.h"

using namespace keydeck;

qkw_Keyword* oif_GasketContactArea::Copy() const { return new oif_GasketContactArea(*this); }

void oif_GasketContactArea::Write(utl_Stream& s) const {
  s << "*Gasket contact area";
  s.LineBreak();
  WriteParameter(s, "dependencies=", record_.dependencies, 0);
  WritePlainTable(s, record_.table);
}
