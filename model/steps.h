#pragma once

#include "base/cow_Btree.h"
#include "base/cow_COW.h"
#include "base/cow_List.h"
#include "base/cow_String.h"
#include "base/mdl_MapString2ObjCow.h"
#include "model/mass_scaling.h"
#include "model/records.h"
#include "model/regions.h"
#include "model/step_requests.h"

#include <optional>

/// Which solver a job needs: 0 the implicit solver, 1 the explicit solver,
/// 3 both (a model whose analysis steps mix the two).
enum kprC_AnalysisProductEnm : int {
  kprC_ImplicitProduct = 0,
  kprC_ExplicitProduct = 1,
  kprC_BothProducts = 3,
};

/// The procedure of an analysis step: the selector 37486693 plus the number
/// of the procedure.
enum kprC_ProcedureEnm : unsigned {
  kprC_Anneal = 37486693 + 0,
  kprC_Buckle = 37486693 + 1,
  kprC_CoupledTempDisplacement = 37486693 + 2,
  kprC_CoupledThermalElectric = 37486693 + 3,
  kprC_ExplicitDynamics = 37486693 + 4,
  kprC_Frequency = 37486693 + 5,
  kprC_Geostatic = 37486693 + 6,
  kprC_HeatTransfer = 37486693 + 7,
  kprC_ImplicitDynamics = 37486693 + 8,
  kprC_MassDiffusion = 37486693 + 9,
  kprC_ModalDynamics = 37486693 + 10,
  kprC_RandomResponse = 37486693 + 11,
  kprC_ResponseSpectrum = 37486693 + 12,
  kprC_Soils = 37486693 + 13,
  kprC_Static = 37486693 + 14,
  kprC_StaticRiks = 37486693 + 15,
  kprC_StaticLinearPerturbation = 37486693 + 16,
  kprC_SteadyStateDirect = 37486693 + 17,
  kprC_SteadyStateModal = 37486693 + 18,
  kprC_SubspaceDynamics = 37486693 + 19,
  kprC_Visco = 37486693 + 21,
  kprC_TempDisplacementDynamics = 37486693 + 22,
  kprC_ComplexFrequency = 37486693 + 24,
  kprC_SteadyStateSubspace = 37486693 + 25,
};

namespace keydeck {

// The deck texts of the procedures are filled in with the step cards.
template <> struct EnumTable<kprC_ProcedureEnm> {
  static constexpr std::string_view Noun = "procedure";
  static constexpr EnumEntry<kprC_ProcedureEnm> Entries[] = {
      {kprC_Anneal, "", "anneal"},
      {kprC_Buckle, "", "buckle"},
      {kprC_CoupledTempDisplacement, "", "coupledTempDisplacement"},
      {kprC_CoupledThermalElectric, "", "coupledThermalElectric"},
      {kprC_ExplicitDynamics, "", "explicitDynamics"},
      {kprC_Frequency, "", "frequency"},
      {kprC_Geostatic, "", "geostatic"},
      {kprC_HeatTransfer, "", "heatTransfer"},
      {kprC_ImplicitDynamics, "", "implicitDynamics"},
      {kprC_MassDiffusion, "", "massDiffusion"},
      {kprC_ModalDynamics, "", "modalDynamics"},
      {kprC_RandomResponse, "", "randomResponse"},
      {kprC_ResponseSpectrum, "", "responseSpectrum"},
      {kprC_Soils, "", "soils"},
      {kprC_Static, "", "static"},
      {kprC_StaticRiks, "", "staticRiks"},
      {kprC_StaticLinearPerturbation, "", "staticLinearPerturbation"},
      {kprC_SteadyStateDirect, "", "steadyStateDirect"},
      {kprC_SteadyStateModal, "", "steadyStateModal"},
      {kprC_SubspaceDynamics, "", "subspaceDynamics"},
      {kprC_Visco, "", "visco"},
      {kprC_TempDisplacementDynamics, "", "tempDisplacementDynamics"},
      {kprC_ComplexFrequency, "", "complexFrequency"},
      {kprC_SteadyStateSubspace, "", "steadyStateSubspace"},
  };
};

} // namespace keydeck

/// True for the steady-state procedures (direct, modal, subspace): the steps
/// whose conditions and loads carry imaginary parts.
bool IsSteadyStateProcedure(unsigned procedure);

/// A boundary condition or load that a load case applies, and the factor on
/// its values.
struct klcC_ConditionEntry {
  static constexpr const char* Description = "a boundary condition or load of the load case";
  double scale = 1.0;
  template <class V> void Fields(V& v) {
    v({"scale", "the factor on the values in this load case"}, scale, 1.0);
  }
};

