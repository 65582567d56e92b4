#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "base/mdl_PropAttr.h"
#include "model/datums.h"
#include "model/propagation.h"
#include "model/records.h"
#include "model/regions.h"

#include <array>
#include <string_view>

// Loads: forces, pressures, body loads, fluxes, charges and currents, each
// kept once with its state per step. The file names the kind by its "type"
// word; the kind is the record's class and its type id.

/// The kinds of load, by type id.
enum kloC_LoadTypeEnm : unsigned {
  kloC_PressureType = 0x2880008,
  kloC_ConnectorForceType = 0x288000E,
  kloC_RotationalBodyForceType = 0x2880014,
  kloC_MomentType = 0x2880018,
  kloC_LineLoadType = 0x288001A,
  kloC_PipePressureType = 0x288001C,
  kloC_BodyForceType = 0x288001E,
  kloC_GravityType = 0x2880020,
  kloC_PEGLoadType = 0x2880022,
  kloC_BoltLoadType = keydeck::TypeIds::BoltLoad,
  kloC_ConcentratedHeatFluxType = 0x2880026,
  kloC_BodyHeatFluxType = 0x2880028,
  kloC_ConcentratedPoreFluidType = 0x288002A,
  kloC_SurfacePoreFluidType = 0x288002C,
  kloC_HydroFluidFlowType = 0x288002E,
  kloC_ConcentratedChargeType = 0x2880030,
  kloC_ConcentratedCurrentType = 0x2880032,
  kloC_SurfaceChargeType = 0x2880034,
  kloC_SurfaceCurrentType = 0x2880036,
  kloC_BodyChargeType = 0x2880038,
  kloC_BodyCurrentType = 0x288003A,
  kloC_ConcentratedConcentrationFluxType = 0x288003C,
  kloC_SurfaceConcentrationFluxType = 0x288003E,
  kloC_BodyConcentrationFluxType = 0x2880040,
  kloC_InwardVolAccelType = 0x2880042,
  kloC_SurfaceHeatFluxType = 0x2880045,
  kloC_ConcentratedForceType = 0x2880047,
  kloC_ConnectorMomentType = 0x2880049,
  kloC_InertiaReliefType = 0x288004B,
  kloC_SurfaceTractionType = 0x2880055,
  kloC_ShellEdgeLoadType = 0x2880057,
};

namespace keydeck {

// The deck text of a kind is its label in the comment ahead of its card.
template <> struct EnumTable<kloC_LoadTypeEnm> {
  static constexpr std::string_view Noun = "load type";
  static constexpr EnumEntry<kloC_LoadTypeEnm> Entries[] = {
      {kloC_ConcentratedForceType, "Concentrated force", "concentratedForce"},
      {kloC_MomentType, "Moment", "moment"},
      {kloC_PEGLoadType, "Generalized plane strain", "generalizedPlaneStrain"},
      {kloC_BoltLoadType, "Bolt load", "boltLoad"},
      {kloC_ConcentratedPoreFluidType, "Concentrated pore fluid", "concentratedPoreFluid"},
      {kloC_InwardVolAccelType, "Inward volume acceleration", "inwardVolumeAcceleration"},
      {kloC_ConnectorForceType, "Connector force", "connectorForce"},
      {kloC_ConnectorMomentType, "Connector moment", "connectorMoment"},
      {kloC_ConcentratedHeatFluxType, "Concentrated heat flux", "concentratedHeatFlux"},
      {kloC_ConcentratedConcentrationFluxType, "Concentrated concentration flux",
       "concentratedConcentrationFlux"},
      {kloC_ConcentratedChargeType, "Concentrated charge", "concentratedCharge"},
      {kloC_ConcentratedCurrentType, "Concentrated current", "concentratedCurrent"},
      {kloC_GravityType, "Gravity", "gravity"},
      {kloC_BodyForceType, "Body force", "bodyForce"},
      {kloC_LineLoadType, "Line load", "lineLoad"},
      {kloC_PipePressureType, "Pipe pressure", "pipePressure"},
      {kloC_RotationalBodyForceType, "Rotational body force", "rotationalBodyForce"},
      {kloC_PressureType, "Pressure", "pressure"},
      {kloC_SurfaceTractionType, "Surface traction", "surfaceTraction"},
      {kloC_ShellEdgeLoadType, "Shell edge load", "shellEdgeLoad"},
      {kloC_BodyHeatFluxType, "Body heat flux", "bodyHeatFlux"},
      {kloC_BodyConcentrationFluxType, "Body concentration flux", "bodyConcentrationFlux"},
      {kloC_SurfaceHeatFluxType, "Surface heat flux", "surfaceHeatFlux"},
      {kloC_SurfaceConcentrationFluxType, "Surface concentration flux", "surfaceConcentrationFlux"},
      {kloC_SurfacePoreFluidType, "Surface pore fluid", "surfacePoreFluid"},
      {kloC_HydroFluidFlowType, "Fluid cavity flux", "fluidFlux"},
      {kloC_BodyChargeType, "Body charge", "bodyCharge"},
      {kloC_BodyCurrentType, "Body current", "bodyCurrent"},
      {kloC_SurfaceChargeType, "Surface charge", "surfaceCharge"},
      {kloC_SurfaceCurrentType, "Surface current", "surfaceCurrent"},
      {kloC_InertiaReliefType, "Inertia relief", "inertiaRelief"},
  };
};

} // namespace keydeck

