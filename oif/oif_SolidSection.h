#pragma once

#include "base/cow_COW.h"
#include "base/cow_String.h"
#include "model/sections.h"
#include "qkw/qkw_Keyword.h"

/// "*Solid Section" of an element set: a homogeneous solid (material and
/// thickness), a composite solid (one line per layer, repeated in reverse
/// when symmetric) or a truss (material and area, with neither orientation
/// nor controls). Any other section raises "Neither solid nor truss section
/// type".
class oif_SolidSection : public qkw_Keyword {
public:
  /// Empty names leave their parameters out.
  oif_SolidSection(const cow_String& elsetName, const kseC_Section& section,
                   const cow_String& orientationName, const cow_String& controlsName)
      : controlsName_(controlsName), orientationName_(orientationName), elsetName_(elsetName),
        section_(section) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  void WriteSolid(utl_Stream& s) const;
  void WriteTruss(utl_Stream& s, const kseC_TrussSection& truss) const;

  cow_String controlsName_;
  cow_String orientationName_;
  cow_String elsetName_;
  cow_ArrayCOW<kseC_Section> section_;
};
