#pragma once

#include "oif/oif_LoadCards.h"
#include "qkw/qkw_Keyword.h"

/// "*Cflux" of a concentrated heat or concentration flux: the keyword line,
/// then the set, the degree of freedom and the value.
class oif_Cflux : public qkw_Keyword {
public:
  oif_Cflux(const keydeck::LoadHandle& load, const cow_String& step, bool opMod,
            const cow_String& setName, double scale);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  keydeck::LoadCardState card_;
  int dof_ = 11;
};