/// The label of a load type in the comment ahead of its card; empty for a
/// type that is not a load's.
cow_String kloC_LoadTypeLabelMap(unsigned typeId);

/// How a bolt load acts: as a force (a "*Cload"), or as a boundary condition
/// that adjusts the bolt's length or fixes it.
enum kloC_BoltLoadMethodEnm : int {
  kloC_ApplyForce = 0,
  kloC_AdjustLength = 1,
  kloC_FixLength = 2,
};

/// How a distributed load is spread: uniformly, by a user subroutine, or
/// hydrostatically (pressures only).
enum kloC_DistributionEnm : int {
  kloC_Uniform = 0,
  kloC_UserDefined = 1,
  kloC_Hydrostatic = 3,
};

/// The side of a pipe that a pipe pressure acts on.
enum kloC_PipeSideEnm : int { kloC_Inside = 0, kloC_Outside = 1 };

/// The system of the components of a line load.
enum kloC_LineLoadSystemEnm : int { kloC_GlobalSystem = 0, kloC_LocalSystem = 1 };

/// What a surface traction gives: a general traction or a shear traction.
enum kloC_TractionKindEnm : int { kloC_GeneralTraction = 0, kloC_ShearTraction = 1 };

/// What a shell edge load gives.
enum kloC_EdgeLoadKindEnm : int {
  kloC_EdgeNormal = 0,
  kloC_EdgeTransverse = 1,
  kloC_EdgeShear = 2,
  kloC_EdgeMoment = 3,
  kloC_EdgeGeneral = 4,
};

