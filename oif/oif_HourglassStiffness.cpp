#include "oif/oif_HourglassStiffness.h"

#include "base/utl_Stream.h"
#include "model/element_controls.h"

oif_HourglassStiffness::oif_HourglassStiffness(const bme_ElemCtrlParams& params)
    : stiffness1_(params.hourglassStiffness1), stiffness2_(params.hourglassStiffness2),
      stiffness3_(params.hourglassStiffness3) {}

qkw_Keyword* oif_HourglassStiffness::Copy() const { return new oif_HourglassStiffness(*this); }

void oif_HourglassStiffness::Write(utl_Stream& s) const {
  if (stiffness1_ == 0.0 && stiffness2_ == 0.0 && stiffness3_ == 0.0)
    return;
  s << "*Hourglass Stiffness" << endl;
  // The second field of the data line stays empty.
  s << stiffness1_ << ", , " << stiffness2_ << ", " << stiffness3_ << endl;
}
