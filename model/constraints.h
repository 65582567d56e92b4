#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/datums.h"
#include "model/records.h"
#include "model/regions.h"

#include <string_view>

// Constraints: ties, couplings, rigid bodies, equations and embedded elements.
// They hold for the whole analysis, so they have no
// state per step. The file names the kind by its "type" word; the kind is the
// record's class and its type id.

/// The kinds of constraint, by type id. A shell-to-solid coupling has no
/// class yet: its shell edge needs edge surfaces, which a model cannot hold.
enum kcoC_ConstraintTypeEnm : unsigned {
  kcoC_EquationType = 0x2A00001,
  kcoC_TieType = 0x2A00002,
  kcoC_CouplingType = 0x2A00003,
  kcoC_RigidBodyType = 0x2A00004,
  kcoC_EmbeddedRegionType = 0x2A00005,
  kcoC_ShellSolidCouplingType = 0x2A00006,
};

/// How a tie pairs its surfaces; the solver picks when left to it.
enum kcoC_TieKindEnm : int {
  kcoC_TieSolverDefault = 0,
  kcoC_TieNodeToSurface = 1,
  kcoC_TieSurfaceToSurface = 2,
};

/// How a coupling ties its surface to the reference node.
enum kcoC_CouplingKindEnm : int { kcoC_Kinematic = 0, kcoC_Distributing = 1 };

/// How a distributing coupling weights the nodes of its surface.
enum kcoC_WeightingEnm : int {
  kcoC_UniformWeighting = 0,
  kcoC_LinearWeighting = 1,
  kcoC_QuadraticWeighting = 2,
  kcoC_CubicWeighting = 3,
};

namespace keydeck {

template <> struct EnumTable<kcoC_ConstraintTypeEnm> {
  static constexpr std::string_view Noun = "constraint type";
  static constexpr EnumEntry<kcoC_ConstraintTypeEnm> Entries[] = {
      {kcoC_EquationType, "", "equation"},
      {kcoC_TieType, "", "tie"},
      {kcoC_CouplingType, "", "coupling"},
      {kcoC_RigidBodyType, "", "rigidBody"},
      {kcoC_EmbeddedRegionType, "", "embeddedRegion"},
      {kcoC_ShellSolidCouplingType, "", "shellToSolidCoupling"},
  };
};

template <> struct EnumTable<kcoC_TieKindEnm> {
  static constexpr std::string_view Noun = "tie formulation";
  static constexpr EnumEntry<kcoC_TieKindEnm> Entries[] = {
      {kcoC_TieSolverDefault, "", "solverDefault"},
      {kcoC_TieNodeToSurface, "NODE TO SURFACE", "nodeToSurface"},
      {kcoC_TieSurfaceToSurface, "SURFACE TO SURFACE", "surfaceToSurface"},
  };
};

template <> struct EnumTable<kcoC_CouplingKindEnm> {
  static constexpr std::string_view Noun = "coupling kind";
  static constexpr EnumEntry<kcoC_CouplingKindEnm> Entries[] = {
      {kcoC_Kinematic, "", "kinematic"},
      {kcoC_Distributing, "", "distributing"},
  };
};

template <> struct EnumTable<kcoC_WeightingEnm> {
  static constexpr std::string_view Noun = "weighting method";
  static constexpr EnumEntry<kcoC_WeightingEnm> Entries[] = {
      {kcoC_UniformWeighting, "UNIFORM", "uniform"},
      {kcoC_LinearWeighting, "LINEAR", "linear"},
      {kcoC_QuadraticWeighting, "QUADRATIC", "quadratic"},
      {kcoC_CubicWeighting, "CUBIC", "cubic"},
  };
};

} // namespace keydeck

/// The base of the constraint records.
class kcoC_Constraint {
public:
  virtual ~kcoC_Constraint() = default;
  virtual kcoC_Constraint* Copy() const = 0;
  virtual unsigned DynTypeId() const = 0;
  /// The regions that the deck names as node-based surfaces: node sets where
  /// the card asks for a surface.
  virtual cow_List<rgnC_Region> NodeSurfaceRegions() const { return {}; }

  template <class V> void Fields(V& v) {
    v({"type", "the kind of constraint, which decides its other fields"}, type);
  }

  kcoC_ConstraintTypeEnm type = kcoC_TieType; ///< the kind, which is the class
};