namespace keydeck {

// The deck's own words name the methods; the cards test the numbers.
template <> struct EnumTable<kloC_BoltLoadMethodEnm> {
  static constexpr std::string_view Noun = "bolt load method";
  static constexpr EnumEntry<kloC_BoltLoadMethodEnm> Entries[] = {
      {kloC_ApplyForce, "", "applyForce"},
      {kloC_AdjustLength, "", "adjustLength"},
      {kloC_FixLength, "", "fixLength"},
  };
};

// The cards build their labels from these; no deck text of their own.
template <> struct EnumTable<kloC_DistributionEnm> {
  static constexpr std::string_view Noun = "distribution";
  static constexpr EnumEntry<kloC_DistributionEnm> Entries[] = {
      {kloC_Uniform, "", "uniform"},
      {kloC_UserDefined, "", "userDefined"},
      {kloC_Hydrostatic, "", "hydrostatic"},
  };
};

template <> struct EnumTable<kloC_PipeSideEnm> {
  static constexpr std::string_view Noun = "pipe side";
  static constexpr EnumEntry<kloC_PipeSideEnm> Entries[] = {
      {kloC_Inside, "", "inside"},
      {kloC_Outside, "", "outside"},
  };
};

template <> struct EnumTable<kloC_LineLoadSystemEnm> {
  static constexpr std::string_view Noun = "line load system";
  static constexpr EnumEntry<kloC_LineLoadSystemEnm> Entries[] = {
      {kloC_GlobalSystem, "", "global"},
      {kloC_LocalSystem, "", "local"},
  };
};

template <> struct EnumTable<kloC_TractionKindEnm> {
  static constexpr std::string_view Noun = "traction kind";
  static constexpr EnumEntry<kloC_TractionKindEnm> Entries[] = {
      {kloC_GeneralTraction, "TRVEC", "general"},
      {kloC_ShearTraction, "TRSHR", "shear"},
  };
};

template <> struct EnumTable<kloC_EdgeLoadKindEnm> {
  static constexpr std::string_view Noun = "edge load kind";
  static constexpr EnumEntry<kloC_EdgeLoadKindEnm> Entries[] = {
      {kloC_EdgeNormal, "EDNOR", "normal"},  {kloC_EdgeTransverse, "EDTRA", "transverse"},
      {kloC_EdgeShear, "EDSHR", "shear"},    {kloC_EdgeMoment, "EDMOM", "moment"},
      {kloC_EdgeGeneral, "EDLD", "general"},
  };
};

} // namespace keydeck

/// The base of the load records: the kind and the region the load acts on.
class kloC_Load : public kprC_PropagatingRecord {
public:
  virtual kloC_Load* Copy() const = 0;
  /// What a region of the load must be: a node set, an element set, a
  /// surface, or nothing at all (a whole-model load may leave it out).
  enum RegionKindEnm : int { NodeRegion, ElementRegion, SurfaceRegion, NoRegion };
  virtual RegionKindEnm RegionKind() const = 0;
  /// True when the kind may leave its region out and then acts on the whole
  /// model.
  virtual bool WholeModel() const { return false; }

  template <class V> void LoadFields(V& v) {
    v({"type", "the kind of load, which decides its other fields"}, type);
    v({"region", "the region the load acts on: \"Set\" of the assembly or \"Instance.Set\""},
      regionName, keydeck::DeckName());
  }

  kloC_LoadTypeEnm type = kloC_ConcentratedForceType; ///< the kind, which is the class
  keydeck::DeckName regionName;                       ///< empty for the whole model
  rgnC_Region region;                                 ///< derived after loading from `regionName`
};

/// The state of a load of one value: its magnitude, its imaginary part (a
/// complex load of a steady-state step) and its amplitude.
class kloC_MagnitudeState {
public:
  template <class V> void Fields(V& v) {
    v({"amplitude", "the name of the amplitude the load follows"}, amplitude,
      mdl_PropAttr<keydeck::DeckName>());
    v({"magnitude", "the value of the load"}, magnitude, mdl_PropAttr<double>());
    v({"imaginary", "the imaginary part of a complex load"}, imaginary, mdl_PropAttr<double>());
  }

  mdl_PropAttr<keydeck::DeckName> amplitude;
  mdl_PropAttr<double> magnitude;
  mdl_PropAttr<double> imaginary;
};

/// The state of a load of three components, each with its imaginary part.
class kloC_VectorState {
public:
  template <class V> void Fields(V& v) {
    v({"amplitude", "the name of the amplitude the load follows"}, amplitude,
      mdl_PropAttr<keydeck::DeckName>());
    v({"component1", "the first component"}, component1, mdl_PropAttr<double>());
    v({"component2", "the second component"}, component2, mdl_PropAttr<double>());
    v({"component3", "the third component"}, component3, mdl_PropAttr<double>());
    v({"imaginary1", "the imaginary part of the first component"}, imaginary1,
      mdl_PropAttr<double>());
    v({"imaginary2", "the imaginary part of the second component"}, imaginary2,
      mdl_PropAttr<double>());
    v({"imaginary3", "the imaginary part of the third component"}, imaginary3,
      mdl_PropAttr<double>());
  }
  /// True when the state gives any imaginary part: a complex load.
  bool Complex() const {
    return imaginary1.IsActive() || imaginary2.IsActive() || imaginary3.IsActive();
  }

