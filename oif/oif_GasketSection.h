#pragma once

#include "base/cow_COW.h"
#include "base/cow_String.h"
#include "model/sections.h"
#include "qkw/qkw_Keyword.h"

/// "*Gasket Section" of an element set: its material (as ", behavior=" when
/// the material carries gasket behaviours), orientation and stabilization
/// stiffness, and the data line of thickness, gap, void and area. Any
/// section but a gasket section writes nothing.
class oif_GasketSection : public qkw_Keyword {
public:
  oif_GasketSection(const cow_String& elsetName, const kseC_Section& section, bool hasBehavior,
                    const cow_String& orientationName)
      : elsetName_(elsetName), section_(section), hasBehavior_(hasBehavior),
        orientationName_(orientationName) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String elsetName_;
  cow_ArrayCOW<kseC_Section> section_;
  bool hasBehavior_;
  cow_String orientationName_; ///< empty for none
};
