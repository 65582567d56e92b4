#pragma once

#include "oif/oif_BlockHeader.h"
#include "oif/oif_FieldCards.h"
#include "oif/oif_FieldOpStatus.h"
#include "qkw/qkw_BuilderComponent.h"

class oif_ModelInfo;

/// Files the cards of the model's predefined fields: in the initial step
/// "*Initial Conditions", in later steps "*Temperature" and "*Field", and
/// "*Pressure stress" in any step, each
/// under the block header "FIELDS" (or in the load cases of a step that has
/// them) with a comment "Name: ...   Type: ...". A field is written where it
/// is created, changed, deactivated or reset, and where its class restarts;
/// a field variable in every step that it stays in force. A velocity exists
/// in the initial step alone.
class oif_FieldBuilder : public qkw_BuilderComponent {
public:
  explicit oif_FieldBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;

private:
  void BuildFieldsHistory();
  void ConfigureOpStatus();
  /// True when the field's status in `step` asks for its card there.
  bool MakesCard(const kpfC_Field& field, const cow_String& step) const;
  /// Files the field in the step's load cases that hold it, or in the step.
  void CreateFieldCard(const cow_String& name, const keydeck::FieldHandle& field,
                       const cow_String& step);
  void FieldCardDetails(const cow_String& name, const keydeck::FieldHandle& field,
                        const cow_String& step, const cow_String& loadCase, double scale);
  /// True when the field's kind has a card in `step`.
  bool HasCard(const kpfC_Field& field, const cow_String& step) const;
  /// The most values a field variable gives in the initial step.
  int FindMaxGenFieldSizeInModel() const;
  /// The most temperature points of the beam profiles of the model, 1 at
  /// least; 1 for a model without temperatures.
  int FindMaxTempSizeInModel() const;
  bool IsInitialStep(const cow_String& step) const;
  /// True for a field variable: it is written again in every step where it
  /// stays in force.
  static bool WriteInEveryPropStep(const kpfC_Field& field);

  oif_BlockHeader header_{"FIELDS"};
  oif_FieldOpStatus opStatus_;
  int maxGenFieldSize_ = 0;
  int maxTempSize_ = 1;
};
