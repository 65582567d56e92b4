#pragma once

#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

/// "*Rate Dependent": how the yield stress depends on the strain rate, as
/// yield ratios, Johnson-Cook constants or (unnamed) power-law constants.
class oif_RateDependent : public qkw_Keyword {
public:
  explicit oif_RateDependent(const kmaC_RateDependent& record) : record_(record) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kmaC_RateDependent record_;
};
