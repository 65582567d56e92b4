#include "base/omu_QuorvexName.h"

namespace {

bool IsLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }

} // namespace

// Why this rule: the deck separates values with commas and blanks, marks
// keywords and comments with "*", joins an instance and a set with ".", and
// reads a leading digit, sign or dot as the start of a number. A name made of
// letters, digits, "_" and "-" that starts with a letter or "_" can be none
// of those things, so it stands bare; anything else (blanks, commas, dots,
// quotes, a leading digit, bytes outside ASCII) is quoted so that the solver
// reads it as one name. The empty name stays empty: a card that has no name
// to print prints nothing for it.
bool omu_QuorvexName::IsBare(const cow_String& name) {
  if (name.Empty() || !(IsLetter(name[0]) || name[0] == '_'))
    return false;
  for (const char c : name.View())
    if (!IsLetter(c) && !IsDigit(c) && c != '_' && c != '-')
      return false;
  return true;
}

cow_String omu_QuorvexName::QuoteIfNeeded(const cow_String& name) {
  return name.Empty() || IsBare(name) ? name : "\"" + name + "\"";
}
