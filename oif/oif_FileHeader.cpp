#include "oif/oif_FileHeader.h"

#include "base/utl_Stream.h"

qkw_Keyword* oif_FileHeader::Copy() const { return new oif_FileHeader(*this); }

void oif_FileHeader::Write(utl_Stream& s) const {
  if (text_.Length() >= 1)
    s << text_;
}
