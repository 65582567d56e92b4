#include "oif/oif_Model.h"

oif_Model::oif_Model(const ddb_Model& model, const cow_String& description)
    : qkw_Model(description), model_(model) {
  FindFirstSteps();
}

void oif_Model::FindFirstSteps() {
  kprC_StepContainerIT it(Steps());
  int count = 0;
  for (it.First(); !it.IsDone(); it.Next(), ++count) {
    if (count == 0) {
      initialStepName_ = it.CurrentKey();
      continue;
    }
    if (count == 1)
      firstAnalysisStepName_ = it.CurrentKey();
    if (!firstGeneralAnalysisStepName_.Empty())
      continue;
    const kprC_AnalysisStep& step = keydeck::RecordCast<kprC_AnalysisStep>(it.CurrentValue());
    if (!step.Perturbation())
      firstGeneralAnalysisStepName_ = it.CurrentKey();
  }
}
