#pragma once

#include "base/cow_COW.h"
#include "base/cow_String.h"
#include "model/sections.h"
#include "qkw/qkw_Keyword.h"

/// "*Shell Section" (or "*Shell General Section" for a section with
/// `general` set) of an element set: a homogeneous shell with its material,
/// thickness and integration points, or a composite shell with one line per
/// layer; then its rebar layers. A general shell given by its stiffness
/// raises "Shell general section unimplemented" after its keyword line's
/// start, and so does a shell section that has no card; any other section
/// writes nothing.
class oif_ShellSection : public qkw_Keyword {
public:
  /// Empty names leave their parameters out; an `offset` of 0 too.
  oif_ShellSection(const cow_String& elsetName, const kseC_Section& section,
                   const cow_String& orientationName, const cow_String& controlsName, double offset)
      : controlsName_(controlsName), orientationName_(orientationName), elsetName_(elsetName),
        section_(section), offset_(offset) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  void WriteHomogeneous(utl_Stream& s, const kseC_HomogenousShellSection& shell) const;
  void WriteComposite(utl_Stream& s, const kseC_CompositeShellSection& shell) const;
  void WriteUserShell(utl_Stream& s, const kseC_ShellSection& shell) const;
  void WriteHead(utl_Stream& s, const kseC_ShellSection& shell) const;
  void WriteOptions(utl_Stream& s, const kseC_ShellSection& shell) const;

  cow_String controlsName_;
  cow_String orientationName_;
  cow_String elsetName_;
  cow_ArrayCOW<kseC_Section> section_;
  double offset_;
};
