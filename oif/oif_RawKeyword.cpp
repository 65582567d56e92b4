#include "oif/oif_RawKeyword.h"

#include "base/utl_Stream.h"

qkw_Keyword* oif_RawKeyword::Copy() const { return new oif_RawKeyword(*this); }

void oif_RawKeyword::Write(utl_Stream& s) const {
  if (text_.Empty())
    return;
  s << text_;
  if (text_[text_.Length() - 1] != '\n')
    s << endl;
}
