#include "oif/oif_BeamSectionCommon.h"

#include "base/utl_Stream.h"

#include <initializer_list>

namespace {

void WriteValues(utl_Stream& s, std::initializer_list<double> values) {
  const char* separator = "";
  for (const double value : values) {
    s << separator << value;
    separator = ", ";
  }
}

// The profiles whose data line is a plain list of their dimensions.
template <class Profile>
void WriteDimensions(utl_Stream& s, const kbpC_BeamProfile& record, const char* literal,
                     auto&& values) {
  const Profile& profile = keydeck::RecordCast<Profile>(record);
  s << literal;
  s.LineBreak();
  values(profile);
  s.LineBreak();
}

} // namespace

oif_BeamSectionCommon::oif_BeamSectionCommon(const char* keyword, const cow_String& elsetName,
                                             const kseC_Section& section,
                                             const gsl_Vector& direction,
                                             const kbpC_BeamProfile* profile)
    : elsetName_(elsetName), keyword_(keyword), section_(section), direction_(direction) {
  if (profile != nullptr)
    profile_ = cow_ArrayCOW<kbpC_BeamProfile>(*profile);
}

const kseC_BeamSection& oif_BeamSectionCommon::Section() const {
  return keydeck::RecordCast<kseC_BeamSection>(*section_);
}

void oif_BeamSectionCommon::WriteData(utl_Stream& s) const {
  if (section_->DynTypeId() != kseC_BeamSection::TypeId())
    return;
  const kseC_BeamSection& section = Section();
  const bool general = section.integration == kseC_BeamSection::BeforeAnalysis;
  s << keyword_ << ", elset=" << elsetName_ << ", ";
  s.OptionalLineBreak();
  if (!general) {
    WriteMaterialBehavior(s);
    s.OptionalLineBreak();
  } else {
    // The line already ends in ", ", so a dependency makes two commas in a row.
    if (section.dependencies > 0)
      s << ", dependencies=" << section.dependencies << ", ";
    s.OptionalLineBreak();
  }
  WritePoissons(s);
  s.OptionalLineBreak();
  WriteTempData(s);
  s.OptionalLineBreak();
  if (general) {
    WriteDensity(s);
    s.OptionalLineBreak();
  }
  WriteProfile(s);
  DumpOrientation(s);
  s.LineBreak();
  if (general)
    WriteMaterialBehavior(s);
  if (section.hasFluidInertia())
    WriteFluidInertia(s);
  WriteOptions(s);
}

void oif_BeamSectionCommon::WritePoissons(utl_Stream& s) const {
  const double poisson = Section().poisson;
  if (poisson != keydeck::NotGivenDouble && poisson != 0.0)
    s << "poisson = " << poisson << ", ";
}

void oif_BeamSectionCommon::DumpOrientation(utl_Stream& s) const {
  s << direction_.x << "," << direction_.y << "," << direction_.z;
}

