#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "base/mdl_PropAttr.h"
#include "model/propagation.h"
#include "model/records.h"
#include "model/regions.h"

#include <array>
#include <string_view>

// Predefined fields: temperatures, field variables, pressure stresses and
// initial velocities on node sets, each kept once with its state per step. In the initial step a
// field is an initial condition; later steps change temperatures and field
// variables in place. The file names the kind by its "type" word.

/// The kinds of predefined field, by type id. A kind without a class below
/// is one that the model file cannot use yet.
enum kpfC_FieldTypeEnm : unsigned {
  kpfC_TemperatureType = 0x2EC0008,
  kpfC_PressureStressType = 0x2EC000A,
  kpfC_MassFlowRateType = 0x2EC0013,
  kpfC_GeneralFieldType = 0x2EC0015,
  kpfC_VelocityType = 0x2EC0016,
  kpfC_StressType = 0x2EC001A,
  kpfC_HardeningType = 0x2EC001F,
};

/// How a field's values are given: on the data lines, by a user subroutine,
/// by geostatic equilibrium, read from a results file, or read from a
/// results file and then changed by a user subroutine.
enum kpfC_DistributionEnm : int {
  kpfC_Direct = 0,
  kpfC_UserDefined = 1,
  kpfC_Geostatic = 2,
  kpfC_FromFile = 3,
  kpfC_FromFileAndUser = 4,
};

/// How values read from a results file reach the nodes: as they are, by
/// interpolation between dissimilar meshes, or at midside nodes from the
/// corner nodes.
enum kpfC_InterpolateEnm : int {
  kpfC_NoInterpolation = 0,
  kpfC_Interpolate = 1,
  kpfC_Midside = 2,
};

namespace keydeck {

// The deck text of a kind is its label in the comment ahead of its card.
template <> struct EnumTable<kpfC_FieldTypeEnm> {
  static constexpr std::string_view Noun = "field type";
  static constexpr EnumEntry<kpfC_FieldTypeEnm> Entries[] = {
      {kpfC_TemperatureType, "Temperature", "temperature"},
      {kpfC_PressureStressType, "Pressure stress", "pressureStress"},
      {kpfC_MassFlowRateType, "Mass flow rate", "massFlowRate"},
      {kpfC_GeneralFieldType, "Field variable", "field"},
      {kpfC_VelocityType, "Velocity", "velocity"},
      {kpfC_StressType, "Stress", "stress"},
      {kpfC_HardeningType, "Hardening", "hardening"},
  };
};

// The cards test the numbers; no deck text of their own.
template <> struct EnumTable<kpfC_DistributionEnm> {
  static constexpr std::string_view Noun = "distribution";
  static constexpr EnumEntry<kpfC_DistributionEnm> Entries[] = {
      {kpfC_Direct, "", "direct"},
      {kpfC_UserDefined, "", "userDefined"},
      {kpfC_Geostatic, "", "geostatic"},
      {kpfC_FromFile, "", "fromFile"},
      {kpfC_FromFileAndUser, "", "fromFileAndUser"},
  };
};

template <> struct EnumTable<kpfC_InterpolateEnm> {
  static constexpr std::string_view Noun = "interpolation";
  static constexpr EnumEntry<kpfC_InterpolateEnm> Entries[] = {
      {kpfC_NoInterpolation, "", "none"},
      {kpfC_Interpolate, "", "interpolate"},
      {kpfC_Midside, "", "midside"},
  };
};

} // namespace keydeck

/// The label of a field type in the comment ahead of its card; empty for a
/// type that is not a field's.
cow_String kpfC_FieldTypeLabelMap(unsigned typeId);

/// The base of the field records: the kind and the node set it acts on.
class kpfC_Field : public kprC_PropagatingRecord {
public:
  virtual kpfC_Field* Copy() const = 0;
  /// The distributions the kind admits.
  virtual bool Admits(kpfC_DistributionEnm distribution) const = 0;

  template <class V> void FieldFields(V& v) {
    v({"type", "the kind of field, which decides its other fields"}, type);
    v({"region", "the node set of the field: \"Set\" of the assembly or \"Instance.Set\""},
      regionName);
  }

