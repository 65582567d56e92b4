#include "qkw/qkw_QuorvexName.h"

#include "base/omu_QuorvexName.h"
#include "base/utl_Stream.h"

cow_String qkw_QuorvexName::Printable() const { return omu_QuorvexName::QuoteIfNeeded(name_); }

cow_String qkw_QuorvexName::PrintableFileName() const {
  if (name_.Empty() || name_.Find(" ") < 0)
    return name_;
  return "\"" + name_ + "\"";
}

utl_Stream& operator<<(utl_Stream& s, const qkw_QuorvexName& name) {
  return s.Print(name.fileName_ ? name.PrintableFileName() : name.Printable());
}
