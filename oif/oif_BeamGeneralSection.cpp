#include "oif/oif_BeamGeneralSection.h"

#include "base/utl_Stream.h"
#include "oif/oif_MaterialTable.h"

namespace {

bool Given(double value) { return value != keydeck::NotGivenDouble && value != 0.0; }

// A point line: "*Shear Center" or "*Centroid" and the two coordinates,
// unless both are 0.
void WritePoint(utl_Stream& s, const char* keyword, const std::array<double, 2>& point) {
  if (point[0] == 0.0 && point[1] == 0.0)
    return;
  s << keyword;
  s.LineBreak();
  s << point[0] << ", " << point[1] << endl;
}

// The damping keyword has its own order of value and line break.
void WriteDamping(utl_Stream& s, const kseC_BeamSection& section) {
  if (section.alpha == 0.0 && section.beta == 0.0 && section.composite == 0.0)
    return;
  s << "*Damping";
  if (section.alpha != 0.0) {
    s << ", alpha=" << section.alpha;
    s.OptionalLineBreak();
  }
  if (section.beta != 0.0) {
    s << ", beta=" << section.beta;
    s.OptionalLineBreak();
  }
  if (section.composite != 0.0)
    s << ", composite=" << section.composite;
  s.LineBreak();
}

// Four points to a line.
void WriteSectionPoints(utl_Stream& s, const kmaC_MaterialTable& points) {
  if (points.Rows() == 0)
    return;
  s << "*Section Points";
  for (int row = 0; row < points.Rows(); ++row) {
    if (row % 4 == 0)
      s.LineBreak();
    else
      s << ", ";
    s << points.ConstGet(row, 0) << ", " << points.ConstGet(row, 1);
  }
  s.LineBreak();
}

} // namespace

qkw_Keyword* oif_BeamGeneralSection::Copy() const { return new oif_BeamGeneralSection(*this); }

void oif_BeamGeneralSection::WriteGeneralizedProfile(utl_Stream& s) const {
  // Only called for a generalized profile, which the common writer checked.
  const std::array<double, 7>& g = keydeck::RecordCast<kbpC_GeneralizedProfile>(Profile()).g;
  s << "section=GENERAL";
  s.LineBreak();
  s << g[0] << ", " << g[1] << ", " << g[2] << ", " << g[3] << ", " << g[4];
  if (g[5] != 0.0 || g[6] != 0.0)
    s << ", " << g[5] << ", " << g[6];
  s.LineBreak();
}

void oif_BeamGeneralSection::WriteDensity(utl_Stream& s) const {
  if (Given(Section().density))
    s << "density=" << Section().density << ", ";
}

void oif_BeamGeneralSection::WriteTempData(utl_Stream& s) const {
  if (Given(Section().zero))
    s << "zero=" << Section().zero << ", ";
}

void oif_BeamGeneralSection::WriteMaterialBehavior(utl_Stream& s) const {
  const kseC_BeamSection& section = Section();
  oif_MaterialTable table(section.behaviorTable, 0, false);
  if (!section.behaviorFlag1)
    table.InsertEmptyColumn(2);
  if (!section.behaviorFlag2)
    table.InsertEmptyColumn(3);
  s << table;
}

void oif_BeamGeneralSection::WriteOptions(utl_Stream& s) const {
  const kseC_BeamSection& section = Section();
  WriteDamping(s, section);
  WritePoint(s, "*Shear Center", section.shearCenter);
  WritePoint(s, "*Centroid", section.centroid);
  WriteSectionPoints(s, section.sectionPoints);
}
