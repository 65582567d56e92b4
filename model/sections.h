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
  kseC_Section* Copy() const override { return new kseC_GasketSection(*this); }
  static constexpr unsigned TypeId() { return keydeck::TypeIds::GasketSection; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  unsigned DynTypeId() const override { return TypeId(); }

  template <class V> void Fields(V& v) {
    v("material", material, cow_String());
    v("initialThickness", gasketValue2, keydeck::NotGivenDouble);
    v("initialGap", gasketValue1, 0.0);
    v("initialVoid", gasketValue3, 0.0);
    v("crossSection", gasketValue0, 1.0);
    v("stabilizationStiffness", stabilizationStiffness, keydeck::NotGivenDouble);
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
  kseC_Section* Copy() const override { return new kseC_PointSection(*this); }
  static constexpr unsigned TypeId() { return keydeck::TypeIds::PointSection; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  unsigned DynTypeId() const override { return TypeId(); }

  template <class V> void Fields(V& v) {
    v("mass", mass, 0.0);
    v("alpha", alpha, 0.0);
    v("composite", composite, 0.0);
    v("i11", r0, 0.0);
    v("i12", r1, 0.0);
    v("i13", r2, 0.0);
    v("i22", r3, 0.0);
    v("i23", r4, 0.0);
    v("i33", r5, 0.0);
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
  template <class V> void Fields(V& v) {
    v("mass", mass, 0.0);
    v("alpha", alpha, 0.0);
    v("composite", composite, 0.0);
    v("i11", i11, 0.0);
    v("i22", i22, 0.0);
    v("i33", i33, 0.0);
    v("i12", i12, 0.0);
    v("i13", i13, 0.0);
    v("i23", i23, 0.0);
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
  template <class V> void Fields(V& v) {
    v("name", name);
    v("material", material);
    v("area", area);
    v("spacing", spacing, 0.0);
    v("angularSpacing", angularSpacing, 0.0);
    v("position", position, 0.0);
    v("angle", rebarOrientation, 0.0);
    v("orientation", orientationName, cow_String());
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
  enum SpacingEnm : int { ConstantSpacing = 0, AngularSpacing = 1 };

  template <class V> void Fields(V& v) {
    v("spacing", spacingKind, ConstantSpacing);
    v("layers", layers);
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
