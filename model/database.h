#pragma once

#include "base/cow_Btree.h"
#include "base/cow_String.h"
#include "base/mdl_MapString2ObjCow.h"
#include "model/amplitudes.h"
#include "model/boundary_conditions.h"
#include "model/constraints.h"
#include "model/datums.h"
#include "model/fields.h"
#include "model/loads.h"
#include "model/materials.h"
#include "model/mesh.h"
#include "model/orientations.h"
#include "model/output.h"
#include "model/profiles.h"
#include "model/records.h"
#include "model/sections.h"
#include "model/steps.h"

#include <array>
#include <optional>

/// A part: its mesh (shared by all its instances), its sets and surfaces and
/// its raw solver text.
class ddb_Part {
public:
  static constexpr const char* Description = "a part: its mesh, sets, surfaces and raw solver text";
  const cow_String& solverInput() const { return solverInput_; }
  const ddb_Mesh& mesh() const { return mesh_; }

  template <class V> void Fields(V& v) {
    v({"nodes", "the nodes of the part: labels and coordinates"}, mesh_.nodes, ddb_NodeData());
    v({"elements", "the elements of the part, one entry per element type"}, mesh_.elements.classes,
      cow_List<ddb_ElementClass>());
    v({"sets", "node and element sets of the part by name"}, setDefinitions_,
      cow_Btree<cow_String, keydeck::PartSet>());
    v({"surfaces", "surfaces of the part by name"}, surfaceDefinitions_,
      cow_Btree<cow_String, keydeck::PartSurface>());
    v({"datums", "datum coordinate systems of the part by name, in the part's frame"}, datums_,
      cow_Btree<cow_String, ddb_DatumCsys>());
    v({"beamOrientations", "beam section orientations of element sets"}, beamOrientations_,
      cow_List<ptoC_BeamOrientation>());
    v({"materialOrientations", "material orientations of element sets"}, materialOrientations_,
      cow_List<ptoC_MaterialOrientation>());
    v({"sectionAssignments", "the sections of element sets; a later one wins where they overlap"},
      sectionAssignments_, ptoC_PartAttributeList());
    v({"solverInput", "raw solver text written at the end of the part"}, solverInput_,
      cow_String());
  }

  ddb_Mesh mesh_; ///< its `sets` are derived after loading from the two maps below
  cow_Btree<cow_String, keydeck::PartSet> setDefinitions_;
  cow_Btree<cow_String, keydeck::PartSurface> surfaceDefinitions_;
  cow_Btree<cow_String, ddb_DatumCsys> datums_; ///< in the part's frame
  cow_List<ptoC_BeamOrientation> beamOrientations_;
  cow_List<ptoC_MaterialOrientation> materialOrientations_;
  ptoC_PartAttributeList sectionAssignments_;
  keydeck::SolverText solverInput_;
};

/// The parts of a model by name, in ascending byte order of the name.
class ddb_PartContainer {
public:
  int size() const { return parts_.Size(); }
  bool isMember(const cow_String& name) const { return parts_.IsMember(name); }
  /// The part of that name; raises when there is none.
  const ddb_Part& get(const cow_String& name) const;
  cow_BtreeIterator<cow_String, ddb_Part> createIterator() const {
    return cow_BtreeIterator<cow_String, ddb_Part>(parts_);
  }
  auto begin() const { return parts_.begin(); }
  auto end() const { return parts_.end(); }

  cow_Btree<cow_String, ddb_Part> parts_;
};

/// An instance in the root assembly.
class ddb_BaseInstance {
public:
  virtual ~ddb_BaseInstance() = default;
  virtual ddb_BaseInstance* Copy() const = 0;
  virtual unsigned DynTypeId() const = 0;
  virtual bool IsPartInstance() const { return false; }
  /// Translation (three values) then rotation vector (three values: the unit
  /// axis through the origin times the angle in radians); all zero for an
  /// instance in place. The rotation applies after the translation.
  const cow_List<double>& transform() const { return transform_; }

  cow_List<double> transform_{0, 0, 0, 0, 0, 0};
};

