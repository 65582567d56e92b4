#pragma once

#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Dynamic, Explicit" and its line of time period and increments.
class oif_ExplicitDynamics : public qkw_Keyword {
public:
  explicit oif_ExplicitDynamics(const kprC_AnalysisStep& step);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_ExplicitDynamicsStep record_;
};