/// A load case of an analysis step; its name is its key in the step.
class klcC_LoadCase {
public:
  static constexpr const char* Description = "a load case of the step; its name is its key";
  virtual ~klcC_LoadCase() = default;
  virtual klcC_LoadCase* Copy() const { return new klcC_LoadCase(*this); }
  static constexpr unsigned TypeId() { return keydeck::TypeIds::LoadCase; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  virtual unsigned DynTypeId() const { return TypeId(); }

  template <class V> void Fields(V& v) {
    v({"includeBaseState", "true to take in the conditions of the base state"}, includeBaseState,
      false);
    v({"baseStateOnly", "true when the load case takes no loads of its own; when all load cases "
                        "of the step do, the step's loads stand in the step itself"},
      baseStateOnly, false);
    v({"boundaryConditions", "the boundary conditions of the load case, by name"},
      boundaryConditions, cow_Btree<cow_String, klcC_ConditionEntry>());
    v({"loads", "the loads of the load case, by name"}, loads,
      cow_Btree<cow_String, klcC_ConditionEntry>());
    v({"fields", "the predefined fields of the load case, by name"}, fields,
      cow_Btree<cow_String, klcC_ConditionEntry>());
  }

  bool includeBaseState = false;
  bool baseStateOnly = false;
  cow_Btree<cow_String, klcC_ConditionEntry> boundaryConditions;
  cow_Btree<cow_String, klcC_ConditionEntry> loads;
  cow_Btree<cow_String, klcC_ConditionEntry> fields;
};

/// A step of the model. The first step of a model is its initial step.
class kprC_Step {
public:
  virtual ~kprC_Step() = default;
  virtual kprC_Step* Copy() const = 0;
  virtual unsigned DynTypeId() const = 0;
  /// True for a linear-perturbation procedure: buckle, frequency, modal dynamics, random
  /// response, response spectrum, static linear perturbation and the three steady-state
  /// procedures. Subspace dynamics and complex frequency are not among them.
  virtual bool Perturbation() const { return false; }
  /// True for a procedure of the explicit solver.
  virtual bool isExplicit() const { return false; }

  /// Geometric nonlinearity of a step: 0 off, 1 on.
  enum NlgeomEnm : int { NlgeomOff = 0, NlgeomOn = 1 };
  /// The step's own geometric nonlinearity; off for a procedure without one.
  virtual NlgeomEnm Nlgeom() const { return NlgeomOff; }
  static NlgeomEnm NlgeomOf(bool on) { return on ? NlgeomOn : NlgeomOff; }

  template <class V> void Fields(V& v) {
    v({"solverInput", "raw solver text written at the end of the step"}, solverInput, cow_String());
  }

  keydeck::SolverText solverInput; ///< raw solver text that closes the step, kept verbatim
};

/// The initial step: the model state before the first analysis step.
class kprC_InitialStep : public kprC_Step {
public:
  static constexpr const char* Description =
      "the initial step: the state of the model before any analysis";
  kprC_Step* Copy() const override { return new kprC_InitialStep(*this); }
  static constexpr unsigned TypeId() { return keydeck::TypeIds::InitialStep; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  unsigned DynTypeId() const override { return TypeId(); }
};

/// An analysis step: a procedure and its load cases. Each procedure is a
/// class of its own (`kprC_StaticStep`, ...), picked by the "procedure" word
/// of the model file; `ProcedureType()` reports the procedure the record
/// says, and `DynTypeId()` the class.
class kprC_AnalysisStep : public kprC_Step {
public:
  static constexpr unsigned TypeId() { return keydeck::TypeIds::AnalysisStep; }
  /// Accepts the id of every procedure class, which is its procedure number.
  static bool IsKindOf(unsigned id);
  unsigned ProcedureType() const { return procedure; }
  bool Perturbation() const override;
  bool isExplicit() const override;

  template <class V> void Fields(V& v) {
    v({"procedure", "the analysis procedure of the step"}, procedure);
    v({"description", "one line written under the step's heading"}, description, cow_String());
    kprC_Step::Fields(v);
    v({"loadCases", "the load cases of the step by name"}, loadCases,
      mdl_MapString2ObjCow<klcC_LoadCase>());
    RequestFields(v);
  }

  /// The restart, monitor and print of the step, of its solver's classes.
  template <class V> void RequestFields(V& v) {
    if (isExplicit()) {
      v({"restart", "the restart data the step writes; none when left out"}, explicitRestart,
        std::optional<kprC_ExplicitRestart>());
      v({"monitor", "a degree of freedom the step reports; none when left out"}, explicitMonitor,
        std::optional<kprC_ExplicitMonitor>());
      v({"diagnosticPrint", "changes to what the step prints; none when left out"}, explicitPrint,
        std::optional<kprC_ExplicitDiagnosticPrint>());
      return;
    }
    v({"restart", "the restart data the step writes; none when left out"}, restart,
      std::optional<kprC_StandardRestart>());
    v({"monitor", "a degree of freedom the step reports; none when left out"}, monitor,
      std::optional<kprC_StandardMonitor>());
    v({"diagnosticPrint", "changes to what the step prints; none when left out"}, print,
      std::optional<kprC_StandardDiagnosticPrint>());
    v({"solverControls", "the iterative equation solver's controls; none when left out"},
      solverControls, std::optional<kprC_SolverControls>());
  }

  /// The step's print of either class; empty for none.
  std::optional<kprC_DiagnosticPrint> DiagnosticPrint() const;
  /// The step's monitor of either class; null for none.
  const kprC_MonitorBase* Monitor() const;

