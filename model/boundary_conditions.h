#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "base/mdl_PropAttr.h"
#include "model/datums.h"
#include "model/propagation.h"
#include "model/records.h"
#include "model/regions.h"

#include <optional>
#include <string_view>

// Boundary conditions: prescribed values of degrees of freedom on a region,
// created in one step and changed or deactivated in later ones. Each kind is
// a class of its own, picked by the "type" word of the model file; the
// step-dependent values of a kind are its state, declared once.

/// The kinds of boundary condition, by type id.
enum kbcC_BCTypeEnm : unsigned {
  kbcC_DisplacementType = 0x2980005,
  kbcC_VelocityType = 0x2980007,
  kbcC_AccelerationType = 0x2980009,
  kbcC_SymmetryType = 0x298000C,
  kbcC_TemperatureType = 0x2980010,
  kbcC_PorePressureType = 0x2980014,
  kbcC_AcousticPressureType = 0x2980016,
  kbcC_FluidCavityPressureType = 0x2980018,
  kbcC_ElectricPotentialType = 0x298001A,
  kbcC_MassConcentrationType = 0x298001C,
  kbcC_SubmodelType = 0x2980022,
  kbcC_ConnDisplacementType = 0x2980024,
  kbcC_ConnVelocityType = 0x2980026,
  kbcC_ConnAccelerationType = 0x2980028,
  kbcC_HydrostaticFluidPressureType = 0x2980031,
};

namespace keydeck {

// The deck text of a kind is the label of its "Name: ... Type: ..." comment.
template <> struct EnumTable<kbcC_BCTypeEnm> {
  static constexpr std::string_view Noun = "boundary condition type";
  static constexpr EnumEntry<kbcC_BCTypeEnm> Entries[] = {
      {kbcC_DisplacementType, "Displacement/Rotation", "displacement"},
      {kbcC_VelocityType, "Velocity/Angular velocity", "velocity"},
      {kbcC_AccelerationType, "Acceleration/Angular acceleration", "acceleration"},
      {kbcC_SymmetryType, "Symmetry/Antisymmetry/Encastre", "symmetry"},
      {kbcC_TemperatureType, "Temperature", "temperature"},
      {kbcC_PorePressureType, "Pore pressure", "porePressure"},
      {kbcC_AcousticPressureType, "Acoustic pressure", "acousticPressure"},
      {kbcC_FluidCavityPressureType, "Fluid cavity pressure", "fluidCavityPressure"},
      {kbcC_ElectricPotentialType, "Electric potential", "electricPotential"},
      {kbcC_MassConcentrationType, "Mass concentration", "massConcentration"},
      {kbcC_SubmodelType, "Submodel", "submodel"},
      {kbcC_ConnDisplacementType, "Connector displacement", "connectorDisplacement"},
      {kbcC_ConnVelocityType, "Connector velocity", "connectorVelocity"},
      {kbcC_ConnAccelerationType, "Connector acceleration", "connectorAcceleration"},
      {kbcC_HydrostaticFluidPressureType, "Hydrostatic fluid pressure", "hydrostaticFluidPressure"},
  };
};

} // namespace keydeck

/// The labels of the boundary-condition kinds, as the deck's comments print them.
struct kbcC_BCTypeLabelMap {
  /// The label of the kind of type id `typeId`; empty for an id of no kind.
  static cow_String Label(unsigned typeId);
};

/// What the state of every boundary condition holds in a step.
struct kbcC_BCState {
  mdl_PropAttr<keydeck::DeckName> amplitude; ///< an amplitude of the model, by name
  /// In a buckle step: 1 the base state only, 2 the perturbation only, 0 or 3 both.
  mdl_PropAttr<int> buckleLoadCase;

  /// True when a step of `procedureType` takes the values as a real and an
  /// imaginary part, each in a card of its own: the steady-state dynamics
  /// procedures.
  static bool UseComplex(unsigned procedureType);

  template <class V> void BCStateFields(V& v) {
    v({"amplitude", "the name of an amplitude of the model; none for the step's own"}, amplitude,
      mdl_PropAttr<keydeck::DeckName>());
    v({"buckleLoadCase", "in a buckle step: 1 the base state only, 2 the perturbation only, "
                         "0 or 3 both"},
      buckleLoadCase, mdl_PropAttr<int>());
  }
};

