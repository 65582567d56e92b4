#include "oif/oif_AmplitudeBuilder.h"

#include "oif/oif_Amplitude.h"
#include "oif/oif_BaselineCorrection.h"
#include "oif/oif_ModelInfo.h"

namespace {

// The baseline correction of a tabular or equally spaced amplitude, or null.
const kamC_BaselineCorrection* BaselineOf(const kamC_Amplitude& record) {
  const std::optional<kamC_BaselineCorrection>* baseline = nullptr;
  if (record.DynTypeId() == kamC_Tabular::TypeId())
    baseline = &keydeck::RecordCast<kamC_Tabular>(record).baseline;
  else if (record.DynTypeId() == kamC_EquallySpaced::TypeId())
    baseline = &keydeck::RecordCast<kamC_EquallySpaced>(record).baseline;
  return baseline != nullptr && baseline->has_value() ? &**baseline : nullptr;
}

} // namespace

oif_AmplitudeBuilder::oif_AmplitudeBuilder(oif_ModelInfo& info) : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_AmplitudeBuilder::Copy() const { return new oif_AmplitudeBuilder(*this); }

void oif_AmplitudeBuilder::Build() {
  for (const auto& [name, amplitude] : keydeck::FacadeOf(*model).Amplitudes()) // name order
    CreateAmplitude(*amplitude, name);
}

void oif_AmplitudeBuilder::CreateAmplitude(const kamC_Amplitude& record, const cow_String& name) {
  AddModelDefinition(oif_Amplitude(name, record));
  if (const kamC_BaselineCorrection* baseline = BaselineOf(record))
    AddModelDefinition(oif_BaselineCorrection(*baseline));
}
