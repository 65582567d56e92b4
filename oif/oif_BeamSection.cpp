#include "oif/oif_BeamSection.h"

#include "base/utl_Stream.h"
#include "qkw/qkw_QuorvexName.h"

qkw_Keyword* oif_BeamSection::Copy() const { return new oif_BeamSection(*this); }

void oif_BeamSection::WriteTempData(utl_Stream& s) const {
  s << "temperature=" << keydeck::FindEnumEntry(Section().temperatureVariation)->deckText.data();
  s << ", ";
}

void oif_BeamSection::WriteMaterialBehavior(utl_Stream& s) const {
  s << "material=" << qkw_QuorvexName(Section().material, false) << ", ";
}