/// Six values, one per degree of freedom (three translations, three
/// rotations), each written only when given.
struct kbcC_DofState : kbcC_BCState {
  static constexpr int Dofs = 6;
  mdl_PropAttr<double> real[Dofs];

  const mdl_PropAttr<double>& Real(int dof) const { return real[dof]; }

protected:
  using Names = keydeck::FieldName[Dofs];
  template <class V> void DofFields(V& v, const Names& names) {
    BCStateFields(v);
    for (int i = 0; i < Dofs; ++i)
      v(names[i], real[i], mdl_PropAttr<double>());
  }
};

/// Six values with an imaginary part each, for steady-state dynamics.
struct kbcC_ComplexDofState : kbcC_DofState {
  mdl_PropAttr<double> imaginary[Dofs];

  const mdl_PropAttr<double>& Imag(int dof) const { return imaginary[dof]; }

protected:
  template <class V> void ComplexDofFields(V& v, const Names& names, const Names& imaginaryNames) {
    DofFields(v, names);
    for (int i = 0; i < Dofs; ++i)
      v(imaginaryNames[i], imaginary[i], mdl_PropAttr<double>());
  }
};

struct kbcC_DisplacementState : kbcC_ComplexDofState {
  template <class V> void Fields(V& v) {
    static constexpr Names names = {{"u1", "the displacement along axis 1"},
                                    {"u2", "the displacement along axis 2"},
                                    {"u3", "the displacement along axis 3"},
                                    {"ur1", "the rotation about axis 1, in radians"},
                                    {"ur2", "the rotation about axis 2, in radians"},
                                    {"ur3", "the rotation about axis 3, in radians"}};
    static constexpr Names imaginaryNames = {
        {"u1Imaginary", "the imaginary part of u1 in steady-state dynamics"},
        {"u2Imaginary", "the imaginary part of u2 in steady-state dynamics"},
        {"u3Imaginary", "the imaginary part of u3 in steady-state dynamics"},
        {"ur1Imaginary", "the imaginary part of ur1 in steady-state dynamics"},
        {"ur2Imaginary", "the imaginary part of ur2 in steady-state dynamics"},
        {"ur3Imaginary", "the imaginary part of ur3 in steady-state dynamics"}};
    ComplexDofFields(v, names, imaginaryNames);
  }
};

struct kbcC_VelocityState : kbcC_DofState {
  template <class V> void Fields(V& v) {
    static constexpr Names names = {
        {"v1", "the velocity along axis 1"},          {"v2", "the velocity along axis 2"},
        {"v3", "the velocity along axis 3"},          {"vr1", "the angular velocity about axis 1"},
        {"vr2", "the angular velocity about axis 2"}, {"vr3", "the angular velocity about axis 3"}};
    DofFields(v, names);
  }
};

struct kbcC_AccelerationState : kbcC_DofState {
  template <class V> void Fields(V& v) {
    static constexpr Names names = {{"a1", "the acceleration along axis 1"},
                                    {"a2", "the acceleration along axis 2"},
                                    {"a3", "the acceleration along axis 3"},
                                    {"ar1", "the angular acceleration about axis 1"},
                                    {"ar2", "the angular acceleration about axis 2"},
                                    {"ar3", "the angular acceleration about axis 3"}};
    DofFields(v, names);
  }
};

/// One value: a temperature, a pressure, a potential or a concentration.
struct kbcC_ScalarState : kbcC_BCState {
  mdl_PropAttr<double> magnitude;
  template <class V> void Fields(V& v) {
    BCStateFields(v);
    v({"magnitude", "the prescribed value"}, magnitude, mdl_PropAttr<double>());
  }
};

/// One value with an imaginary part, for steady-state dynamics.
struct kbcC_ComplexScalarState : kbcC_ScalarState {
  mdl_PropAttr<double> imaginary;
  template <class V> void Fields(V& v) {
    kbcC_ScalarState::Fields(v);
    v({"imaginary", "the imaginary part of the value in steady-state dynamics"}, imaginary,
      mdl_PropAttr<double>());
  }
};

/// A temperature, on the temperature degree of freedom or on those listed.
struct kbcC_TemperatureState : kbcC_ScalarState {
  mdl_PropAttr<cow_List<int>> dofs;
  template <class V> void Fields(V& v) {
    kbcC_ScalarState::Fields(v);
    v({"dofs", "the temperature degrees of freedom (11 and above); 11 alone when left out"}, dofs,
      mdl_PropAttr<cow_List<int>>());
  }
};