  kprC_ProcedureEnm procedure = kprC_Static;
  cow_String description; ///< the line under "*Step", as it stands; empty for none
  mdl_MapString2ObjCow<klcC_LoadCase> loadCases;
  // Of each pair only the one of the step's solver is read from the model file.
  std::optional<kprC_StandardRestart> restart;
  std::optional<kprC_ExplicitRestart> explicitRestart;
  std::optional<kprC_StandardMonitor> monitor;
  std::optional<kprC_ExplicitMonitor> explicitMonitor;
  std::optional<kprC_StandardDiagnosticPrint> print;
  std::optional<kprC_ExplicitDiagnosticPrint> explicitPrint;
  std::optional<kprC_SolverControls> solverControls; ///< implicit steps only
};

/// What every procedure class shares: its kind, its type id (the procedure
/// number) and its copy. `Self` is the procedure class.
template <class Self, kprC_ProcedureEnm Procedure>
class kprC_ProcedureStep : public kprC_AnalysisStep {
public:
  static constexpr kprC_ProcedureEnm Kind = Procedure;
  static constexpr unsigned TypeId() { return Procedure; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  unsigned DynTypeId() const override { return TypeId(); }
  kprC_Step* Copy() const override { return new Self(static_cast<const Self&>(*this)); }

protected:
  kprC_ProcedureStep() { procedure = Procedure; }
};

/// How the increments of a step are chosen.
enum kprC_IncrementationEnm : int { kprC_AutomaticIncrements = 0, kprC_FixedIncrements = 1 };

/// How an explicit step chooses its increments: 0 automatic from the global
/// stability estimate, 1 fixed increments the user gives, 2 automatic from
/// the element-by-element estimate, 3 fixed at the initial element-by-element
/// estimate.
enum kprC_ExplicitIncrementationEnm : int {
  kprC_ExplicitAutomatic = 0,
  kprC_ExplicitUserFixed = 1,
  kprC_ExplicitElementByElement = 2,
  kprC_ExplicitFixed = 3,
};

/// How loads change over a step: applied at once or ramped over the step.
enum kprC_AmplitudeEnm : int { kprC_StepAmplitude = 0, kprC_RampAmplitude = 1 };

/// How the solver extrapolates the first guess of an increment. The implicit
/// dynamics step's default is the solver's own choice for the application.
enum kprC_ExtrapolationEnm : int {
  kprC_LinearExtrapolation = 0,
  kprC_ParabolicExtrapolation = 1,
  kprC_NoExtrapolation = 2,
  kprC_DefaultExtrapolation = 4,
};

/// The equation solver's matrix storage: the solver's choice, symmetric or
/// unsymmetric.
enum kprC_MatrixStorageEnm : int {
  kprC_SolverDefaultStorage = 0,
  kprC_SymmetricStorage = 1,
  kprC_UnsymmetricStorage = 2,
};

/// Automatic stabilization: none, by the fraction of dissipated energy, or
/// by a damping factor.
enum kprC_StabilizationEnm : int {
  kprC_NoStabilization = 0,
  kprC_EnergyFractionStabilization = 1,
  kprC_DampingFactorStabilization = 2,
};

/// The solution technique of a coupled step: full Newton or separated.
enum kprC_SolutionTechniqueEnm : int { kprC_FullNewton = 0, kprC_Separated = 1 };

/// A steady-state or a transient response.
enum kprC_ResponseEnm : int { kprC_SteadyState = 0, kprC_Transient = 1 };

/// The response of a soils step: consolidation (transient) or steady state.
enum kprC_SoilsResponseEnm : int { kprC_Consolidation = 0, kprC_SoilsSteadyState = 1 };

/// How creep is integrated: implicitly, explicitly, or not at all.
enum kprC_CreepEnm : int { kprC_ImplicitCreep = 0, kprC_ExplicitCreep = 1, kprC_NoCreep = 2 };

namespace keydeck {

template <> struct EnumTable<kprC_IncrementationEnm> {
  static constexpr std::string_view Noun = "incrementation";
  static constexpr EnumEntry<kprC_IncrementationEnm> Entries[] = {
      {kprC_AutomaticIncrements, "", "automatic"}, {kprC_FixedIncrements, "", "fixed"}};
};
template <> struct EnumTable<kprC_ExplicitIncrementationEnm> {
  static constexpr std::string_view Noun = "incrementation";
  static constexpr EnumEntry<kprC_ExplicitIncrementationEnm> Entries[] = {
      {kprC_ExplicitAutomatic, "", "automatic"},
      {kprC_ExplicitUserFixed, "", "userFixed"},
      {kprC_ExplicitElementByElement, "", "elementByElement"},
      {kprC_ExplicitFixed, "", "fixed"}};
};
template <> struct EnumTable<kprC_AmplitudeEnm> {
  static constexpr std::string_view Noun = "amplitude";
  static constexpr EnumEntry<kprC_AmplitudeEnm> Entries[] = {{kprC_StepAmplitude, "STEP", "step"},
                                                             {kprC_RampAmplitude, "RAMP", "ramp"}};
};
// Only the parabolic text reaches the deck; every other value that is not the
// procedure's default is written as "NO".
template <> struct EnumTable<kprC_ExtrapolationEnm> {
  static constexpr std::string_view Noun = "extrapolation";
  static constexpr EnumEntry<kprC_ExtrapolationEnm> Entries[] = {
      {kprC_LinearExtrapolation, "LINEAR", "linear"},
      {kprC_ParabolicExtrapolation, "PARABOLIC", "parabolic"},
      {kprC_NoExtrapolation, "NO", "none"},
      {kprC_DefaultExtrapolation, "", "solverDefault"}};
};
template <> struct EnumTable<kprC_MatrixStorageEnm> {
  static constexpr std::string_view Noun = "matrix storage";
  static constexpr EnumEntry<kprC_MatrixStorageEnm> Entries[] = {
      {kprC_SolverDefaultStorage, "", "solverDefault"},
      {kprC_SymmetricStorage, "NO", "symmetric"},
      {kprC_UnsymmetricStorage, "YES", "unsymmetric"}};
};
template <> struct EnumTable<kprC_StabilizationEnm> {
  static constexpr std::string_view Noun = "stabilization";
  static constexpr EnumEntry<kprC_StabilizationEnm> Entries[] = {
      {kprC_NoStabilization, "", "none"},
      {kprC_EnergyFractionStabilization, "", "energyFraction"},
      {kprC_DampingFactorStabilization, "", "dampingFactor"}};
};
template <> struct EnumTable<kprC_SolutionTechniqueEnm> {
  static constexpr std::string_view Noun = "solution technique";
  static constexpr EnumEntry<kprC_SolutionTechniqueEnm> Entries[] = {
      {kprC_FullNewton, "", "fullNewton"}, {kprC_Separated, "SEPARATED", "separated"}};
};
template <> struct EnumTable<kprC_ResponseEnm> {
  static constexpr std::string_view Noun = "response";
  static constexpr EnumEntry<kprC_ResponseEnm> Entries[] = {{kprC_SteadyState, "", "steadyState"},
                                                            {kprC_Transient, "", "transient"}};
};
template <> struct EnumTable<kprC_SoilsResponseEnm> {
  static constexpr std::string_view Noun = "response";
  static constexpr EnumEntry<kprC_SoilsResponseEnm> Entries[] = {
      {kprC_Consolidation, "", "consolidation"}, {kprC_SoilsSteadyState, "", "steadyState"}};
};
template <> struct EnumTable<kprC_CreepEnm> {
  static constexpr std::string_view Noun = "creep";
  static constexpr EnumEntry<kprC_CreepEnm> Entries[] = {{kprC_ImplicitCreep, "", "implicit"},
                                                         {kprC_ExplicitCreep, "", "explicit"},
                                                         {kprC_NoCreep, "", "none"}};
};

} // namespace keydeck

/// The increments of a step: its time period, the most increments, the
/// method and the increment sizes. The sizes left out are derived after
/// loading: the initial and the largest increment default to the period, the
/// smallest to the lesser of the initial increment and 1e-5 of the period.
struct kprC_Incrementation {
  double timePeriod = 1.0;
  int maxNumInc = 100;
  kprC_IncrementationEnm timeIncrementationMethod = kprC_AutomaticIncrements;
  double initialInc = keydeck::NotGivenDouble;
  double minInc = keydeck::NotGivenDouble;
  double maxInc = keydeck::NotGivenDouble;

