#pragma once

#include "base/cow_String.h"
#include "model/constraints.h"
#include "qkw/qkw_Keyword.h"

class qkw_ModelInfo;

/// "*Coupling": the reference node and the coupled surface of a coupling;
/// "*Kinematic" or "*Distributing" follows it.
class oif_Coupling : public qkw_Keyword {
public:
  oif_Coupling(const cow_String& name, const kcoC_Coupling& coupling, const qkw_ModelInfo& info);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String name_;
  double influenceRadius_;
  cow_String refNodeName_;
  cow_String surfaceName_;
  cow_String orientationName_; ///< empty for the global system
};
