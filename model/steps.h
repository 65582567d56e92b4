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
  /// True for a linear-perturbation procedure.
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

/// An analysis step: a procedure and its load cases.
class kprC_AnalysisStep : public kprC_Step {
public:
  kprC_Step* Copy() const override { return new kprC_AnalysisStep(*this); }
  static constexpr unsigned TypeId() { return keydeck::TypeIds::AnalysisStep; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  unsigned DynTypeId() const override { return TypeId(); }
  unsigned ProcedureType() const { return procedure; }
  bool Perturbation() const override;
  bool isExplicit() const override;

  template <class V> void Fields(V& v) {
    kprC_Step::Fields(v);
    v("procedure", procedure);
    v("loadCases", loadCases, mdl_MapString2ObjCow<klcC_LoadCase>());
  }

  kprC_ProcedureEnm procedure = kprC_Static;
  mdl_MapString2ObjCow<klcC_LoadCase> loadCases;
};

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
