#pragma once

#include "oif/oif_LoadCards.h"
#include "qkw/qkw_Keyword.h"

/// "*Decurrent" of a body current: the keyword line, then the set and the value.
class oif_Decurrent : public qkw_Keyword {
public:
  oif_Decurrent(const keydeck::LoadHandle& load, const cow_String& step, bool opMod,
                const cow_String& setName, double scale)
      : card_(load, step, opMod, setName, scale) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  keydeck::LoadCardState card_;
};
