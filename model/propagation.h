#pragma once

#include "base/cow_Btree.h"
#include "base/cow_List.h"
#include "base/cow_String.h"
#include "base/mdl_MapString2ObjCow.h"
#include "base/mdl_PropAttr.h"
#include "model/records.h"
#include "model/steps.h"

#include <cstddef>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

// Step-dependent records: conditions kept once with a state per step. The file
// says what the user means (the step that creates a condition, what later
// steps change, the step that deactivates it); after loading, the rule of
// `PropagationRule` turns that into a status and a state for every step,
// which is what the writer reads.

namespace keydeck {

// Statuses have no deck text: cards act on their numbers.
template <> struct EnumTable<mdl_PropagationStatusEnm> {
  static constexpr std::string_view Noun = "status";
  static constexpr EnumEntry<mdl_PropagationStatusEnm> Entries[] = {
      {PropNotInForce, "", "notInForce"},           {PropCreated, "", "created"},
      {PropPropagated, "", "propagated"},           {PropModified, "", "modified"},
      {PropDeactivated, "", "deactivated"},         {PropBuiltIn, "", "builtIn"},
      {PropPropagatedBase, "", "propagatedBase"},   {PropModifiedBase, "", "modifiedBase"},
      {PropDeactivatedBase, "", "deactivatedBase"}, {PropFieldReset, "", "fieldReset"},
  };
};

/// True for an attribute field: the loader, dumper and schema treat it as its
/// value, present or left out.
template <class T> constexpr bool IsPropAttr = false;
template <class T> constexpr bool IsPropAttr<mdl_PropAttr<T>> = true;

/// What a step after the creating one says of a record, as the file gives
/// it: the attributes it sets, and a status word for what the rule cannot
/// tell by itself ("deactivated", "created" after a deactivation,
/// "builtIn", the base statuses of perturbation steps, "fieldReset").
template <class State> struct StepChange {
  std::optional<mdl_PropagationStatusEnm> status;
  State state;

  static constexpr const char* Description =
      "what a later step changes: attributes, or a status word such as \"deactivated\"";
  template <class V> void Fields(V& v) {
    v({"status", "the record's status in this step, where the attributes alone do not say it"},
      status, std::nullopt);
    state.Fields(v);
  }
};

/// What the rule needs to know of one step entry.
struct StepEntry {
  cow_String step;
  std::optional<mdl_PropagationStatusEnm> status;
  bool setsAttributes = false;
};

/// The outcome of the rule in one step: the status, and which entry sets the
/// state there (`CreationEntry`, an index into the entries, or `NoEntry`).
struct StepOutcome {
  static constexpr int NoEntry = -1;
  static constexpr int CreationEntry = -2;
  mdl_PropagationStatusEnm status = PropNotInForce;
  int entry = NoEntry;
};

/// The propagation rule, for every step of `steps` in order:
///
/// - steps before `createdIn`: 0;
/// - `createdIn`: 1;
/// - a later step whose entry sets attributes: 3; one without an entry or
///   whose entry sets nothing: 2;
/// - the step whose entry says "deactivated": 4; the steps after it 0,
///   until an entry says "created" (1 again);
/// - an entry with any other status word: that status.
///
/// A fault (unknown step, an entry before the creating step or on it, a
/// change while deactivated, a word the rule derives itself) goes to
/// `faults`; the outcome of a faulty entry is that of a step without one.
std::vector<StepOutcome> PropagationRule(const kprC_StepContainer& steps,
                                         const cow_String& createdIn,
                                         const std::vector<StepEntry>& entries,
                                         std::vector<RecordFault>& faults);

} // namespace keydeck

/// A record's state in one step together with the step whose entry set it.
template <class State> struct kprC_PropagatingState {
  State state;
  cow_String stepName;             ///< empty before the record is created
  kprC_StepContainer::Handle step; ///< null before the record is created

  const State& ConstGetState() const { return state; }
  const kprC_Step& Step() const { return *step; }
};