namespace keydeck {

/// The rotation of an instance as the file gives it: an axis through the
/// origin (of any length but zero) and the angle in degrees about it.
struct InstanceRotation {
  std::array<double, 3> axis{0, 0, 1};
  double angle = 0;

  template <class V> void Fields(V& v) {
    v({"axis", "the rotation axis through the origin, of any length but zero"}, axis);
    v({"angle", "the angle about the axis in degrees, from -1e6 to 1e6"}, angle);
  }
};

} // namespace keydeck

/// An instance of a part: the part's mesh under a mesh index of its own,
/// placed by a translation and then a rotation about an axis through the
/// origin.
class ddb_PartInstance : public ddb_BaseInstance {
public:
  static constexpr const char* Description =
      "an instance of a part, placed by a translation and then a rotation";
  ddb_BaseInstance* Copy() const override { return new ddb_PartInstance(*this); }
  static constexpr unsigned TypeId() { return keydeck::TypeIds::PartInstance; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  unsigned DynTypeId() const override { return TypeId(); }
  bool IsPartInstance() const override { return true; }

  const cow_String& name() const { return name_; }
  const cow_String& partName() const { return partName_; }
  const cow_String& solverInput() const { return solverInput_; }
  const ddb_Mesh& mesh() const { return mesh_; }
  const ddb_NodeData& nodeData() const { return mesh_.nodeData(); }
  const ddb_ElementData& elementData() const { return mesh_.elementData(); }
  const ddb_SetList& set() const { return mesh_.set(); }
  const ddb_BeamOrientationContainer& beamOrientations() const { return beamOrientations_; }
  const ddb_MaterialOrientationContainer& materialOrientations() const {
    return materialOrientations_;
  }
  /// The part's section assignments with their regions in this instance's mesh.
  const ptoC_PartAttributeList& sectionAssignments() const { return sectionAssignments_; }

  template <class V> void Fields(V& v) {
    v({"part", "the name of the part this instance places"}, partName_);
    v({"translation", "the translation applied first"}, translation_,
      std::array<double, 3>{0, 0, 0});
    v({"rotation", "the rotation about an axis through the origin, applied after the translation"},
      rotation_, std::nullopt);
    v({"solverInput", "raw solver text written at the end of the instance"}, solverInput_,
      cow_String());
  }

  keydeck::DeckName partName_;
  std::array<double, 3> translation_{0, 0, 0};
  std::optional<keydeck::InstanceRotation> rotation_;
  keydeck::SolverText solverInput_;
  // Derived after loading:
  cow_String name_; ///< the instance's key in the assembly
  ddb_Mesh mesh_;   ///< the part's mesh and sets with this instance's mesh index
  /// The part's orientations with their regions in this instance's mesh.
  ddb_BeamOrientationContainer beamOrientations_;
  ddb_MaterialOrientationContainer materialOrientations_;
  ptoC_PartAttributeList sectionAssignments_;
  // and `transform_` of the base, from `translation_` and `rotation_`.
};

using ddb_InstanceContainer = mdl_MapString2ObjCow<ddb_BaseInstance>;

/// The root assembly: its instances, its sets and surfaces, its own mesh
/// (connector wires) and its raw solver text.
class ddb_Assembly {
public:
  const cow_String& name() const { return name_; }
  const ddb_InstanceContainer& instance() const { return instances_; }
  const cow_String& solverInput() const { return solverInput_; }
  bool hasMesh() const { return hasMesh_; }
  /// The assembly's own mesh, index 0; empty when `hasMesh()` is false.
  const ddb_Mesh& mesh() const { return mesh_; }
  const ddb_SetList& set() const { return sets_; }

  template <class V> void Fields(V& v) {
    v({"name", "the name of the assembly in the deck"}, name_, cow_String("Assembly"));
    v({"instances", "the part instances by name"}, instances_, ddb_InstanceContainer());
    v({"sets", "sets over the nodes or elements of instances, by name"}, setDefinitions_,
      cow_Btree<cow_String, keydeck::AssemblySet>());
    v({"surfaces", "surfaces over the faces or nodes of instances, by name"}, surfaceDefinitions_,
      cow_Btree<cow_String, keydeck::AssemblySurface>());
    v({"datums", "datum coordinate systems of the assembly by name"}, datums_,
      cow_Btree<cow_String, ddb_DatumCsys>());
    v({"solverInput", "raw solver text written at the end of the assembly"}, solverInput_,
      cow_String());
  }