/// The base of the boundary-condition records.
class kbcC_BC : public kprC_PropagatingRecord {
public:
  /// How the values are spread over the region: uniformly, or by a user subroutine.
  enum DistribTypeEnum : int { Uniform = 0, UserDefined = 1 };

  virtual kbcC_BC* Copy() const = 0;
  /// The state in force in `step`, as its kind's state.
  virtual const kbcC_BCState& BCState(const cow_String& step) const = 0;
  /// The procedure of the step whose entry set the state in force in
  /// `step`; 0 when that is the initial step or there is none.
  virtual unsigned StateProcedure(const cow_String& step) const = 0;
  /// What is wrong with the values that `step` sets, if anything: the field
  /// and the reason.
  virtual std::optional<keydeck::RecordFault> StateFault(const cow_String&) const {
    return std::nullopt;
  }
  /// True for a kind that names its region; connector kinds name connectors.
  virtual bool HasRegion() const { return true; }

  template <class V> void BCFields(V& v) {
    v({"type", "the kind of boundary condition, which decides its other fields"}, type);
    v({"region", "the node set it acts on: \"Set\" of the assembly or \"Instance.Set\""},
      regionName);
    v({"csys", "the datum system of its directions: \"Datum\" of the assembly or "
               "\"Instance.Datum\"; the global system when left out"},
      csysName, cow_String());
  }
  template <class V> void DistributionFields(V& v) {
    v({"distribution", "how the values spread over the region"}, distribution, Uniform);
    v({"fixed", "true to hold the values reached at the start of the step"}, fixed, false);
  }

  kbcC_BCTypeEnm type = kbcC_DisplacementType; ///< the kind, which is the class
  cow_String regionName;                       ///< the region, by scoped name
  cow_String csysName;                         ///< the datum, by scoped name; empty for none
  DistribTypeEnum distribution = Uniform;
  bool fixed = false;
  // Derived after loading:
  rgnC_Region region;
  dtmC_DatumRef csys;
};

namespace keydeck {

template <> struct EnumTable<kbcC_BC::DistribTypeEnum> {
  static constexpr std::string_view Noun = "distribution";
  static constexpr EnumEntry<kbcC_BC::DistribTypeEnum> Entries[] = {
      {kbcC_BC::Uniform, "", "uniform"},
      {kbcC_BC::UserDefined, "user", "user"},
  };
};

/// The procedure of the step that set the state `quad` stands for; 0 for
/// the initial step or none.
template <class State> unsigned ProcedureOf(const kprC_PropagatingState<State>& quad);

/// The common part of every boundary-condition class: its kind, type id,
/// copy and state queries. `Base` is `kbcC_BC` or a family class below it.
template <class Record, kbcC_BCTypeEnm Type, class State, class Base = kbcC_BC>
class BCKind : public kprC_StepStates<Base, State> {
public:
  static constexpr kbcC_BCTypeEnm Kind = Type;
  static constexpr unsigned TypeId() { return Type; }
  static bool IsKindOf(unsigned id) { return id == Type; }
  unsigned DynTypeId() const override { return Type; }
  kbcC_BC* Copy() const override { return new Record(static_cast<const Record&>(*this)); }
  const kbcC_BCState& BCState(const cow_String& step) const override {
    return this->ConstGetState(step);
  }
  unsigned StateProcedure(const cow_String& step) const override {
    return ProcedureOf(this->ConstGetStateQuad(step));
  }

protected:
  BCKind() { this->type = Type; }
};

/// The fault of a list of degrees of freedom under `field`: each must lie in
/// `lowest` to `highest`.
std::optional<RecordFault> DofListFault(const mdl_PropAttr<cow_List<int>>& dofs, const char* field,
                                        int lowest, int highest);

} // namespace keydeck

template <class State> unsigned keydeck::ProcedureOf(const kprC_PropagatingState<State>& quad) {
  if (quad.step.IsNull() || !kprC_AnalysisStep::IsKindOf(quad.Step().DynTypeId()))
    return 0;
  return RecordCast<kprC_AnalysisStep>(quad.Step()).ProcedureType();
}

