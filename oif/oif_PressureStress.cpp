#include "oif/oif_PressureStress.h"

using namespace keydeck;

oif_PressureStress::oif_PressureStress(const FieldHandle& field, const cow_String& step, bool opMod,
                                       const cow_String& setName)
    : card_(field, step, opMod, setName) {}

qkw_Keyword* oif_PressureStress::Copy() const { return new oif_PressureStress(*this); }

void oif_PressureStress::Write(utl_Stream& s) const {
  s << "*Pressure stress";
  WriteFlag(s, "op=NEW", !card_.opMod);
  if (card_.deactivate) {
    s.LineBreak();
    return;
  }
  const kpfC_PressureStressState& state =
      RecordCast<kpfC_PressureStress>(*card_.field).ConstGetState(card_.step);
  WriteFlag(s, "user", card_.field->distribution == kpfC_UserDefined);
  if (card_.field->distribution == kpfC_FromFile)
    WriteParameter(s, "file=", state.file.ConstGet());
  if (!state.amplitude.ConstGet().Empty())
    WriteParameter(s, "amplitude=", qkw_QuorvexName(state.amplitude.ConstGet(), false));
  s.LineBreak();
  s << card_.setName << ", " << state.magnitude.ConstGet();
  s.LineBreak();
}
