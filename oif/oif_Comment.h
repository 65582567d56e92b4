#pragma once

#include "base/cow_String.h"
#include "qkw/qkw_Keyword.h"

/// A comment: each line of the text as a deck line "** " + line. A text that
/// ends in a line end gets one more "** " line, so "\nTITLE\n" gives three
/// lines: "** ", "** TITLE", "** ". An empty text writes nothing.
class oif_Comment : public qkw_Keyword {
public:
  explicit oif_Comment(const cow_String& text) : text_(text) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String text_;
};
