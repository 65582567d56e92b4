#pragma once

#include "qkw/qkw_Keyword.h"

class bme_ElemCtrlParams;

/// "*Hourglass Stiffness" of a section from its element controls. With all
/// three stiffnesses 0 (the solver's own values) it writes nothing.
class oif_HourglassStiffness : public qkw_Keyword {
public:
  explicit oif_HourglassStiffness(const bme_ElemCtrlParams& params);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  double stiffness1_;
  double stiffness2_;
  double stiffness3_;
};
