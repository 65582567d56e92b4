#pragma once

#include "base/cow_COW.h"
#include "base/cow_List.h"
#include "base/cow_String.h"
#include "base/mdl_MapString2ObjCow.h"
#include "model/records.h"

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

/// A load case of an analysis step; its name is its key in the step.
class klcC_LoadCase {
public:
  virtual ~klcC_LoadCase() = default;
  virtual klcC_LoadCase* Copy() const { return new klcC_LoadCase(*this); }
  static constexpr unsigned TypeId() { return keydeck::TypeIds::LoadCase; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  virtual unsigned DynTypeId() const { return TypeId(); }

  template <class V> void Fields(V&) {}
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

  template <class V> void Fields(V& v) { v("solverInput", solverInput, cow_String()); }

  cow_String solverInput; ///< raw solver text that closes the step, kept verbatim
};

/// The initial step: the model state before the first analysis step.
class kprC_InitialStep : public kprC_Step {
public:
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
    v("procedure", procedure);
    kprC_Step::Fields(v);
    v("loadCases", loadCases, mdl_MapString2ObjCow<klcC_LoadCase>());
  }

  kprC_ProcedureEnm procedure = kprC_Static;
  mdl_MapString2ObjCow<klcC_LoadCase> loadCases;
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

class kprC_AnnealStep : public kprC_ProcedureStep<kprC_AnnealStep, kprC_Anneal> {};
class kprC_CoupledTempDisplacementStep
    : public kprC_ProcedureStep<kprC_CoupledTempDisplacementStep, kprC_CoupledTempDisplacement> {};
class kprC_CoupledThermalElectricStep
    : public kprC_ProcedureStep<kprC_CoupledThermalElectricStep, kprC_CoupledThermalElectric> {};
class kprC_ExplicitDynamicsStep
    : public kprC_ProcedureStep<kprC_ExplicitDynamicsStep, kprC_ExplicitDynamics> {};
class kprC_GeostaticStep : public kprC_ProcedureStep<kprC_GeostaticStep, kprC_Geostatic> {};
class kprC_HeatTransferStep : public kprC_ProcedureStep<kprC_HeatTransferStep, kprC_HeatTransfer> {
};
class kprC_ImplicitDynamicsStep
    : public kprC_ProcedureStep<kprC_ImplicitDynamicsStep, kprC_ImplicitDynamics> {};
class kprC_MassDiffusionStep
    : public kprC_ProcedureStep<kprC_MassDiffusionStep, kprC_MassDiffusion> {};
class kprC_SoilsStep : public kprC_ProcedureStep<kprC_SoilsStep, kprC_Soils> {};
class kprC_StaticStep : public kprC_ProcedureStep<kprC_StaticStep, kprC_Static> {};
class kprC_StaticRiksStep : public kprC_ProcedureStep<kprC_StaticRiksStep, kprC_StaticRiks> {};
class kprC_ViscoStep : public kprC_ProcedureStep<kprC_ViscoStep, kprC_Visco> {};
class kprC_TempDisplacementDynamicsStep
    : public kprC_ProcedureStep<kprC_TempDisplacementDynamicsStep, kprC_TempDisplacementDynamics> {
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
