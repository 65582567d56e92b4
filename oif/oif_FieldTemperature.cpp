#include "oif/oif_FieldTemperature.h"

using namespace keydeck;

oif_FieldTemperature::oif_FieldTemperature(const FieldHandle& field, const cow_String& step,
                                           bool opMod, const cow_String& setName, int maxTempSize,
                                           double scale)
    : card_(field, step, opMod, setName), maxTempSize_(maxTempSize), scale_(scale) {}

qkw_Keyword* oif_FieldTemperature::Copy() const { return new oif_FieldTemperature(*this); }

void oif_FieldTemperature::Write(utl_Stream& s) const {
  s << "*Temperature";
  WriteFlag(s, "op=NEW", !card_.opMod);
  if (card_.deactivate) {
    s.LineBreak();
    return;
  }
  WriteFieldTail(s, card_, [&](utl_Stream& out, const cow_List<double>& values) {
    WriteTemperatureValues(out, values, scale_, maxTempSize_);
  });
}