/// The base of every step-dependent record (boundary condition, load, field,
/// interaction, output request): its suppression and its status per step.
class kprC_PropagatingRecord {
public:
  virtual ~kprC_PropagatingRecord() = default;
  virtual unsigned DynTypeId() const = 0;

  bool IsSuppressed() const { return suppressed; }
  /// The status in `step`; `PropNotInForce` for a step the model lacks.
  mdl_PropagationStatusEnm Status(const cow_String& step) const;
  /// True when `step` has an entry of its own for the record: it creates,
  /// changes or deactivates the record, or names its status.
  bool HasStep(const cow_String& step) const;
  /// True when the change made in `step` cannot be made in place, so the
  /// class of the record's cards must restart there. A record that can always
  /// be changed in place keeps this answer, false.
  virtual bool RequiresOpNew(const cow_String& step) const;
  /// True for a status in which the record is in force and writes its cards
  /// when asked: every status but 0, 4 and 11.
  static bool IsActive(mdl_PropagationStatusEnm status);
  static bool IsBuiltIn(mdl_PropagationStatusEnm status) { return status == PropBuiltIn; }

  /// Derives the status and state of every step of `steps` from what the file
  /// gives; problems go to `faults`.
  virtual void DeriveStates(const kprC_StepContainer& steps,
                            std::vector<keydeck::RecordFault>& faults) = 0;

  /// The fields every step-dependent record has.
  template <class V> void PropagationFields(V& v) {
    v({"createdIn", "the name of the step that creates the record"}, createdIn);
    v({"suppressed", "true to leave the record out of the deck"}, suppressed, false);
  }

  cow_String createdIn; ///< the step that creates the record
  bool suppressed = false;

protected:
  /// The step index of `step`, or -1.
  int StepIndex(const cow_String& step) const;
  void KeepOutcomes(const kprC_StepContainer& steps,
                    const std::vector<keydeck::StepOutcome>& outcomes);
  /// The index of the step whose entry set the state in force at `index`, or -1.
  int SetAt(int index) const { return setAt_.ConstGet(index); }
  const kprC_StepContainer& Steps() const { return steps_; }

private:
  // Derived after loading, one item per step of the model.
  kprC_StepContainer steps_;
  cow_List<mdl_PropagationStatusEnm> statuses_;
  cow_List<int> setAt_;
};

/// The step-dependent part of a record family: `Base` is the family's base
/// class (derived from `kprC_PropagatingRecord`), `State` the class of its
/// step-dependent attributes, each a `mdl_PropAttr` listed in
/// `State::Fields`. A family declares its state once and gets the file form,
/// the derivation and the per-step queries from here.
///
/// The file form: `createdIn`, the attributes set in the creating step beside
/// it, and `steps`, an object from step name to what that step changes.
template <class Base, class State> class kprC_StepStates : public Base {
public:
  /// The state in force in `step`: the attributes set in that step in state
  /// 1, those set earlier in state 2, those never set in state 0. Before the
  /// creating step (or for a step the model lacks) every attribute is unset.
  /// Asked before `DeriveStates`, it raises.
  const State& ConstGetState(const cow_String& step) const;
  /// The same, with the step whose entry set it.
  kprC_PropagatingState<State> ConstGetStateQuad(const cow_String& step) const;

  void DeriveStates(const kprC_StepContainer& steps,
                    std::vector<keydeck::RecordFault>& faults) override;

  /// The file fields of the step-dependent part, for the family's `Fields`.
  template <class V> void StateFields(V& v) {
    this->PropagationFields(v);
    created.Fields(v);
    v({"steps", "what later steps change, by step name"}, changes,
      cow_Btree<cow_String, keydeck::StepChange<State>>());
  }

  State created; ///< the attributes set in the creating step
  cow_Btree<cow_String, keydeck::StepChange<State>> changes;

private:
  /// Derived: the state in force per step, then one with every attribute
  /// unset, which stands for a step the model lacks.
  cow_List<State> states_;
};

