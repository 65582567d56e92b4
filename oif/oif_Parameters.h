#pragma once

#include "base/cow_String.h"
#include "base/utl_Stream.h"
#include "model/records.h"

#include <cassert>
#include <type_traits>

// The parameter rules that every card of the deck shares: how a parameter is
// separated from the one before it, and when it is left out.
namespace keydeck {

/// The deck text of an enumerator of a model record.
template <TabledEnum E> cow_String EnumDeckText(E value) {
  const EnumEntry<E>* const entry = FindEnumEntry(value);
  assert(entry != nullptr && "enumerator without a table entry; the loader admits none");
  return cow_String(entry->deckText);
}

/// A value on a keyword line: integers and reals in the stream's own layout,
/// texts as they are, enumerators by their deck text.
template <class T> void WriteParameterValue(utl_Stream& s, const T& value) {
  if constexpr (std::is_enum_v<T>)
    s << EnumDeckText(value);
  else
    s << value;
}

/// ", ", a point where the keyword line may break, `name` (with its "=")
/// and `value`.
template <class T> void WriteParameter(utl_Stream& s, const char* name, const T& value) {
  s << ", ";
  s.OptionalLineBreak();
  s << name;
  WriteParameterValue(s, value);
}

/// The same, left out when `value` equals `omitWhen`: the solver's default or
/// the model's not-given mark.
template <class T, class U>
void WriteParameter(utl_Stream& s, const char* name, const T& value, const U& omitWhen) {
  if (value == omitWhen)
    return;
  WriteParameter(s, name, value);
}

/// The deck's word for a flag's value.
inline const char* YesNo(bool on) { return on ? "YES" : "NO"; }

/// A parameter of one word, such as ", reset", written when `set`.
inline void WriteFlag(utl_Stream& s, const char* word, bool set) {
  if (!set)
    return;
  s << ", ";
  s.OptionalLineBreak();
  s << word;
}

/// "dependencies=" of a table with field-variable columns; nothing when it
/// has none.
inline void WriteDependencies(utl_Stream& s, int dependencies) {
  if (dependencies > 0)
    WriteParameter(s, "dependencies=", dependencies);
}

} // namespace keydeck
