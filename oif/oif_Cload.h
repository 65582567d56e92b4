#pragma once

#include "oif/oif_LoadCards.h"
#include "qkw/qkw_Keyword.h"

/// "*Cload" of a concentrated load: a force or moment (DOF 1 to 3 or 4 to
/// 6), the load on a generalized plane strain reference node (DOF 3 to 5), a
/// bolt load applied as a force (DOF 1), a pore fluid flow or an inward
/// volume acceleration (DOF 8). A complex load writes one card per non-zero
/// part, with its load case.
class oif_Cload : public qkw_Keyword {
public:
  oif_Cload(const keydeck::LoadHandle& load, const cow_String& step, bool opMod,
            const cow_String& setName, double scale);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  void WriteCloadCard(utl_Stream& s, int loadCase, bool follower) const;
  void WriteBoltLoad(utl_Stream& s) const;
  /// A load of one value on DOF 8.
  void WriteDof8(utl_Stream& s, bool complexAllowed) const;

  keydeck::LoadCardState card_;
  bool follower_ = false;
};
