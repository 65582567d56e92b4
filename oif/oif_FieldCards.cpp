#include "oif/oif_FieldCards.h"

#include <cctype>

namespace keydeck {

FieldCardState::FieldCardState(const FieldHandle& field_, const cow_String& step_, bool opMod_,
                               const cow_String& setName_)
    : field(field_), step(step_), setName(setName_), opMod(opMod_) {
  // A reset removes the field like a deactivation: its class restarts
  // without it.
  const mdl_PropagationStatusEnm status = field->Status(step);
  deactivate = status == PropDeactivated || status == PropFieldReset;
  if (deactivate)
    opMod = false;
}

const kpfC_ScalarFieldState& FieldCardState::State() const { return ScalarStateOf(*field, step); }

const kpfC_ScalarFieldState& ScalarStateOf(const kpfC_Field& field, const cow_String& step) {
  if (field.DynTypeId() == kpfC_Temperature::TypeId())
    return RecordCast<kpfC_Temperature>(field).ConstGetState(step);
  return RecordCast<kpfC_GeneralField>(field).ConstGetState(step);
}

cow_String FieldFileName(const cow_String& file) {
  const std::string_view name = file.View();
  if (name.size() < 5)
    return file;
  const std::string_view end = name.substr(name.size() - 4);
  const char fil[] = ".fil";
  for (std::size_t i = 0; i < 4; ++i)
    if (std::tolower(static_cast<unsigned char>(end[i])) != fil[i])
      return file;
  return cow_String(name.substr(0, name.size() - 4));
}

void WriteInterpolation(utl_Stream& s, const kpfC_ScalarFieldState& state, bool tolerances) {
  switch (state.interpolation.ConstGet()) {
  case kpfC_Midside:
    WriteFlag(s, "midside", true);
    return;
  case kpfC_Interpolate:
    WriteFlag(s, "interpolate", true);
    if (!tolerances)
      return;
    if (state.absoluteExteriorTolerance.IsActive())
      WriteParameter(s, "absolute exterior tolerance=", state.absoluteExteriorTolerance.ConstGet(),
                     0.0);
    if (state.exteriorTolerance.IsActive())
      WriteParameter(s, "exterior tolerance=", state.exteriorTolerance.ConstGet(), 0.05);
    return;
  case kpfC_NoInterpolation:
    return;
  }
}

void WriteFileOptions(utl_Stream& s, const kpfC_ScalarFieldState& state) {
  WriteParameter(s, "file=", FieldFileName(state.file.ConstGet()));
  const std::pair<const char*, const mdl_PropAttr<int>*> range[] = {
      {"bstep=", &state.beginStep},
      {"binc=", &state.beginIncrement},
      {"estep=", &state.endStep},
      {"einc=", &state.endIncrement}};
  for (const auto& [parameter, attribute] : range)
    if (attribute->IsActive())
      WriteParameter(s, parameter, attribute->ConstGet(), 0);
  WriteInterpolation(s, state, /*tolerances=*/true);
}

void WriteTemperatureValues(utl_Stream& s, const cow_List<double>& values, double scale,
                            int padTo) {
  const int given = values.Size();
  const int count = given > 0 && given < padTo ? padTo : given;
  for (int i = 0; i < count; ++i) {
    s << ", " << values.ConstGet(i < given ? i : given - 1) * scale;
    if (i % 7 == 6)
      s.LineBreak();
  }
  if (count % 7 != 0 || count == 0)
    s.LineBreak();
}

void WriteFieldVariableValues(utl_Stream& s, const cow_List<double>& values, int maxSize) {
  constexpr int PerLine = 8;
  for (int i = 0; i < values.Size(); ++i) {
    s << ", " << values.ConstGet(i);
    if ((i + 2) % PerLine == 0) // the set name is the first entry
      s.LineBreak();
  }
  if ((values.Size() + 1) % PerLine != 0)
    s.LineBreak();
  for (int line = GetNumberOfDataLines(values.Size() + 1, PerLine);
       line < GetNumberOfDataLines(maxSize + 1, PerLine); ++line)
    s.LineBreak();
}

} // namespace keydeck
