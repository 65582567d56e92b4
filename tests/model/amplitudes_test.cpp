#include "model/json/derive.h"
#include "model/json/dumper.h"
#include "tests/model/loading.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace keydeck;

namespace {

std::vector<std::string> FaultsOf(const kamC_Amplitude& amplitude) {
  ddb_Model model;
  model.amplitudes_.Insert("A", amplitude);
  LoadErrors errors;
  DeriveModel("models/M", model, errors);
  return errors.Messages();
}

TEST(Amplitudes, TablesOfPairs) {
  kamC_Tabular tabular;
  tabular.data = {0, 0, 1, 1, 1, 2, 3, 3};
  EXPECT_EQ(FaultsOf(tabular), std::vector<std::string>{}); // a time may repeat: a jump
  tabular.data = {0, 0, 1, 1, 2};
  EXPECT_EQ(FaultsOf(tabular),
            std::vector<std::string>{
                "models/M/amplitudes/A/data: expected pairs of time and value, found 5 numbers"});
  tabular.data = {0, 0, 1, 1, 0.5, 2, 0.25, 3};
  EXPECT_EQ(FaultsOf(tabular), std::vector<std::string>{"models/M/amplitudes/A/data/4: the time "
                                                        "0.5 comes after the greater time 1"});
  kamC_SmoothStep step;
  step.data = {2, 0, -1, 1};
  EXPECT_EQ(FaultsOf(step), std::vector<std::string>{"models/M/amplitudes/A/data/2: the time -1 "
                                                     "comes after the greater time 2"});
  kamC_Periodic periodic;
  periodic.data = {3, 1, 2}; // terms, not times: any order
  EXPECT_EQ(FaultsOf(periodic),
            std::vector<std::string>{
                "models/M/amplitudes/A/data: expected pairs of terms A and B, found 3 numbers"});
  periodic.data = {3, 1, 2, 0};
  EXPECT_EQ(FaultsOf(periodic), std::vector<std::string>{});
  kamC_EquallySpaced spaced; // single values: any count
  spaced.data = {3, 1, 2};
  EXPECT_EQ(FaultsOf(spaced), std::vector<std::string>{});
}

std::string WithAmplitudes(const std::string& amplitudes) {
  return test::InModel(R"({"amplitudes": )" + amplitudes + "}");
}

TEST(Amplitudes, KindsByWord) {
  const odb_Odb odb = test::Load(WithAmplitudes(R"({
    "T": {"type": "tabular", "data": [0, 1, 2, 3], "timeSpan": "total"},
    "E": {"type": "equallySpaced", "fixedInterval": 0.5, "baseline": {"correctionIntervals": [1]}},
    "D": {"type": "decay", "a0": 1, "a": 2, "start": 3, "decayTime": 4}})"));
  const mdl_MapString2ObjCow<kamC_Amplitude>& amplitudes = test::OnlyModel(odb).amplitudes();
  const kamC_Tabular& tabular = RecordCast<kamC_Tabular>(amplitudes.ConstGet("T"));
  EXPECT_EQ(tabular.data, (cow_List<double>{0, 1, 2, 3}));
  EXPECT_EQ(tabular.timeSpan, kamC_Amplitude::TotalTime);
  EXPECT_EQ(tabular.smooth, NotGivenDouble);
  const kamC_EquallySpaced& spaced = RecordCast<kamC_EquallySpaced>(amplitudes.ConstGet("E"));
  ASSERT_TRUE(spaced.baseline.has_value());
  EXPECT_EQ(spaced.baseline->correctionIntervals, cow_List<double>{1});
  EXPECT_EQ(RecordCast<kamC_Decay>(amplitudes.ConstGet("D")).decayTime, 4);
  // Dumped and loaded again, the model is the same.
  EXPECT_EQ(DumpModel(test::Load(DumpModel(odb))), DumpModel(odb));
}

TEST(Amplitudes, Messages) {
  test::ExpectMessages({
      {"odd table",
       WithAmplitudes(R"({"A": {"type": "tabular", "data": [0, 0, 1]}})"),
       {"models/M/amplitudes/A/data: expected pairs of time and value, found 3 numbers"}},
      {"times back",
       WithAmplitudes(R"({"A": {"type": "smoothStep", "data": [0, 0, 2, 1, 1, 2]}})"),
       {"models/M/amplitudes/A/data/4: the time 1 comes after the greater time 2"}},
      {"a kind without its cards",
       WithAmplitudes(R"({"A": {"type": "spectrum"}})"),
       {"models/M/amplitudes/A/type: amplitude type \"spectrum\" is not supported yet"}},
      {"no type",
       WithAmplitudes(R"({"A": {"data": []}})"),
       {"models/M/amplitudes/A: missing field \"type\""}},
      {"a field of another kind",
       WithAmplitudes(R"({"A": {"type": "decay", "a0": 0, "a": 1, "start": 0, "decayTime": 1,
                               "data": []}})"),
       {"models/M/amplitudes/A: unknown field \"data\""}},
      {"not a number",
       WithAmplitudes(R"({"A": {"type": "tabular", "data": [0, "x"]}})"),
       {"models/M/amplitudes/A/data/1: expected a number, found a string"}},
  });
}

} // namespace
