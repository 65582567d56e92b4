#include "model/json/dumper.h"
#include "model/json/schema.h"
#include "model/steps.h"
#include "tests/model/loading.h"

#include <gtest/gtest.h>
#include <simdjson.h>

#include <string>
#include <vector>

using namespace keydeck;
using namespace keydeck::test;

namespace {

std::string WithSteps(const std::string& steps) {
  return InModel(R"({"steps": [{"name": "Initial"}, )" + steps + "]}");
}

const kprC_Step& StepOf(const odb_Odb& odb, int index) {
  return OnlyModel(odb).step().container().StepAt(index);
}

} // namespace

// The procedure word picks the class of an analysis step; a word the loader
// cannot place is refused at the word.
TEST(Steps, ProcedureWordMessages) {
  ExpectMessages({
      {"missing procedure",
       WithSteps(R"({"name": "S", "solverInput": 5})"),
       {R"(models/M/steps/1: missing field "procedure")"}},
      {"procedure not yet writable",
       WithSteps(
           R"({"name": "S", "procedure": "frequency"}, {"name": "T", "procedure": "buckle"})"),
       {R"(models/M/steps/1/procedure: procedure "frequency" is not supported yet)",
        R"(models/M/steps/2/procedure: procedure "buckle" is not supported yet)"}},
      {"procedure not a string",
       WithSteps(R"({"name": "S", "procedure": null})"),
       {"models/M/steps/1/procedure: expected a string, found null"}},
      {"other fields still checked once the class is known",
       WithSteps(R"({"solverInput": 1, "procedure": "static", "name": "S"})"),
       {"models/M/steps/1/solverInput: expected a string, found a number"}},
      {"procedure given twice",
       WithSteps(R"({"name": "S", "procedure": "static", "procedure": "visco"})"),
       {R"(models/M/steps/1: duplicate key "procedure")"}},
  });
}

// Every procedure class loads as itself wherever its word stands in the
// object, and a dump of it loads back to the same class.
TEST(Steps, EachProcedureClassRoundTrips) {
  std::string steps;
  std::vector<unsigned> ids;
  VisitKindClasses<kprC_AnalysisStep>([&](auto type) {
    using K = typename decltype(type)::type;
    const std::string word(FindEnumEntry(K::Kind)->fileText);
    // The three whose automatic increments need a tolerance take fixed ones.
    const bool fixed = word == "implicitDynamics" || word == "visco" || word == "massDiffusion";
    steps += (steps.empty() ? "" : ", ") + std::string(R"({"name": ")") + word +
             R"(", "solverInput": "x", )" + (fixed ? R"("incrementation": "fixed", )" : "") +
             R"("procedure": ")" + word + R"("})";
    ids.push_back(K::TypeId());
  });
  const odb_Odb odb = Load(WithSteps(steps));
  const std::string dump = DumpModel(odb);
  const odb_Odb again = Load(dump);
  EXPECT_EQ(DumpModel(again), dump);
  for (std::size_t i = 0; i < ids.size(); ++i) {
    const auto& step = RecordCast<kprC_AnalysisStep>(StepOf(again, static_cast<int>(i) + 1));
    EXPECT_EQ(step.DynTypeId(), ids[i]);
    EXPECT_EQ(step.ProcedureType(), ids[i]); // the type id is the procedure number
  }
  EXPECT_EQ(ids.size(), 13u);
}

// The schema offers one object per procedure class, told apart by its word.
TEST(Steps, SchemaListsOneObjectPerProcedure) {
  simdjson::dom::parser parser;
  const std::string text = ModelSchema();
  const simdjson::dom::element schema = parser.parse(text);
  const simdjson::dom::array kinds = schema["properties"]["models"]["additionalProperties"]
                                           ["properties"]["steps"]["items"]["oneOf"];
  std::vector<std::string> words;
  for (const simdjson::dom::element kind : kinds)
    words.emplace_back(std::string_view(kind["properties"]["procedure"]["const"]));
  std::vector<std::string> expected;
  VisitKindClasses<kprC_AnalysisStep>([&](auto type) {
    expected.emplace_back(FindEnumEntry(decltype(type)::type::Kind)->fileText);
  });
  EXPECT_EQ(words, expected);
  EXPECT_EQ(words.front(), "anneal");
}

TEST(Steps, FieldAndValueMessages) {
  ExpectMessages({
      {"field of another procedure",
       WithSteps(R"({"name": "S", "procedure": "anneal", "timePeriod": 2})"),
       {R"(models/M/steps/1: unknown field "timePeriod" for procedure "anneal")"}},
      {"negative time period",
       WithSteps(R"({"name": "S", "procedure": "static", "timePeriod": -1})"),
       {"models/M/steps/1/timePeriod: the time period must not be negative, found -1"}},
      {"negative explicit time period",
       WithSteps(R"({"name": "S", "procedure": "explicitDynamics", "timePeriod": -0.5})"),
       {"models/M/steps/1/timePeriod: the time period must not be negative, found -0.5"}},
      {"initial increment beyond the period",
       WithSteps(R"({"name": "S", "procedure": "visco", "cetol": 1, "initialIncrement": 2})"),
       {"models/M/steps/1/initialIncrement: the initial increment 2 is larger than the time "
        "period 1"}},
      {"smallest increment beyond the largest",
       WithSteps(R"({"name": "S", "procedure": "static", "minIncrement": 0.5,
                     "maxIncrement": 0.25})"),
       {"models/M/steps/1/minIncrement: the smallest increment 0.5 is larger than the largest "
        "0.25"}},
      {"tolerance that automatic increments need",
       WithSteps(R"({"name": "S", "procedure": "implicitDynamics"})"),
       {R"(models/M/steps/1: missing field "haftol", which automatic incrementation needs)"}},
      {"user-fixed explicit increments without their size",
       WithSteps(R"({"name": "S", "procedure": "tempDisplacementDynamics",
                     "incrementation": "userFixed"})"),
       {R"(models/M/steps/1: missing field "initialIncrement", which the userFixed )"
        "incrementation needs"}},
      {"mass scaling of an unknown kind",
       WithSteps(R"({"name": "S", "procedure": "explicitDynamics",
                     "massScaling": [{"kind": "rolling"}]})"),
       {R"(models/M/steps/1/massScaling/0/kind: unknown mass scaling "rolling"; expected one of )"
        "fixed, variable, reinitialize, disable"}},
      {"description of two lines",
       WithSteps(R"({"name": "S", "procedure": "geostatic", "description": "a\nb"})"),
       {"models/M/steps/1/description: a description is one line; it holds a line end"}},
      {"Riks limit node that does not exist",
       WithSteps(R"({"name": "S", "procedure": "staticRiks", "limitNode": "Tip"})"),
       {R"(models/M/steps/1/limitNode: no set "Tip" in the assembly)"}},
  });
}

// The increment sizes a step leaves out follow its period.
TEST(Steps, IncrementSizesFollowThePeriod) {
  const odb_Odb odb = Load(WithSteps(R"({"name": "S", "procedure": "static", "timePeriod": 4},
      {"name": "T", "procedure": "static", "timePeriod": 4, "initialIncrement": 1e-6})"));
  const auto& first = RecordCast<kprC_StaticStep>(StepOf(odb, 1));
  EXPECT_EQ(first.initialInc, 4);
  EXPECT_EQ(first.maxInc, 4);
  EXPECT_EQ(first.minInc, 4e-5);
  const auto& second = RecordCast<kprC_StaticStep>(StepOf(odb, 2));
  EXPECT_EQ(second.minInc, 1e-6); // never above the initial increment
}
