#pragma once

#include "oif/oif_FieldCards.h"
#include "qkw/qkw_Keyword.h"

/// "*Field" of a field variable in a step after the initial one: its
/// number, then the values at the nodes of a set, a user subroutine, or a
/// results file.
class oif_GeneralField : public qkw_Keyword {
public:
  oif_GeneralField(const keydeck::FieldHandle& field, const cow_String& step, bool opMod,
                   const cow_String& setName);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  keydeck::FieldCardState card_;
};
