#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "base/utl_Stream.h"
#include "model/output.h"
#include "model/output_variables.h"

#include <initializer_list>

// What the sub-cards of an "*Output" group share: which of a request's
// variables a card prints, and how it prints them.
namespace keydeck {

/// The names a sub-card prints, in first-seen order without doubles. Each
/// variable of the request that the procedure knows (a component stands for
/// its parent) is kept when `keep(variable, wasComponent)` says so; it prints as
/// the print name the table gives it.
template <class Keep>
cow_List<cow_String> SubCardVariables(const korC_OdbRequest& request, unsigned procedure,
                                      Keep&& keep) {
  cow_List<cow_String> names;
  for (const cow_String& held : request.variables) {
    cow_String parent = held;
    const bool wasComponent = !korC_OdbRequestTable::IsParentRequest(held.View(), procedure);
    if (wasComponent) {
      if (!korC_OdbRequestTable::IsComponentRequest(held.View(), procedure))
        continue;
      parent = korC_OdbRequestTable::RequestFromComponent(held.View(), procedure);
    }
    const korC_OdbVariable variable = korC_OdbRequestTable::Request(parent.View(), procedure);
    if (keep(variable, wasComponent))
      names.AppendUnlessMember(variable.PrintName(held, parent));
  }
  return names;
}

/// The names of a sub-card that keeps the variables of `kinds`.
cow_List<cow_String> SubCardVariablesOfKinds(const korC_OdbRequest& request, unsigned procedure,
                                             std::initializer_list<korC_OutputKindEnm> kinds);

/// Items separated by ", ", each line ended after `perLine` items and after
/// the last. A list of names of one item keeps its ", " (`OneNameList`).
enum class ListShape { Plain, OneNameList };
template <class T>
void WriteOutputList(utl_Stream& s, const cow_List<T>& items, int perLine, ListShape shape);

/// Ends a sub-card's keyword line: with ", variable=PRESELECT" or
/// ", variable=ALL" when asked.
void EndKeywordLine(utl_Stream& s, bool preselect, bool all);

/// The end of a sub-card's keyword line and its variables: ", variable=PRESELECT"
/// or ", variable=ALL" closing the line, or the line end and the names,
/// `perLine` to a line.
void WriteVariablePart(utl_Stream& s, bool preselect, bool all, const cow_List<cow_String>& names,
                       int perLine);

/// The common form of a sub-card: nothing when it has no variables and asks
/// for no set of them; otherwise `keyword`, the options `writeOptions(s)`
/// writes, and the variable part.
template <class Options>
void WriteSubCard(utl_Stream& s, const char* keyword, bool preselect, bool all,
                  const cow_List<cow_String>& names, int perLine, Options&& writeOptions) {
  if (!preselect && !all && names.Empty())
    return;
  s << keyword;
  writeOptions(s);
  WriteVariablePart(s, preselect, all, names, perLine);
}

} // namespace keydeck
