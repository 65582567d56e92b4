#pragma once

#include "base/cow_String.h"

/// The solver's rule for names on deck lines.
class omu_QuorvexName {
public:
  omu_QuorvexName() = delete;

  /// True when a deck line can carry the name bare: it is not empty, starts
  /// with an ASCII letter or "_", and holds only ASCII letters, digits, "_"
  /// and "-".
  static bool IsBare(const cow_String& name);
  /// The name unchanged when it can stand bare or is empty, otherwise in
  /// double quotes.
  static cow_String QuoteIfNeeded(const cow_String& name);
};
