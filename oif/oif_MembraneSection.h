#pragma once

#include "base/cow_COW.h"
#include "base/cow_String.h"
#include "model/sections.h"
#include "qkw/qkw_Keyword.h"

/// "*Membrane Section" of an element set: material, orientation, controls
/// and Poisson's ratio on the keyword line, the thickness on the data line.
class oif_MembraneSection : public qkw_Keyword {
public:
  /// Empty names leave their parameters out.
  oif_MembraneSection(const cow_String& elsetName, const kseC_MembraneSection& section,
                      const cow_String& orientationName, const cow_String& controlsName)
      : elsetName_(elsetName), orientationName_(orientationName), section_(section),
        controlsName_(controlsName) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String elsetName_;
  cow_String orientationName_;
  kseC_MembraneSection section_;
  cow_String controlsName_;
};
