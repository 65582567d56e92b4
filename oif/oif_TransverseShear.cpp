#include "oif/oif_TransverseShear.h"

#include "base/utl_Stream.h"
#include "model/sections.h"

oif_TransverseShear::oif_TransverseShear(const kseC_TransverseShearShell& shear)
    : shear1_(shear.shear1), shear2_(shear.shear2), shear3_(shear.shear3) {
  if (shear1_ == 0.0)
    shear1_ = shear2_;
  if (shear2_ == 0.0)
    shear2_ = shear1_;
}

qkw_Keyword* oif_TransverseShear::Copy() const { return new oif_TransverseShear(*this); }

void oif_TransverseShear::Write(utl_Stream& s) const {
  s << "*Transverse Shear" << endl;
  s << shear1_ << ", " << shear2_ << ", " << shear3_ << endl;
}
