#include "model/element_controls.h"

#include <cmath>

namespace {

bool Near(double value, double target) {
  return std::abs(value - target) <= bme_ElemCtrlParams::Tolerance;
}

} // namespace

bool bme_ElemCtrlParams::HasDefaultSectionControls(int library) const {
  const bool hourglassDefault =
      hourglass == DefaultHourglass && scale1 == 1 && scale2 == 1 && scale3 == 1;
  if (library == 1)
    return hourglassDefault;
  // The weight factor and the length ratio count only beside a combined
  // hourglass control and distortion control, which are not defaults.
  return hourglassDefault && kinematicSplit == AverageStrain && stressRate == Jaumann &&
         secondOrderAccuracy != Yes && distortionControl == DefaultSwitch && Near(scale4, 1) &&
         Near(scale5, 1);
}

bool bme_ElemCtrlParams::IsDefault(int library) const {
  const bool stiffnessDefault =
      hourglassStiffness1 == 0 && hourglassStiffness2 == 0 && hourglassStiffness3 == 0;
  return HasDefaultSectionControls(library) && (library == 2 || stiffnessDefault);
}
