#include "oif/oif_AnnealTemperature.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_TableCards.h"

using namespace keydeck;

qkw_Keyword* oif_AnnealTemperature::Copy() const { return new oif_AnnealTemperature(*this); }

void oif_AnnealTemperature::Write(utl_Stream& s) const {
  s << "*Anneal Temperature";
  WriteDependencies(s, record_.dependencies);
  s.LineBreak();
  WritePlainTable(s, record_.table);
}
