#include "oif/oif_Dload.h"

#include "base/nex_Exception.h"
#include "base/utl_Stream.h"

#include <cmath>

using namespace keydeck;

namespace {

// The component labels of a body force or line load, with "NU" for the user
// form.
std::array<cow_String, 3> Labels(std::array<const char*, 3> names, bool user) {
  std::array<cow_String, 3> labels;
  for (std::size_t i = 0; i < 3; ++i)
    labels[i] = user ? cow_String(names[i]) + "NU" : cow_String(names[i]);
  return labels;
}

} // namespace

oif_Dload::oif_Dload(const LoadHandle& load, const cow_String& step, bool opMod,
                     const cow_String& setName, int modelSpace, double scale)
    : card_(load, step, opMod, setName, scale), modelSpace_(modelSpace) {}

qkw_Keyword* oif_Dload::Copy() const { return new oif_Dload(*this); }

void oif_Dload::Write(utl_Stream& s) const {
  if (card_.deactivate) {
    WriteDloadCard(s, 0);
    return;
  }
  const bool user = DistributionOf(*card_.load) == kloC_UserDefined;
  switch (card_.load->DynTypeId()) {
  case kloC_RotationalBodyForceType:
    WriteRotationalBodyForce(s);
    return;
  case kloC_LineLoadType:
    if (RecordCast<kloC_LineLoad>(*card_.load).system == kloC_LocalSystem)
      WriteComponents(s, Labels({"P1", "P2", ""}, user), 2, user);
    else
      WriteComponents(s, Labels({"PX", "PY", "PZ"}, user), 3, user);
    return;
  case kloC_PipePressureType:
    WritePipePressure(s);
    return;
  case kloC_BodyForceType:
    if (modelSpace_ == 4)
      WriteComponents(s, Labels({"BR", "BZ", ""}, user), 2, user);
    else
      WriteComponents(s, Labels({"BX", "BY", "BZ"}, user), modelSpace_ == 1 ? 3 : 2, user);
    return;
  case kloC_GravityType:
    WriteGravity(s);
    return;
  default:
    Raise("\"Invalid load type for *Dload\" == 0");
  }
}

void oif_Dload::WriteDloadCard(utl_Stream& s, int loadCase) const {
  s << "*Dload";
  WriteOpNew(s, card_);
  WriteAmplitude(s, card_);
  WriteLoadCase(s, loadCase);
  s.LineBreak();
}

void oif_Dload::WriteGravity(utl_Stream& s) const {
  const kloC_VectorState& state = VectorStateOf(*card_.load, card_.step);
  if (state.Complex()) {
    ForEachComplexPass(ComplexValues(state), [&](int pass, const std::array<double, 3>& values) {
      WriteDloadCard(s, pass);
      WriteGravityLine(s, values);
    });
    return;
  }
  // The line holds every component, so any change rewrites it whole.
  if (!card_.Writes(state.component1.State()) && !card_.Writes(state.component2.State()) &&
      !card_.Writes(state.component3.State()))
    return;
  WriteDloadCard(s, 0);
  WriteGravityLine(
      s, {state.component1.ConstGet(), state.component2.ConstGet(), state.component3.ConstGet()});
}

void oif_Dload::WriteGravityLine(utl_Stream& s, const std::array<double, 3>& vector) const {
  const double magnitude =
      std::sqrt(vector[0] * vector[0] + vector[1] * vector[1] + vector[2] * vector[2]);
  const auto direction = [&](int i) { return magnitude == 0 ? 0.0 : vector[i] / magnitude; };
  s << card_.setName << ", GRAV, " << magnitude * card_.scale;
  if (modelSpace_ != 4)
    s << ", " << direction(0);
  s << ", " << direction(1);
  if (modelSpace_ == 1)
    s << ", " << direction(2);
  s.LineBreak();
}

void oif_Dload::WriteComponents(utl_Stream& s, const std::array<cow_String, 3>& labels, int count,
                                bool user) const {
  const kloC_VectorState& state = VectorStateOf(*card_.load, card_.step);
  if (state.Complex()) {
    ForEachComplexPass(ComplexValues(state), [&](int pass, const std::array<double, 3>& values) {
      WriteDloadCard(s, pass);
      for (int i = 0; i < count; ++i)
        WriteBaseData(s, card_, labels[i], values[i], /*lineBreak=*/true, /*forceZero=*/false);
    });
    return;
  }
  WriteDloadCard(s, 0);
  const mdl_PropAttr<double>* components[] = {&state.component1, &state.component2,
                                              &state.component3};
  for (int i = 0; i < count; ++i)
    if (card_.Writes(components[i]->State()))
      WriteBaseData(s, card_, labels[i], components[i]->ConstGet(), /*lineBreak=*/true,
                    /*forceZero=*/user);
}

void oif_Dload::WritePipePressure(utl_Stream& s) const {
  const kloC_PipePressure& pipe = RecordCast<kloC_PipePressure>(*card_.load);
  const kloC_PressureState& state = pipe.ConstGetState(card_.step);
  const bool inside = pipe.side == kloC_Inside;
  const char* label = "";
  if (pipe.distribution == kloC_Uniform)
    label = inside ? "PI" : "PE";
  else if (pipe.distribution == kloC_UserDefined)
    label = inside ? "PINU" : "PENU";
  else if (pipe.distribution == kloC_Hydrostatic)
    label = inside ? "HPI" : "HPE";
  const auto line = [&](double value) {
    s << card_.setName << ", " << label << ", " << value * card_.scale;
    if (pipe.distribution == kloC_Hydrostatic)
      s << ", " << state.zeroHeight.ConstGet() << ", " << state.referenceHeight.ConstGet();
    s << ", " << pipe.diameter;
    s.LineBreak();
  };
  if (state.imaginary.IsActive()) {
    ForEachComplexPass(state, [&](int pass, double part) {
      WriteDloadCard(s, pass);
      line(part);
    });
    return;
  }
  WriteDloadCard(s, 0);
  line(state.magnitude.ConstGet());
}

void oif_Dload::WriteRotationalBodyForce(utl_Stream& s) const {
  const kloC_RotationalBodyForce& rotation = RecordCast<kloC_RotationalBodyForce>(*card_.load);
  const kloC_MagnitudeState& state = rotation.ConstGetState(card_.step);
  if (!card_.Writes(state.magnitude.State()))
    return;
  const double speed = state.magnitude.ConstGet();
  const char* label = "";
  double value = speed;
  if (rotation.centrifugal) {
    label = "CENTRIF";
    value = speed * speed; // the solver takes the square of the angular speed
  } else if (rotation.rotaryAcceleration) {
    label = "ROTA";
  }
  WriteDloadCard(s, 0);
  s << card_.setName << ", " << label << ", " << value * card_.scale << ",";
  const std::array<double, 3>& a = rotation.point1;
  const std::array<double, 3>& b = rotation.point2;
  s << a[0] << "," << a[1] << "," << a[2];
  const double dx = b[0] - a[0], dy = b[1] - a[1], dz = b[2] - a[2];
  const double length = std::sqrt(dx * dx + dy * dy + dz * dz);
  s << "," << dx / length << "," << dy / length << "," << dz / length;
  s.LineBreak();
}
