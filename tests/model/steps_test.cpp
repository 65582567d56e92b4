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
    steps += (steps.empty() ? "" : ", ") + std::string(R"({"name": ")") + word +
             R"(", "solverInput": "x", "procedure": ")" + word + R"("})";
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
