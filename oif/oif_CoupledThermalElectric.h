#pragma once

#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Coupled Thermal-Electrical".
class oif_CoupledThermalElectric : public qkw_Keyword {
public:
  explicit oif_CoupledThermalElectric(const kprC_AnalysisStep& step);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_CoupledThermalElectricStep record_;
};
