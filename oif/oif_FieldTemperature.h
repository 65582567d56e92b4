#pragma once

#include "oif/oif_FieldCards.h"
#include "qkw/qkw_Keyword.h"

/// "*Temperature" of a temperature in a step after the initial one: the
/// values at the nodes of a set (times the load case's scale, padded to the
/// model's temperature points), a user subroutine, or a results file.
class oif_FieldTemperature : public qkw_Keyword {
public:
  oif_FieldTemperature(const keydeck::FieldHandle& field, const cow_String& step, bool opMod,
                       const cow_String& setName, int maxTempSize, double scale);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  keydeck::FieldCardState card_;
  int maxTempSize_ = 1;
  double scale_ = 1.0;
};
