#pragma once

#include "oif/oif_FieldCards.h"
#include "qkw/qkw_Keyword.h"

/// "*Pressure stress" of a pressure stress, in the initial step and later
/// ones alike: the keyword line (a user subroutine, a results file or an
/// amplitude), then the set and the value.
class oif_PressureStress : public qkw_Keyword {
public:
  oif_PressureStress(const keydeck::FieldHandle& field, const cow_String& step, bool opMod,
                     const cow_String& setName);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  keydeck::FieldCardState card_;
};
