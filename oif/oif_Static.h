#pragma once

#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Static" and its line of increments.
class oif_Static : public qkw_Keyword {
public:
  explicit oif_Static(const kprC_AnalysisStep& step);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_StaticStep record_;
};