namespace keydeck {

/// Walks the attributes of a state: `visit(name, attribute)` for each.
template <class F> struct AttributeWalker {
  F visit;
  template <class M> void operator()(FieldName name, M& member) { Take(name, member); }
  template <class M, class D> void operator()(FieldName name, M& member, const D&) {
    Take(name, member);
  }
  template <class M> void Take(FieldName name, M& member) {
    static_assert(IsPropAttr<M>, "every field of a step state is a mdl_PropAttr");
    visit(name.text, member);
  }
};

template <class State, class F> void ForEachAttribute(State& state, F visit) {
  AttributeWalker<F> walker{visit};
  state.Fields(walker);
}

/// True when the entry gives at least one attribute.
template <class State> bool SetsAttributes(const State& state) {
  State copy = state; // `Fields` hands out its members for writing; the copy shares them
  bool any = false;
  ForEachAttribute(copy, [&](const char*, auto& attribute) { any = any || attribute.IsActive(); });
  return any;
}

/// A step passes: every attribute given before is inherited (state 2).
template <class State> void Propagate(State& state) {
  ForEachAttribute(state, [](const char*, auto& attribute) {
    if (attribute.IsActive())
      attribute = {attribute.ConstGet(), mdl_AttributePropagated};
  });
}

/// The attributes that `change` gives replace those of `state`, in state 1.
template <class State> void Apply(State& state, const State& change) {
  State given = change;
  std::vector<void*> attributes;
  ForEachAttribute(given, [&](const char*, auto& attribute) { attributes.push_back(&attribute); });
  std::size_t at = 0;
  ForEachAttribute(state, [&](const char*, auto& attribute) {
    // The same class walked twice: the pointer at `at` is of this attribute's type.
    const auto& source =
        *static_cast<std::remove_reference_t<decltype(attribute)>*>(attributes[at++]);
    if (source.IsActive())
      attribute = {source.ConstGet(), mdl_AttributeSet};
  });
}

} // namespace keydeck

template <class Base, class State>
const State& kprC_StepStates<Base, State>::ConstGetState(const cow_String& step) const {
  const int index = this->StepIndex(step);
  return states_.ConstGet(index < 0 ? states_.Size() - 1 : index);
}

template <class Base, class State>
kprC_PropagatingState<State>
kprC_StepStates<Base, State>::ConstGetStateQuad(const cow_String& step) const {
  kprC_PropagatingState<State> quad{ConstGetState(step), cow_String(), {}};
  const int index = this->StepIndex(step);
  if (index < 0 || this->SetAt(index) < 0)
    return quad;
  const int setAt = this->SetAt(index);
  quad.stepName = this->Steps().NameAt(setAt);
  quad.step = kprC_StepContainer::Handle(this->Steps().StepAt(setAt));
  return quad;
}

template <class Base, class State>
void kprC_StepStates<Base, State>::DeriveStates(const kprC_StepContainer& steps,
                                                std::vector<keydeck::RecordFault>& faults) {
  std::vector<keydeck::StepEntry> entries;
  std::vector<const State*> given;
  for (const auto& [step, change] : changes) {
    entries.push_back({step, change.status, keydeck::SetsAttributes(change.state)});
    given.push_back(&change.state);
  }
  const std::vector<keydeck::StepOutcome> outcomes =
      keydeck::PropagationRule(steps, this->createdIn, entries, faults);
  states_ = cow_List<State>::WithCapacity(steps.Size());
  State running{};
  for (const keydeck::StepOutcome& outcome : outcomes) {
    if (outcome.entry == keydeck::StepOutcome::CreationEntry) {
      running = created;
    } else {
      keydeck::Propagate(running);
      if (outcome.entry >= 0)
        keydeck::Apply(running, *given[static_cast<std::size_t>(outcome.entry)]);
    }
    states_.Append(running);
  }
  states_.Append(State{});
  this->KeepOutcomes(steps, outcomes);
}

/// A family's records by name, in ascending byte order of the name.
template <class T> using kprC_PropagatingContainer = mdl_MapString2ObjCow<T>;