  mdl_PropAttr<keydeck::DeckName> amplitude;
  mdl_PropAttr<double> component1, component2, component3;
  mdl_PropAttr<double> imaginary1, imaginary2, imaginary3;
};

/// The state of a pressure: its magnitude and, for a hydrostatic pressure,
/// the height of zero pressure and the height where the magnitude holds.
class kloC_PressureState : public kloC_MagnitudeState {
public:
  template <class V> void Fields(V& v) {
    kloC_MagnitudeState::Fields(v);
    v({"zeroHeight", "hydrostatic: the height of zero pressure"}, zeroHeight,
      mdl_PropAttr<double>());
    v({"referenceHeight", "hydrostatic: the height where the magnitude holds"}, referenceHeight,
      mdl_PropAttr<double>());
  }

  mdl_PropAttr<double> zeroHeight;
  mdl_PropAttr<double> referenceHeight;
};

/// The state of a bolt load: its method, and the force or the length
/// adjustment.
class kloC_BoltLoadState {
public:
  template <class V> void Fields(V& v) {
    v({"amplitude", "the name of the amplitude the load follows"}, amplitude,
      mdl_PropAttr<keydeck::DeckName>());
    v({"method", "how the bolt load acts: a force, or a length adjusted or fixed"}, method,
      mdl_PropAttr<kloC_BoltLoadMethodEnm>());
    v({"magnitude", "the force, or the length adjustment"}, magnitude, mdl_PropAttr<double>());
  }

  mdl_PropAttr<keydeck::DeckName> amplitude;
  mdl_PropAttr<kloC_BoltLoadMethodEnm> method;
  mdl_PropAttr<double> magnitude;
};

/// The state of a load that has nothing that changes by step.
class kloC_NoState {
public:
  template <class V> void Fields(V&) {}
};

namespace keydeck {

/// The common part of every load class: its kind, type id, copy, the region
/// it needs and its file fields ahead of its own.
template <class Self, kloC_LoadTypeEnm Type, class State, kloC_Load::RegionKindEnm Region>
class LoadKind : public kprC_StepStates<kloC_Load, State> {
public:
  static constexpr kloC_LoadTypeEnm Kind = Type;
  static constexpr unsigned TypeId() { return Type; }
  static bool IsKindOf(unsigned id) { return id == Type; }
  unsigned DynTypeId() const override { return Type; }
  kloC_Load* Copy() const override { return new Self(static_cast<const Self&>(*this)); }
  kloC_Load::RegionKindEnm RegionKind() const override { return Region; }

  template <class V> void Fields(V& v) {
    this->LoadFields(v);
    this->StateFields(v);
  }

protected:
  LoadKind() { this->type = Type; }
};

/// The datum of a load by name: an assembly datum "Csys" or an instance's
/// "Beam-1.Csys"; derived into `csys` after loading.
struct LoadCsys {
  template <class V> void Fields(V& v) {
    v({"csys", "the name of the datum system of the components; the global system when left out"},
      csysName, DeckName());
  }
  DeckName csysName;
  dtmC_DatumRef csys;
};

} // namespace keydeck

/// A force on the nodes of a node set: "*Cload" on DOF 1 to 3.
class kloC_ConcentratedForce
    : public keydeck::LoadKind<kloC_ConcentratedForce, kloC_ConcentratedForceType, kloC_VectorState,
                               kloC_Load::NodeRegion>,
      public keydeck::LoadCsys {
public:
  static constexpr const char* Description = "a force on each node of a node set";
  template <class V> void Fields(V& v) {
    LoadKind::Fields(v);
    LoadCsys::Fields(v);
    v({"follower", "true when the force turns with the nodes"}, follower, false);
  }
  bool follower = false;
};

/// A moment on the nodes of a node set: "*Cload" on DOF 4 to 6.
class kloC_Moment : public keydeck::LoadKind<kloC_Moment, kloC_MomentType, kloC_VectorState,
                                             kloC_Load::NodeRegion>,
                    public keydeck::LoadCsys {
public:
  static constexpr const char* Description = "a moment on each node of a node set";
  template <class V> void Fields(V& v) {
    LoadKind::Fields(v);
    LoadCsys::Fields(v);
    v({"follower", "true when the moment turns with the nodes"}, follower, false);
  }
  bool follower = false;
};

