#pragma once

#include "oif/oif_OpStatus.h"

/// The restarts of the interaction cards that op=NEW acts on: four kinds of
/// interaction, one key each. A class restarts where one of its
/// interactions is deactivated; other interactions never restart one.
class oif_InteractionOpStatus : public oif_OpStatus {
public:
  static constexpr int NumKeys = 4;

  /// Fills the flags from the interactions, for `steps` (all the model's
  /// steps, the initial step first).
  template <class Interaction>
  void Configure(const kprC_PropagatingContainer<Interaction>& interactions,
                 const kprC_StepContainer& steps) {
    InitializeMembers(steps, NumKeys);
    PopulateMembers(interactions);
  }
  int Key(unsigned typeId) const override;

private:
  static bool HasKey(unsigned typeId);
  template <class Interaction>
  void PopulateMembers(const kprC_PropagatingContainer<Interaction>& interactions) {
    // The initial step never restarts a class.
    for (int i = 1; i < StepCount(); ++i)
      for (const auto& [name, interaction] : interactions)
        if (HasKey(interaction->DynTypeId()) && interaction->Status(StepName(i)) == PropDeactivated)
          Flag(Key(interaction->DynTypeId()), i);
  }
};