/// Displacements and rotations of the region's nodes.
class kbcC_DisplacementBC
    : public keydeck::BCKind<kbcC_DisplacementBC, kbcC_DisplacementType, kbcC_DisplacementState> {
public:
  static constexpr const char* Description =
      "prescribed displacements and rotations u1, u2, u3, ur1, ur2, ur3";
  template <class V> void Fields(V& v) {
    BCFields(v);
    DistributionFields(v);
    StateFields(v);
  }
};

/// Velocities and angular velocities of the region's nodes.
class kbcC_VelocityBC
    : public keydeck::BCKind<kbcC_VelocityBC, kbcC_VelocityType, kbcC_VelocityState> {
public:
  static constexpr const char* Description =
      "prescribed velocities and angular velocities v1, v2, v3, vr1, vr2, vr3";
  template <class V> void Fields(V& v) {
    BCFields(v);
    StateFields(v);
  }
};

/// Accelerations and angular accelerations of the region's nodes.
class kbcC_AccelerationBC
    : public keydeck::BCKind<kbcC_AccelerationBC, kbcC_AccelerationType, kbcC_AccelerationState> {
public:
  static constexpr const char* Description =
      "prescribed accelerations and angular accelerations a1, a2, a3, ar1, ar2, ar3";
  template <class V> void Fields(V& v) {
    BCFields(v);
    StateFields(v);
  }
};

/// The supports that the solver knows by name.
enum kbcC_TypeNameEnm : int {
  kbcC_XSymm = 0,
  kbcC_YSymm = 1,
  kbcC_ZSymm = 2,
  kbcC_XAsymm = 3,
  kbcC_YAsymm = 4,
  kbcC_ZAsymm = 5,
  kbcC_Pinned = 6,
  kbcC_Encastre = 7,
};

template <> struct keydeck::EnumTable<kbcC_TypeNameEnm> {
  static constexpr std::string_view Noun = "symmetry";
  static constexpr EnumEntry<kbcC_TypeNameEnm> Entries[] = {
      {kbcC_XSymm, "XSYMM", "xSymmetry"},       {kbcC_YSymm, "YSYMM", "ySymmetry"},
      {kbcC_ZSymm, "ZSYMM", "zSymmetry"},       {kbcC_XAsymm, "XASYMM", "xAntisymmetry"},
      {kbcC_YAsymm, "YASYMM", "yAntisymmetry"}, {kbcC_ZAsymm, "ZASYMM", "zAntisymmetry"},
      {kbcC_Pinned, "PINNED", "pinned"},        {kbcC_Encastre, "ENCASTRE", "encastre"},
  };
};

/// The state of a symmetry condition: which one.
struct kbcC_TypeState : kbcC_BCState {
  mdl_PropAttr<kbcC_TypeNameEnm> typeName;
  template <class V> void Fields(V& v) {
    BCStateFields(v);
    v({"symmetry", "which symmetry, antisymmetry or support the region has"}, typeName,
      mdl_PropAttr<kbcC_TypeNameEnm>());
  }
};

/// A symmetry, antisymmetry, pinned or encastre condition.
class kbcC_TypeBC : public keydeck::BCKind<kbcC_TypeBC, kbcC_SymmetryType, kbcC_TypeState> {
public:
  using TypeNameEnm = kbcC_TypeNameEnm;
  static constexpr const char* Description =
      "a symmetry, antisymmetry, pinned or encastre condition";
  template <class V> void Fields(V& v) {
    BCFields(v);
    StateFields(v);
  }
};

/// A temperature on the region's nodes.
class kbcC_TemperatureBC
    : public keydeck::BCKind<kbcC_TemperatureBC, kbcC_TemperatureType, kbcC_TemperatureState> {
public:
  static constexpr const char* Description = "a prescribed temperature";
  std::optional<keydeck::RecordFault> StateFault(const cow_String& step) const override;
  template <class V> void Fields(V& v) {
    BCFields(v);
    StateFields(v);
  }
};

/// The family of kinds that prescribe one value on one degree of freedom:
/// pressures, potentials and concentrations.
class kbcC_DistributedBC : public kbcC_BC {
public:
  static constexpr unsigned TypeId() { return kbcC_PorePressureType; }
  static bool IsKindOf(unsigned id);
  /// The value in force in `step`, with its state.
  virtual const mdl_PropAttr<double>& Magnitude(const cow_String& step) const = 0;
  /// The imaginary part; unset for a kind without one.
  virtual const mdl_PropAttr<double>& Imaginary(const cow_String& step) const = 0;
};

