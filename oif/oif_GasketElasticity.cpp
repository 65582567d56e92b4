#include "oif/oif_GasketElasticity.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_TableCards.h"

using namespace keydeck;

qkw_Keyword* oif_GasketElasticity::Copy() const { return new oif_GasketElasticity(*this); }

void oif_GasketElasticity::Write(utl_Stream& s) const {
  s << "*Gasket elasticity";
  WriteParameter(s, "dependencies=", dependencies_, 0);
  if (membrane_)
    WriteParameter(s, "component=", "MEMBRANE");
  else if (variable_ == 1)
    WriteParameter(s, "variable=", "FORCE");
  s.LineBreak();
  WritePlainTable(s, table_);
}
