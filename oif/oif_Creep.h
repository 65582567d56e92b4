#pragma once

#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

/// "*Creep": the creep law (strain hardening, the default, is not named) and
/// its dependent table, then "*Ornl" and "*Potential" when given.
class oif_Creep : public qkw_Keyword {
public:
  explicit oif_Creep(const kmaC_Creep& record) : record_(record) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kmaC_Creep record_;
};
