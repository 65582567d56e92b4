#include "model/output_variables.h"

#include "model/steps.h"

#include <array>

namespace {

// What kinds of analysis a procedure carries: a variable exists in a
// procedure when the procedure has any of its `physics` bits and all of its
// `needs` bits.
enum Physics : unsigned {
  Stress = 1 << 0,      // displacements, stresses and strains
  Heat = 1 << 1,        // temperatures and heat fluxes
  Electric = 1 << 2,    // electric potentials and currents
  Diffusion = 1 << 3,   // concentrations and mass fluxes
  Pore = 1 << 4,        // pore pressures and fluid flow
  Dynamic = 1 << 5,     // velocities and accelerations
  Explicit = 1 << 6,    // the explicit solver
  Implicit = 1 << 7,    // the implicit solver
  Incremental = 1 << 8, // a step of increments, whose energies add up over time
  Modal = 1 << 9,       // a response in modal coordinates
  Eigen = 1 << 10,      // an eigenvalue extraction
};

constexpr unsigned AnyField = Stress | Heat | Electric | Diffusion | Pore;

unsigned PhysicsOf(unsigned procedure) {
  switch (static_cast<kprC_ProcedureEnm>(procedure)) {
  case kprC_Anneal:
    return Stress | Implicit;
  case kprC_Buckle:
  case kprC_Frequency:
  case kprC_ComplexFrequency:
    return Stress | Implicit | Eigen;
  case kprC_CoupledTempDisplacement:
    return Stress | Heat | Implicit | Incremental;
  case kprC_CoupledThermalElectric:
    return Heat | Electric | Implicit | Incremental;
  case kprC_ExplicitDynamics:
    return Stress | Dynamic | Explicit | Incremental;
  case kprC_TempDisplacementDynamics:
    return Stress | Heat | Dynamic | Explicit | Incremental;
  case kprC_Geostatic:
  case kprC_Static:
  case kprC_StaticRiks:
  case kprC_Visco:
    return Stress | Implicit | Incremental;
  case kprC_HeatTransfer:
    return Heat | Implicit | Incremental;
  case kprC_ImplicitDynamics:
    return Stress | Dynamic | Implicit | Incremental;
  case kprC_MassDiffusion:
    return Diffusion | Implicit | Incremental;
  case kprC_Soils:
    return Stress | Pore | Implicit | Incremental;
  case kprC_StaticLinearPerturbation:
    return Stress | Implicit;
  case kprC_ModalDynamics:
  case kprC_SubspaceDynamics:
    return Stress | Dynamic | Implicit | Incremental | Modal;
  case kprC_RandomResponse:
  case kprC_ResponseSpectrum:
  case kprC_SteadyStateModal:
  case kprC_SteadyStateSubspace:
    return Stress | Dynamic | Implicit | Modal;
  case kprC_SteadyStateDirect:
    return Stress | Dynamic | Implicit;
  }
  return 0;
}

// The channels of a variable, and the channels whose "PRESELECT" holds it,
// split by solver.
enum Channel : unsigned { Field = 1, History = 2, Both = 3 };
enum Preselect : unsigned {
  None = 0,
  FieldImplicit = 1,
  FieldExplicit = 2,
  HistoryImplicit = 4,
  HistoryExplicit = 8,
  FieldBoth = FieldImplicit | FieldExplicit,
  HistoryBoth = HistoryImplicit | HistoryExplicit,
};

// One row is one parent variable. Read it as: "name" is written by the
// `kind` sub-card, lives at `position`, exists in the procedures with any of
// the `physics` bits and all of the `needs` bits, may be requested in
// `channels`, and belongs to the "PRESELECT" of the `preselect` channels in
// those procedures. `components` lists the names that stand for parts of it
// (tensor and vector components, invariants, members of a group); with
// `aliases` the deck prints each member by its own name, otherwise as the
// parent.
//
// The rows follow the physical meaning of each quantity: nodal solution
// variables (displacement, temperature, potential, concentration, pore
// pressure) and their reactions belong to node output; stresses, strains,
// fluxes and state variables at integration points, and section forces and
// element energies, to element output; energies summed over the model and
// the increment size of the explicit solver to history only. The defaults
// are what a user reads first of each kind of analysis: the primary
// unknown, its reaction, the stress and strain measures of the solver, and
// the contact state; for history, the energy balance of the model.
struct Row {
  std::string_view name;
  korC_OutputKindEnm kind;
  korC_OutputPositionEnm position;
  unsigned physics;
  unsigned needs;
  unsigned channels;
  unsigned preselect;
  std::string_view components;
  bool aliases = false;
};

constexpr Row Rows[] = {
    // Node output: solution variables at the nodes and their reactions.
    {"U", korC_NodeKind, korC_AtNodes, Stress, 0, Both, FieldBoth, "U1 U2 U3 UR1 UR2 UR3"},
    {"V", korC_NodeKind, korC_AtNodes, Stress, Dynamic, Both, FieldExplicit,
     "V1 V2 V3 VR1 VR2 VR3"},
    {"A", korC_NodeKind, korC_AtNodes, Stress, Dynamic, Both, FieldExplicit,
     "A1 A2 A3 AR1 AR2 AR3"},
    {"RF", korC_NodeKind, korC_AtNodes, Stress, 0, Both, FieldBoth, "RF1 RF2 RF3 RM1 RM2 RM3"},
    {"CF", korC_NodeKind, korC_AtNodes, Stress, Implicit, Both, FieldImplicit,
     "CF1 CF2 CF3 CM1 CM2 CM3"},
    {"COORD", korC_NodeKind, korC_AtNodes, Stress, 0, Both, None, "COOR1 COOR2 COOR3"},
    {"TF", korC_NodeKind, korC_AtNodes, Stress, 0, Both, None, "TF1 TF2 TF3 TM1 TM2 TM3"},
    {"VF", korC_NodeKind, korC_AtNodes, Stress, 0, Both, None, "VF1 VF2 VF3 VM1 VM2 VM3"},
    {"NT", korC_NodeKind, korC_AtNodes, Heat, 0, Both, FieldBoth, "NT11"},
    {"RFL", korC_NodeKind, korC_AtNodes, Heat, 0, Both, FieldBoth, "RFL11"},
    {"EPOT", korC_NodeKind, korC_AtNodes, Electric, 0, Both, FieldImplicit, ""},
    {"RECUR", korC_NodeKind, korC_AtNodes, Electric, 0, Both, None, ""},
    {"NNC", korC_NodeKind, korC_AtNodes, Diffusion, 0, Both, FieldImplicit, "NNC11"},
    {"POR", korC_NodeKind, korC_AtNodes, Pore, 0, Both, FieldImplicit, ""},
    // Element output at integration points.
    {"S", korC_ElementKind, korC_AtIntegrationPoints, Stress, 0, Both, FieldBoth,
     "S11 S22 S33 S12 S13 S23"},
    {"SINV", korC_ElementKind, korC_AtIntegrationPoints, Stress, 0, Both, None,
     "MISES TRESC PRESS INV3", true},
    {"E", korC_ElementKind, korC_AtIntegrationPoints, Stress, Implicit, Both, FieldImplicit,
     "E11 E22 E33 E12 E13 E23"},
    {"LE", korC_ElementKind, korC_AtIntegrationPoints, Stress, 0, Both, FieldExplicit,
     "LE11 LE22 LE33 LE12 LE13 LE23"},
    {"PE", korC_ElementKind, korC_AtIntegrationPoints, Stress, 0, Both, FieldBoth,
     "PE11 PE22 PE33 PE12 PE13 PE23"},
    {"PEEQ", korC_ElementKind, korC_AtIntegrationPoints, Stress, 0, Both, FieldBoth, ""},
    {"PEMAG", korC_ElementKind, korC_AtIntegrationPoints, Stress, Implicit, Both, FieldImplicit,
     ""},
    {"EE", korC_ElementKind, korC_AtIntegrationPoints, Stress, 0, Both, None,
     "EE11 EE22 EE33 EE12 EE13 EE23"},
    {"IE", korC_ElementKind, korC_AtIntegrationPoints, Stress, 0, Both, None,
     "IE11 IE22 IE33 IE12 IE13 IE23"},
    {"THE", korC_ElementKind, korC_AtIntegrationPoints, Stress, 0, Both, None,
     "THE11 THE22 THE33 THE12 THE13 THE23"},
    {"ER", korC_ElementKind, korC_AtIntegrationPoints, Stress, Explicit, Both, None,
     "ER11 ER22 ER33 ER12 ER13 ER23"},
    {"ENER", korC_ElementKind, korC_AtIntegrationPoints, Stress, 0, Both, None,
     "SENER PENER CENER VENER", true},
    {"TEMP", korC_ElementKind, korC_AtIntegrationPoints, Stress | Heat, 0, Both, None, ""},
    {"HFL", korC_ElementKind, korC_AtIntegrationPoints, Heat, 0, Both, FieldBoth,
     "HFL1 HFL2 HFL3 HFLM"},
    {"EPG", korC_ElementKind, korC_AtIntegrationPoints, Electric, 0, Both, FieldImplicit,
     "EPG1 EPG2 EPG3"},
    {"ECD", korC_ElementKind, korC_AtIntegrationPoints, Electric, 0, Both, FieldImplicit,
     "ECD1 ECD2 ECD3"},
    {"CONC", korC_ElementKind, korC_AtIntegrationPoints, Diffusion, 0, Both, FieldImplicit, ""},
    {"MFL", korC_ElementKind, korC_AtIntegrationPoints, Diffusion, 0, Both, FieldImplicit,
     "MFL1 MFL2 MFL3"},
    {"VOIDR", korC_ElementKind, korC_AtIntegrationPoints, Pore, 0, Both, FieldImplicit, ""},
    {"FLVEL", korC_ElementKind, korC_AtIntegrationPoints, Pore, 0, Both, FieldImplicit,
     "FLVEL1 FLVEL2 FLVEL3"},
    {"SAT", korC_ElementKind, korC_AtIntegrationPoints, Pore, 0, Both, None, ""},
    {"SDV", korC_ElementKind, korC_AtIntegrationPoints, AnyField, 0, Both, None, ""},
    // Element output over whole elements and sections.
    {"SF", korC_ElementKind, korC_WholeElement, Stress, 0, Both, None, "SF1 SF2 SF3 SF4 SF5 SF6"},
    {"SM", korC_ElementKind, korC_WholeElement, Stress, 0, Both, None, "SM1 SM2 SM3"},
    {"ELEN", korC_ElementKind, korC_WholeElement, Stress, 0, Both, None, "ELSE ELPD ELCD ELVD ELKE",
     true},
    {"EVOL", korC_ElementKind, korC_WholeElement, AnyField, 0, Both, None, ""},
    {"STATUS", korC_ElementKind, korC_WholeElement, Stress, Explicit, Both, None, ""},
    // Rebar layers: written only by a request that covers rebar.
    {"RBFOR", korC_ElementKind, korC_RebarLayer, Stress, 0, Both, None, ""},
    {"RBANG", korC_ElementKind, korC_RebarLayer, Stress, 0, Both, None, ""},
    {"RBROT", korC_ElementKind, korC_RebarLayer, Stress, 0, Both, None, ""},
    // Contact: on contact surfaces, and on contact and gap elements.
    {"CSTRESS", korC_ContactOrElementKind, korC_AtNodes, Stress, 0, Both, FieldBoth,
     "CPRESS CSHEAR1 CSHEAR2"},
    {"CDISP", korC_ContactOrElementKind, korC_AtNodes, Stress, Implicit, Both, FieldImplicit,
     "COPEN CSLIP1 CSLIP2"},
    {"CFN", korC_ContactKind, korC_AtNodes, Stress, 0, History, None, "CFN1 CFN2 CFN3 CFNM"},
    {"CFS", korC_ContactKind, korC_AtNodes, Stress, 0, History, None, "CFS1 CFS2 CFS3 CFSM"},
    {"CNAREA", korC_ContactKind, korC_AtNodes, Stress, 0, History, None, ""},
    // Energies of the whole model: the energy balance over the increments.
    {"ALLAE", korC_EnergyKind, korC_WholeModel, Stress, Incremental, History, HistoryBoth, ""},
    {"ALLCD", korC_EnergyKind, korC_WholeModel, Stress, Incremental, History, HistoryBoth, ""},
    {"ALLDMD", korC_EnergyKind, korC_WholeModel, Stress, Incremental, History, HistoryBoth, ""},
    {"ALLFD", korC_EnergyKind, korC_WholeModel, Stress, Incremental, History, HistoryBoth, ""},
    {"ALLIE", korC_EnergyKind, korC_WholeModel, Stress, Incremental, History, HistoryBoth, ""},
    {"ALLKE", korC_EnergyKind, korC_WholeModel, Stress, Incremental, History, HistoryBoth, ""},
    {"ALLPD", korC_EnergyKind, korC_WholeModel, Stress, Incremental, History, HistoryBoth, ""},
    {"ALLSE", korC_EnergyKind, korC_WholeModel, Stress, Incremental, History, HistoryBoth, ""},
    {"ALLVD", korC_EnergyKind, korC_WholeModel, Stress, Incremental, History, HistoryBoth, ""},
    {"ALLWK", korC_EnergyKind, korC_WholeModel, Stress, Incremental, History, HistoryBoth, ""},
    {"ETOTAL", korC_EnergyKind, korC_WholeModel, Stress, Incremental, History, HistoryBoth, ""},
    {"ALLCW", korC_EnergyKind, korC_WholeModel, Stress, Explicit, History, HistoryExplicit, ""},
    {"ALLMW", korC_EnergyKind, korC_WholeModel, Stress, Explicit, History, HistoryExplicit, ""},
    // The increments of the explicit solver.
    {"DT", korC_IncrementationKind, korC_WholeModel, Stress, Explicit, History, None, ""},
    {"DMASS", korC_IncrementationKind, korC_WholeModel, Stress, Explicit, History, None, ""},
    // Totals over an integrated section.
    {"SOF", korC_IntegratedKind, korC_WholeModel, Stress, 0, History, None, "SOF1 SOF2 SOF3 SOFM"},
    {"SOM", korC_IntegratedKind, korC_WholeModel, Stress, 0, History, None, "SOM1 SOM2 SOM3 SOMM"},
    {"SOAREA", korC_IntegratedKind, korC_WholeModel, Stress, 0, History, None, ""},
    // Generalized coordinates of a modal response.
    {"GU", korC_ModalKind, korC_WholeModel, Stress, Modal, History, None, ""},
    {"GV", korC_ModalKind, korC_WholeModel, Stress, Modal, History, None, ""},
    {"GA", korC_ModalKind, korC_WholeModel, Stress, Modal, History, None, ""},
    // Cavity radiation on element faces.
    {"RADFL", korC_RadiationKind, korC_AtElementNodes, Heat, 0, History, None, ""},
    {"RADTL", korC_RadiationKind, korC_AtElementNodes, Heat, 0, History, None, ""},
    {"VFTOT", korC_RadiationKind, korC_AtElementNodes, Heat, 0, History, None, ""},
};

bool Exists(const Row& row, unsigned physics) {
  return (row.physics & physics) != 0 && (row.needs & physics) == row.needs;
}

bool InChannel(const Row& row, bool isField) {
  return (row.channels & (isField ? Field : History)) != 0;
}

bool InPreselect(const Row& row, bool isField, unsigned physics) {
  const bool explicitSolver = (physics & Explicit) != 0;
  const unsigned bit = isField ? (explicitSolver ? FieldExplicit : FieldImplicit)
                               : (explicitSolver ? HistoryExplicit : HistoryImplicit);
  return (row.preselect & bit) != 0;
}

const Row* FindParent(std::string_view name, unsigned procedure) {
  const unsigned physics = PhysicsOf(procedure);
  for (const Row& row : Rows)
    if (row.name == name && Exists(row, physics))
      return &row;
  return nullptr;
}

bool HasComponent(const Row& row, std::string_view name) {
  std::string_view rest = row.components;
  while (!rest.empty()) {
    const std::size_t end = rest.find(' ');
    if (rest.substr(0, end) == name)
      return true;
    rest = end == std::string_view::npos ? std::string_view() : rest.substr(end + 1);
  }
  return false;
}

const Row* FindComponentParent(std::string_view name, unsigned procedure) {
  const unsigned physics = PhysicsOf(procedure);
  for (const Row& row : Rows)
    if (Exists(row, physics) && HasComponent(row, name))
      return &row;
  return nullptr;
}

// The row of a parent or of a component's parent.
const Row* FindRow(std::string_view name, unsigned procedure) {
  const Row* row = FindParent(name, procedure);
  return row != nullptr ? row : FindComponentParent(name, procedure);
}

template <class Keep> cow_List<cow_String> Select(unsigned procedure, Keep&& keep) {
  const unsigned physics = PhysicsOf(procedure);
  cow_List<cow_String> names;
  for (const Row& row : Rows)
    if (Exists(row, physics) && keep(row, physics))
      names.Append(cow_String(row.name));
  return names;
}

} // namespace

