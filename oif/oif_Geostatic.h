#pragma once

#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Geostatic": the keyword alone.
class oif_Geostatic : public qkw_Keyword {
public:
  explicit oif_Geostatic(const kprC_AnalysisStep& step);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_GeostaticStep record_;
};