  kpfC_FieldTypeEnm type = kpfC_TemperatureType; ///< the kind, which is the class
  keydeck::DeckName regionName;
  rgnC_Region region; ///< derived after loading from `regionName`
  kpfC_DistributionEnm distribution = kpfC_Direct;
};

/// The state of a temperature or a field variable: the values at the nodes,
/// the amplitude they follow, and where a results file gives them.
class kpfC_ScalarFieldState {
public:
  template <class V> void Fields(V& v) {
    v({"amplitude", "the name of the amplitude the values follow"}, amplitude,
      mdl_PropAttr<keydeck::DeckName>());
    v({"values", "direct: the values at each node of the set; a temperature of a beam or shell "
                 "gives one per temperature point"},
      values, mdl_PropAttr<cow_List<double>>());
    v({"file", "from a file: the results file of an earlier analysis"}, file,
      mdl_PropAttr<cow_String>());
    v({"beginStep", "from a file: the first step read; an initial condition reads this step"},
      beginStep, mdl_PropAttr<int>());
    v({"beginIncrement",
       "from a file: the first increment read; an initial condition reads this increment"},
      beginIncrement, mdl_PropAttr<int>());
    v({"endStep", "from a file: the last step read"}, endStep, mdl_PropAttr<int>());
    v({"endIncrement", "from a file: the last increment read"}, endIncrement, mdl_PropAttr<int>());
    v({"interpolation", "from a file: none, interpolate between dissimilar meshes, or midside"},
      interpolation, mdl_PropAttr<kpfC_InterpolateEnm>());
    v({"absoluteExteriorTolerance", "from a file, interpolated: the absolute distance a node may "
                                    "lie outside the old mesh"},
      absoluteExteriorTolerance, mdl_PropAttr<double>());
    v({"exteriorTolerance", "from a file, interpolated: the same, relative to the element size "
                            "(0.05 when left out)"},
      exteriorTolerance, mdl_PropAttr<double>());
  }

  mdl_PropAttr<keydeck::DeckName> amplitude;
  mdl_PropAttr<cow_List<double>> values;
  mdl_PropAttr<cow_String> file;
  mdl_PropAttr<int> beginStep, beginIncrement, endStep, endIncrement;
  mdl_PropAttr<kpfC_InterpolateEnm> interpolation;
  mdl_PropAttr<double> absoluteExteriorTolerance;
  mdl_PropAttr<double> exteriorTolerance;
};

/// The state of an initial velocity: three components, and for a rotating
/// velocity the angular velocity about the axis.
class kpfC_VelocityState {
public:
  template <class V> void Fields(V& v) {
    v({"velocity1", "the velocity along 1; left out, the component is not given"}, velocity1,
      mdl_PropAttr<double>());
    v({"velocity2", "the velocity along 2"}, velocity2, mdl_PropAttr<double>());
    v({"velocity3", "the velocity along 3"}, velocity3, mdl_PropAttr<double>());
    v({"angularVelocity", "rotating: the angular velocity about the axis"}, angularVelocity,
      mdl_PropAttr<double>());
  }

  mdl_PropAttr<double> velocity1, velocity2, velocity3;
  mdl_PropAttr<double> angularVelocity;
};

/// The state of a pressure stress: its value at the nodes and the amplitude
/// it follows, or the results file that gives it.
class kpfC_PressureStressState {
public:
  template <class V> void Fields(V& v) {
    v({"amplitude", "the name of the amplitude the value follows"}, amplitude,
      mdl_PropAttr<keydeck::DeckName>());
    v({"magnitude", "the pressure stress at each node of the set"}, magnitude,
      mdl_PropAttr<double>());
    v({"file", "from a file: the results file of an earlier analysis"}, file,
      mdl_PropAttr<cow_String>());
  }

  mdl_PropAttr<keydeck::DeckName> amplitude;
  mdl_PropAttr<double> magnitude;
  mdl_PropAttr<cow_String> file;
};

