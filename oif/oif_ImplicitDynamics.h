#pragma once

#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Dynamic" of the implicit solver. Its separators carry no blank, unlike
/// every other procedure card.
class oif_ImplicitDynamics : public qkw_Keyword {
public:
  explicit oif_ImplicitDynamics(const kprC_AnalysisStep& step);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_ImplicitDynamicsStep record_;
};
