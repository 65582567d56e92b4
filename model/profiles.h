#pragma once

#include "model/materials.h"
#include "model/records.h"

#include <array>
#include <optional>
#include <string>
#include <type_traits>

// Beam profiles: the shapes of beam cross-sections, which beam sections
// name. Dimensions are lengths in the section's axes and must not be
// negative.

/// The kinds of profile, by type id; the model file names them by word.
enum kbpC_ProfileTypeEnm : unsigned {
  kbpC_GeneralizedType = keydeck::TypeIds::GeneralizedProfile,
  kbpC_CircularType = keydeck::TypeIds::CircularProfile,
  kbpC_HexagonalType = keydeck::TypeIds::HexagonalProfile,
  kbpC_PipeType = keydeck::TypeIds::PipeProfile,
  kbpC_IbeamType = keydeck::TypeIds::IbeamProfile,
  kbpC_BoxType = keydeck::TypeIds::BoxProfile,
  kbpC_ArbitraryType = keydeck::TypeIds::ArbitraryProfile,
  kbpC_RectangularType = keydeck::TypeIds::RectangularProfile,
  kbpC_LbeamType = keydeck::TypeIds::LbeamProfile,
  kbpC_TbeamType = keydeck::TypeIds::TbeamProfile,
  kbpC_TrapezoidalType = keydeck::TypeIds::TrapezoidalProfile,
};

// Kinds have no deck text here: the beam cards tell them by type id.
template <> struct keydeck::EnumTable<kbpC_ProfileTypeEnm> {
  static constexpr std::string_view Noun = "profile type";
  static constexpr EnumEntry<kbpC_ProfileTypeEnm> Entries[] = {
      {kbpC_RectangularType, "", "rectangle"},
      {kbpC_CircularType, "", "circle"},
      {kbpC_PipeType, "", "pipe"},
      {kbpC_BoxType, "", "box"},
      {kbpC_IbeamType, "", "i"},
      {kbpC_LbeamType, "", "l"},
      {kbpC_TbeamType, "", "t"},
      {kbpC_TrapezoidalType, "", "trapezoid"},
      {kbpC_HexagonalType, "", "hexagon"},
      {kbpC_ArbitraryType, "", "arbitrary"},
      {kbpC_GeneralizedType, "", "generalized"},
  };
};

/// The base of the beam profile records.
class kbpC_BeamProfile {
public:
  virtual ~kbpC_BeamProfile() = default;
  virtual kbpC_BeamProfile* Copy() const = 0;
  virtual unsigned DynTypeId() const = 0;
  /// The first negative dimension, if any (a generalized profile has no
  /// dimensions; an arbitrary one also needs rows of three values).
  virtual std::optional<keydeck::RecordFault> CheckData() const = 0;

  template <class V> void Fields(V& v) {
    v({"type", "the shape of the profile, which decides its dimensions"}, type);
  }

  kbpC_ProfileTypeEnm type = kbpC_RectangularType; ///< the kind, which is the class
};

namespace keydeck {

/// The common part of every profile class: its kind, type id and copy, and
/// the check that its dimensions, which `Fields` lists, are not negative.
template <class Record, kbpC_ProfileTypeEnm Type> class ProfileKind : public kbpC_BeamProfile {
public:
  static constexpr kbpC_ProfileTypeEnm Kind = Type;
  kbpC_BeamProfile* Copy() const override { return new Record(static_cast<const Record&>(*this)); }
  static constexpr unsigned TypeId() { return Type; }
  static bool IsKindOf(unsigned id) { return id == Type; }
  unsigned DynTypeId() const override { return Type; }
  std::optional<RecordFault> CheckData() const override;

protected:
  ProfileKind() { type = Type; }
};

/// "a dimension must not be negative, found -2" at `where`.
RecordFault NegativeDimensionFault(std::string where, double value);

/// Finds the first double field of a record below 0.
struct NegativeDimensionFinder {
  std::optional<RecordFault> fault;
  template <class M> void operator()(FieldName name, const M& member) { Check(name, member); }
  template <class M, class D> void operator()(FieldName name, const M& member, const D&) {
    Check(name, member);
  }
  template <class M> void Check(FieldName name, const M& member) {
    if constexpr (std::is_same_v<M, double>)
      if (!fault && member < 0)
        fault = NegativeDimensionFault(name.text, member);
  }
};

template <class Record, kbpC_ProfileTypeEnm Type>
std::optional<RecordFault> ProfileKind<Record, Type>::CheckData() const {
  NegativeDimensionFinder finder;
  Record copy = static_cast<const Record&>(*this); // `Fields` hands out members for writing
  copy.Fields(finder);
  return finder.fault;
}

} // namespace keydeck

