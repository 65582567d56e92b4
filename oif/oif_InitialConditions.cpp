#include "oif/oif_InitialConditions.h"

using namespace keydeck;

oif_InitialConditions::oif_InitialConditions(const FieldHandle& field, const cow_String& step,
                                             const cow_String& setName, int maxTempSize,
                                             int maxGenFieldSize)
    : field_(field), step_(step), setName_(setName), maxTempSize_(maxTempSize),
      maxGenFieldSize_(maxGenFieldSize) {}

qkw_Keyword* oif_InitialConditions::Copy() const { return new oif_InitialConditions(*this); }

void oif_InitialConditions::Write(utl_Stream& s) const {
  WriteInitialConditionsCard(s);
  switch (field_->DynTypeId()) {
  case kpfC_TemperatureType:
    return WriteScalarData(s, [&](const cow_List<double>& values) {
      WriteTemperatureValues(s, values, 1.0, maxTempSize_);
    });
  case kpfC_GeneralFieldType:
    return WriteScalarData(s, [&](const cow_List<double>& values) {
      WriteFieldVariableValues(s, values, maxGenFieldSize_);
    });
  case kpfC_VelocityType:
    return WriteVelocityData(s);
  }
  Raise("Unimplemented field for initial condition!");
}

void oif_InitialConditions::WriteInitialConditionsCard(utl_Stream& s) const {
  s << "*Initial Conditions";
  switch (field_->DynTypeId()) {
  case kpfC_TemperatureType:
    WriteParameter(s, "type=", "TEMPERATURE");
    WriteDistribution(s, /*tolerances=*/true);
    break;
  case kpfC_GeneralFieldType:
    WriteParameter(s, "type=", "FIELD");
    s << ", variable = " << RecordCast<kpfC_GeneralField>(*field_).number;
    WriteDistribution(s, /*tolerances=*/false);
    break;
  case kpfC_VelocityType:
    WriteParameter(s, "type=",
                   RecordCast<kpfC_Velocity>(*field_).IsRotatingVelocity() ? "ROTATING VELOCITY"
                                                                           : "VELOCITY");
    break;
  default:
    Raise("Unimplemented initial condition!");
  }
  s.LineBreak();
}

void oif_InitialConditions::WriteDistribution(utl_Stream& s, bool tolerances) const {
  switch (field_->distribution) {
  case kpfC_UserDefined:
    WriteFlag(s, "USER", true);
    return;
  case kpfC_Geostatic:
    WriteFlag(s, "GEOSTATIC", true);
    return;
  case kpfC_FromFile: {
    // An initial condition reads one step and increment of the file.
    const kpfC_ScalarFieldState& state = ScalarStateOf(*field_, step_);
    WriteParameter(s, "file=", FieldFileName(state.file.ConstGet()));
    WriteParameter(s, "step=", state.beginStep.ConstGet());
    WriteParameter(s, "inc=", state.beginIncrement.ConstGet());
    WriteInterpolation(s, state, tolerances);
    return;
  }
  default:
    return;
  }
}

template <class F>
void oif_InitialConditions::WriteScalarData(utl_Stream& s, F&& writeValues) const {
  switch (field_->distribution) {
  case kpfC_Direct:
    s << setName_;
    writeValues(ScalarStateOf(*field_, step_).values.ConstGet());
    return;
  case kpfC_FromFile:
  case kpfC_FromFileAndUser:
    return; // the file gives the values
  default:
    s << setName_;
    s.LineBreak();
  }
}

void oif_InitialConditions::WriteVelocityData(utl_Stream& s) const {
  const kpfC_Velocity& velocity = RecordCast<kpfC_Velocity>(*field_);
  const kpfC_VelocityState& state = velocity.ConstGetState(step_);
  const mdl_PropAttr<double>* components[] = {&state.velocity1, &state.velocity2, &state.velocity3};
  if (!velocity.IsRotatingVelocity()) {
    // Each given component on a line of its own.
    const char* const dofs[] = {"1", "2", "3"};
    for (int i = 0; i < 3; ++i) {
      if (!components[i]->IsActive())
        continue;
      s << setName_ << ", " << dofs[i] << ", " << components[i]->ConstGet();
      s.LineBreak();
    }
    return;
  }
  s << setName_ << ", " << state.angularVelocity.ConstGet() << ", ";
  for (const mdl_PropAttr<double>* component : components) {
    if (component->IsActive())
      s << component->ConstGet() << ", ";
    else
      s << " , ";
  }
  s.LineBreak();
  for (const std::array<double, 3>* point : {&velocity.point1, &velocity.point2})
    for (const double coordinate : *point)
      s << coordinate << ", ";
  s.LineBreak();
}
