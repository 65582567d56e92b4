#pragma once

#include "base/cow_String.h"
#include "qkw/qkw_Keyword.h"

/// "*Part, name=": the line that opens a part of the deck.
class oif_Part : public qkw_Keyword {
public:
  explicit oif_Part(const cow_String& partName) : partName_(partName) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String partName_;
};
