#include "oif/oif_NodeOutput.h"

#include "base/utl_Stream.h"
#include "oif/oif_OutputCards.h"
#include "oif/oif_Parameters.h"

using namespace keydeck;

oif_NodeOutput::oif_NodeOutput(const korC_OdbRequest& request, unsigned procedure,
                               const cow_String& name, bool preselect, bool all, bool skipEmpty)
    : request_(request), procedure_(procedure), name_(name), preselect_(preselect), all_(all),
      skipEmpty_(skipEmpty) {}

qkw_Keyword* oif_NodeOutput::Copy() const { return new oif_NodeOutput(*this); }

void oif_NodeOutput::Write(utl_Stream& s) const {
  const cow_List<cow_String> names = SubCardVariablesOfKinds(request_, procedure_, {korC_NodeKind});
  const auto options = [&](utl_Stream& out) {
    if (!name_.Empty())
      WriteParameter(out, "nset=", name_);
  };
  if (!skipEmpty_ && !preselect_ && !all_ && names.Empty()) {
    s << "*Node Output";
    options(s);
    s << endl;
    return;
  }
  WriteSubCard(s, "*Node Output", preselect_, all_, names, 8, options);
}
