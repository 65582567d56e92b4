#include "oif/oif_ShellGeneralSection.h"

#include "base/nex_Exception.h"
#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"

qkw_Keyword* oif_ShellGeneralSection::Copy() const { return new oif_ShellGeneralSection(*this); }

void oif_ShellGeneralSection::Write(utl_Stream& s) const {
  if (section_->DynTypeId() != kseC_UserShellSection::TypeId())
    return;
  const auto& shell = keydeck::RecordCast<kseC_UserShellSection>(*section_);
  s << "*Shell General Section, elset=" << elsetName_;
  keydeck::WriteParameter(s, "orientation=", orientationName_, cow_String());
  keydeck::WriteParameter(s, "controls=", controlsName_, cow_String());
  keydeck::WriteFlag(s, "unsymm", !shell.symmetric);
  // The offset is written when it is 0, the reverse of the shell section's rule.
  if (offset_ == 0.0)
    keydeck::WriteParameter(s, "offset=", offset_);
  keydeck::Raise("Shell general section unimplemented");
}