  template <class V> void IncrementationFields(V& v) {
    v({"timePeriod", "the time period of the step, at least 0"}, timePeriod, 1.0);
    v({"maxIncrements", "the most increments the step may take"}, maxNumInc, 100);
    v({"incrementation", "automatic or fixed time increments"}, timeIncrementationMethod,
      kprC_AutomaticIncrements);
    v({"initialIncrement",
       "the first time increment, at most the period; the period when left out"},
      initialInc, keydeck::NotGivenDouble);
    v({"minIncrement", "the smallest time increment; the lesser of the initial increment and "
                       "1e-5 of the period when left out"},
      minInc, keydeck::NotGivenDouble);
    v({"maxIncrement", "the largest time increment; the period when left out"}, maxInc,
      keydeck::NotGivenDouble);
  }
};

/// Automatic stabilization of a step and its magnitude.
struct kprC_Stabilization {
  kprC_StabilizationEnm stabilizationMethod = kprC_NoStabilization;
  double stabilizationMagnitude = 0.0002;

  template <class V> void StabilizationFields(V& v) {
    v({"stabilization", "automatic stabilization: none, by a dissipated energy fraction or by a "
                        "damping factor"},
      stabilizationMethod, kprC_NoStabilization);
    v({"stabilizationMagnitude", "the energy fraction or damping factor of the stabilization"},
      stabilizationMagnitude, 0.0002);
  }
};

/// The amplitude and extrapolation options of the "*Step" line, with the
/// procedure's defaults `Amplitude` and `Extrapolation`.
template <kprC_AmplitudeEnm Amplitude, kprC_ExtrapolationEnm Extrapolation>
struct kprC_StepLineOptions {
  static constexpr kprC_AmplitudeEnm DefaultAmplitude = Amplitude;
  static constexpr kprC_ExtrapolationEnm DefaultExtrapolation = Extrapolation;

  kprC_AmplitudeEnm amplitude = Amplitude;
  kprC_ExtrapolationEnm extrapolation = Extrapolation;

