#include "oif/oif_OpStatus.h"

bool oif_OpStatus::OpNew(unsigned typeId, const cow_String& step) const {
  return flags.ConstGet(Key(typeId)).ConstGet(StepIndex(step)) != 0;
}

void oif_OpStatus::ForceOpNew(int stepIndex) {
  if (stepIndex < 0 || stepIndex >= StepCount())
    return;
  for (const int key : flags.Keys())
    Flag(key, stepIndex);
}

oif_OpStatus::CardDecision oif_OpStatus::DecideCard(mdl_PropagationStatusEnm status, bool opNew,
                                                    bool inLoadCase) {
  switch (status) {
  case PropCreated:
  case PropModified:
  case PropDeactivated:
  case PropModifiedBase:
  case PropDeactivatedBase:
    return {true, !inLoadCase, !inLoadCase && !opNew};
  case PropPropagated:
  case PropPropagatedBase:
    if (inLoadCase)
      return {true, false, false};
    return {opNew, opNew, false};
  case PropNotInForce:
  case PropBuiltIn:
  case PropFieldReset:
    return {};
  }
  return {}; // a value outside the enumeration writes nothing
}

void oif_OpStatus::InitializeMembers(const kprC_StepContainer& steps, int numKeys) {
  stepNames = cow_List<cow_String>::WithCapacity(steps.Size());
  for (int i = 0; i < steps.Size(); ++i)
    stepNames.Append(steps.NameAt(i));
  cow_List<int> zeros;
  zeros.Fill(steps.Size(), 0);
  flags = cow_Map<int, cow_List<int>>();
  for (int key = 0; key < numKeys; ++key)
    flags.Insert(key, zeros);
}

void oif_OpStatus::Flag(int key, int stepIndex) { flags.Get(key).Get(stepIndex) = 1; }

int oif_OpStatus::StepIndex(const cow_String& step) const {
  for (int i = 0; i < stepNames.Size(); ++i)
    if (stepNames.ConstGet(i) == step)
      return i;
  return -1;
}
