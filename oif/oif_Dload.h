#pragma once

#include "oif/oif_LoadCards.h"
#include "qkw/qkw_Keyword.h"

/// "*Dload" of a body or line load: gravity, a body force, a line load, a
/// pipe pressure or a rotational body force. A complex load writes one card
/// per non-zero part, with its load case.
class oif_Dload : public qkw_Keyword {
public:
  /// `modelSpace` 1 is a three-dimensional model; 4 an axisymmetric one.
  oif_Dload(const keydeck::LoadHandle& load, const cow_String& step, bool opMod,
            const cow_String& setName, int modelSpace, double scale);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  void WriteDloadCard(utl_Stream& s, int loadCase) const;
  void WriteGravity(utl_Stream& s) const;
  void WriteGravityLine(utl_Stream& s, const std::array<double, 3>& vector) const;
  /// Body force and line load: one labelled line per component.
  void WriteComponents(utl_Stream& s, const std::array<cow_String, 3>& labels, int count,
                       bool user) const;
  void WritePipePressure(utl_Stream& s) const;
  void WriteRotationalBodyForce(utl_Stream& s) const;

  keydeck::LoadCardState card_;
  int modelSpace_ = 1;
};
