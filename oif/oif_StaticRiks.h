#pragma once

#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Static, riks": the arc-length controls and the limit on one node, whose
/// set name the builder gives (assembly scope, quoted as needed).
class oif_StaticRiks : public qkw_Keyword {
public:
  oif_StaticRiks(const kprC_AnalysisStep& step, const cow_String& limitNodeSetName);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_StaticRiksStep record_;
  cow_String limitNodeSetName_;
};
