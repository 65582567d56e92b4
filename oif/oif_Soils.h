#pragma once

#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Soils": consolidation or steady-state flow.
class oif_Soils : public qkw_Keyword {
public:
  explicit oif_Soils(const kprC_AnalysisStep& step);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_SoilsStep record_;
};
