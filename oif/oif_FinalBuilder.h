#pragma once

#include "base/cow_String.h"
#include "qkw/qkw_BuilderComponent.h"

class oif_ModelInfo;
class kprC_AnalysisStep;

/// Runs last and stands last in the writing list: files the raw solver text
/// of parts, instances, the assembly, the model and the steps, and every
/// closing card ("*End Part", "*End Instance", "*End Assembly",
/// "*End Load Case", "*End Step"), so each stands behind all other cards of
/// its block.
class oif_FinalBuilder : public qkw_BuilderComponent {
public:
  explicit oif_FinalBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;

private:
  void ClosePartsAndInstances();
  void CloseAssemblyAndModel();
  void CloseSteps();
  void CloseAnalysisStep(const cow_String& stepName, const kprC_AnalysisStep& step);
};
