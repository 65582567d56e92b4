#pragma once

#include "base/cow_COW.h"
#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Bulk Viscosity" of an explicit step: its linear and quadratic
/// coefficients. A step of any other procedure writes nothing.
class oif_BulkViscosity : public qkw_Keyword {
public:
  explicit oif_BulkViscosity(const kprC_AnalysisStep& step) : step_(step) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_ArrayCOW<kprC_Step> step_;
};