namespace keydeck {

/// The common part of every constraint class: its kind, type id and copy.
template <class Record, kcoC_ConstraintTypeEnm Type> class ConstraintKind : public kcoC_Constraint {
public:
  static constexpr kcoC_ConstraintTypeEnm Kind = Type;
  static constexpr unsigned TypeId() { return Type; }
  static bool IsKindOf(unsigned id) { return id == Type; }
  unsigned DynTypeId() const override { return Type; }
  kcoC_Constraint* Copy() const override { return new Record(static_cast<const Record&>(*this)); }

protected:
  ConstraintKind() { this->type = Type; }
};

/// A region of a constraint by name: "Set" of the assembly or
/// "Instance.Set"; derived into `region` after loading.
struct ConstraintRegion {
  DeckName name;
  rgnC_Region region;
};

} // namespace keydeck

/// One term of an equation: coefficient times the degree of freedom of the
/// nodes of a node set.
class kcoC_EquationTerm {
public:
  static constexpr const char* Description = "one term of an equation";
  template <class V> void Fields(V& v) {
    v({"coefficient", "the coefficient of the term"}, coefficient);
    v({"set", "the node set: \"Set\" of the assembly or \"Instance.Set\""}, setName);
    v({"dof", "the degree of freedom, 1 to 6"}, dof);
    v({"csys", "the datum system of the degree of freedom, \"Datum\" of the assembly or "
               "\"Instance.Datum\"; the global system when left out"},
      csysName, keydeck::DeckName());
  }

  double coefficient = 0;
  keydeck::DeckName setName;
  int dof = 1;
  keydeck::DeckName csysName;
  // Derived after loading:
  rgnC_Region region; ///< from `setName`
  dtmC_DatumRef csys; ///< from `csysName`; the nodes of the set get a "*Transform" to it
};

/// A linear equation between degrees of freedom: the sum of its terms is 0.
class kcoC_Equation : public keydeck::ConstraintKind<kcoC_Equation, kcoC_EquationType> {
public:
  static constexpr const char* Description =
      "a linear equation between degrees of freedom of node sets";
  template <class V> void Fields(V& v) {
    kcoC_Constraint::Fields(v);
    v({"terms", "the terms of the equation, at least two"}, terms);
  }

  cow_List<kcoC_EquationTerm> terms;
};

/// Ties the nodes of the secondary surface to the main surface.
class kcoC_Tie : public keydeck::ConstraintKind<kcoC_Tie, kcoC_TieType> {
public:
  static constexpr const char* Description = "ties a secondary surface to a main surface";
  cow_List<rgnC_Region> NodeSurfaceRegions() const override;
  template <class V> void Fields(V& v) {
    kcoC_Constraint::Fields(v);
    v({"main", "the main surface"}, master.name);
    v({"secondary", "the secondary surface, or a node set"}, slave.name);
    v({"adjust", "true to move the secondary nodes onto the main surface"}, adjust, true);
    v({"positionTolerance", "the distance within which secondary nodes are tied; the solver's "
                            "default when left out"},
      positionTolerance, keydeck::NotGivenDouble);
    v({"tieRotations", "false to leave the rotations of shell nodes untied"}, tieRotation, true);
    v({"constraintRatio", "where a beam or shell secondary node lies between its faces; the "
                          "solver's default when left out"},
      constraintRatio, keydeck::NotGivenDouble);
    v({"formulation", "node to surface, surface to surface, or the solver's default"}, tieType,
      kcoC_TieSolverDefault);
    v({"thickness", "false to ignore the thickness of shells"}, thickness, true);
  }

  keydeck::ConstraintRegion master;
  keydeck::ConstraintRegion slave;
  bool adjust = true;
  double positionTolerance = keydeck::NotGivenDouble;
  bool tieRotation = true;
  double constraintRatio = keydeck::NotGivenDouble;
  kcoC_TieKindEnm tieType = kcoC_TieSolverDefault;
  bool thickness = true;
};

