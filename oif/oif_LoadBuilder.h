#pragma once

#include "oif/oif_BlockHeader.h"
#include "oif/oif_LoadCards.h"
#include "oif/oif_LoadOpStatus.h"
#include "qkw/qkw_BuilderComponent.h"

class oif_ModelInfo;

/// Files the cards of the model's loads in each analysis step, or in the
/// load cases of a step that has them: under the block header "LOADS", for
/// each load a comment "Name: ...   Type: ..." and its card. A load is
/// written where it is created, changed or deactivated, and again where its
/// class of cards restarts with ", op=NEW". A bolt load that acts on the
/// bolt's length is a boundary condition instead, and gets no card here.
class oif_LoadBuilder : public qkw_BuilderComponent {
public:
  explicit oif_LoadBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;

private:
  void BuildLoadsHistory();
  void ConfigureOpStatus();
  /// True when the load's status in `step` asks for its card there.
  bool MakesCard(const kloC_Load& load, const cow_String& step) const;
  /// Files the load in the step's load cases that hold it, or in the step.
  void CreateLoadCard(const cow_String& name, const keydeck::LoadHandle& load,
                      const cow_String& step);
  void LoadCardDetails(const cow_String& name, const keydeck::LoadHandle& load,
                       const cow_String& step, const cow_String& loadCase, double scale);
  /// Files the card of the load's kind under the step and load case.
  void AddLoadCard(const keydeck::LoadHandle& load, const cow_String& step,
                   const cow_String& loadCase, bool opMod, const cow_String& setName, double scale);
  /// True when no other inertia relief load is created, changed or
  /// deactivated in `step`.
  bool CheckForUniqueIRLoad(const cow_String& loadName, const cow_String& step) const;

  oif_BlockHeader header_{"LOADS"};
  oif_LoadOpStatus opStatus_;
};