namespace keydeck {

/// The common part of every field class: its kind, type id, copy and its
/// file fields ahead of its own.
template <class Self, kpfC_FieldTypeEnm Type, class State>
class FieldKind : public kprC_StepStates<kpfC_Field, State> {
public:
  static constexpr kpfC_FieldTypeEnm Kind = Type;
  static constexpr unsigned TypeId() { return Type; }
  static bool IsKindOf(unsigned id) { return id == Type; }
  unsigned DynTypeId() const override { return Type; }
  kpfC_Field* Copy() const override { return new Self(static_cast<const Self&>(*this)); }

  template <class V> void Fields(V& v) {
    this->FieldFields(v);
    this->StateFields(v);
  }

protected:
  FieldKind() { this->type = Type; }
};

} // namespace keydeck

/// A temperature at the nodes of a node set: an initial condition in the
/// initial step, a "*Temperature" card in later steps.
class kpfC_Temperature
    : public keydeck::FieldKind<kpfC_Temperature, kpfC_TemperatureType, kpfC_ScalarFieldState> {
public:
  static constexpr const char* Description = "a temperature at each node of a node set";
  template <class V> void Fields(V& v) {
    FieldKind::Fields(v);
    v({"distribution",
       "direct, userDefined, fromFile or fromFileAndUser (not in the initial step)"},
      distribution, kpfC_Direct);
  }
  bool Admits(kpfC_DistributionEnm d) const override { return d != kpfC_Geostatic; }
};

/// A field variable at the nodes of a node set: an initial condition in the
/// initial step, a "*Field" card in later steps.
class kpfC_GeneralField
    : public keydeck::FieldKind<kpfC_GeneralField, kpfC_GeneralFieldType, kpfC_ScalarFieldState> {
public:
  static constexpr const char* Description = "a field variable at each node of a node set";
  template <class V> void Fields(V& v) {
    FieldKind::Fields(v);
    v({"number", "the number of the field variable, 1 or more"}, number);
    v({"distribution", "direct, userDefined or fromFile"}, distribution, kpfC_Direct);
  }
  bool Admits(kpfC_DistributionEnm d) const override {
    return d == kpfC_Direct || d == kpfC_UserDefined || d == kpfC_FromFile;
  }
  int number = 0;
};

/// An equivalent pressure stress at the nodes of a node set, for elements
/// that read it: "*Pressure stress" in every step.
class kpfC_PressureStress : public keydeck::FieldKind<kpfC_PressureStress, kpfC_PressureStressType,
                                                      kpfC_PressureStressState> {
public:
  static constexpr const char* Description = "a pressure stress at each node of a node set";
  template <class V> void Fields(V& v) {
    FieldKind::Fields(v);
    v({"distribution", "direct, userDefined or fromFile"}, distribution, kpfC_Direct);
  }
  bool Admits(kpfC_DistributionEnm d) const override {
    return d == kpfC_Direct || d == kpfC_UserDefined || d == kpfC_FromFile;
  }
};

/// An initial velocity of the nodes of a node set, along the axes or
/// rotating about an axis through two points. It exists in the initial step
/// alone.
class kpfC_Velocity
    : public keydeck::FieldKind<kpfC_Velocity, kpfC_VelocityType, kpfC_VelocityState> {
public:
  static constexpr const char* Description = "an initial velocity of the nodes of a node set";
  template <class V> void Fields(V& v) {
    FieldKind::Fields(v);
    v({"rotating", "true for a velocity that rotates about the axis from point1 to point2"},
      rotating, false);
    v({"point1", "rotating: a point of the axis"}, point1, std::array<double, 3>{0, 0, 0});
    v({"point2", "rotating: a second point of the axis"}, point2, std::array<double, 3>{0, 0, 0});
  }
  bool Admits(kpfC_DistributionEnm d) const override { return d == kpfC_Direct; }
  bool IsRotatingVelocity() const { return rotating; }

  bool rotating = false;
  std::array<double, 3> point1{0, 0, 0};
  std::array<double, 3> point2{0, 0, 0};
};

namespace keydeck {

/// The field classes a model file can use.
template <> struct RecordKinds<kpfC_Field> {
  static constexpr std::string_view Field = "type";
  using Types = KindList<kpfC_Temperature, kpfC_GeneralField, kpfC_PressureStress, kpfC_Velocity>;
};

} // namespace keydeck
