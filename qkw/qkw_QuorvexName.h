#pragma once

#include "base/cow_String.h"

class utl_Stream;

/// A name on its way to the deck stream, quoted as the solver's name rule
/// asks. In file-name mode only a name with a blank is quoted.
class qkw_QuorvexName {
public:
  qkw_QuorvexName(const cow_String& name, bool fileName) : name_(name), fileName_(fileName) {}

  /// The name, quoted when it cannot stand bare on a deck line.
  cow_String Printable() const;
  /// The name as a file name: in double quotes when it holds a blank.
  cow_String PrintableFileName() const;

  /// Writes the name as one unit, so the stream never breaks a line within it.
  friend utl_Stream& operator<<(utl_Stream& s, const qkw_QuorvexName& name);

private:
  cow_String name_;
  bool fileName_;
};
