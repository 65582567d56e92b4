#pragma once

#include "model/constraints.h"
#include "qkw/qkw_Keyword.h"

/// "*Distributing": the weighting and the degrees of freedom of a
/// distributing coupling.
class oif_Distributing : public qkw_Keyword {
public:
  explicit oif_Distributing(const kcoC_Coupling& coupling) : coupling_(coupling) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kcoC_Coupling coupling_;
};
