#pragma once

#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Heat Transfer": steady state or transient, with its temperature
/// controls.
class oif_HeatTransfer : public qkw_Keyword {
public:
  explicit oif_HeatTransfer(const kprC_AnalysisStep& step);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_HeatTransferStep record_;
};
