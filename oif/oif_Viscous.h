#pragma once

#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

/// "*Viscous": the viscous network of a two-layer viscoplastic material; the
/// strain law is the default and is not named.
class oif_Viscous : public qkw_Keyword {
public:
  explicit oif_Viscous(const kmaC_Viscous& record) : record_(record) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kmaC_Viscous record_;
};
