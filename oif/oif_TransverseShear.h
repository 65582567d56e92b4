#pragma once

#include "qkw/qkw_Keyword.h"

class kseC_TransverseShearShell;

/// "*Transverse Shear" of a shell: K11, K22 and K12. A K11 or K22 of 0
/// takes the other's value.
class oif_TransverseShear : public qkw_Keyword {
public:
  explicit oif_TransverseShear(const kseC_TransverseShearShell& shear);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  double shear1_;
  double shear2_;
  double shear3_;
};
