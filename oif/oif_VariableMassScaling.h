#pragma once

#include "base/cow_String.h"
#include "model/mass_scaling.h"
#include "qkw/qkw_Keyword.h"

/// "*Variable Mass Scaling" of an explicit step: the mass scaled through the
/// step, or scaling switched off for it.
class oif_VariableMassScaling : public qkw_Keyword {
public:
  oif_VariableMassScaling(const kprC_MassScaling& record, const cow_String& setName)
      : record_(record), setName_(setName) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_MassScaling record_;
  cow_String setName_;
};