  template <class V> void StepLineFields(V& v) {
    v({"amplitude", "how loads reach their values in the step: at once (step) or linearly (ramp)"},
      amplitude, Amplitude);
    v({"extrapolation", "how the solver extrapolates the solution into each increment"},
      extrapolation, Extrapolation);
  }
};

/// The matrix storage of a step's equation solver.
struct kprC_MatrixStorageOption {
  kprC_MatrixStorageEnm matrixStorage = kprC_SolverDefaultStorage;
  template <class V> void MatrixStorageFields(V& v) {
    v({"matrixStorage", "the storage of the equation solver's matrix"}, matrixStorage,
      kprC_SolverDefaultStorage);
  }
};

/// Geometric nonlinearity of a step: off or on.
struct kprC_NlgeomOption {
  bool nlgeom = false;
  template <class V> void NlgeomFields(V& v) {
    v({"nlgeom", "true for geometric nonlinearity"}, nlgeom, false);
  }
};

/// An anneal step: the model returns to its annealed state.
class kprC_AnnealStep : public kprC_ProcedureStep<kprC_AnnealStep, kprC_Anneal>,
                        public kprC_NlgeomOption {
public:
  static constexpr const char* Description =
      "an anneal step: the solver resets the plastic strains of the model";
  kprC_Step::NlgeomEnm Nlgeom() const override { return NlgeomOf(nlgeom); }
  template <class V> void Fields(V& v) {
    kprC_AnalysisStep::Fields(v);
    NlgeomFields(v);
    v({"temperature", "the temperature of the anneal; none when left out"}, temperature,
      keydeck::NotGivenDouble);
  }

  double temperature = keydeck::NotGivenDouble; ///< the anneal temperature
};

/// A fully coupled temperature-displacement step.
class kprC_CoupledTempDisplacementStep
    : public kprC_ProcedureStep<kprC_CoupledTempDisplacementStep, kprC_CoupledTempDisplacement>,
      public kprC_NlgeomOption,
      public kprC_StepLineOptions<kprC_StepAmplitude, kprC_LinearExtrapolation>,
      public kprC_MatrixStorageOption,
      public kprC_Incrementation,
      public kprC_Stabilization {
public:
  static constexpr const char* Description = "a coupled temperature-displacement step";
  kprC_Step::NlgeomEnm Nlgeom() const override { return NlgeomOf(nlgeom); }
  template <class V> void Fields(V& v) {
    kprC_AnalysisStep::Fields(v);
    NlgeomFields(v);
    StepLineFields(v);
    MatrixStorageFields(v);
    IncrementationFields(v);
    v({"response", "transient or steady-state response"}, response, kprC_Transient);
    v({"creep",
       "how creep and viscoelasticity are integrated: implicitly, explicitly or not at all"},
      creep, kprC_ImplicitCreep);
    v({"deltmx", "the largest temperature change in an increment; 0 for no limit"}, deltmx, 0.0);
    v({"cetol", "the creep strain error tolerance of an increment; 0 for none"}, cetol, 0.0);
    StabilizationFields(v);
    v({"solutionTechnique", "full Newton or separated solution of the coupled equations"},
      solutionTechnique, kprC_FullNewton);
  }

  kprC_ResponseEnm response = kprC_Transient;
  kprC_CreepEnm creep = kprC_ImplicitCreep;
  double deltmx = 0.0; ///< largest temperature change per increment; 0 for none
  double cetol = 0.0;  ///< creep strain error tolerance; 0 for none
  kprC_SolutionTechniqueEnm solutionTechnique = kprC_FullNewton;
};

/// A fully coupled thermal-electrical step.
class kprC_CoupledThermalElectricStep
    : public kprC_ProcedureStep<kprC_CoupledThermalElectricStep, kprC_CoupledThermalElectric>,
      public kprC_StepLineOptions<kprC_StepAmplitude, kprC_LinearExtrapolation>,
      public kprC_MatrixStorageOption,
      public kprC_Incrementation {
public:
  static constexpr const char* Description = "a coupled thermal-electric step";
  template <class V> void Fields(V& v) {
    kprC_AnalysisStep::Fields(v);
    StepLineFields(v);
    MatrixStorageFields(v);
    IncrementationFields(v);
    v({"response", "transient or steady-state response"}, response, kprC_Transient);
    v({"endValue", "the temperature rate below which a transient step ends; none: the step "
                   "ends with its period"},
      endValue, keydeck::NotGivenDouble);
    v({"deltmx", "the largest temperature change in an increment; 0 for no limit"}, deltmx, 0.0);
    v({"mxdem", "the largest emissivity change in an increment"}, mxdem, 0.1);
    v({"solutionTechnique", "full Newton or separated solution of the coupled equations"},
      solutionTechnique, kprC_FullNewton);
  }

  kprC_ResponseEnm response = kprC_Transient;
  double endValue = keydeck::NotGivenDouble; ///< rate for a steady-state end; not given: the period
  double deltmx = 0.0;
  double mxdem = 0.1;
  kprC_SolutionTechniqueEnm solutionTechnique = kprC_FullNewton;
};

/// What the two explicit procedures share: the time period, the
/// incrementation and the bulk viscosity.
struct kprC_ExplicitOptions {
  double timePeriod = 1.0;
  kprC_ExplicitIncrementationEnm timeIncrementationMethod = kprC_ExplicitAutomatic;
  double initialInc = keydeck::NotGivenDouble; ///< the fixed increment the user gives
  double maxInc = keydeck::NotGivenDouble;
  double scaleFactor = 1.0;
  double linearBulkViscosity = 0.06;
  double quadBulkViscosity = 1.2;
  cow_List<kprC_MassScaling> massScaling;

