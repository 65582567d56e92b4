#include "model/json/loader.h"
#include "model/json/region_names.h"
#include "oif/oif_BCOpStatus.h"
#include "oif/oif_FieldOpStatus.h"
#include "oif/oif_InteractionOpStatus.h"
#include "oif/oif_LoadOpStatus.h"
#include "oif/oif_ModelInfo.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

using namespace keydeck;

namespace {

// Condition records of any family, made here since the families build on
// this mechanism: a type id, a region, and a state with a bolt load's method.
struct TestState {
  mdl_PropAttr<double> magnitude;
  mdl_PropAttr<int> method;

  template <class V> void Fields(V& v) {
    v("magnitude", magnitude, mdl_PropAttr<double>());
    v("method", method, mdl_PropAttr<int>());
  }
};

class TestRecord : public kprC_StepStates<kprC_PropagatingRecord, TestState> {
public:
  TestRecord* Copy() const { return new TestRecord(*this); }
  unsigned DynTypeId() const override { return type; }
  // Narrows to the bolt load.
  static constexpr unsigned TypeId() { return TypeIds::BoltLoad; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  bool RequiresOpNew(const cow_String&) const override { return requiresOpNew; }

  unsigned type = 0;
  rgnC_Region region;
  bool requiresOpNew = false;
};

using Records = kprC_PropagatingContainer<TestRecord>;

constexpr unsigned Displacement = 0x2980005;
constexpr unsigned ConnectorDisplacement = 0x2980024;
constexpr unsigned ConcentratedForce = 0x2880018;
constexpr unsigned Pressure = 0x2880008;
constexpr unsigned Temperature = 0x2EC0008;
constexpr unsigned SurfaceContact = 0x2A0001F;
constexpr unsigned FluidCavity = 0x2A00001; // an interaction that op=NEW does not act on

kprC_StepContainer Steps(int analysisSteps) {
  kprC_StepContainer steps;
  steps.Append("Initial", kprC_StepContainer::Handle(kprC_InitialStep()));
  for (int i = 1; i <= analysisSteps; ++i)
    steps.Append(("Step-" + std::to_string(i)).c_str(),
                 kprC_StepContainer::Handle(kprC_StaticStep()));
  return steps;
}

struct Entry {
  const char* step;
  std::optional<mdl_PropagationStatusEnm> status;
  std::optional<double> magnitude;
  std::optional<int> method;
};

TestState StateOf(std::optional<double> magnitude, std::optional<int> method) {
  TestState state;
  if (magnitude)
    state.magnitude = {*magnitude, mdl_AttributeSet};
  if (method)
    state.method = {*method, mdl_AttributeSet};
  return state;
}

/// A record of `type` created in `createdIn` with a magnitude, then changed by `entries`.
TestRecord Record(unsigned type, const char* createdIn, const kprC_StepContainer& steps,
                  const std::vector<Entry>& entries = {}, std::optional<int> method = {}) {
  TestRecord record;
  record.type = type;
  record.createdIn = createdIn;
  record.created = StateOf(1.0, method);
  for (const Entry& entry : entries)
    record.changes.Insert(entry.step, {entry.status, StateOf(entry.magnitude, entry.method)});
  std::vector<RecordFault> faults;
  record.DeriveStates(steps, faults);
  EXPECT_TRUE(faults.empty());
  return record;
}

Records Of(std::initializer_list<std::pair<const char*, TestRecord>> records) {
  Records map;
  for (const auto& [name, record] : records)
    map.Insert(name, record);
  return map;
}

/// The steps of `steps` in which `status` restarts the class of `type`, as 0 and 1.
std::vector<int> Restarts(const oif_OpStatus& status, unsigned type,
                          const kprC_StepContainer& steps) {
  std::vector<int> flags;
  for (int i = 0; i < steps.Size(); ++i)
    flags.push_back(status.OpNew(type, steps.NameAt(i)) ? 1 : 0);
  return flags;
}

// The bracket model, whose sets the loads of the tests act on.
class Bracket {
public:
  Bracket() : odb_(Load()), info_(odb_.ddb().model("Default Model")) {}
  const oif_ModelInfo& Info() const { return info_; }
  TestRecord On(TestRecord record, const char* region) const {
    LoadErrors errors;
    record.region = ResolveRegion(odb_.ddb().model("Default Model"), region, "test", errors);
    EXPECT_TRUE(errors.Empty());
    return record;
  }

private:
  static odb_Odb Load() {
    std::vector<std::string> warnings;
    return LoadModelFile(KEYDECK_SOURCE_DIR "/tests/golden/bracket.json", warnings);
  }