  keydeck::DeckName name_{"Assembly"};
  ddb_InstanceContainer instances_;
  keydeck::SolverText solverInput_;
  bool hasMesh_ = false;
  ddb_Mesh mesh_;
  cow_Btree<cow_String, keydeck::AssemblySet> setDefinitions_;
  cow_Btree<cow_String, keydeck::AssemblySurface> surfaceDefinitions_;
  ddb_SetList sets_; ///< derived after loading from the two maps above
  cow_Btree<cow_String, ddb_DatumCsys> datums_;
};

/// One model of the database. Its members are copy-on-write, so copying a
/// model shares its data.
class ddb_Model {
public:
  static constexpr const char* Description = "a model: parts, assembly, materials and steps";
  const ddb_PartContainer& part() const { return parts_; }
  const ddb_Assembly& rootAssembly() const { return assembly_; }
  const ddb_DdbStepContainer& step() const { return steps_; }
  const cow_String& topLevelSolverInput() const { return topLevelSolverInput_; }
  const cow_String& solverInput() const { return solverInput_; }
  /// The mesh of that index: an instance's, or the assembly's own (index 0).
  const ddb_Mesh& mesh(int index) const;
  /// The datum of that id (from a `dtmC_DatumRef` that is not null).
  const ddb_Datum& datum(const int& id) const { return datums_.ConstGet(id - 1); }

  double absoluteZero() const { return absoluteZero_; }
  double stefanBoltzmann() const { return stefanBoltzmann_; }
  const cow_String& waveFormulation() const { return waveFormulation_; }
  const cow_String& restartJob() const { return restartJob_; }
  const cow_String& restartStep() const { return restartStep_; }
  int restartIncrement() const { return restartIncrement_; }
  bool endRestartStep() const { return endRestartStep_; }
  const cow_String& globalJob() const { return globalJob_; }
  bool shellToSolid() const { return shellToSolid_; }
  const mdl_MapString2ObjCow<kmaC_Material>& material() const { return materials_; }
  const mdl_MapString2ObjCow<kseC_Section>& sections() const { return sections_; }
  const mdl_MapString2ObjCow<kbpC_BeamProfile>& profiles() const { return profiles_; }
  const mdl_MapString2ObjCow<kamC_Amplitude>& amplitudes() const { return amplitudes_; }
  const kprC_PropagatingContainer<kbcC_BC>& boundaryConditions() const {
    return boundaryConditions_;
  }
  const kprC_PropagatingContainer<kloC_Load>& loads() const { return loads_; }

