#pragma once

#include "base/cow_String.h"
#include "base/gsl_Matrix.h"
#include "qkw/qkw_Keyword.h"

class ddb_PartInstance;

/// "*Instance, name=..., part=..." with the instance's placement: a
/// translation line when it is moved or turned (the solver reads the first
/// data line as the translation), and a rotation line of seven values (a
/// point on the axis, a second point on it, the angle in degrees) when it is
/// turned. Every value has 15 significant digits.
class oif_Instance : public qkw_Keyword {
public:
  explicit oif_Instance(const ddb_PartInstance& instance);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String name_;
  cow_String partName_;
  gsl_Matrix placement_;
};