/// The load on the reference node of generalized plane strain elements:
/// its components are the force on DOF 3 and the moments on DOF 4 and 5.
class kloC_PEGLoad : public keydeck::LoadKind<kloC_PEGLoad, kloC_PEGLoadType, kloC_VectorState,
                                              kloC_Load::NodeRegion> {
public:
  static constexpr const char* Description =
      "a force and two moments on the reference node of generalized plane strain elements";
};

/// A bolt load: a force on the bolt's reference node, or a boundary
/// condition on its length.
class kloC_BoltLoad : public keydeck::LoadKind<kloC_BoltLoad, kloC_BoltLoadType, kloC_BoltLoadState,
                                               kloC_Load::NodeRegion> {
public:
  static constexpr const char* Description =
      "a bolt load on the reference node of a pre-tension section";
};

/// A pore fluid flow into the nodes of a node set.
class kloC_ConcentratedPoreFluid
    : public keydeck::LoadKind<kloC_ConcentratedPoreFluid, kloC_ConcentratedPoreFluidType,
                               kloC_MagnitudeState, kloC_Load::NodeRegion> {
public:
  static constexpr const char* Description = "a pore fluid flow into each node of a node set";
};

/// An inward volume acceleration at the nodes of a node set.
class kloC_InwardVolAccel : public keydeck::LoadKind<kloC_InwardVolAccel, kloC_InwardVolAccelType,
                                                     kloC_MagnitudeState, kloC_Load::NodeRegion> {
public:
  static constexpr const char* Description = "an inward volume acceleration at each node";
};

/// A force on connector elements, components 1 to 3.
class kloC_ConnectorForce : public keydeck::LoadKind<kloC_ConnectorForce, kloC_ConnectorForceType,
                                                     kloC_VectorState, kloC_Load::ElementRegion> {
public:
  static constexpr const char* Description = "a force on the connectors of an element set";
};

/// A moment on connector elements, components 4 to 6.
class kloC_ConnectorMoment
    : public keydeck::LoadKind<kloC_ConnectorMoment, kloC_ConnectorMomentType, kloC_VectorState,
                               kloC_Load::ElementRegion> {
public:
  static constexpr const char* Description = "a moment on the connectors of an element set";
};

namespace keydeck {

/// A concentrated flux into a degree of freedom of the nodes of a node set.
template <class Self, kloC_LoadTypeEnm Type>
class ConcentratedFluxKind
    : public LoadKind<Self, Type, kloC_MagnitudeState, kloC_Load::NodeRegion> {
public:
  template <class V> void Fields(V& v) {
    LoadKind<Self, Type, kloC_MagnitudeState, kloC_Load::NodeRegion>::Fields(v);
    v({"dof", "the degree of freedom the flux enters"}, dof, 11);
  }
  int dof = 11;
};

/// A load of one value on a region, spread as `distribution` says.
template <class Self, kloC_LoadTypeEnm Type, kloC_Load::RegionKindEnm Region>
class DistributedLoadKind : public LoadKind<Self, Type, kloC_MagnitudeState, Region> {
public:
  template <class V> void Fields(V& v) {
    LoadKind<Self, Type, kloC_MagnitudeState, Region>::Fields(v);
    v({"distribution", "uniform, or by a user subroutine"}, distribution, kloC_Uniform);
  }
  kloC_DistributionEnm distribution = kloC_Uniform;
};

/// A load of one value on a region, with no distribution of its own.
template <class Self, kloC_LoadTypeEnm Type, kloC_Load::RegionKindEnm Region>
class PlainKind : public LoadKind<Self, Type, kloC_MagnitudeState, Region> {};

} // namespace keydeck

class kloC_ConcentratedHeatFlux
    : public keydeck::ConcentratedFluxKind<kloC_ConcentratedHeatFlux,
                                           kloC_ConcentratedHeatFluxType> {
public:
  static constexpr const char* Description = "a heat flux into each node of a node set";
};

