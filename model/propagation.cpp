#include "model/propagation.h"

namespace keydeck {

namespace {

int IndexOfStep(const kprC_StepContainer& steps, const cow_String& name) {
  for (int i = 0; i < steps.Size(); ++i)
    if (steps.NameAt(i) == name)
      return i;
  return -1;
}

// `before`, then `text` in double quotes, then `after`.
std::string Message(std::string_view before, std::string_view text, std::string_view after = {}) {
  std::string message(before);
  message.append("\"").append(text).append("\"").append(after);
  return message;
}

std::string_view WordOf(mdl_PropagationStatusEnm status) { return FindEnumEntry(status)->fileText; }

// The statuses that leave every attribute as it was: an entry that gives one
// of them sets nothing.
bool ChangesNothing(mdl_PropagationStatusEnm status) {
  return status == PropDeactivated || status == PropDeactivatedBase || status == PropPropagatedBase;
}

// The statuses the rule derives from what a step sets; a file never names them.
bool DerivedByRule(mdl_PropagationStatusEnm status) {
  return status == PropNotInForce || status == PropPropagated || status == PropModified;
}

// Walks the steps after the creating one and settles each entry.
class RuleWalk {
public:
  RuleWalk(const kprC_StepContainer& steps, const std::vector<StepEntry>& entries,
           std::vector<RecordFault>& faults)
      : steps_(steps), entries_(entries), faults_(faults) {}

  std::vector<StepOutcome> Run(const cow_String& createdIn);

private:
  void Fault(const StepEntry& entry, std::string what) {
    std::string where = "steps/";
    where.append(entry.step.View());
    faults_.push_back({std::move(where), std::move(what)});
  }
  // The entry of each step, after checking where each entry stands.
  std::vector<int> EntryOfStep(int created);
  StepOutcome Settle(int index, int entry);

  const kprC_StepContainer& steps_;
  const std::vector<StepEntry>& entries_;
  std::vector<RecordFault>& faults_;
  bool inForce_ = true;
  cow_String deactivatedIn_;
};

std::vector<StepOutcome> RuleWalk::Run(const cow_String& createdIn) {
  std::vector<StepOutcome> outcomes(static_cast<std::size_t>(steps_.Size()));
  const int created = IndexOfStep(steps_, createdIn);
  if (created < 0) {
    faults_.push_back({"createdIn", Message("no step ", createdIn.View())});
    return outcomes;
  }
  const std::vector<int> entryOfStep = EntryOfStep(created);
  outcomes[static_cast<std::size_t>(created)] = {PropCreated, StepOutcome::CreationEntry};
  for (int i = created + 1; i < steps_.Size(); ++i)
    outcomes[static_cast<std::size_t>(i)] = Settle(i, entryOfStep[static_cast<std::size_t>(i)]);
  return outcomes;
}

std::vector<int> RuleWalk::EntryOfStep(int created) {
  std::vector<int> entryOfStep(static_cast<std::size_t>(steps_.Size()), StepOutcome::NoEntry);
  for (std::size_t e = 0; e < entries_.size(); ++e) {
    const StepEntry& entry = entries_[e];
    const int index = IndexOfStep(steps_, entry.step);
    if (index < 0)
      Fault(entry, Message("no step ", entry.step.View()));
    else if (index == created)
      Fault(entry, "the condition is created in this step; what it sets there stands beside "
                   "\"createdIn\"");
    else if (index < created)
      Fault(entry, Message("this step comes before the step ", steps_.NameAt(created).View(),
                           " that creates the condition"));
    else if (entry.status && DerivedByRule(*entry.status))
      Fault(entry, Message("the status ", WordOf(*entry.status),
                           " follows from what the step sets; leave it out"));
    else if (entry.status && ChangesNothing(*entry.status) && entry.setsAttributes)
      Fault(entry, Message("a step of status ", WordOf(*entry.status), " sets nothing"));
    else
      entryOfStep[static_cast<std::size_t>(index)] = static_cast<int>(e);
  }
  return entryOfStep;
}

StepOutcome RuleWalk::Settle(int index, int e) {
  if (e == StepOutcome::NoEntry)
    return {inForce_ ? PropPropagated : PropNotInForce, StepOutcome::NoEntry};
  const StepEntry& entry = entries_[static_cast<std::size_t>(e)];
  const bool recreates = entry.status == PropCreated;
  if (inForce_ && recreates) {
    Fault(entry, "the condition is in force in this step already; \"created\" creates it again "
                 "only after a deactivation");
    return {PropPropagated, StepOutcome::NoEntry};
  }
  if (!inForce_ && !recreates) {
    Fault(entry, Message("the condition is deactivated in the step ", deactivatedIn_.View(),
                         "; give \"status\": \"created\" to create it again first"));
    return {PropNotInForce, StepOutcome::NoEntry};
  }
  if (entry.status == PropDeactivated || entry.status == PropDeactivatedBase) {
    inForce_ = false;
    deactivatedIn_ = steps_.NameAt(index);
  }
  inForce_ = inForce_ || recreates;
  if (entry.status)
    return {*entry.status, e};
  return {entry.setsAttributes ? PropModified : PropPropagated, e};
}

} // namespace

std::vector<StepOutcome> PropagationRule(const kprC_StepContainer& steps,
                                         const cow_String& createdIn,
                                         const std::vector<StepEntry>& entries,
                                         std::vector<RecordFault>& faults) {
  return RuleWalk(steps, entries, faults).Run(createdIn);
}

} // namespace keydeck

mdl_PropagationStatusEnm kprC_PropagatingRecord::Status(const cow_String& step) const {
  const int index = StepIndex(step);
  return index < 0 ? PropNotInForce : statuses_.ConstGet(index);
}

bool kprC_PropagatingRecord::HasStep(const cow_String& step) const {
  const int index = StepIndex(step);
  return index >= 0 && setAt_.ConstGet(index) == index;
}

bool kprC_PropagatingRecord::RequiresOpNew(const cow_String&) const { return false; }

bool kprC_PropagatingRecord::IsActive(mdl_PropagationStatusEnm status) {
  return status != PropNotInForce && status != PropDeactivated && status != PropDeactivatedBase;
}

int kprC_PropagatingRecord::StepIndex(const cow_String& step) const {
  const int index = keydeck::IndexOfStep(steps_, step);
  return index < statuses_.Size() ? index : -1;
}

void kprC_PropagatingRecord::KeepOutcomes(const kprC_StepContainer& steps,
                                          const std::vector<keydeck::StepOutcome>& outcomes) {
  steps_ = steps;
  statuses_ = cow_List<mdl_PropagationStatusEnm>::WithCapacity(steps.Size());
  setAt_ = cow_List<int>::WithCapacity(steps.Size());
  int setAt = -1;
  for (std::size_t i = 0; i < outcomes.size(); ++i) {
    statuses_.Append(outcomes[i].status);
    if (outcomes[i].entry != keydeck::StepOutcome::NoEntry)
      setAt = static_cast<int>(i);
    setAt_.Append(setAt);
  }
}
