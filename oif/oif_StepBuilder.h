#pragma once

#include "qkw/qkw_BuilderComponent.h"

class cow_String;
class kprC_AnalysisStep;
struct kprC_ExplicitOptions;
class oif_ModelInfo;

/// Files the head of every analysis step: the banner comment, "*Step", the
/// procedure card and the cards the procedure brings with it, then a head
/// for each load case. The initial step gets nothing. Geometric
/// nonlinearity, once on in a step (or from the start for a job of the
/// explicit solver), stays in force for the later steps' "*Step" cards.
class oif_StepBuilder : public qkw_BuilderComponent {
public:
  explicit oif_StepBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;

private:
  void AddProcedureCards(const cow_String& stepKey, const kprC_AnalysisStep& step);
  /// One fixed or variable mass-scaling card per entry of an explicit step.
  void AddMassScaling(const cow_String& stepKey, const kprC_ExplicitOptions& options);
  void AddLoadCaseHeads(const cow_String& stepKey, const kprC_AnalysisStep& step);
};
