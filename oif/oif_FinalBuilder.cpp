#include "oif/oif_FinalBuilder.h"

#include "oif/oif_ModelInfo.h"
#include "oif/oif_RawKeyword.h"

oif_FinalBuilder::oif_FinalBuilder(oif_ModelInfo& info) : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_FinalBuilder::Copy() const { return new oif_FinalBuilder(*this); }

void oif_FinalBuilder::Build() {
  ClosePartsAndInstances();
  CloseAssemblyAndModel();
  CloseSteps();
}

void oif_FinalBuilder::ClosePartsAndInstances() {
  const ddb_Model& database = keydeck::FacadeOf(*model).Model();
  cow_List<cow_String> partsClosed;
  for (const auto& [key, instance] : database.rootAssembly().instance()) {
    if (!instance->IsPartInstance())
      continue;
    const ddb_PartInstance& partInstance = keydeck::RecordCast<ddb_PartInstance>(*instance);
    const cow_String& partName = partInstance.partName();
    if (partsClosed.AppendUnlessMember(partName)) {
      AddPartDefinition(partName, oif_RawKeyword(database.part().get(partName).solverInput()));
      AddPartDefinition(partName, oif_RawKeyword("*End Part"));
    }
    AddInstanceDefinition(key, oif_RawKeyword(partInstance.solverInput()));
    if (modelInfo->V6Format())
      AddInstanceDefinition(key, oif_RawKeyword("*End Instance"));
  }
}

void oif_FinalBuilder::CloseAssemblyAndModel() {
  const ddb_Model& database = keydeck::FacadeOf(*model).Model();
  AddAssemblyDefinition(oif_RawKeyword(database.rootAssembly().solverInput()));
  if (modelInfo->V6Format())
    AddAssemblyDefinition(oif_RawKeyword("*End Assembly"));
  AddModelDefinition(oif_RawKeyword(database.solverInput()));
}

void oif_FinalBuilder::CloseSteps() {
  const kprC_StepContainer& steps = model->Steps();
  kprC_StepContainerIT it(steps);
  int count = 0;
  for (it.First(); !it.IsDone(); it.Next(), ++count) {
    const cow_String& stepName = it.CurrentKey();
    if (it.CurrentValue().solverInput.Length() > 0)
      AddStepDefinition(stepName, oif_RawKeyword(it.CurrentValue().solverInput));
    if (count == 0) // the initial step has no "*Step" to close
      continue;
    CloseAnalysisStep(stepName, keydeck::RecordCast<kprC_AnalysisStep>(steps.ConstGet(stepName)));
  }
}

void oif_FinalBuilder::CloseAnalysisStep(const cow_String& stepName,
                                         const kprC_AnalysisStep& step) {
  // "*End Step" goes under the last load case, which the deck writes last.
  cow_String lastLoadCase;
  for (const auto& [loadCaseName, loadCase] : step.loadCases) {
    AddStepDefinition(stepName, oif_RawKeyword("*End Load Case"), loadCaseName);
    lastLoadCase = loadCaseName;
  }
  AddStepDefinition(stepName, oif_RawKeyword("*End Step"), lastLoadCase);
}
