#include "oif/oif_Dsload.h"

#include "base/nex_Exception.h"
#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"

#include <cmath>

using namespace keydeck;

oif_Dsload::oif_Dsload(const LoadHandle& load, const cow_String& step, bool opMod,
                       const cow_String& setName, double scale)
    : card_(load, step, opMod, setName, scale) {}

qkw_Keyword* oif_Dsload::Copy() const { return new oif_Dsload(*this); }

void oif_Dsload::Write(utl_Stream& s) const {
  if (card_.deactivate) {
    WriteDsloadCard(s, 0, false, false);
    return;
  }
  const bool user = DistributionOf(*card_.load) == kloC_UserDefined;
  const auto labelOf = [user](auto kind) {
    const cow_String label = EnumDeckText(kind);
    return user ? label + "NU" : label;
  };
  switch (card_.load->DynTypeId()) {
  case kloC_PressureType:
    WritePressure(s);
    return;
  case kloC_SurfaceTractionType: {
    const kloC_SurfaceTraction& traction = RecordCast<kloC_SurfaceTraction>(*card_.load);
    WriteDirected(s, labelOf(traction.kind), traction.follower, traction.constantResultant,
                  traction.direction, true);
    return;
  }
  case kloC_ShellEdgeLoadType: {
    const kloC_ShellEdgeLoad& edge = RecordCast<kloC_ShellEdgeLoad>(*card_.load);
    WriteDirected(s, labelOf(edge.kind), edge.follower, false, edge.direction,
                  edge.kind == kloC_EdgeGeneral);
    return;
  }
  default:
    Raise("\"Invalid load type for *Dsload\" == 0");
  }
}

void oif_Dsload::WriteDsloadCard(utl_Stream& s, int loadCase, bool noFollower,
                                 bool constantResultant) const {
  s << "*Dsload";
  WriteOpNew(s, card_);
  WriteAmplitude(s, card_);
  WriteLoadCase(s, loadCase);
  WriteFlag(s, "follower=NO", noFollower);
  WriteFlag(s, "constant resultant=YES", constantResultant);
  s.LineBreak();
}

void oif_Dsload::WritePressure(utl_Stream& s) const {
  const kloC_Pressure& pressure = RecordCast<kloC_Pressure>(*card_.load);
  const kloC_PressureState& state = pressure.ConstGetState(card_.step);
  const char* const labels[] = {"P", "PNU", "", "HP"};
  const char* const label = labels[pressure.distribution];
  const bool hydrostatic = pressure.distribution == kloC_Hydrostatic;
  const auto line = [&](double value) {
    s << card_.setName << ", " << label << ", " << value * card_.scale;
    if (hydrostatic)
      s << ", " << state.zeroHeight.ConstGet() << ", " << state.referenceHeight.ConstGet();
    s.LineBreak();
  };
  if (state.imaginary.IsActive()) {
    ForEachComplexPass(state, [&](int pass, double part) {
      WriteDsloadCard(s, pass, false, false);
      line(part);
    });
    return;
  }
  const bool heightsChange = hydrostatic && (card_.Writes(state.zeroHeight.State()) ||
                                             card_.Writes(state.referenceHeight.State()));
  if (!card_.Writes(state.magnitude.State()) && !heightsChange)
    return;
  WriteDsloadCard(s, 0, false, false);
  line(state.magnitude.ConstGet());
}

void oif_Dsload::WriteDirected(utl_Stream& s, const cow_String& label, bool follower,
                               bool constantResultant, const std::array<double, 3>& direction,
                               bool withDirection) const {
  const kloC_MagnitudeState& state = MagnitudeStateOf(*card_.load, card_.step);
  const double length = std::sqrt(direction[0] * direction[0] + direction[1] * direction[1] +
                                  direction[2] * direction[2]);
  const auto line = [&](double value) {
    s << card_.setName << ", " << label << ", " << value * card_.scale;
    if (withDirection)
      s << ", " << direction[0] / length << ", " << direction[1] / length << ", "
        << direction[2] / length;
    s.LineBreak();
  };
  if (state.imaginary.IsActive()) {
    ForEachComplexPass(state, [&](int pass, double part) {
      WriteDsloadCard(s, pass, !follower, constantResultant);
      line(part);
    });
    return;
  }
  if (!card_.Writes(state.magnitude.State()))
    return;
  WriteDsloadCard(s, 0, !follower, constantResultant);
  line(state.magnitude.ConstGet());
}
