#include "oif/oif_OutputCards.h"

#include "base/utl_Stream.h"

namespace keydeck {

namespace {

void WriteItem(utl_Stream& s, const cow_String& item) { s << item; }
void WriteItem(utl_Stream& s, int item) { s << item; }

} // namespace

cow_List<cow_String> SubCardVariablesOfKinds(const korC_OdbRequest& request, unsigned procedure,
                                             std::initializer_list<korC_OutputKindEnm> kinds) {
  return SubCardVariables(request, procedure, [&](const korC_OdbVariable& variable, bool) {
    for (const korC_OutputKindEnm kind : kinds)
      if (variable.kind == kind)
        return true;
    return false;
  });
}

template <class T>
void WriteOutputList(utl_Stream& s, const cow_List<T>& items, int perLine, ListShape shape) {
  const int count = items.Size();
  for (int i = 0; i < count; ++i) {
    WriteItem(s, items.ConstGet(i));
    const bool last = i + 1 == count;
    if (!last || (count == 1 && shape == ListShape::OneNameList))
      s << ", ";
    if (last || (i + 1) % perLine == 0)
      s << endl;
  }
}

template void WriteOutputList(utl_Stream&, const cow_List<cow_String>&, int, ListShape);
template void WriteOutputList(utl_Stream&, const cow_List<int>&, int, ListShape);

void EndKeywordLine(utl_Stream& s, bool preselect, bool all) {
  if (preselect || all) {
    s.OptionalLineBreak();
    s << (preselect ? ", variable=PRESELECT" : ", variable=ALL");
  }
  s << endl;
}

void WriteVariablePart(utl_Stream& s, bool preselect, bool all, const cow_List<cow_String>& names,
                       int perLine) {
  EndKeywordLine(s, preselect, all);
  if (!preselect && !all)
    WriteOutputList(s, names, perLine, ListShape::OneNameList);
}

} // namespace keydeck
