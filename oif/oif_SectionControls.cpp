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
  s << params_.scale1 << ", " << params_.scale2 << ", " << params_.scale3;
  if (Differs(params_.scale4, 1.0) || Differs(params_.scale5, 1.0))
    s << ", " << params_.scale4 << ", " << params_.scale5;
  s << endl;
}

// The keyword line never breaks: its parameters follow one another without
// an optional line break.
void oif_SectionControls::WriteParameters(utl_Stream& s) const {
  using Params = bme_ElemCtrlParams;
  if (params_.distortionControl == Params::Yes) {
    s << ", DISTORTION CONTROL=YES";
    if (Differs(params_.lengthRatio, Params::DefaultLengthRatio))
      s << ", length ratio=" << params_.lengthRatio;
  } else if (params_.distortionControl == Params::No) {
    s << ", DISTORTION CONTROL=NO";
  }
  if (params_.kinematicSplit != Params::AverageStrain)
    s << ", kinematic split=" << keydeck::EnumDeckText(params_.kinematicSplit);
  if (params_.hourglass != Params::DefaultHourglass)
    s << ", hourglass=" << keydeck::EnumDeckText(params_.hourglass);
  if (params_.secondOrderAccuracy == Params::Yes)
    s << ", second order accuracy=YES";
  if (params_.stressRate == Params::Spin)
    s << ", stress rate=SPIN";
  if (params_.hourglass == Params::Combined &&
      Differs(params_.weightFactor, Params::DefaultWeightFactor))
    s << ", weight factor=" << params_.weightFactor;
}