  odb_Odb odb_;
  oif_ModelInfo info_;
};

std::string RaisedText(const auto& call) {
  try {
    call();
  } catch (const nex_PrimException& failure) {
    return failure.Text();
  }
  return "nothing raised";
}

TEST(OpStatus, OneAnalysisStep) {
  const kprC_StepContainer steps = Steps(1);
  const Records bcs =
      Of({{"Fix", Record(Displacement, "Initial", steps, {{"Step-1", PropDeactivated, {}, {}}})}});
  oif_BCOpStatus status;
  status.Configure<TestRecord>(bcs, Records(), steps);
  EXPECT_EQ(Restarts(status, Displacement, steps), (std::vector<int>{0, 1}));
  // Only a forced restart reaches the initial step; an index past the steps is ignored.
  status.ForceOpNew(0);
  status.ForceOpNew(2);
  EXPECT_EQ(Restarts(status, Displacement, steps), (std::vector<int>{1, 1}));
  EXPECT_EQ(Restarts(status, ConnectorDisplacement, steps), (std::vector<int>{1, 0}));
  EXPECT_EQ(RaisedText([&] { status.OpNew(Displacement, "Step-2"); }),
            "list index -1 out of range [0, 2)");
}

TEST(OpStatus, DeactivatedLoadRestartsItsClassInThatStep) {
  const kprC_StepContainer steps = Steps(4);
  const Bracket bracket;
  const Records loads = Of({
      {"Top", bracket.On(Record(Pressure, "Step-1", steps, {{"Step-3", PropDeactivated, {}, {}}}),
                         "Roots")},
      {"Side", bracket.On(Record(Pressure, "Step-1", steps), "Bracket-1.All")},
      {"Tip", bracket.On(Record(ConcentratedForce, "Step-1", steps), "Bracket-1.Tip")},
  });
  oif_LoadOpStatus status;
  status.Configure<TestRecord>(loads, steps, bracket.Info());
  EXPECT_EQ(Restarts(status, Pressure, steps), (std::vector<int>{0, 0, 0, 1, 0}));
  EXPECT_EQ(Restarts(status, ConcentratedForce, steps), (std::vector<int>{0, 0, 0, 0, 0}));
  // There the load still in force is written again, starting its class afresh.
  const oif_OpStatus::CardDecision side = oif_OpStatus::DecideCard(
      loads.ConstGet("Side").Status("Step-3"), status.OpNew(Pressure, "Step-3"), false);
  EXPECT_TRUE(side.write);
  EXPECT_TRUE(side.blockHeader);
  EXPECT_FALSE(side.opMod);
}

TEST(OpStatus, TwoLoadsOfOneClassOnOneSetRestartEveryStep) {
  const kprC_StepContainer steps = Steps(3);
  const Bracket bracket;
  const Records loads = Of({
      {"A", bracket.On(Record(Pressure, "Step-2", steps), "Roots")},
      {"B", bracket.On(Record(Pressure, "Step-3", steps), "Roots")},
      {"C", bracket.On(Record(ConcentratedForce, "Step-1", steps), "Bracket-1.Tip")},
      {"D", bracket.On(Record(ConcentratedForce, "Step-1", steps), "Bracket-2.Tip")},
  });
  oif_LoadOpStatus status;
  status.Configure<TestRecord>(loads, steps, bracket.Info());
  EXPECT_EQ(Restarts(status, Pressure, steps), (std::vector<int>{0, 1, 1, 1}));
  EXPECT_EQ(Restarts(status, ConcentratedForce, steps), (std::vector<int>{0, 0, 0, 0}));
}

TEST(OpStatus, ModifiedBoundaryConditionRestartsOnlyWhenItCannotChangeInPlace) {
  const kprC_StepContainer steps = Steps(2);
  TestRecord inPlace = Record(Displacement, "Step-1", steps, {{"Step-2", {}, 2.0, {}}});
  TestRecord anew = Record(ConnectorDisplacement, "Step-1", steps, {{"Step-2", {}, 2.0, {}}});
  anew.requiresOpNew = true;
  TestRecord suppressed =
      Record(Displacement, "Step-1", steps, {{"Step-2", PropDeactivated, {}, {}}});
  suppressed.suppressed = true;
  oif_BCOpStatus status;
  status.Configure<TestRecord>(Of({{"A", inPlace}, {"B", anew}, {"C", suppressed}}), Records(),
                               steps);
  EXPECT_EQ(Restarts(status, Displacement, steps), (std::vector<int>{0, 0, 0}));
  EXPECT_EQ(Restarts(status, ConnectorDisplacement, steps), (std::vector<int>{0, 0, 1}));
  // Written in place: no ", op=NEW".
  EXPECT_TRUE(oif_OpStatus::DecideCard(PropModified, false, false).opMod);
}

TEST(OpStatus, BoltLoads) {
  const kprC_StepContainer steps = Steps(4);
  const Records loads = Of({
      // Its method changes in Step-2, and it goes with a method other than the first in Step-4.
      {"Changed", Record(TypeIds::BoltLoad, "Step-1", steps,
                         {{"Step-2", {}, {}, 1}, {"Step-4", PropDeactivated, {}, {}}}, 0)},
      // Built in from Step-3: neither flags nor writes, whatever it sets.
      {"BuiltIn", Record(TypeIds::BoltLoad, "Step-1", steps, {{"Step-3", PropBuiltIn, {}, 1}}, 0)},
  });
  oif_BCOpStatus bcStatus;
  bcStatus.Configure<TestRecord>(Records(), loads, steps);
  EXPECT_EQ(Restarts(bcStatus, TypeIds::BoltLoad, steps), (std::vector<int>{0, 0, 1, 0, 1}));
  const Bracket bracket;
  oif_LoadOpStatus loadStatus;
  const Records builtIn = Of({{"BuiltIn", loads.ConstGet("BuiltIn")}});
  loadStatus.Configure<TestRecord>(builtIn, steps, bracket.Info());
  EXPECT_EQ(Restarts(loadStatus, TypeIds::BoltLoad, steps), (std::vector<int>{0, 0, 0, 0, 0}));
  const Records changed = Of({{"Changed", loads.ConstGet("Changed")}});
  loadStatus.Configure<TestRecord>(changed, steps, bracket.Info());
  EXPECT_EQ(Restarts(loadStatus, TypeIds::BoltLoad, steps), (std::vector<int>{0, 0, 1, 0, 1}));
  EXPECT_FALSE(oif_OpStatus::DecideCard(PropBuiltIn, true, false).write);
}

TEST(OpStatus, FieldsAndInteractions) {
  const kprC_StepContainer steps = Steps(3);
  oif_FieldOpStatus fields;
  fields.Configure(
      Of({{"T", Record(Temperature, "Initial", steps, {{"Step-2", PropFieldReset, 20.0, {}}})}}),
      steps);
  EXPECT_EQ(Restarts(fields, Temperature, steps), (std::vector<int>{0, 0, 1, 0}));
  oif_InteractionOpStatus interactions;
  interactions.Configure(
      Of({{"Pair", Record(SurfaceContact, "Initial", steps, {{"Step-3", PropDeactivated, {}, {}}})},
          {"Cavity",
           Record(FluidCavity, "Initial", steps, {{"Step-1", PropDeactivated, {}, {}}})}}),
      steps);
  EXPECT_EQ(Restarts(interactions, SurfaceContact, steps), (std::vector<int>{0, 0, 0, 1}));
}

TEST(OpStatus, KeysOfEachFamily) {
  const oif_BCOpStatus bcs;
  const oif_LoadOpStatus loads;
  const oif_FieldOpStatus fields;
  const oif_InteractionOpStatus interactions;
  EXPECT_EQ(bcs.Key(TypeIds::BoltLoad), 0);
  EXPECT_EQ(bcs.Key(0x2980028), 1);
  EXPECT_EQ(bcs.Key(0x2980031), 0);
  EXPECT_EQ(loads.Key(TypeIds::BoltLoad), 0);
  EXPECT_EQ(loads.Key(0x2880057), 2);
  EXPECT_EQ(loads.Key(0x2880012), 8);
  EXPECT_EQ(loads.Key(0x2880049), 15);
  EXPECT_EQ(loads.Key(0x288004B), 16);
  EXPECT_EQ(fields.Key(0x2EC001F), 6);
  EXPECT_EQ(interactions.Key(0x2A00070), 3);
  EXPECT_EQ(RaisedText([&] { bcs.Key(Pressure); }), "Unimplemented bc->statusKey conversion");
  EXPECT_EQ(RaisedText([&] { loads.Key(Displacement); }),
            "Unimplemented load->statusKey conversion");
  EXPECT_EQ(RaisedText([&] { fields.Key(Pressure); }), "Unimplemented field->statusKey conversion");
  EXPECT_EQ(RaisedText([&] { interactions.Key(FluidCavity); }),
            "\"Unimplemented interaction->statusKey conversion\" == 0");
}

TEST(OpStatus, CardDecisionTable) {
  struct Row {
    mdl_PropagationStatusEnm status;
    bool opNew;
    bool inLoadCase;
    bool write;
    bool header;
    bool opMod;
  };
  const Row rows[] = {
      {PropCreated, false, false, true, true, true},
      {PropCreated, true, false, true, true, false},
      {PropModifiedBase, false, false, true, true, true},
      {PropDeactivated, false, true, true, false, false},
      {PropPropagated, false, false, false, false, false},
      {PropPropagated, true, false, true, true, false},
      {PropPropagatedBase, false, true, true, false, false},
      {PropNotInForce, true, false, false, false, false},
      {PropFieldReset, true, true, false, false, false},
      {static_cast<mdl_PropagationStatusEnm>(14), true, false, false, false, false},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(::testing::Message() << row.status << " " << row.opNew << row.inLoadCase);
    const oif_OpStatus::CardDecision decision =
        oif_OpStatus::DecideCard(row.status, row.opNew, row.inLoadCase);
    EXPECT_EQ(decision.write, row.write);
    EXPECT_EQ(decision.blockHeader, row.header);
    EXPECT_EQ(decision.opMod, row.opMod);
  }
}

} // namespace
