#pragma once

#include "base/cow_List.h"
#include "base/cow_Map.h"
#include "base/cow_String.h"
#include "model/propagation.h"

/// Which class of condition cards must restart with ", op=NEW" in which step.
/// A status key stands for a class of cards that the solver's op=NEW acts on
/// as one, such as all "*Boundary" lines. A card with ", op=NEW" wipes every
/// earlier condition of its class, so a step restarts a class where a
/// condition of it is deactivated, or changed in a way that cannot be made in
/// place; the conditions still in force are then written again there.
///
/// Each family's subclass fills the flags once, from the family's records,
/// at the start of its builder's `Build`; they are only read afterwards.
class oif_OpStatus {
public:
  virtual ~oif_OpStatus() = default;

  /// The status key of a record type; raises for a type foreign to the family.
  virtual int Key(unsigned typeId) const = 0;
  /// True when the class of `typeId` restarts in `step`; a step that is not
  /// one of the model's raises the list's out-of-range failure.
  bool OpNew(unsigned typeId, const cow_String& step) const;
  /// Restarts every class at step index `stepIndex`; an index beyond the
  /// steps changes nothing.
  void ForceOpNew(int stepIndex);

  /// What a condition's card does in a step.
  struct CardDecision {
    bool write = false;       ///< the card is filed in the step
    bool blockHeader = false; ///< the family's block header goes before it
    bool opMod = false;       ///< false: the card restarts its class with ", op=NEW"
  };
  /// The decision for a condition of status `status` in a step where its
  /// class restarts or not (`opNew`), outside a load case or in one:
  /// created, changed and deactivated conditions are written, with their
  /// block header outside load cases; an unchanged one only where its class
  /// restarts, or in a load case; any other status writes nothing. Outside
  /// load cases a card restarts its class exactly when the class restarts;
  /// in a load case, always.
  static CardDecision DecideCard(mdl_PropagationStatusEnm status, bool opNew, bool inLoadCase);

protected:
  /// Takes the step names and makes a flag of 0 per step under every key from
  /// 0 to `numKeys` - 1.
  void InitializeMembers(const kprC_StepContainer& steps, int numKeys);
  /// Sets the flag of `key` at step index `stepIndex`.
  void Flag(int key, int stepIndex);
  int StepCount() const { return stepNames.Size(); }
  const cow_String& StepName(int stepIndex) const { return stepNames.ConstGet(stepIndex); }

  cow_List<cow_String> stepNames;    ///< the step keys in step order, the initial step first
  cow_Map<int, cow_List<int>> flags; ///< status key to one flag, 0 or 1, per step

private:
  int StepIndex(const cow_String& step) const;
};
