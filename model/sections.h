#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/records.h"

/// A section of the model. The section families join one by one; until then
/// a model file with sections is refused, and only the gasket section is
/// known, for the materials that it turns into gasket behaviours.
class kseC_Section {
public:
  virtual ~kseC_Section() = default;
  virtual kseC_Section* Copy() const = 0;
  virtual unsigned DynTypeId() const = 0;
};

/// A gasket section: its material (a "*Gasket behavior" when the material
/// has gasket options) and the four values of its data line.
class kseC_GasketSection : public kseC_Section {
public:
  static constexpr const char* Description =
      "a gasket section: its material and the values of its data line";
  kseC_Section* Copy() const override { return new kseC_GasketSection(*this); }
  static constexpr unsigned TypeId() { return keydeck::TypeIds::GasketSection; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  unsigned DynTypeId() const override { return TypeId(); }

  template <class V> void Fields(V& v) {
    v({"material", "the name of the material of the gasket; none when left out"}, material,
      cow_String());
    v({"initialThickness", "the initial thickness; from the nodes when left out"}, gasketValue2,
      keydeck::NotGivenDouble);
    v({"initialGap", "the initial gap"}, gasketValue1, 0.0);
    v({"initialVoid", "the initial void"}, gasketValue3, 0.0);
    v({"crossSection", "the cross-sectional area of a link element"}, gasketValue0, 1.0);
    v({"stabilizationStiffness", "the stabilization stiffness; the solver's own when left out"},
      stabilizationStiffness, keydeck::NotGivenDouble);
  }

  cow_String material; ///< empty when not set
  // The data line holds them in the order 2, 1, 3, 0.
  double gasketValue0 = 1;                       ///< cross-sectional area of a link element
  double gasketValue1 = 0;                       ///< initial gap
  double gasketValue2 = keydeck::NotGivenDouble; ///< initial thickness; not given: from the nodes
  double gasketValue3 = 0;                       ///< initial void
  double stabilizationStiffness = keydeck::NotGivenDouble;
};

/// The mass and rotary inertia of a point section. The inertia is the upper
/// triangle of the tensor by rows: r0 = I11, r1 = I12, r2 = I13, r3 = I22,
/// r4 = I23, r5 = I33.
class kseC_PointSection : public kseC_Section {
public:
  static constexpr const char* Description =
      "a point section: the mass and rotary inertia of a point";
  kseC_Section* Copy() const override { return new kseC_PointSection(*this); }
  static constexpr unsigned TypeId() { return keydeck::TypeIds::PointSection; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  unsigned DynTypeId() const override { return TypeId(); }

  template <class V> void Fields(V& v) {
    v({"mass", "the mass"}, mass, 0.0);
    v({"alpha", "the factor of mass-proportional damping"}, alpha, 0.0);
    v({"composite", "the fraction of critical damping for composite damping"}, composite, 0.0);
    v({"i11", "the rotary inertia I11 about the local axes"}, r0, 0.0);
    v({"i12", "the rotary inertia I12 about the local axes"}, r1, 0.0);
    v({"i13", "the rotary inertia I13 about the local axes"}, r2, 0.0);
    v({"i22", "the rotary inertia I22 about the local axes"}, r3, 0.0);
    v({"i23", "the rotary inertia I23 about the local axes"}, r4, 0.0);
    v({"i33", "the rotary inertia I33 about the local axes"}, r5, 0.0);
  }

  double mass = 0;
  double alpha = 0;     ///< mass-proportional damping
  double composite = 0; ///< composite damping
  double r0 = 0, r1 = 0, r2 = 0, r3 = 0, r4 = 0, r5 = 0;
};

/// A point mass and inertia of the engineering features: the mass and the
/// inertia in the deck's order i11, i22, i33, i12, i13, i23.
class kefC_PointMassInertia {
public:
  static constexpr const char* Description = "a point mass and its rotary inertia";
  template <class V> void Fields(V& v) {
    v({"mass", "the mass"}, mass, 0.0);
    v({"alpha", "the factor of mass-proportional damping"}, alpha, 0.0);
    v({"composite", "the fraction of critical damping for composite damping"}, composite, 0.0);
    v({"i11", "the rotary inertia I11 about the local axes"}, i11, 0.0);
    v({"i22", "the rotary inertia I22 about the local axes"}, i22, 0.0);
    v({"i33", "the rotary inertia I33 about the local axes"}, i33, 0.0);
    v({"i12", "the rotary inertia I12 about the local axes"}, i12, 0.0);
    v({"i13", "the rotary inertia I13 about the local axes"}, i13, 0.0);
    v({"i23", "the rotary inertia I23 about the local axes"}, i23, 0.0);
  }

  double mass = 0;
  double alpha = 0;
  double composite = 0;
  double i11 = 0, i22 = 0, i33 = 0, i12 = 0, i13 = 0, i23 = 0;
};

/// One layer of rebar in a shell: its name, material, bar area and spacing
/// (a length, or an angle for angular spacing), its position in the
/// thickness, and its orientation: an angle to the first local direction,
/// or an orientation of its own by name.
class kseC_RebarLayer {
public:
  static constexpr const char* Description = "one layer of rebar in a shell";
  template <class V> void Fields(V& v) {
    v({"name", "the name of the layer"}, name);
    v({"material", "the name of the material of the bars"}, material);
    v({"area", "the cross-sectional area of one bar"}, area);
    v({"spacing", "the spacing of the bars, a length, with constant spacing"}, spacing, 0.0);
    v({"angularSpacing", "the angle between the bars, with angular spacing"}, angularSpacing, 0.0);
    v({"position", "the position of the layer in the thickness of the shell"}, position, 0.0);
    v({"angle", "the angle of the bars to the first local direction, in degrees"}, rebarOrientation,
      0.0);
    v({"orientation",
       "the name of an orientation of the layer's own; the shell's own directions when left out"},
      orientationName, cow_String());
  }

  double area = 0;
  keydeck::DeckName orientationName; ///< empty for the shell's own directions
  double rebarOrientation = 0;
  double spacing = 0;
  double position = 0;
  double angularSpacing = 0;
  keydeck::DeckName name;
  keydeck::DeckName material;
};

/// The rebar layers of a shell section and how their spacing is given.
class kseC_RebarLayers {
public:
  static constexpr const char* Description = "the rebar layers of a shell section";
  enum SpacingEnm : int { ConstantSpacing = 0, AngularSpacing = 1 };

  template <class V> void Fields(V& v) {
    v({"spacing", "whether the bars are spaced by a length (constant) or by an angle (angular)"},
      spacingKind, ConstantSpacing);
    v({"layers", "the layers of rebar"}, layers);
  }

  SpacingEnm spacingKind = ConstantSpacing;
  cow_List<kseC_RebarLayer> layers;
};

template <> struct keydeck::EnumTable<kseC_RebarLayers::SpacingEnm> {
  static constexpr std::string_view Noun = "rebar spacing";
  static constexpr EnumEntry<kseC_RebarLayers::SpacingEnm> Entries[] = {
      {kseC_RebarLayers::ConstantSpacing, "", "constant"},
      {kseC_RebarLayers::AngularSpacing, "angular spacing", "angular"},
  };
};