class kloC_ConcentratedConcentrationFlux
    : public keydeck::ConcentratedFluxKind<kloC_ConcentratedConcentrationFlux,
                                           kloC_ConcentratedConcentrationFluxType> {
public:
  static constexpr const char* Description = "a concentration flux into each node of a node set";
};

class kloC_ConcentratedCharge
    : public keydeck::PlainKind<kloC_ConcentratedCharge, kloC_ConcentratedChargeType,
                                kloC_Load::NodeRegion> {
public:
  static constexpr const char* Description = "an electric charge at each node of a node set";
};

class kloC_ConcentratedCurrent
    : public keydeck::PlainKind<kloC_ConcentratedCurrent, kloC_ConcentratedCurrentType,
                                kloC_Load::NodeRegion> {
public:
  static constexpr const char* Description = "an electric current into each node of a node set";
};

/// Gravity: an acceleration along a direction, over an element set or the
/// whole model. The three components give direction and magnitude.
class kloC_Gravity : public keydeck::LoadKind<kloC_Gravity, kloC_GravityType, kloC_VectorState,
                                              kloC_Load::ElementRegion> {
public:
  static constexpr const char* Description =
      "gravity on an element set or, without a region, the whole model";
  bool WholeModel() const override { return true; }
};

/// A force per volume of an element set.
class kloC_BodyForce : public keydeck::LoadKind<kloC_BodyForce, kloC_BodyForceType,
                                                kloC_VectorState, kloC_Load::ElementRegion> {
public:
  static constexpr const char* Description = "a force per volume on an element set";
  bool WholeModel() const override { return true; }
  template <class V> void Fields(V& v) {
    LoadKind::Fields(v);
    v({"distribution", "uniform, or by a user subroutine"}, distribution, kloC_Uniform);
  }
  kloC_DistributionEnm distribution = kloC_Uniform;
};

/// A force per length on beam elements.
class kloC_LineLoad : public keydeck::LoadKind<kloC_LineLoad, kloC_LineLoadType, kloC_VectorState,
                                               kloC_Load::ElementRegion> {
public:
  static constexpr const char* Description = "a force per length on the beams of an element set";
  template <class V> void Fields(V& v) {
    LoadKind::Fields(v);
    v({"distribution", "uniform, or by a user subroutine"}, distribution, kloC_Uniform);
    v({"system", "the system of the components: global, or the beam's local one"}, system,
      kloC_GlobalSystem);
  }
  kloC_DistributionEnm distribution = kloC_Uniform;
  kloC_LineLoadSystemEnm system = kloC_GlobalSystem;
};

/// A pressure inside or outside the pipes of an element set.
class kloC_PipePressure : public keydeck::LoadKind<kloC_PipePressure, kloC_PipePressureType,
                                                   kloC_PressureState, kloC_Load::ElementRegion> {
public:
  static constexpr const char* Description = "a pressure inside or outside the pipes of a set";
  template <class V> void Fields(V& v) {
    LoadKind::Fields(v);
    v({"side", "the side of the pipe wall the pressure acts on"}, side, kloC_Inside);
    v({"distribution", "uniform, by a user subroutine, or hydrostatic"}, distribution,
      kloC_Uniform);
    v({"diameter", "the effective diameter of the pipe"}, diameter);
  }
  kloC_PipeSideEnm side = kloC_Inside;
  kloC_DistributionEnm distribution = kloC_Uniform;
  double diameter = 0;
};

