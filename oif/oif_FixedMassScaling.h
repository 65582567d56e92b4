#pragma once

#include "base/cow_String.h"
#include "model/mass_scaling.h"
#include "qkw/qkw_Keyword.h"

/// "*Fixed Mass Scaling" of an explicit step: the mass scaled once at the
/// start of the step, or set back to the unscaled mass.
class oif_FixedMassScaling : public qkw_Keyword {
public:
  oif_FixedMassScaling(const kprC_MassScaling& record, const cow_String& setName)
      : record_(record), setName_(setName) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_MassScaling record_;
  cow_String setName_;
};
