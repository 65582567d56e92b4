#include "oif/oif_ElementOutput.h"

#include "base/utl_Stream.h"
#include "oif/oif_OutputCards.h"
#include "oif/oif_Parameters.h"

#include <algorithm>

using namespace keydeck;

namespace {

constexpr int SectionPointsPerCard = 16;

} // namespace

oif_ElementOutput::oif_ElementOutput(const korC_OdbChannel& channel, const korC_OdbRequest& request,
                                     unsigned procedure, const cow_String& name, bool preselect,
                                     bool all, bool rebar)
    : isField_(channel.IsField()), request_(request), procedure_(procedure), name_(name),
      preselect_(preselect), all_(all), rebar_(rebar) {}

qkw_Keyword* oif_ElementOutput::Copy() const { return new oif_ElementOutput(*this); }

// Contact variables count as element variables of contact and gap elements
// when the request names no interaction and names the variable itself.
cow_List<cow_String> oif_ElementOutput::Variables() const {
  const bool noInteractions = request_.interactions.Empty();
  return SubCardVariables(
      request_, procedure_, [&](const korC_OdbVariable& variable, bool wasComponent) {
        const bool element =
            variable.kind == korC_ElementKind ||
            (variable.kind == korC_ContactOrElementKind && !wasComponent && noInteractions);
        return element && (rebar_ || variable.position != korC_RebarLayer);
      });
}

void oif_ElementOutput::Write(utl_Stream& s) const {
  cow_List<cow_String> names = Variables();
  if (!preselect_ && !all_ && names.Empty())
    return;
  // Plastic strain alone says little without its equivalent; the solver
  // writes both.
  if (!preselect_ && !all_ && names.IsMember("PE") && !names.IsMember("PEEQ"))
    names.Append("PEEQ");
  const cow_List<int>& points = request_.sectionPoints;
  if (points.Empty()) {
    WriteGroup(s, names, points);
    return;
  }
  for (int from = 0; from < points.Size(); from += SectionPointsPerCard)
    WriteGroup(s, names, points.Slice(from, std::min(from + SectionPointsPerCard, points.Size())));
}

void oif_ElementOutput::WriteGroup(utl_Stream& s, const cow_List<cow_String>& names,
                                   const cow_List<int>& sectionPoints) const {
  s << "*Element Output";
  if (!name_.Empty())
    WriteParameter(s, "elset=", name_);
  if (rebar_)
    s << ", rebar";
  if (isField_)
    s << (request_.directions ? ", directions=YES" : ", directions=NO");
  EndKeywordLine(s, preselect_, all_);
  WriteOutputList(s, sectionPoints, SectionPointsPerCard, ListShape::Plain);
  if (!preselect_ && !all_)
    WriteOutputList(s, names, 16, ListShape::OneNameList);
}