  template <class V> void ExplicitFields(V& v) {
    v({"timePeriod", "the time period of the step, at least 0"}, timePeriod, 1.0);
    v({"incrementation", "how the solver sizes the time increments"}, timeIncrementationMethod,
      kprC_ExplicitAutomatic);
    v({"initialIncrement", "the fixed time increment, required with userFixed incrementation"},
      initialInc, keydeck::NotGivenDouble);
    v({"maxIncrement", "the largest time increment; no limit when left out"}, maxInc,
      keydeck::NotGivenDouble);
    v({"scaleFactor", "the factor on the stable time increment"}, scaleFactor, 1.0);
    v({"linearBulkViscosity", "the linear bulk viscosity parameter"}, linearBulkViscosity, 0.06);
    v({"quadraticBulkViscosity", "the quadratic bulk viscosity parameter"}, quadBulkViscosity, 1.2);
    v({"massScaling", "the mass scalings of the step, in order"}, massScaling,
      cow_List<kprC_MassScaling>());
  }
};

/// A dynamic step of the explicit solver.
class kprC_ExplicitDynamicsStep
    : public kprC_ProcedureStep<kprC_ExplicitDynamicsStep, kprC_ExplicitDynamics>,
      public kprC_NlgeomOption,
      public kprC_ExplicitOptions {
public:
  static constexpr const char* Description = "a dynamic step of the explicit solver";
  kprC_ExplicitDynamicsStep() { nlgeom = true; }
  kprC_Step::NlgeomEnm Nlgeom() const override { return NlgeomOf(nlgeom); }
  template <class V> void Fields(V& v) {
    kprC_AnalysisStep::Fields(v);
    v({"nlgeom", "true for geometric nonlinearity"}, nlgeom, true);
    ExplicitFields(v);
    v({"adiabatic", "true for an adiabatic stress analysis"}, adiabatic, false);
  }

  bool adiabatic = false;
};

/// A coupled temperature-displacement step of the explicit solver.
class kprC_TempDisplacementDynamicsStep
    : public kprC_ProcedureStep<kprC_TempDisplacementDynamicsStep, kprC_TempDisplacementDynamics>,
      public kprC_NlgeomOption,
      public kprC_ExplicitOptions {
public:
  static constexpr const char* Description =
      "a coupled temperature-displacement step of the explicit solver";
  kprC_TempDisplacementDynamicsStep() { nlgeom = true; }
  kprC_Step::NlgeomEnm Nlgeom() const override { return NlgeomOf(nlgeom); }
  template <class V> void Fields(V& v) {
    kprC_AnalysisStep::Fields(v);
    v({"nlgeom", "true for geometric nonlinearity"}, nlgeom, true);
    ExplicitFields(v);
  }
};

/// A geostatic step: the initial stress state of soils.
class kprC_GeostaticStep : public kprC_ProcedureStep<kprC_GeostaticStep, kprC_Geostatic>,
                           public kprC_NlgeomOption,
                           public kprC_MatrixStorageOption {
public:
  static constexpr const char* Description =
      "a geostatic step: the initial stresses of the ground brought into equilibrium";
  kprC_Step::NlgeomEnm Nlgeom() const override { return NlgeomOf(nlgeom); }
  template <class V> void Fields(V& v) {
    kprC_AnalysisStep::Fields(v);
    NlgeomFields(v);
    MatrixStorageFields(v);
  }
};

/// An uncoupled heat transfer step.
class kprC_HeatTransferStep
    : public kprC_ProcedureStep<kprC_HeatTransferStep, kprC_HeatTransfer>,
      public kprC_StepLineOptions<kprC_StepAmplitude, kprC_LinearExtrapolation>,
      public kprC_MatrixStorageOption,
      public kprC_Incrementation {
public:
  static constexpr const char* Description = "a heat transfer step";
  template <class V> void Fields(V& v) {
    kprC_AnalysisStep::Fields(v);
    StepLineFields(v);
    MatrixStorageFields(v);
    IncrementationFields(v);
    v({"response", "transient or steady-state response"}, response, kprC_Transient);
    v({"endValue", "the temperature rate below which a transient step ends; none: the step "
                   "ends with its period"},
      endValue, keydeck::NotGivenDouble);
    v({"deltmx", "the largest temperature change in an increment; 0 for no limit"}, deltmx, 0.0);
    v({"mxdem", "the largest emissivity change in an increment"}, mxdem, 0.1);
  }

  kprC_ResponseEnm response = kprC_Transient;
  double endValue = keydeck::NotGivenDouble; ///< rate for a steady-state end; not given: the period
  double deltmx = 0.0;
  double mxdem = 0.1;
};

/// A dynamic step of the implicit solver.
class kprC_ImplicitDynamicsStep
    : public kprC_ProcedureStep<kprC_ImplicitDynamicsStep, kprC_ImplicitDynamics>,
      public kprC_NlgeomOption,
      public kprC_StepLineOptions<kprC_StepAmplitude, kprC_DefaultExtrapolation>,
      public kprC_MatrixStorageOption,
      public kprC_Incrementation {
public:
  static constexpr const char* Description = "a dynamic step of the implicit solver";
  kprC_Step::NlgeomEnm Nlgeom() const override { return NlgeomOf(nlgeom); }
  template <class V> void Fields(V& v) {
    kprC_AnalysisStep::Fields(v);
    NlgeomFields(v);
    StepLineFields(v);
    MatrixStorageFields(v);
    IncrementationFields(v);
    v({"alpha", "the numerical damping parameter of the time integration; none when left out"},
      alpha, keydeck::NotGivenDouble);
    v({"haftol", "the half-increment residual tolerance, required with automatic increments"},
      haftol, keydeck::NotGivenDouble);
    v({"noHaf", "true to skip the half-increment residual check"}, noHaf, false);
    v({"noStop", "true to go on through fixed increments that do not converge"}, noStop, false);
    v({"adiabatic", "true for an adiabatic stress analysis"}, adiabatic, false);
    v({"initialAcceleration", "false to skip the calculation of the initial accelerations"},
      initialAcceleration, true);
  }

  double alpha = keydeck::NotGivenDouble;
  double haftol = keydeck::NotGivenDouble; ///< required for automatic increments
  bool noHaf = false;
  bool noStop = false;
  bool adiabatic = false;
  bool initialAcceleration = true; ///< false: the solver takes no initial accelerations
};

/// A mass diffusion step.
class kprC_MassDiffusionStep
    : public kprC_ProcedureStep<kprC_MassDiffusionStep, kprC_MassDiffusion>,
      public kprC_StepLineOptions<kprC_StepAmplitude, kprC_LinearExtrapolation>,
      public kprC_Incrementation {
public:
  static constexpr const char* Description = "a mass diffusion step";
  template <class V> void Fields(V& v) {
    kprC_AnalysisStep::Fields(v);
    StepLineFields(v);
    IncrementationFields(v);
    v({"response", "transient or steady-state response"}, response, kprC_Transient);
    v({"endValue", "the concentration rate below which a transient step ends; 0: the step "
                   "ends with its period"},
      endValue, 0.0);
    v({"dcmax", "the largest normalized concentration change in an increment, required "
                "with automatic increments"},
      dcmax, keydeck::NotGivenDouble);
  }

  kprC_ResponseEnm response = kprC_Transient;
  double endValue = 0.0;                  ///< rate for a steady-state end; 0: the period
  double dcmax = keydeck::NotGivenDouble; ///< required for automatic increments
};

/// A soils step: consolidation or steady-state pore fluid flow.
class kprC_SoilsStep : public kprC_ProcedureStep<kprC_SoilsStep, kprC_Soils>,
                       public kprC_NlgeomOption,
                       public kprC_StepLineOptions<kprC_StepAmplitude, kprC_LinearExtrapolation>,
                       public kprC_MatrixStorageOption,
                       public kprC_Incrementation,
                       public kprC_Stabilization {
public:
  static constexpr const char* Description =
      "a soils step: consolidation or steady-state flow through porous media";
  kprC_Step::NlgeomEnm Nlgeom() const override { return NlgeomOf(nlgeom); }
  template <class V> void Fields(V& v) {
    kprC_AnalysisStep::Fields(v);
    NlgeomFields(v);
    StepLineFields(v);
    MatrixStorageFields(v);
    IncrementationFields(v);
    v({"response", "consolidation (transient) or steady-state response"}, response,
      kprC_Consolidation);
    v({"endValue", "the pore pressure rate below which a consolidation step ends; none: the "
                   "step ends with its period"},
      endValue, keydeck::NotGivenDouble);
    v({"utol", "the largest pore pressure change in an increment; 0 for the solver's 1.0"}, utol,
      0.0);
    v({"creep", "false to leave creep out of the step"}, creep, true);
    v({"cetol", "the creep strain error tolerance of an increment; 0 for none"}, cetol, 0.0);
    StabilizationFields(v);
  }

  kprC_SoilsResponseEnm response = kprC_Consolidation;
  double endValue = keydeck::NotGivenDouble;
  double utol = 0.0;  ///< pore pressure change per increment; 0 writes the solver's 1.0
  bool creep = true;  ///< false: no creep in the step
  double cetol = 0.0; ///< creep strain error tolerance; 0 for none
};

/// What the static and the Riks step share besides their increments.
struct kprC_StaticOptions {
  bool adiabatic = false;
  bool noStop = false;
  keydeck::DeckName fullyPlastic; ///< region to be fully plastic; empty for none

