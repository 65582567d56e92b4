#pragma once

#include "base/cow_COW.h"
#include "base/cow_String.h"
#include "model/sections.h"
#include "qkw/qkw_Keyword.h"

/// "*Shell General Section" of a shell given by its stiffness. The deck
/// cannot hold its data yet: after the keyword line's start (with "offset="
/// only when the offset is 0) it raises "Shell general section
/// unimplemented". Any other section writes nothing.
class oif_ShellGeneralSection : public qkw_Keyword {
public:
  oif_ShellGeneralSection(const cow_String& elsetName, const kseC_Section& section,
                          const cow_String& orientationName, const cow_String& controlsName,
                          double offset)
      : controlsName_(controlsName), orientationName_(orientationName), elsetName_(elsetName),
        section_(section), offset_(offset) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String controlsName_;
  cow_String orientationName_;
  cow_String elsetName_;
  cow_ArrayCOW<kseC_Section> section_;
  double offset_;
};