void oif_BeamSectionCommon::WriteProfile(utl_Stream& s) const {
  s.OptionalLineBreak();
  const unsigned id = profile_.IsNull() ? 0 : profile_->DynTypeId();
  const kbpC_BeamProfile* const profile = profile_.IsNull() ? nullptr : &*profile_;
  switch (id) {
  case kbpC_GeneralizedProfile::TypeId():
    WriteGeneralizedProfile(s);
    return;
  case kbpC_CircularProfile::TypeId():
    WriteDimensions<kbpC_CircularProfile>(s, *profile, "section=CIRC",
                                          [&](const auto& p) { WriteValues(s, {p.r}); });
    return;
  case kbpC_HexagonalProfile::TypeId():
    WriteDimensions<kbpC_HexagonalProfile>(s, *profile, "section=HEX", [&](const auto& p) {
      WriteValues(s, {p.r, p.t});
    });
    return;
  case kbpC_PipeProfile::TypeId():
    WriteDimensions<kbpC_PipeProfile>(s, *profile, "section=PIPE", [&](const auto& p) {
      WriteValues(s, {p.r, p.t});
    });
    return;
  case kbpC_IbeamProfile::TypeId():
    WriteDimensions<kbpC_IbeamProfile>(s, *profile, "section=I", [&](const auto& p) {
      WriteValues(s, {p.i[0], p.i[1], p.i[2], p.i[3], p.i[4], p.i[5], p.i[6]});
    });
    return;
  case kbpC_BoxProfile::TypeId():
    WriteBoxProfile(s);
    return;
  case kbpC_ArbitraryProfile::TypeId():
    WriteArbitraryProfile(s);
    return;
  case kbpC_RectangularProfile::TypeId():
    WriteDimensions<kbpC_RectangularProfile>(s, *profile, "section=RECT", [&](const auto& p) {
      WriteValues(s, {p.a, p.b});
    });
    return;
  case kbpC_LbeamProfile::TypeId():
    WriteDimensions<kbpC_LbeamProfile>(s, *profile, "section=L", [&](const auto& p) {
      WriteValues(s, {p.l[0], p.l[1], p.l[2], p.l[3]});
    });
    return;
  case kbpC_TbeamProfile::TypeId():
    // A T is an I whose bottom flange has no width and no thickness.
    WriteDimensions<kbpC_TbeamProfile>(s, *profile, "section=I", [&](const auto& p) {
      WriteValues(s, {p.t[2], p.t[1], 0.0, p.t[0], 0.0, p.t[3], p.t[4]});
    });
    return;
  case kbpC_TrapezoidalProfile::TypeId():
    WriteDimensions<kbpC_TrapezoidalProfile>(s, *profile, "section=TRAPEZOID", [&](const auto& p) {
      WriteValues(s, {p.z[0], p.z[1], p.z[2], p.z[3]});
    });
    return;
  default:
    s << "**ERROR -- Illegal Beam Profile Definition" << endl;
    s.LineBreak();
  }
}

void oif_BeamSectionCommon::WriteBoxProfile(utl_Stream& s) const {
  const auto& box = keydeck::RecordCast<kbpC_BoxProfile>(*profile_);
  s << "section=BOX";
  s.LineBreak();
  if (box.uniformThickness)
    WriteValues(s, {box.a, box.b, box.t1, box.t1, box.t1, box.t1});
  else
    WriteValues(s, {box.a, box.b, box.t1, box.t2, box.t3, box.t4});
  s.LineBreak();
}

void oif_BeamSectionCommon::WriteArbitraryProfile(utl_Stream& s) const {
  const cow_2DArray<double> points = keydeck::RecordCast<kbpC_ArbitraryProfile>(*profile_).Points();
  s << "section=ARBITRARY";
  s.LineBreak();
  s << points.Rows() - 1 << ", ";
  WriteValues(s, {points.ConstGet(0, 0), points.ConstGet(0, 1), points.ConstGet(1, 0),
                  points.ConstGet(1, 1), points.ConstGet(1, 2)});
  s.LineBreak();
  for (int row = 2; row < points.Rows(); ++row) {
    WriteValues(s, {points.ConstGet(row, 0), points.ConstGet(row, 1), points.ConstGet(row, 2)});
    s.LineBreak();
  }
  // A single segment is followed by an empty line, which the solver wants.
  if (points.Rows() == 2)
    s.LineBreak();
}

void oif_BeamSectionCommon::WriteGeneralizedProfile(utl_Stream& s) const {
  s << "**ERROR -- Generalized Profile cannot be used with this section." << endl;
  s.LineBreak();
}

void oif_BeamSectionCommon::WriteFluidInertia(utl_Stream& s) const {
  const kseC_BeamFluidInertia& fluid = *Section().fluidInertia;
  const std::array<double, 6>& f = fluid.values;
  s << "*Beam Fluid Inertia";
  if (fluid.half)
    s << ", half";
  s.LineBreak();
  s << f[0] << ", ";
  if (f[4] != 0.0)
    s << f[4];
  s << ", ";
  if (f[5] != 0.0)
    s << f[5];
  s << ", " << f[1];
  if (f[2] != 1.0 || f[3] != 0.0) {
    s << ", ";
    if (f[2] != 1.0)
      s << f[2];
    if (f[3] != 0.0)
      s << ", " << f[3];
  }
  s.LineBreak();
}
