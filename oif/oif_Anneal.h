#pragma once

#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Anneal", with the anneal temperature when given.
class oif_Anneal : public qkw_Keyword {
public:
  explicit oif_Anneal(const kprC_AnalysisStep& step);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_AnnealStep record_;
};
