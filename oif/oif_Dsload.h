#pragma once

#include "oif/oif_LoadCards.h"
#include "qkw/qkw_Keyword.h"

/// "*Dsload" of a surface load: a pressure, a surface traction or a shell
/// edge load. A complex load writes one card per non-zero part, with its
/// load case.
class oif_Dsload : public qkw_Keyword {
public:
  oif_Dsload(const keydeck::LoadHandle& load, const cow_String& step, bool opMod,
             const cow_String& setName, double scale);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  void WriteDsloadCard(utl_Stream& s, int loadCase, bool noFollower, bool constantResultant) const;
  void WritePressure(utl_Stream& s) const;
  /// Traction and edge load: the labelled value, then the unit direction
  /// when `withDirection`.
  void WriteDirected(utl_Stream& s, const cow_String& label, bool follower, bool constantResultant,
                     const std::array<double, 3>& direction, bool withDirection) const;

  keydeck::LoadCardState card_;
};
