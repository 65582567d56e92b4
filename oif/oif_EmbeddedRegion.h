#pragma once

#include "base/cow_String.h"
#include "model/constraints.h"
#include "qkw/qkw_Keyword.h"

class qkw_ModelInfo;

/// "*Embedded Element": the host element set with the tolerances that differ
/// from the solver's defaults; the data line names the embedded elements.
class oif_EmbeddedRegion : public qkw_Keyword {
public:
  oif_EmbeddedRegion(const kcoC_EmbeddedRegion& embedded, const qkw_ModelInfo& info);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kcoC_EmbeddedRegion embedded_;
  cow_String hostName_;
  cow_String embeddedName_;
};
