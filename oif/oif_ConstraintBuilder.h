#pragma once

#include "oif/oif_BlockHeader.h"
#include "qkw/qkw_BuilderComponent.h"

class kcoC_Constraint;
class oif_ModelInfo;
class rgnC_Region;

/// Files the cards of the model's constraints in the assembly, in ascending
/// order of name: under the block header "CONSTRAINTS", for each constraint
/// a comment "Constraint: " + name and its cards.
class oif_ConstraintBuilder : public qkw_BuilderComponent {
public:
  explicit oif_ConstraintBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;
  /// The deck name of the set of a region, from the assembly's scope.
  cow_String RegionName(const rgnC_Region& region) const;

private:
  void AddConstraintCards(const cow_String& name, const kcoC_Constraint& constraint);

  oif_BlockHeader header_{"CONSTRAINTS"};
};
