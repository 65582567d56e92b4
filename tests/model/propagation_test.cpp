#include "model/propagation.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

using namespace keydeck;

namespace {

// A condition family of two attributes, declared as a real family would.
struct TestState {
  mdl_PropAttr<double> magnitude;
  mdl_PropAttr<cow_String> amplitude;

  template <class V> void Fields(V& v) {
    v("magnitude", magnitude, mdl_PropAttr<double>());
    v("amplitude", amplitude, mdl_PropAttr<cow_String>());
  }
};

class TestCondition : public kprC_StepStates<kprC_PropagatingRecord, TestState> {
public:
  unsigned DynTypeId() const override { return 1; }
  template <class V> void Fields(V& v) { StateFields(v); }
};

kprC_StepContainer Steps(std::initializer_list<const char*> analysisSteps) {
  kprC_StepContainer steps;
  steps.Append("Initial", kprC_StepContainer::Handle(kprC_InitialStep()));
  for (const char* name : analysisSteps)
    steps.Append(name, kprC_StepContainer::Handle(kprC_StaticStep()));
  return steps;
}

TestState Sets(std::optional<double> magnitude, const char* amplitude = nullptr) {
  TestState state;
  if (magnitude)
    state.magnitude = {*magnitude, mdl_AttributeSet};
  if (amplitude != nullptr)
    state.amplitude = {amplitude, mdl_AttributeSet};
  return state;
}

StepChange<TestState> Change(TestState state,
                             std::optional<mdl_PropagationStatusEnm> status = std::nullopt) {
  return {status, state};
}

// What one step shows: the status, the two attribute states and the magnitude.
struct StepRow {
  const char* step;
  mdl_PropagationStatusEnm status;
  mdl_PropAttributeStateEnm magnitude;
  mdl_PropAttributeStateEnm amplitude;
  double value;
};

void ExpectRows(const TestCondition& condition, const std::vector<StepRow>& rows) {
  for (const StepRow& row : rows) {
    SCOPED_TRACE(row.step);
    const TestState& state = condition.ConstGetState(row.step);
    EXPECT_EQ(condition.Status(row.step), row.status);
    EXPECT_EQ(state.magnitude.State(), row.magnitude);
    EXPECT_EQ(state.amplitude.State(), row.amplitude);
    EXPECT_EQ(state.magnitude.ConstGet(), row.value);
  }
}

TEST(Propagation, RuleRowByRowWithRecreation) {
  TestCondition condition;
  condition.createdIn = "Step-1";
  condition.created = Sets(5);
  condition.changes.Insert("Step-3", Change(Sets(8)));
  condition.changes.Insert("Step-4", Change(Sets(std::nullopt)));
  condition.changes.Insert("Step-5", Change(Sets(std::nullopt), PropDeactivated));
  condition.changes.Insert("Step-7", Change(Sets(std::nullopt, "Ramp"), PropCreated));
  std::vector<RecordFault> faults;
  condition.DeriveStates(
      Steps({"Step-1", "Step-2", "Step-3", "Step-4", "Step-5", "Step-6", "Step-7", "Step-8"}),
      faults);
  EXPECT_TRUE(faults.empty());
  const auto unset = mdl_AttributeUnset;
  const auto set = mdl_AttributeSet;
  const auto inherited = mdl_AttributePropagated;
  ExpectRows(condition, {
                            {"Initial", PropNotInForce, unset, unset, 0},
                            {"Step-1", PropCreated, set, unset, 5},
                            {"Step-2", PropPropagated, inherited, unset, 5},
                            {"Step-3", PropModified, set, unset, 8},
                            {"Step-4", PropPropagated, inherited, unset, 8},
                            {"Step-5", PropDeactivated, inherited, unset, 8},
                            {"Step-6", PropNotInForce, inherited, unset, 8},
                            // Created again with what it had, and what this step sets.
                            {"Step-7", PropCreated, inherited, set, 8},
                            {"Step-8", PropPropagated, inherited, inherited, 8},
                            {"Step-9", PropNotInForce, unset, unset, 0},
                        });
}

TEST(Propagation, StatusWordsForWhatTheRuleCannotTell) {
  TestCondition condition;
  condition.createdIn = "Initial";
  condition.created = Sets(1);
  condition.changes.Insert("Step-1", Change(Sets(std::nullopt), PropPropagatedBase));
  condition.changes.Insert("Step-2", Change(Sets(2), PropModifiedBase));
  condition.changes.Insert("Step-3", Change(Sets(3), PropBuiltIn));
  condition.changes.Insert("Step-4", Change(Sets(std::nullopt), PropDeactivatedBase));
  std::vector<RecordFault> faults;
  condition.DeriveStates(Steps({"Step-1", "Step-2", "Step-3", "Step-4", "Step-5"}), faults);
  EXPECT_TRUE(faults.empty());
  const auto unset = mdl_AttributeUnset;
  ExpectRows(condition, {
                            {"Initial", PropCreated, mdl_AttributeSet, unset, 1},
                            {"Step-1", PropPropagatedBase, mdl_AttributePropagated, unset, 1},
                            {"Step-2", PropModifiedBase, mdl_AttributeSet, unset, 2},
                            {"Step-3", PropBuiltIn, mdl_AttributeSet, unset, 3},
                            {"Step-4", PropDeactivatedBase, mdl_AttributePropagated, unset, 3},
                            {"Step-5", PropNotInForce, mdl_AttributePropagated, unset, 3},
                        });
  EXPECT_FALSE(TestCondition::IsActive(condition.Status("Step-4")));
  EXPECT_TRUE(TestCondition::IsActive(condition.Status("Step-3")));
}

TEST(Propagation, StepEntriesAndTheStepThatSetTheState) {
  TestCondition condition;
  condition.createdIn = "Step-1";
  condition.created = Sets(5, "Ramp");
  condition.changes.Insert("Step-3", Change(Sets(8)));
  std::vector<RecordFault> faults;
  condition.DeriveStates(Steps({"Step-1", "Step-2", "Step-3", "Step-4"}), faults);
  const std::pair<const char*, const char*> cases[] = {{"Initial", ""},      {"Step-1", "Step-1"},
                                                       {"Step-2", "Step-1"}, {"Step-3", "Step-3"},
                                                       {"Step-4", "Step-3"}, {"Step-9", ""}};
  for (const auto& [step, setIn] : cases) {
    SCOPED_TRACE(step);
    const kprC_PropagatingState<TestState> quad = condition.ConstGetStateQuad(step);
    EXPECT_EQ(quad.stepName, cow_String(setIn));
    EXPECT_EQ(condition.HasStep(step), std::string(step) == setIn);
    EXPECT_EQ(quad.step.IsNull(), *setIn == '\0');
  }
  EXPECT_EQ(condition.ConstGetStateQuad("Step-4").ConstGetState().amplitude.ConstGet(),
            cow_String("Ramp"));
}

struct FaultCase {
  const char* name;
  const char* createdIn;
  std::vector<std::pair<const char*, StepChange<TestState>>> changes;
  std::vector<std::pair<std::string, std::string>> faults;
};

TEST(Propagation, Faults) {
  const FaultCase cases[] = {
      {"unknown creating step", "Step-9", {}, {{"createdIn", "no step \"Step-9\""}}},
      {"unknown changing step",
       "Step-1",
       {{"Step-9", Change(Sets(1))}},
       {{"steps/Step-9", "no step \"Step-9\""}}},
      {"change before creation",
       "Step-2",
       {{"Step-1", Change(Sets(1))}},
       {{"steps/Step-1", "this step comes before the step \"Step-2\" that creates the condition"}}},
      {"second entry for the creating step",
       "Step-1",
       {{"Step-1", Change(Sets(1))}},
       {{"steps/Step-1", "the condition is created in this step; what it sets there stands "
                         "beside \"createdIn\""}}},
      {"change after deactivation",
       "Step-1",
       {{"Step-2", Change(Sets(std::nullopt), PropDeactivated)}, {"Step-3", Change(Sets(2))}},
       {{"steps/Step-3", "the condition is deactivated in the step \"Step-2\"; give \"status\": "
                         "\"created\" to create it again first"}}},
      {"created while in force",
       "Step-1",
       {{"Step-2", Change(Sets(2), PropCreated)}},
       {{"steps/Step-2", "the condition is in force in this step already; \"created\" creates "
                         "it again only after a deactivation"}}},
      {"a derived word",
       "Step-1",
       {{"Step-2", Change(Sets(2), PropModified)}},
       {{"steps/Step-2", "the status \"modified\" follows from what the step sets; leave it "
                         "out"}}},
      {"deactivation that sets",
       "Step-1",
       {{"Step-2", Change(Sets(2), PropDeactivated)}},
       {{"steps/Step-2", "a step of status \"deactivated\" sets nothing"}}},
  };
  for (const FaultCase& c : cases) {
    SCOPED_TRACE(c.name);
    TestCondition condition;
    condition.createdIn = c.createdIn;
    for (const auto& [step, change] : c.changes)
      condition.changes.Insert(step, change);
    std::vector<RecordFault> faults;
    condition.DeriveStates(Steps({"Step-1", "Step-2", "Step-3"}), faults);
    std::vector<std::pair<std::string, std::string>> found;
    for (const RecordFault& fault : faults)
      found.emplace_back(fault.where, fault.what);
    EXPECT_EQ(found, c.faults);
  }
}

TEST(Propagation, FaultyEntryCountsAsNone) {
  TestCondition condition;
  condition.createdIn = "Step-1";
  condition.created = Sets(1);
  condition.changes.Insert("Step-2", Change(Sets(2), PropPropagated));
  std::vector<RecordFault> faults;
  condition.DeriveStates(Steps({"Step-1", "Step-2"}), faults);
  EXPECT_EQ(faults.size(), 1u);
  EXPECT_EQ(condition.Status("Step-2"), PropPropagated);
  EXPECT_EQ(condition.ConstGetState("Step-2").magnitude.ConstGet(), 1);
}

} // namespace