/// A rectangle of width `a` and height `b`.
class kbpC_RectangularProfile
    : public keydeck::ProfileKind<kbpC_RectangularProfile, kbpC_RectangularType> {
public:
  static constexpr const char* Description = "a solid rectangle";
  template <class V> void Fields(V& v) {
    kbpC_BeamProfile::Fields(v);
    v({"width", "the width, along the section's first axis"}, a);
    v({"height", "the height, along the section's second axis"}, b);
  }
  double a = 0, b = 0;
};

/// A solid circle of radius `r`.
class kbpC_CircularProfile : public keydeck::ProfileKind<kbpC_CircularProfile, kbpC_CircularType> {
public:
  static constexpr const char* Description = "a solid circle";
  template <class V> void Fields(V& v) {
    kbpC_BeamProfile::Fields(v);
    v({"radius", "the radius"}, r);
  }
  double r = 0;
};

/// A thin-walled circular pipe: outer radius `r` and wall thickness `t`.
class kbpC_PipeProfile : public keydeck::ProfileKind<kbpC_PipeProfile, kbpC_PipeType> {
public:
  static constexpr const char* Description = "a circular pipe";
  template <class V> void Fields(V& v) {
    kbpC_BeamProfile::Fields(v);
    v({"radius", "the outer radius"}, r);
    v({"thickness", "the wall thickness"}, t);
  }
  double r = 0, t = 0;
};

/// A hollow hexagon: outer radius `r` and wall thickness `t`.
class kbpC_HexagonalProfile
    : public keydeck::ProfileKind<kbpC_HexagonalProfile, kbpC_HexagonalType> {
public:
  static constexpr const char* Description = "a hollow regular hexagon";
  template <class V> void Fields(V& v) {
    kbpC_BeamProfile::Fields(v);
    v({"radius", "the outer radius, center to corner"}, r);
    v({"thickness", "the wall thickness"}, t);
  }
  double r = 0, t = 0;
};

/// A hollow rectangle: width `a`, height `b` and the thicknesses of its four
/// walls, or one thickness for all when `uniformThickness`.
class kbpC_BoxProfile : public keydeck::ProfileKind<kbpC_BoxProfile, kbpC_BoxType> {
public:
  static constexpr const char* Description =
      "a hollow rectangle: one wall thickness, or one per wall";
  template <class V> void Fields(V& v) {
    kbpC_BeamProfile::Fields(v);
    v({"width", "the width, along the section's first axis"}, a);
    v({"height", "the height, along the section's second axis"}, b);
    v({"uniformThickness", "true when all four walls have thickness1"}, uniformThickness, false);
    v({"thickness1", "the thickness of the right wall, or of every wall when uniform"}, t1);
    v({"thickness2", "the thickness of the top wall"}, t2, 0.0);
    v({"thickness3", "the thickness of the left wall"}, t3, 0.0);
    v({"thickness4", "the thickness of the bottom wall"}, t4, 0.0);
  }
  double a = 0, b = 0;
  bool uniformThickness = false;
  double t1 = 0, t2 = 0, t3 = 0, t4 = 0;
};

/// An I: i0 the offset of the section's origin from the bottom, i1 the
/// height, i2 and i3 the widths of the bottom and top flanges, i4 and i5
/// their thicknesses, i6 the web thickness.
class kbpC_IbeamProfile : public keydeck::ProfileKind<kbpC_IbeamProfile, kbpC_IbeamType> {
public:
  static constexpr const char* Description = "an I with flanges of their own widths";
  template <class V> void Fields(V& v) {
    kbpC_BeamProfile::Fields(v);
    v({"offset", "the height of the section's origin above the bottom"}, i[0]);
    v({"height", "the height"}, i[1]);
    v({"bottomWidth", "the width of the bottom flange"}, i[2]);
    v({"topWidth", "the width of the top flange"}, i[3]);
    v({"bottomThickness", "the thickness of the bottom flange"}, i[4]);
    v({"topThickness", "the thickness of the top flange"}, i[5]);
    v({"webThickness", "the thickness of the web"}, i[6]);
  }
  std::array<double, 7> i{};
};

/// An L: l0 and l1 the widths of the two legs, l2 and l3 their thicknesses.
class kbpC_LbeamProfile : public keydeck::ProfileKind<kbpC_LbeamProfile, kbpC_LbeamType> {
public:
  static constexpr const char* Description = "an L of two legs";
  template <class V> void Fields(V& v) {
    kbpC_BeamProfile::Fields(v);
    v({"width", "the width of the leg along the section's first axis"}, l[0]);
    v({"height", "the height of the leg along the section's second axis"}, l[1]);
    v({"thickness1", "the thickness of the first leg"}, l[2]);
    v({"thickness2", "the thickness of the second leg"}, l[3]);
  }
  std::array<double, 4> l{};
};

