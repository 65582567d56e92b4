#pragma once

#include "base/cow_COW.h"
#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Solution Technique, type=SEPARATED" for a coupled temperature-
/// displacement or thermal-electrical step that asks for it; every other
/// step, also of the procedures the builder gives this card, writes nothing.
class oif_SolutionTechnique : public qkw_Keyword {
public:
  explicit oif_SolutionTechnique(const kprC_AnalysisStep& step) : step_(step) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_ArrayCOW<kprC_Step> step_;
};
