#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/boundary_conditions.h"
#include "qkw/qkw_Keyword.h"

/// "*Submodel" in the assembly: how the regions of submodel conditions are
/// found in the global model, with one line per region set. Conditions
/// with the same driver share one card.
class oif_Submodel : public qkw_Keyword {
public:
  oif_Submodel(bool shellToSolid, const kbcC_SubmodelBC& bc, const cow_String& setName);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

  /// True when `bc` has this card's driver: the same shell thickness,
  /// tolerances and global element set.
  bool IsEqual(const kbcC_SubmodelBC& bc) const { return bc_.SameDriver(bc); }
  void AppendRegion(const cow_String& setName) { setNames_.Append(setName); }

private:
  bool shellToSolid_;
  kbcC_SubmodelBC bc_;
  cow_List<cow_String> setNames_;
};