  template <class V> void Fields(V& v) {
    v({"parts", "the parts by name"}, parts_.parts_, cow_Btree<cow_String, ddb_Part>());
    v({"assembly", "the assembly of part instances"}, assembly_, ddb_Assembly());
    v({"materials", "the materials by name"}, materials_, mdl_MapString2ObjCow<kmaC_Material>());
    v({"sections", "the sections by name: what the elements of a region are made of"}, sections_,
      mdl_MapString2ObjCow<kseC_Section>());
    v({"profiles", "the beam profiles by name: the shapes of beam sections"}, profiles_,
      mdl_MapString2ObjCow<kbpC_BeamProfile>());
    v({"amplitudes", "the amplitudes by name: how a load or condition varies in time"}, amplitudes_,
      mdl_MapString2ObjCow<kamC_Amplitude>());
    v({"steps", "the steps in order, the initial step first"}, steps_.steps, kprC_StepContainer());
    v({"boundaryConditions", "the boundary conditions by name, with what each step does to them"},
      boundaryConditions_, kprC_PropagatingContainer<kbcC_BC>());
    v({"loads", "the loads by name, each with its state per step"}, loads_,
      kprC_PropagatingContainer<kloC_Load>());
    v({"constraints", "the constraints by name: ties, couplings, rigid bodies and the like"},
      constraints_, mdl_MapString2ObjCow<kcoC_Constraint>());
    v({"predefinedFields", "the predefined fields and initial conditions by name, each with its "
                           "state per step"},
      predefinedFields_, kprC_PropagatingContainer<kpfC_Field>());
    v({"fieldOutputRequests", "the field output requests by name"}, fieldOutputs_,
      kprC_PropagatingContainer<korC_FieldOutput>());
    v({"historyOutputRequests", "the history output requests by name"}, historyOutputs_,
      kprC_PropagatingContainer<korC_HistoryOutput>());
    v({"topLevelSolverInput", "raw solver text written verbatim at the top of the deck"},
      topLevelSolverInput_, cow_String());
    v({"solverInput", "raw solver text written after the assembly, with the model data"},
      solverInput_, cow_String());
    v({"absoluteZero", "absolute zero on the temperature scale of the model"}, absoluteZero_,
      keydeck::NotGivenDouble);
    v({"stefanBoltzmann", "the Stefan-Boltzmann constant in the units of the model"},
      stefanBoltzmann_, keydeck::NotGivenDouble);
    v({"waveFormulation", "the formulation of incident-wave loading"}, waveFormulation_,
      cow_String());
    v({"restartJob", "the job to restart from"}, restartJob_, cow_String());
    v({"restartStep", "the step of that job to restart from"}, restartStep_, cow_String());
    v({"restartIncrement", "the increment of that step to restart from"}, restartIncrement_,
      keydeck::NotGivenInt);
    v({"endRestartStep", "true to end the restart step where the old job left it"}, endRestartStep_,
      false);
    v({"globalJob", "the job of the global model that drives this submodel"}, globalJob_,
      cow_String());
    v({"shellToSolid", "true when a shell global model drives a solid submodel"}, shellToSolid_,
      false);
  }

  ddb_PartContainer parts_;
  ddb_Assembly assembly_;
  mdl_MapString2ObjCow<kmaC_Material> materials_;
  mdl_MapString2ObjCow<kseC_Section> sections_;
  mdl_MapString2ObjCow<kbpC_BeamProfile> profiles_;
  mdl_MapString2ObjCow<kamC_Amplitude> amplitudes_;
  kprC_PropagatingContainer<kbcC_BC> boundaryConditions_;
  ddb_DdbStepContainer steps_;
  kprC_PropagatingContainer<kloC_Load> loads_;
  mdl_MapString2ObjCow<kcoC_Constraint> constraints_;
  kprC_PropagatingContainer<kpfC_Field> predefinedFields_;
  kprC_PropagatingContainer<korC_FieldOutput> fieldOutputs_;
  kprC_PropagatingContainer<korC_HistoryOutput> historyOutputs_;
  /// Derived after loading: every datum under its id minus 1. Each part's
  /// datums in its frame, the assembly's, then each instance's in the frame
  /// of the assembly.
  cow_List<ddb_Datum> datums_;
  keydeck::SolverText topLevelSolverInput_;
  keydeck::SolverText solverInput_;
  double absoluteZero_ = keydeck::NotGivenDouble;
  double stefanBoltzmann_ = keydeck::NotGivenDouble;
  cow_String waveFormulation_;
  keydeck::DeckName restartJob_;
  keydeck::DeckName restartStep_;
  int restartIncrement_ = keydeck::NotGivenInt;
  bool endRestartStep_ = false;
  keydeck::DeckName globalJob_;
  bool shellToSolid_ = false;
};

/// The models of a database, by name.
class ddb_Ddb {
public:
  /// The model of that name; raises when there is none.
  const ddb_Model& model(const cow_String& name) const;

  cow_Btree<cow_String, ddb_Model> models_;
};

/// An open model database.
class odb_Odb {
public:
  odb_Odb() = default;
  explicit odb_Odb(ddb_Ddb ddb) : ddb_(std::move(ddb)) {}
  const ddb_Ddb& ddb() const { return ddb_; }

private:
  ddb_Ddb ddb_;
};
