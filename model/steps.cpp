#include "model/steps.h"

#include <string>
#include <utility>

bool kprC_AnalysisStep::IsKindOf(unsigned id) {
  return id == TypeId() || keydeck::FindEnumEntry(static_cast<kprC_ProcedureEnm>(id)) != nullptr;
}

bool IsSteadyStateProcedure(unsigned procedure) {
  return procedure == kprC_SteadyStateDirect || procedure == kprC_SteadyStateModal ||
         procedure == kprC_SteadyStateSubspace;
}

bool kprC_AnalysisStep::Perturbation() const {
  switch (procedure) {
  case kprC_Buckle:
  case kprC_Frequency:
  case kprC_ModalDynamics:
  case kprC_RandomResponse:
  case kprC_ResponseSpectrum:
  case kprC_StaticLinearPerturbation:
  case kprC_SteadyStateDirect:
  case kprC_SteadyStateModal:
  case kprC_SteadyStateSubspace:
    return true;
  case kprC_ComplexFrequency:
  case kprC_SubspaceDynamics:
  case kprC_Anneal:
  case kprC_CoupledTempDisplacement:
  case kprC_CoupledThermalElectric:
  case kprC_ExplicitDynamics:
  case kprC_Geostatic:
  case kprC_HeatTransfer:
  case kprC_ImplicitDynamics:
  case kprC_MassDiffusion:
  case kprC_Soils:
  case kprC_Static:
  case kprC_StaticRiks:
  case kprC_Visco:
  case kprC_TempDisplacementDynamics:
    return false;
  }
  return false;
}

bool kprC_AnalysisStep::isExplicit() const {
  return procedure == kprC_ExplicitDynamics || procedure == kprC_TempDisplacementDynamics;
}

std::optional<kprC_DiagnosticPrint> kprC_AnalysisStep::DiagnosticPrint() const {
  if (explicitPrint)
    return kprC_DiagnosticPrint(*explicitPrint);
  if (print)
    return kprC_DiagnosticPrint(*print);
  return std::nullopt;
}

const kprC_MonitorBase* kprC_AnalysisStep::Monitor() const {
  if (explicitMonitor)
    return &*explicitMonitor;
  return monitor ? &*monitor : nullptr;
}

const kprC_Step& kprC_StepContainer::ConstGet(const cow_String& name) const {
  const int at = IndexOf(name);
  if (at < 0)
    keydeck::Raise("no step named \"" + std::string(name.View()) + "\"");
  return *steps_.ConstGet(at);
}

void kprC_StepContainer::Append(const cow_String& name, Handle step) {
  names_.Append(name);
  steps_.Append(std::move(step));
}

int kprC_StepContainer::IndexOf(const cow_String& name) const {
  for (int i = 0; i < names_.Size(); ++i)
    if (names_.UncheckedConstGet(i) == name)
      return i;
  return -1;
}

kprC_AnalysisProductEnm ddb_DdbStepContainer::AnalysisProduct() const {
  bool anyExplicit = false;
  bool anyImplicit = false;
  for (int i = 1; i < steps.Size(); ++i)
    (steps.StepAt(i).isExplicit() ? anyExplicit : anyImplicit) = true;
  if (anyExplicit && anyImplicit)
    return kprC_BothProducts;
  return anyExplicit ? kprC_ExplicitProduct : kprC_ImplicitProduct;
}