/// A T: t0 the flange width, t1 the height, t2 the offset of the section's
/// origin from the bottom of the web, t3 the flange thickness, t4 the web
/// thickness. The deck writes it as an I without a bottom flange.
class kbpC_TbeamProfile : public keydeck::ProfileKind<kbpC_TbeamProfile, kbpC_TbeamType> {
public:
  static constexpr const char* Description = "a T: a flange on top of a web";
  template <class V> void Fields(V& v) {
    kbpC_BeamProfile::Fields(v);
    v({"width", "the width of the flange"}, t[0]);
    v({"height", "the height"}, t[1]);
    v({"offset", "the height of the section's origin above the bottom of the web"}, t[2]);
    v({"flangeThickness", "the thickness of the flange"}, t[3]);
    v({"webThickness", "the thickness of the web"}, t[4]);
  }
  std::array<double, 5> t{};
};

/// A trapezoid: z0 the bottom width, z1 the height, z2 the top width, z3
/// the horizontal offset of the top's center from the bottom's.
class kbpC_TrapezoidalProfile
    : public keydeck::ProfileKind<kbpC_TrapezoidalProfile, kbpC_TrapezoidalType> {
public:
  static constexpr const char* Description = "a solid trapezoid";
  template <class V> void Fields(V& v) {
    kbpC_BeamProfile::Fields(v);
    v({"width", "the width of the bottom"}, z[0]);
    v({"height", "the height"}, z[1]);
    v({"topWidth", "the width of the top"}, z[2]);
    v({"offset", "the offset of the top's center from the bottom's, along the first axis"}, z[3]);
  }
  std::array<double, 4> z{};
};

/// A thin-walled section of straight segments: a start point, then per
/// segment its end point and thickness (x, y, thickness).
class kbpC_ArbitraryProfile
    : public keydeck::ProfileKind<kbpC_ArbitraryProfile, kbpC_ArbitraryType> {
public:
  static constexpr const char* Description = "a thin-walled section of straight segments";
  std::optional<keydeck::RecordFault> CheckData() const override;
  template <class V> void Fields(V& v) {
    kbpC_BeamProfile::Fields(v);
    v({"start", "the point where the first segment starts: x, y"}, start);
    v({"segments", "one row per segment, at least one: the x and y of its end and its thickness"},
      segments);
  }
  /// The points of the deck: the start with thickness 0, then each segment's row.
  cow_2DArray<double> Points() const;

  std::array<double, 2> start{0, 0};
  kmaC_MaterialTable segments;
};

/// A section given by its properties: g0 the area, g1 I11, g2 I12, g3 I22,
/// g4 the torsional constant J, g5 and g6 the sectorial moment and the
/// warping constant of an open section.
class kbpC_GeneralizedProfile
    : public keydeck::ProfileKind<kbpC_GeneralizedProfile, kbpC_GeneralizedType> {
public:
  static constexpr const char* Description =
      "a section given by its area, moments of inertia and torsional constants";
  std::optional<keydeck::RecordFault> CheckData() const override { return std::nullopt; }
  template <class V> void Fields(V& v) {
    kbpC_BeamProfile::Fields(v);
    v({"area", "the cross-sectional area"}, g[0]);
    v({"i11", "the moment of inertia about the first axis"}, g[1]);
    v({"i12", "the product of inertia"}, g[2]);
    v({"i22", "the moment of inertia about the second axis"}, g[3]);
    v({"j", "the torsional constant"}, g[4]);
    v({"gamma0", "the sectorial moment of an open section"}, g[5], 0.0);
    v({"gammaW", "the warping constant of an open section"}, g[6], 0.0);
  }
  std::array<double, 7> g{};
};

/// The number of points of the profile at which a temperature given by
/// values holds: the corners and notable points of the shape, each point of
/// an arbitrary section, one for a generalized section.
int kbpC_TemperaturePointCount(const kbpC_BeamProfile& profile);

namespace keydeck {

/// The profile classes a model file can use.
template <> struct RecordKinds<kbpC_BeamProfile> {
  static constexpr std::string_view Field = "type";
  using Types =
      KindList<kbpC_RectangularProfile, kbpC_CircularProfile, kbpC_PipeProfile, kbpC_BoxProfile,
               kbpC_IbeamProfile, kbpC_LbeamProfile, kbpC_TbeamProfile, kbpC_TrapezoidalProfile,
               kbpC_HexagonalProfile, kbpC_ArbitraryProfile, kbpC_GeneralizedProfile>;
};

} // namespace keydeck