namespace keydeck {

/// A kind of the distributed family with its state.
template <class Record, kbcC_BCTypeEnm Type, class State>
class DistributedBCKind : public BCKind<Record, Type, State, kbcC_DistributedBC> {
public:
  const mdl_PropAttr<double>& Magnitude(const cow_String& step) const override {
    return this->ConstGetState(step).magnitude;
  }
  const mdl_PropAttr<double>& Imaginary(const cow_String& step) const override {
    if constexpr (std::is_same_v<State, kbcC_ComplexScalarState>)
      return this->ConstGetState(step).imaginary;
    else
      return Unset;
  }
  template <class V> void Fields(V& v) {
    this->BCFields(v);
    this->DistributionFields(v);
    this->StateFields(v);
  }

private:
  static inline const mdl_PropAttr<double> Unset{};
};

} // namespace keydeck

class kbcC_PorePressureBC
    : public keydeck::DistributedBCKind<kbcC_PorePressureBC, kbcC_PorePressureType,
                                        kbcC_ScalarState> {
public:
  static constexpr const char* Description = "a prescribed pore pressure";
};

class kbcC_AcousticPressureBC
    : public keydeck::DistributedBCKind<kbcC_AcousticPressureBC, kbcC_AcousticPressureType,
                                        kbcC_ComplexScalarState> {
public:
  static constexpr const char* Description = "a prescribed acoustic pressure";
};

class kbcC_FluidCavityPressureBC
    : public keydeck::DistributedBCKind<kbcC_FluidCavityPressureBC, kbcC_FluidCavityPressureType,
                                        kbcC_ScalarState> {
public:
  static constexpr const char* Description = "a prescribed fluid cavity pressure";
};

class kbcC_ElectricPotentialBC
    : public keydeck::DistributedBCKind<kbcC_ElectricPotentialBC, kbcC_ElectricPotentialType,
                                        kbcC_ComplexScalarState> {
public:
  static constexpr const char* Description = "a prescribed electric potential";
};

class kbcC_MassConcentrationBC
    : public keydeck::DistributedBCKind<kbcC_MassConcentrationBC, kbcC_MassConcentrationType,
                                        kbcC_ScalarState> {
public:
  static constexpr const char* Description = "a prescribed normalized mass concentration";
};

class kbcC_HydrostaticFluidPressureBC
    : public keydeck::DistributedBCKind<kbcC_HydrostaticFluidPressureBC,
                                        kbcC_HydrostaticFluidPressureType, kbcC_ScalarState> {
public:
  static constexpr const char* Description = "a prescribed hydrostatic fluid pressure";
};

/// What a submodel condition takes from the global model in a step.
struct kbcC_SubmodelState : kbcC_BCState {
  mdl_PropAttr<cow_List<int>> dofs;
  mdl_PropAttr<keydeck::DeckName> globalStep;
  mdl_PropAttr<int> globalIncrement;
  mdl_PropAttr<bool> timeScale;
  mdl_PropAttr<double> centerZoneSize;

  /// True when the state names the step of the global model it is driven
  /// from: the card then takes the shared "submodel" head.
  bool IsSubmodel() const { return globalStep.IsActive() && !globalStep.ConstGet().Empty(); }

  template <class V> void Fields(V& v) {
    BCStateFields(v);
    v({"dofs", "the degrees of freedom (1 to 6) driven from the global model"}, dofs,
      mdl_PropAttr<cow_List<int>>());
    v({"globalStep", "the step of the global model that drives the region"}, globalStep,
      mdl_PropAttr<keydeck::DeckName>());
    v({"globalIncrement", "the increment of that step; its last when left out"}, globalIncrement,
      mdl_PropAttr<int>());
    v({"timeScale", "true to scale the global step's time to this step"}, timeScale,
      mdl_PropAttr<bool>());
    v({"centerZoneSize", "the centre-zone size of a shell-to-solid drive; a tenth of the shell "
                         "thickness when left out"},
      centerZoneSize, mdl_PropAttr<double>());
  }
};

