#include "oif/oif_Ornl.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"

using namespace keydeck;

qkw_Keyword* oif_Ornl::Copy() const { return new oif_Ornl(*this); }

void oif_Ornl::Write(utl_Stream& s) const {
  s << "*Ornl";
  WriteParameter(s, "a=", record_.a, kmaC_Ornl::aDef);
  WriteParameter(s, "h=", record_.h, kmaC_Ornl::hDef);
  WriteFlag(s, "reset", record_.reset);
  s.LineBreak();
}
