#pragma once

#include "base/cow_String.h"
#include "qkw/qkw_Keyword.h"

/// Text that stands above all cards, written verbatim with no line end of
/// its own: a text without a final line end joins the next line of the deck.
class oif_FileHeader : public qkw_Keyword {
public:
  explicit oif_FileHeader(const cow_String& text) : text_(text) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String text_;
};
