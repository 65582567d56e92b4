#include "oif/oif_GasketBehavior.h"

#include "base/utl_Stream.h"
#include "oif/oif_Creep.h"
#include "oif/oif_GasketElasticity.h"
#include "oif/oif_GasketThicknessBehavior.h"
#include "oif/oif_TableCards.h"

using namespace keydeck;

qkw_Keyword* oif_GasketBehavior::Copy() const { return new oif_GasketBehavior(*this); }

void oif_GasketBehavior::Write(utl_Stream& s) const {
  s << "*Gasket behavior, name=" << name_ << endl;
  // The deck's order of a gasket's behaviours; "*Depvar", "*Expansion" and
  // "*User Output Variables" join it with their records.
  WriteIfPresent<oif_Creep>(s, material_.creep);
  WriteIfPresent<oif_GasketElasticity>(s, material_.membraneElastic);
  WriteIfPresent<oif_GasketThicknessBehavior>(s, material_.thicknessBehavior);
  WriteIfPresent<oif_GasketElasticity>(s, material_.transShearElastic);
}