/// Couples the nodes of a surface to a reference node, kinematically or by
/// distributing its loads.
class kcoC_Coupling : public keydeck::ConstraintKind<kcoC_Coupling, kcoC_CouplingType> {
public:
  static constexpr const char* Description = "couples the nodes of a surface to a reference node";
  cow_List<rgnC_Region> NodeSurfaceRegions() const override;
  template <class V> void Fields(V& v) {
    kcoC_Constraint::Fields(v);
    v({"referenceNode", "the node set of the reference node"}, refPoint.name);
    v({"surface", "the coupled surface, or a node set"}, surface.name);
    v({"coupling", "kinematic or distributing"}, couplingType, kcoC_Kinematic);
    v({"influenceRadius", "only nodes this close to the reference node are coupled; the whole "
                          "surface when left out"},
      influenceRadius, keydeck::NotGivenDouble);
    v({"u1", "false to leave the first displacement free"}, u1, true);
    v({"u2", "false to leave the second displacement free"}, u2, true);
    v({"u3", "false to leave the third displacement free"}, u3, true);
    v({"ur1", "false to leave the first rotation free"}, ur1, true);
    v({"ur2", "false to leave the second rotation free"}, ur2, true);
    v({"ur3", "false to leave the third rotation free"}, ur3, true);
    v({"weighting", "distributing: how the surface nodes are weighted"}, weightingMethod,
      kcoC_UniformWeighting);
    v({"orientation", "the datum system of the degrees of freedom, \"Datum\" of the assembly "
                      "or \"Instance.Datum\"; the global system when left out"},
      orientationName, keydeck::DeckName());
  }

  keydeck::ConstraintRegion surface;
  keydeck::ConstraintRegion refPoint;
  double influenceRadius = keydeck::NotGivenDouble; ///< the largest double: the whole surface
  kcoC_CouplingKindEnm couplingType = kcoC_Kinematic;
  bool u1 = true, u2 = true, u3 = true, ur1 = true, ur2 = true, ur3 = true;
  kcoC_WeightingEnm weightingMethod = kcoC_UniformWeighting;
  keydeck::DeckName orientationName;
  dtmC_DatumRef orientation; ///< derived after loading from `orientationName`
};

/// Makes a region move as one rigid body with its reference node.
class kcoC_RigidBody : public keydeck::ConstraintKind<kcoC_RigidBody, kcoC_RigidBodyType> {
public:
  static constexpr const char* Description = "makes regions move rigidly with a reference node";
  template <class V> void Fields(V& v) {
    kcoC_Constraint::Fields(v);
    v({"referenceNode", "the node set of the reference node"}, refPoint.name);
    v({"elset", "the element set that moves rigidly"}, elset.name, keydeck::DeckName());
    v({"tieNodes", "the node set whose nodes are tied to the body"}, tieRegion.name,
      keydeck::DeckName());
    v({"pinNodes", "the node set whose nodes are pinned to the body"}, pinRegion.name,
      keydeck::DeckName());
    v({"positionAtCenterOfMass", "true to move the reference node to the center of mass"},
      positionCenterOfMass, false);
    v({"isothermal", "true to keep the body at one temperature"}, isothermal, false);
  }

  keydeck::ConstraintRegion refPoint;
  keydeck::ConstraintRegion elset;
  keydeck::ConstraintRegion tieRegion;
  keydeck::ConstraintRegion pinRegion;
  bool positionCenterOfMass = false;
  bool isothermal = false;
};

/// Embeds the elements of one element set in the host elements of another.
class kcoC_EmbeddedRegion
    : public keydeck::ConstraintKind<kcoC_EmbeddedRegion, kcoC_EmbeddedRegionType> {
public:
  static constexpr const char* Description = "embeds elements in host elements";
  template <class V> void Fields(V& v) {
    kcoC_Constraint::Fields(v);
    v({"host", "the element set of the host elements"}, host.name);
    v({"embedded", "the element set of the embedded elements"}, embedded.name);
    v({"exteriorTolerance", "how far outside the host an embedded node may lie, as a fraction of "
                            "the host element's size"},
      exteriorTolerance, 0.05);
    v({"absoluteExteriorTolerance", "the same as a length; none when 0"}, absoluteExteriorTolerance,
      0.0);
    v({"roundoffTolerance", "the fraction below which an embedded node is put on the host's "
                            "edge or face"},
      roundoffTolerance, 1e-06);
  }

  keydeck::ConstraintRegion host;
  keydeck::ConstraintRegion embedded;
  double exteriorTolerance = 0.05;
  double absoluteExteriorTolerance = 0;
  double roundoffTolerance = 1e-06;
};

namespace keydeck {

/// The constraint classes a model file can use.
template <> struct RecordKinds<kcoC_Constraint> {
  static constexpr std::string_view Field = "type";
  using Types =
      KindList<kcoC_Equation, kcoC_Tie, kcoC_Coupling, kcoC_RigidBody, kcoC_EmbeddedRegion>;
};

} // namespace keydeck
