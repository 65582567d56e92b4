#pragma once

#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Coupled Temperature-Displacement". `v6Format` chooses the spelling of
/// the creep parameter.
class oif_CoupledTempDisplacement : public qkw_Keyword {
public:
  oif_CoupledTempDisplacement(const kprC_AnalysisStep& step, bool v6Format);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_CoupledTempDisplacementStep record_;
  bool v6Format_;
};
