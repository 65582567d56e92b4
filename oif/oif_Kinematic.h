#pragma once

#include "model/constraints.h"
#include "qkw/qkw_Keyword.h"

/// "*Kinematic": the degrees of freedom of a kinematic coupling, one data
/// line each; none when all six are coupled.
class oif_Kinematic : public qkw_Keyword {
public:
  explicit oif_Kinematic(const kcoC_Coupling& coupling) : coupling_(coupling) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kcoC_Coupling coupling_;
};
