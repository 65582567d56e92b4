#pragma once

#include "base/cow_String.h"
#include "qkw/qkw_Keyword.h"

/// Raw solver text, written verbatim. Text from the model may or may not end
/// its last line, and the next card must start on a fresh line, so a line
/// end is added when the text lacks one. An empty text writes nothing.
class oif_RawKeyword : public qkw_Keyword {
public:
  explicit oif_RawKeyword(const cow_String& text) : text_(text) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String text_;
};
