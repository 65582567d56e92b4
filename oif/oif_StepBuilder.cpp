#include "oif/oif_StepBuilder.h"

#include "base/nex_Exception.h"
#include "model/steps.h"
#include "oif/oif_Anneal.h"
#include "oif/oif_BulkViscosity.h"
#include "oif/oif_Comment.h"
#include "oif/oif_CoupledTempDisplacement.h"
#include "oif/oif_CoupledThermalElectric.h"
#include "oif/oif_DynamicTempDisplacement.h"
#include "oif/oif_ExplicitDynamics.h"
#include "oif/oif_FixedMassScaling.h"
#include "oif/oif_Geostatic.h"
#include "oif/oif_HeatTransfer.h"
#include "oif/oif_ImplicitDynamics.h"
#include "oif/oif_LoadCase.h"
#include "oif/oif_MassDiffusion.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_SetName.h"
#include "oif/oif_Soils.h"
#include "oif/oif_SolutionTechnique.h"
#include "oif/oif_Static.h"
#include "oif/oif_StaticRiks.h"
#include "oif/oif_Step.h"
#include "oif/oif_VariableMassScaling.h"
#include "oif/oif_Visco.h"

using namespace keydeck;

oif_StepBuilder::oif_StepBuilder(oif_ModelInfo& info) : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_StepBuilder::Copy() const { return new oif_StepBuilder(*this); }

void oif_StepBuilder::Build() {
  bool nlgeomOn = modelInfo->AnalysisProduct() == kprC_ExplicitProduct;
  kprC_StepContainerIT it(model->Steps());
  it.First();
  for (it.Next(); !it.IsDone(); it.Next()) { // the initial step gets no head
    const cow_String& stepKey = it.CurrentKey();
    const kprC_AnalysisStep& step = RecordCast<kprC_AnalysisStep>(it.CurrentValue());
    AddStepDefinition(stepKey, oif_Comment("----------------------------------------------------"
                                           "------------\n\nSTEP: " +
                                           stepKey + "\n"));
    AddStepDefinition(stepKey, oif_Step(step, nlgeomOn, stepKey));
    AddProcedureCards(stepKey, step);
    if (!nlgeomOn)
      nlgeomOn = step.Nlgeom() == kprC_Step::NlgeomOn;
    AddLoadCaseHeads(stepKey, step);
  }
}

void oif_StepBuilder::AddProcedureCards(const cow_String& stepKey, const kprC_AnalysisStep& step) {
  const bool v6Format = modelInfo->V6Format();
  switch (step.ProcedureType()) {
  case kprC_Anneal:
    AddStepDefinition(stepKey, oif_Anneal(step));
    return;
  case kprC_CoupledTempDisplacement:
    AddStepDefinition(stepKey, oif_CoupledTempDisplacement(step, v6Format));
    AddStepDefinition(stepKey, oif_SolutionTechnique(step));
    return;
  case kprC_CoupledThermalElectric:
    AddStepDefinition(stepKey, oif_CoupledThermalElectric(step));
    AddStepDefinition(stepKey, oif_SolutionTechnique(step));
    return;
  case kprC_ExplicitDynamics:
    AddStepDefinition(stepKey, oif_ExplicitDynamics(step));
    AddStepDefinition(stepKey, oif_BulkViscosity(step));
    AddMassScaling(stepKey, RecordCast<kprC_ExplicitDynamicsStep>(step));
    return;
  case kprC_Geostatic:
    AddStepDefinition(stepKey, oif_Geostatic(step));
    AddStepDefinition(stepKey, oif_SolutionTechnique(step));
    return;
  case kprC_HeatTransfer:
    AddStepDefinition(stepKey, oif_HeatTransfer(step));
    return;
  case kprC_ImplicitDynamics:
    AddStepDefinition(stepKey, oif_ImplicitDynamics(step));
    return;
  case kprC_MassDiffusion:
    AddStepDefinition(stepKey, oif_MassDiffusion(step));
    return;
  case kprC_Soils:
    AddStepDefinition(stepKey, oif_Soils(step));
    AddStepDefinition(stepKey, oif_SolutionTechnique(step));
    return;
  case kprC_Static:
    AddStepDefinition(stepKey, oif_Static(step));
    AddStepDefinition(stepKey, oif_SolutionTechnique(step));
    return;
  case kprC_StaticRiks: {
    const kprC_StaticRiksStep& riks = RecordCast<kprC_StaticRiksStep>(step);
    const cow_String limitNode =
        oif_SetName(riks.nodeRegion, *modelInfo).UniqueSetName(oif_SetName::AssemblyScope);
    AddStepDefinition(stepKey, oif_StaticRiks(step, limitNode));
    AddStepDefinition(stepKey, oif_SolutionTechnique(step));
    return;
  }
  case kprC_Visco:
    AddStepDefinition(stepKey, oif_Visco(step, v6Format));
    AddStepDefinition(stepKey, oif_SolutionTechnique(step));
    return;
  case kprC_TempDisplacementDynamics:
    AddStepDefinition(stepKey, oif_DynamicTempDisplacement(step));
    AddStepDefinition(stepKey, oif_BulkViscosity(step));
    AddMassScaling(stepKey, RecordCast<kprC_TempDisplacementDynamicsStep>(step));
    return;
  }
  // The linear-perturbation procedures and subspace dynamics have no cards
  // yet; the loader refuses such a step.
  Raise("Unimplemented procedure print method");
}

void oif_StepBuilder::AddMassScaling(const cow_String& stepKey,
                                     const kprC_ExplicitOptions& options) {
  for (const kprC_MassScaling& entry : options.massScaling) {
    const cow_String name =
        oif_SetName(entry.region, *modelInfo).UniqueSetName(oif_SetName::AssemblyScope);
    if (entry.IsVariable())
      AddStepDefinition(stepKey, oif_VariableMassScaling(entry, name));
    else
      AddStepDefinition(stepKey, oif_FixedMassScaling(entry, name));
  }
}

void oif_StepBuilder::AddLoadCaseHeads(const cow_String& stepKey, const kprC_AnalysisStep& step) {
  bool first = true;
  for (const cow_String& key : step.loadCases.Keys()) {
    if (key.Empty())
      continue;
    if (first)
      AddStepDefinition(stepKey, oif_Comment("\nLOAD CASES\n"), key);
    first = false;
    AddStepDefinition(stepKey, oif_LoadCase(key), key);
  }
}