  template <class V> void StaticFields(V& v) {
    v({"adiabatic", "true for an adiabatic stress analysis"}, adiabatic, false);
    v({"noStop", "true to go on through fixed increments that do not converge"}, noStop, false);
    v({"fullyPlastic", "the name of the region expected to become fully plastic; none when "
                       "left out"},
      fullyPlastic, keydeck::DeckName());
  }
};

/// A static stress step.
class kprC_StaticStep : public kprC_ProcedureStep<kprC_StaticStep, kprC_Static>,
                        public kprC_NlgeomOption,
                        public kprC_StepLineOptions<kprC_RampAmplitude, kprC_LinearExtrapolation>,
                        public kprC_MatrixStorageOption,
                        public kprC_Incrementation,
                        public kprC_StaticOptions,
                        public kprC_Stabilization {
public:
  static constexpr const char* Description = "a static stress step";
  kprC_Step::NlgeomEnm Nlgeom() const override { return NlgeomOf(nlgeom); }
  template <class V> void Fields(V& v) {
    kprC_AnalysisStep::Fields(v);
    NlgeomFields(v);
    StepLineFields(v);
    MatrixStorageFields(v);
    IncrementationFields(v);
    StaticFields(v);
    StabilizationFields(v);
  }
};

/// A static step by the modified Riks method, with an optional limit on the
/// displacement of one node.
class kprC_StaticRiksStep : public kprC_ProcedureStep<kprC_StaticRiksStep, kprC_StaticRiks>,
                            public kprC_NlgeomOption,
                            public kprC_MatrixStorageOption,
                            public kprC_StaticOptions {
public:
  static constexpr const char* Description =
      "a static step by the modified Riks method, with an optional displacement limit";
  /// The arc length the Riks method does not bound.
  static constexpr double UnboundedArcIncrement = 1e36;

  kprC_Step::NlgeomEnm Nlgeom() const override { return NlgeomOf(nlgeom); }
  bool HasLimit() const { return !limitNode.Empty(); }
  template <class V> void Fields(V& v) {
    kprC_AnalysisStep::Fields(v);
    NlgeomFields(v);
    v({"extrapolation", "how the solver extrapolates the solution into each increment"},
      extrapolation, kprC_LinearExtrapolation);
    MatrixStorageFields(v);
    v({"maxIncrements", "the most increments the step may take"}, maxNumInc, 100);
    v({"incrementation", "automatic or fixed arc length increments"}, timeIncrementationMethod,
      kprC_AutomaticIncrements);
    v({"initialArcIncrement", "the first arc length increment"}, initialArcInc, 1.0);
    v({"totalArcLength", "the total arc length scale factor of the step"}, totalArcLength, 1.0);
    v({"minArcIncrement", "the smallest arc length increment"}, minArcInc, 1e-5);
    v({"maxArcIncrement", "the largest arc length increment; 1e36 for no limit"}, maxArcInc,
      UnboundedArcIncrement);
    v({"maxLoadProportionalityFactor", "the load proportionality factor at which the step ends; "
                                       "no limit when left out"},
      maxLPF, keydeck::NotGivenDouble);
    StaticFields(v);
    v({"longTerm", "true for the long-term response of viscoelastic materials"}, longTerm, false);
    v({"limitNode", "the node set whose displacement ends the step, by region name such as "
                    "Tip or Beam-1.Tip; no limit when left out"},
      limitNode, cow_String());
    v({"limitDof", "the degree of freedom of the displacement limit"}, limitDof, 1);
    v({"limitValue", "the displacement at which the step ends"}, limitValue, 0.0);
  }

  kprC_ExtrapolationEnm extrapolation = kprC_LinearExtrapolation;
  int maxNumInc = 100;
  kprC_IncrementationEnm timeIncrementationMethod = kprC_AutomaticIncrements;
  double initialArcInc = 1.0;
  double totalArcLength = 1.0;
  double minArcInc = 1e-5;
  double maxArcInc = UnboundedArcIncrement;
  double maxLPF = keydeck::NotGivenDouble;
  bool longTerm = false;
  cow_String limitNode; ///< the node set of the limit, by region name; empty for no limit
  int limitDof = 1;
  double limitValue = 0.0;
  rgnC_Region nodeRegion; ///< derived after loading from `limitNode`
};

/// A transient viscoelastic or creep step.
class kprC_ViscoStep : public kprC_ProcedureStep<kprC_ViscoStep, kprC_Visco>,
                       public kprC_NlgeomOption,
                       public kprC_StepLineOptions<kprC_StepAmplitude, kprC_LinearExtrapolation>,
                       public kprC_MatrixStorageOption,
                       public kprC_Incrementation,
                       public kprC_Stabilization {
public:
  static constexpr const char* Description = "a transient viscoelastic or creep step";
  kprC_Step::NlgeomEnm Nlgeom() const override { return NlgeomOf(nlgeom); }
  template <class V> void Fields(V& v) {
    kprC_AnalysisStep::Fields(v);
    NlgeomFields(v);
    StepLineFields(v);
    MatrixStorageFields(v);
    IncrementationFields(v);
    v({"cetol", "the creep strain error tolerance of an increment, required with automatic "
                "increments"},
      cetol, keydeck::NotGivenDouble);
    v({"creep",
       "how creep and viscoelasticity are integrated: implicitly, explicitly or not at all"},
      creep, kprC_ImplicitCreep);
    StabilizationFields(v);
  }

  double cetol = keydeck::NotGivenDouble; ///< required for automatic increments
  kprC_CreepEnm creep = kprC_ImplicitCreep;
};

namespace keydeck {

/// The procedure classes a model file can use; a procedure without a class
/// here is refused as not supported yet.
template <> struct RecordKinds<kprC_AnalysisStep> {
  static constexpr std::string_view Field = "procedure";
  using Types =
      KindList<kprC_AnnealStep, kprC_CoupledTempDisplacementStep, kprC_CoupledThermalElectricStep,
               kprC_ExplicitDynamicsStep, kprC_GeostaticStep, kprC_HeatTransferStep,
               kprC_ImplicitDynamicsStep, kprC_MassDiffusionStep, kprC_SoilsStep, kprC_StaticStep,
               kprC_StaticRiksStep, kprC_ViscoStep, kprC_TempDisplacementDynamicsStep>;
};

} // namespace keydeck

/// The steps of a model in job order, the initial step first.
class kprC_StepContainer {
public:
  using Handle = cow_ArrayCOW<kprC_Step>;