/// Values of the region driven by the results of a global model.
class kbcC_SubmodelBC
    : public keydeck::BCKind<kbcC_SubmodelBC, kbcC_SubmodelType, kbcC_SubmodelState> {
public:
  static constexpr const char* Description =
      "degrees of freedom driven by the results of a global model";
  std::optional<keydeck::RecordFault> StateFault(const cow_String& step) const override;
  /// True when both drive the same global elements in the same way, so
  /// that one "*Submodel" card serves both.
  bool SameDriver(const kbcC_SubmodelBC& other) const;
  template <class V> void Fields(V& v) {
    BCFields(v);
    v({"fixed", "true to hold the values reached at the start of the step"}, fixed, false);
    v({"globalElset", "the element set of the global model searched for the driving values"},
      globalElset, cow_String());
    v({"shellThickness", "the thickness of the global shells; 0 for none"}, shellThickness, 0.0);
    v({"absoluteExteriorTolerance", "how far outside the global elements a node may lie, as "
                                    "a length; 0 for the solver's default"},
      absoluteExteriorTolerance, 0.0);
    v({"exteriorTolerance", "how far outside the global elements a node may lie, as a fraction "
                            "of their size; 0 for the solver's default"},
      exteriorTolerance, 0.0);
    StateFields(v);
  }

  keydeck::DeckName globalElset;
  double shellThickness = 0;
  double absoluteExteriorTolerance = 0;
  double exteriorTolerance = 0;
};

/// The family of connector motions: components of relative motion of connectors.
class kbcC_ConnectorBC : public kbcC_BC {
public:
  static constexpr unsigned TypeId() { return kbcC_ConnDisplacementType; }
  static bool IsKindOf(unsigned id) {
    return id == kbcC_ConnDisplacementType || id == kbcC_ConnVelocityType ||
           id == kbcC_ConnAccelerationType;
  }
  bool HasRegion() const override { return false; }
  /// The six component values in force in `step`.
  virtual const kbcC_DofState& Components(const cow_String& step) const = 0;

  template <class V> void ConnectorFields(V& v) {
    v({"type", "the kind of boundary condition, which decides its other fields"}, type);
    v({"connectors", "the connectors it acts on, by name"}, connectors, cow_List<cow_String>());
  }

  cow_List<cow_String> connectors; ///< the connector instances, by name
};

namespace keydeck {

template <class Record, kbcC_BCTypeEnm Type, class State>
class ConnectorKind : public BCKind<Record, Type, State, kbcC_ConnectorBC> {
public:
  const kbcC_DofState& Components(const cow_String& step) const override {
    return this->ConstGetState(step);
  }
  template <class V> void Fields(V& v) {
    this->ConnectorFields(v);
    this->StateFields(v);
  }
};

} // namespace keydeck

class kbcC_ConnDisplacementBC
    : public keydeck::ConnectorKind<kbcC_ConnDisplacementBC, kbcC_ConnDisplacementType,
                                    kbcC_DisplacementState> {
public:
  static constexpr const char* Description = "prescribed relative displacements of connectors";
};

class kbcC_ConnVelocityBC
    : public keydeck::ConnectorKind<kbcC_ConnVelocityBC, kbcC_ConnVelocityType,
                                    kbcC_VelocityState> {
public:
  static constexpr const char* Description = "prescribed relative velocities of connectors";
};

class kbcC_ConnAccelerationBC
    : public keydeck::ConnectorKind<kbcC_ConnAccelerationBC, kbcC_ConnAccelerationType,
                                    kbcC_AccelerationState> {
public:
  static constexpr const char* Description = "prescribed relative accelerations of connectors";
};

namespace keydeck {

/// The kinds a model file can use. The connector kinds wait for the
/// connectors, which the model file cannot hold yet.
template <> struct RecordKinds<kbcC_BC> {
  static constexpr std::string_view Field = "type";
  using Types =
      KindList<kbcC_DisplacementBC, kbcC_VelocityBC, kbcC_AccelerationBC, kbcC_TypeBC,
               kbcC_TemperatureBC, kbcC_PorePressureBC, kbcC_AcousticPressureBC,
               kbcC_FluidCavityPressureBC, kbcC_ElectricPotentialBC, kbcC_MassConcentrationBC,
               kbcC_HydrostaticFluidPressureBC, kbcC_SubmodelBC>;
};

} // namespace keydeck