/// A centrifugal load or a rotary acceleration about an axis through two
/// points.
class kloC_RotationalBodyForce
    : public keydeck::LoadKind<kloC_RotationalBodyForce, kloC_RotationalBodyForceType,
                               kloC_MagnitudeState, kloC_Load::ElementRegion> {
public:
  static constexpr const char* Description =
      "a centrifugal load or rotary acceleration about an axis, on an element set";
  bool WholeModel() const override { return true; }
  template <class V> void Fields(V& v) {
    LoadKind::Fields(v);
    v({"centrifugal", "true for a centrifugal load of angular speed `magnitude`"}, centrifugal,
      false);
    v({"rotaryAcceleration", "true for a rotary acceleration of `magnitude`"}, rotaryAcceleration,
      false);
    v({"point1", "a point of the axis"}, point1);
    v({"point2", "a second point of the axis, apart from the first"}, point2);
  }
  bool centrifugal = false;
  bool rotaryAcceleration = false;
  std::array<double, 3> point1{0, 0, 0};
  std::array<double, 3> point2{0, 0, 0};
};

/// A pressure on a surface.
class kloC_Pressure : public keydeck::LoadKind<kloC_Pressure, kloC_PressureType, kloC_PressureState,
                                               kloC_Load::SurfaceRegion> {
public:
  static constexpr const char* Description = "a pressure on a surface";
  template <class V> void Fields(V& v) {
    LoadKind::Fields(v);
    v({"distribution", "uniform, by a user subroutine, or hydrostatic"}, distribution,
      kloC_Uniform);
  }
  kloC_DistributionEnm distribution = kloC_Uniform;
};

/// A traction on a surface along a direction.
class kloC_SurfaceTraction
    : public keydeck::LoadKind<kloC_SurfaceTraction, kloC_SurfaceTractionType, kloC_MagnitudeState,
                               kloC_Load::SurfaceRegion> {
public:
  static constexpr const char* Description = "a traction along a direction, on a surface";
  template <class V> void Fields(V& v) {
    LoadKind::Fields(v);
    v({"kind", "a general traction or a shear traction"}, kind, kloC_GeneralTraction);
    v({"distribution", "uniform, or by a user subroutine"}, distribution, kloC_Uniform);
    v({"direction", "the direction of the traction, of non-zero length"}, direction);
    v({"follower", "true when the traction turns with the surface"}, follower, true);
    v({"constantResultant", "true to keep the resultant as the surface deforms"}, constantResultant,
      false);
  }
  kloC_TractionKindEnm kind = kloC_GeneralTraction;
  kloC_DistributionEnm distribution = kloC_Uniform;
  std::array<double, 3> direction{0, 0, 0};
  bool follower = true;
  bool constantResultant = false;
};

/// A load on the edges of shells, given as an edge surface.
class kloC_ShellEdgeLoad : public keydeck::LoadKind<kloC_ShellEdgeLoad, kloC_ShellEdgeLoadType,
                                                    kloC_MagnitudeState, kloC_Load::SurfaceRegion> {
public:
  static constexpr const char* Description = "a load on shell edges, given as an edge surface";
  template <class V> void Fields(V& v) {
    LoadKind::Fields(v);
    v({"kind", "what the load gives: normal, transverse, shear, moment or general"}, kind,
      kloC_EdgeNormal);
    v({"distribution", "uniform, or by a user subroutine"}, distribution, kloC_Uniform);
    v({"direction", "general loads: the direction, of non-zero length"}, direction,
      std::array<double, 3>{0, 0, 0});
    v({"follower", "true when the load turns with the edge"}, follower, true);
  }
  kloC_EdgeLoadKindEnm kind = kloC_EdgeNormal;
  kloC_DistributionEnm distribution = kloC_Uniform;
  std::array<double, 3> direction{0, 0, 0};
  bool follower = true;
};

class kloC_BodyHeatFlux
    : public keydeck::DistributedLoadKind<kloC_BodyHeatFlux, kloC_BodyHeatFluxType,
                                          kloC_Load::ElementRegion> {
public:
  static constexpr const char* Description = "a heat flux per volume in an element set";
};

class kloC_BodyConcentrationFlux
    : public keydeck::DistributedLoadKind<
          kloC_BodyConcentrationFlux, kloC_BodyConcentrationFluxType, kloC_Load::ElementRegion> {
public:
  static constexpr const char* Description = "a concentration flux per volume in an element set";
};

class kloC_SurfaceHeatFlux
    : public keydeck::DistributedLoadKind<kloC_SurfaceHeatFlux, kloC_SurfaceHeatFluxType,
                                          kloC_Load::SurfaceRegion> {
public:
  static constexpr const char* Description = "a heat flux per area into a surface";
};