korC_OdbVariable korC_OdbRequestTable::Request(std::string_view name, unsigned procedure) {
  const Row* row = FindParent(name, procedure);
  if (row == nullptr)
    return {};
  return {row->kind, row->position, row->aliases};
}

bool korC_OdbRequestTable::IsParentRequest(std::string_view name, unsigned procedure) {
  return FindParent(name, procedure) != nullptr;
}

bool korC_OdbRequestTable::IsComponentRequest(std::string_view name, unsigned procedure) {
  return FindComponentParent(name, procedure) != nullptr;
}

cow_String korC_OdbRequestTable::RequestFromComponent(std::string_view name, unsigned procedure) {
  const Row* row = FindComponentParent(name, procedure);
  return row == nullptr ? cow_String() : cow_String(row->name);
}

bool korC_OdbRequestTable::IsKnown(std::string_view name, unsigned procedure, bool isField) {
  const Row* row = FindRow(name, procedure);
  return row != nullptr && InChannel(*row, isField);
}

cow_List<cow_String> korC_OdbRequestTable::All(bool isField, unsigned procedure) {
  return Select(procedure, [&](const Row& row, unsigned) { return InChannel(row, isField); });
}

cow_List<cow_String> korC_OdbRequestTable::Defaults(bool isField, unsigned procedure) {
  return Select(procedure, [&](const Row& row, unsigned physics) {
    return InChannel(row, isField) && InPreselect(row, isField, physics);
  });
}

cow_List<cow_String>
korC_OdbRequestTable::GetInvalidPrintIdentifiers(const cow_List<cow_String>& variables,
                                                 unsigned procedure,
                                                 std::initializer_list<korC_OutputKindEnm> kinds) {
  cow_List<cow_String> others;
  for (const cow_String& name : variables) {
    const Row* row = FindRow(name.View(), procedure);
    if (row == nullptr)
      continue;
    bool listed = false;
    for (const korC_OutputKindEnm kind : kinds)
      listed = listed || row->kind == kind;
    if (!listed)
      others.Append(name);
  }
  return others;
}