  int Size() const { return names_.Size(); }
  bool IsMember(const cow_String& name) const { return IndexOf(name) >= 0; }
  /// The step of that name; raises when there is none.
  const kprC_Step& ConstGet(const cow_String& name) const;
  const cow_String& NameAt(int i) const { return names_.ConstGet(i); }
  const kprC_Step& StepAt(int i) const { return *steps_.ConstGet(i); }
  /// The step at `i`, for the loader's derived fields.
  kprC_Step& GetStep(int i) { return steps_.Get(i).Get(); }
  /// Appends a step; the caller has checked that the name is new.
  void Append(const cow_String& name, Handle step);

private:
  int IndexOf(const cow_String& name) const;

  cow_List<cow_String> names_;
  cow_List<Handle> steps_;
};

/// Iterator over the steps in job order:
/// `for (it.First(); !it.IsDone(); it.Next()) use(it.CurrentKey(), it.CurrentValue());`
class kprC_StepContainerIT {
public:
  explicit kprC_StepContainerIT(const kprC_StepContainer& steps) : steps_(steps) {}
  void First() { at_ = 0; }
  void Next() { ++at_; }
  bool IsDone() const { return at_ >= steps_.Size(); }
  const cow_String& CurrentKey() const { return steps_.NameAt(at_); }
  const kprC_Step& CurrentValue() const { return steps_.StepAt(at_); }

private:
  kprC_StepContainer steps_;
  int at_ = 0;
};

/// The database's view of the steps of a model.
class ddb_DdbStepContainer {
public:
  const kprC_StepContainer& container() const { return steps; }
  int size() const { return steps.Size(); }
  /// The solver the analysis steps need; the initial step does not count.
  kprC_AnalysisProductEnm AnalysisProduct() const;

  kprC_StepContainer steps;
};
