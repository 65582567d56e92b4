#pragma once

#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Mass Diffusion". Its end value of 0, not a missing one, means the
/// period.
class oif_MassDiffusion : public qkw_Keyword {
public:
  explicit oif_MassDiffusion(const kprC_AnalysisStep& step);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_MassDiffusionStep record_;
};
