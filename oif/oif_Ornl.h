#pragma once

#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

/// "*Ornl": the parameters of the ORNL constitutive rules, each left out at
/// its default; the card has no data line.
class oif_Ornl : public qkw_Keyword {
public:
  explicit oif_Ornl(const kmaC_Ornl& record) : record_(record) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kmaC_Ornl record_;
};
