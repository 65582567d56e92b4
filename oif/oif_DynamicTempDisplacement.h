#pragma once

#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Dynamic Temperature-displacement, Explicit": as the explicit dynamic
/// card, without the adiabatic parameter.
class oif_DynamicTempDisplacement : public qkw_Keyword {
public:
  explicit oif_DynamicTempDisplacement(const kprC_AnalysisStep& step);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_TempDisplacementDynamicsStep record_;
};