class kloC_SurfaceConcentrationFlux
    : public keydeck::DistributedLoadKind<kloC_SurfaceConcentrationFlux,
                                          kloC_SurfaceConcentrationFluxType,
                                          kloC_Load::SurfaceRegion> {
public:
  static constexpr const char* Description = "a concentration flux per area into a surface";
};

class kloC_SurfacePoreFluid
    : public keydeck::DistributedLoadKind<kloC_SurfacePoreFluid, kloC_SurfacePoreFluidType,
                                          kloC_Load::SurfaceRegion> {
public:
  static constexpr const char* Description = "a pore fluid flow per area into a surface";
};

class kloC_HydroFluidFlow : public keydeck::PlainKind<kloC_HydroFluidFlow, kloC_HydroFluidFlowType,
                                                      kloC_Load::NodeRegion> {
public:
  static constexpr const char* Description =
      "a fluid flow into a fluid cavity, at the cavity's reference node set";
};

class kloC_BodyCharge
    : public keydeck::PlainKind<kloC_BodyCharge, kloC_BodyChargeType, kloC_Load::ElementRegion> {
public:
  static constexpr const char* Description = "an electric charge per volume in an element set";
};

class kloC_BodyCurrent
    : public keydeck::PlainKind<kloC_BodyCurrent, kloC_BodyCurrentType, kloC_Load::ElementRegion> {
public:
  static constexpr const char* Description = "an electric current per volume in an element set";
};

class kloC_SurfaceCharge : public keydeck::PlainKind<kloC_SurfaceCharge, kloC_SurfaceChargeType,
                                                     kloC_Load::SurfaceRegion> {
public:
  static constexpr const char* Description = "an electric charge per area on a surface";
};

class kloC_SurfaceCurrent : public keydeck::PlainKind<kloC_SurfaceCurrent, kloC_SurfaceCurrentType,
                                                      kloC_Load::SurfaceRegion> {
public:
  static constexpr const char* Description = "an electric current per area into a surface";
};

/// Inertia relief of the whole model, in a datum system or the global one.
class kloC_InertiaRelief : public keydeck::LoadKind<kloC_InertiaRelief, kloC_InertiaReliefType,
                                                    kloC_NoState, kloC_Load::NoRegion>,
                           public keydeck::LoadCsys {
public:
  static constexpr const char* Description = "inertia relief of the whole model";
  template <class V> void Fields(V& v) {
    LoadKind::Fields(v);
    LoadCsys::Fields(v);
  }
};

namespace keydeck {

/// The load classes a model file can use.
template <> struct RecordKinds<kloC_Load> {
  static constexpr std::string_view Field = "type";
  using Types =
      KindList<kloC_ConcentratedForce, kloC_Moment, kloC_PEGLoad, kloC_BoltLoad,
               kloC_ConcentratedPoreFluid, kloC_InwardVolAccel, kloC_ConnectorForce,
               kloC_ConnectorMoment, kloC_ConcentratedHeatFlux, kloC_ConcentratedConcentrationFlux,
               kloC_ConcentratedCharge, kloC_ConcentratedCurrent, kloC_Gravity, kloC_BodyForce,
               kloC_LineLoad, kloC_PipePressure, kloC_RotationalBodyForce, kloC_Pressure,
               kloC_SurfaceTraction, kloC_ShellEdgeLoad, kloC_BodyHeatFlux,
               kloC_BodyConcentrationFlux, kloC_SurfaceHeatFlux, kloC_SurfaceConcentrationFlux,
               kloC_SurfacePoreFluid, kloC_HydroFluidFlow, kloC_BodyCharge, kloC_BodyCurrent,
               kloC_SurfaceCharge, kloC_SurfaceCurrent, kloC_InertiaRelief>;
};

/// The amplitude name of a load's state in `step`, whatever its kind; unset
/// for a kind without an amplitude.
mdl_PropAttr<DeckName> AmplitudeOf(const kloC_Load& load, const cow_String& step);

} // namespace keydeck
