#include "oif/oif_SectionControls.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"

#include <cmath>

namespace {

bool Differs(double value, double target) {
  return std::abs(value - target) > bme_ElemCtrlParams::Tolerance;
}

} // namespace

qkw_Keyword* oif_SectionControls::Copy() const { return new oif_SectionControls(*this); }

bool oif_SectionControls::IsEmpty() const {
  return params_.HasDefaultSectionControls(standardProduct_ ? 1 : 2);
}

void oif_SectionControls::Write(utl_Stream& s) const {
  if (IsEmpty())
    return;
  s << "*Section Controls, name=" << name_;
  WriteParameters(s);
  s << endl;
  const bme_ElemCtrlParams& p = params_;
  s << p.scale1 << ", " << p.scale2 << ", " << p.scale3;
  if (Differs(p.scale4, 1.0) || Differs(p.scale5, 1.0))
    s << ", " << p.scale4 << ", " << p.scale5;
  s << endl;
}

// The keyword line never breaks: its parameters follow one another without
// an optional line break.
void oif_SectionControls::WriteParameters(utl_Stream& s) const {
  using P = bme_ElemCtrlParams;
  const P& p = params_;
  if (p.distortionControl == P::Yes) {
    s << ", DISTORTION CONTROL=YES";
    if (Differs(p.lengthRatio, P::DefaultLengthRatio))
      s << ", length ratio=" << p.lengthRatio;
  } else if (p.distortionControl == P::No) {
    s << ", DISTORTION CONTROL=NO";
  }
  if (p.kinematicSplit != P::AverageStrain)
    s << ", kinematic split=" << keydeck::EnumDeckText(p.kinematicSplit);
  if (p.hourglass != P::DefaultHourglass)
    s << ", hourglass=" << keydeck::EnumDeckText(p.hourglass);
  if (p.secondOrderAccuracy == P::Yes)
    s << ", second order accuracy=YES";
  if (p.stressRate == P::Spin)
    s << ", stress rate=SPIN";
  if (p.hourglass == P::Combined && Differs(p.weightFactor, P::DefaultWeightFactor))
    s << ", weight factor=" << p.weightFactor;
}
