#pragma once

#include "base/cow_String.h"
#include "model/constraints.h"
#include "qkw/qkw_Keyword.h"

class qkw_ModelInfo;

/// "*Tie": ties the secondary surface to the main one; the data line names
/// the secondary surface first.
class oif_Tie : public qkw_Keyword {
public:
  oif_Tie(const cow_String& name, const kcoC_Tie& tie, const qkw_ModelInfo& info);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String name_;
  kcoC_Tie tie_;
  cow_String mainName_;
  cow_String secondaryName_;
};
