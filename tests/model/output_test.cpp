// The output records: the variable table, the order of normalised requests,
// and what the loader says of output requests.
#include "model/output.h"
#include "model/output_variables.h"
#include "tests/model/loading.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

using namespace keydeck;
using namespace keydeck::test;

namespace {

std::vector<std::string> Names(const cow_List<cow_String>& list) {
  std::vector<std::string> names;
  for (const cow_String& name : list)
    names.emplace_back(name.View());
  return names;
}

bool Holds(const cow_List<cow_String>& list, const char* name) {
  return list.IsMember(cow_String(name));
}

} // namespace

// Every procedure a step can carry writes something for "PRESELECT", and
// each default is a variable the procedure knows in that channel.
TEST(OutputVariables, EveryProcedureOfAStepHasItsDefaults) {
  VisitKindClasses<kprC_AnalysisStep>([](auto type) {
    using Step = typename decltype(type)::type;
    const unsigned procedure = Step::Kind;
    SCOPED_TRACE(FindEnumEntry(Step::Kind)->fileText);
    const cow_List<cow_String> field = korC_OdbRequestTable::Defaults(true, procedure);
    EXPECT_FALSE(field.Empty());
    for (const bool isField : {true, false})
      for (const cow_String& name : korC_OdbRequestTable::Defaults(isField, procedure)) {
        EXPECT_TRUE(korC_OdbRequestTable::IsKnown(name.View(), procedure, isField)) << name.View();
        EXPECT_TRUE(Holds(korC_OdbRequestTable::All(isField, procedure), name.View().data()));
      }
  });
  EXPECT_EQ(Names(korC_OdbRequestTable::Defaults(true, kprC_Static)),
            (std::vector<std::string>{"U", "RF", "CF", "S", "E", "PE", "PEEQ", "PEMAG", "CSTRESS",
                                      "CDISP"}));
  EXPECT_EQ(Names(korC_OdbRequestTable::Defaults(true, kprC_HeatTransfer)),
            (std::vector<std::string>{"NT", "RFL", "HFL"}));
  // The energy balance is the history default of stress steps with increments.
  EXPECT_TRUE(Holds(korC_OdbRequestTable::Defaults(false, kprC_Static), "ALLIE"));
  EXPECT_TRUE(Holds(korC_OdbRequestTable::Defaults(false, kprC_ExplicitDynamics), "ALLMW"));
  EXPECT_FALSE(Holds(korC_OdbRequestTable::Defaults(false, kprC_Static), "ALLMW"));
  EXPECT_TRUE(korC_OdbRequestTable::Defaults(false, kprC_HeatTransfer).Empty());
}

TEST(OutputVariables, ComponentsParentsAndProcedures) {
  // A tensor component stands for its tensor; an invariant prints as itself.
  EXPECT_FALSE(korC_OdbRequestTable::IsParentRequest("S11", kprC_Static));
  EXPECT_TRUE(korC_OdbRequestTable::IsComponentRequest("S11", kprC_Static));
  EXPECT_EQ(korC_OdbRequestTable::RequestFromComponent("S23", kprC_Static), "S");
  EXPECT_EQ(korC_OdbRequestTable::RequestFromComponent("MISES", kprC_Static), "SINV");
  EXPECT_FALSE(korC_OdbRequestTable::Request("S", kprC_Static).aliases);
  EXPECT_TRUE(korC_OdbRequestTable::Request("SINV", kprC_Static).aliases);
  EXPECT_EQ(korC_OdbRequestTable::RequestFromComponent("CPRESS", kprC_Static), "CSTRESS");
  EXPECT_EQ(korC_OdbRequestTable::RequestFromComponent("UR3", kprC_Static), "U");
  EXPECT_EQ(korC_OdbRequestTable::RequestFromComponent("U", kprC_Static), "");

  // Kinds and positions decide the card.
  EXPECT_EQ(korC_OdbRequestTable::Request("U", kprC_Static).kind, korC_NodeKind);
  EXPECT_EQ(korC_OdbRequestTable::Request("CSTRESS", kprC_Static).kind, korC_ContactOrElementKind);
  EXPECT_EQ(korC_OdbRequestTable::Request("ALLIE", kprC_Static).kind, korC_EnergyKind);
  EXPECT_EQ(korC_OdbRequestTable::Request("RBFOR", kprC_Static).position, korC_RebarLayer);

  // What exists follows the physics of the procedure and the channel.
  const struct {
    const char* name;
    unsigned procedure;
    bool isField;
    bool known;
  } cases[] = {
      {"V", kprC_Static, true, false},
      {"V", kprC_ExplicitDynamics, true, true},
      {"NT11", kprC_Static, true, false},
      {"NT11", kprC_HeatTransfer, true, true},
      {"NT", kprC_CoupledTempDisplacement, false, true},
      {"S", kprC_HeatTransfer, true, false},
      {"ALLIE", kprC_Static, true, false},
      {"ALLIE", kprC_Static, false, true},
      {"ALLIE", kprC_Anneal, false, false},
      {"DT", kprC_Static, false, false},
      {"DT", kprC_TempDisplacementDynamics, false, true},
      {"POR", kprC_Soils, true, true},
      {"EPOT", kprC_CoupledThermalElectric, true, true},
      {"CONC", kprC_MassDiffusion, true, true},
      {"PRESELECT", kprC_Static, true, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.name) + " in " +
                 FindEnumEntry(kprC_ProcedureEnm(c.procedure))->fileText.data());
    EXPECT_EQ(korC_OdbRequestTable::IsKnown(c.name, c.procedure, c.isField), c.known);
  }
}

TEST(OutputVariables, InvalidPrintIdentifiersAreThoseOfOtherKinds) {
  const cow_List<cow_String> asked{"U1", "S", "CSTRESS", "NOSUCH", "RF"};
  EXPECT_EQ(
      Names(korC_OdbRequestTable::GetInvalidPrintIdentifiers(asked, kprC_Static, {korC_NodeKind})),
      (std::vector<std::string>{"S", "CSTRESS"}));
  EXPECT_EQ(Names(korC_OdbRequestTable::GetInvalidPrintIdentifiers(
                asked, kprC_Static, {korC_ElementKind, korC_ContactOrElementKind})),
            (std::vector<std::string>{"U1", "RF"}));
}

// The order of normalised requests: frequency first, so that requests that
// may share an "*Output" line stand together; then how the variables are
// chosen, the domain, the region and the label.
TEST(OutputRequests, SortOrderAndEquality) {
  const auto request = [](korC_FrequencyTypeEnm kind, int value, int variablesType,
                          const char* path, const char* label) {
    korC_OdbRequest r;
    r.frequencyType = kind;
    r.frequency = kind == korC_EveryIncrements ? value : 0;
    r.numberInterval = kind == korC_NumberIntervals ? value : 0;
    r.variablesType = variablesType;
    if (path[0] != '\0') {
      r.region.path = path;
      r.region.setIndex = 0;
      r.region.set.type = res_NodeSet;
    }
    r.label = label;
    return r;
  };
  std::vector<korC_OdbRequest> requests = {
      request(korC_NumberIntervals, 10, korC_ListedVariables, "", "h"),
      request(korC_EveryIncrements, 5, korC_PreselectVariables, "", "g"),
      request(korC_EveryIncrements, 1, korC_AllVariables, "", "f"),
      request(korC_EveryIncrements, 1, korC_ListedVariables, "b", "e"),
      request(korC_EveryIncrements, 1, korC_ListedVariables, "a", "d"),
      request(korC_EveryIncrements, 1, korC_ListedVariables, "", "c"),
      request(korC_EveryIncrements, 1, korC_PreselectVariables, "", "b"),
  };
  std::sort(requests.begin(), requests.end());
  std::string labels;
  for (const korC_OdbRequest& r : requests)
    labels += r.label.View();
  EXPECT_EQ(labels, "cdebfgh");

  korC_OdbRequest a = request(korC_EveryIncrements, 1, korC_ListedVariables, "", "x");
  korC_OdbRequest b = request(korC_EveryIncrements, 1, korC_ListedVariables, "", "y");
  EXPECT_TRUE(a == b); // the label does not tell them apart
  b.variables.Append("U");
  EXPECT_FALSE(a == b);
  EXPECT_TRUE(a.EqualFrequency(b));
  b.timeMarks = true; // time marks matter only to intervals, time intervals and time points
  EXPECT_TRUE(a.EqualFrequency(b));
  a.frequencyType = b.frequencyType = korC_EveryTimeInterval;
  EXPECT_FALSE(a.EqualFrequency(b));
}

TEST(OutputRequests, LoadsWithRegionsAndSteps) {
  const odb_Odb odb = Load(InModel(R"({
      "parts": {"P": {"nodes": {"labels": [1], "coordinates": [[0, 0, 0]]},
                      "sets": {"Tip": {"nodes": [1]}}}},
      "assembly": {"instances": {"P-1": {"part": "P"}}},
      "steps": [{"name": "Initial"}, {"name": "One", "procedure": "static"},
                {"name": "Two", "procedure": "static"}],
      "fieldOutputRequests": {"F": {"createdIn": "One", "region": "P-1.Tip",
                                    "variables": ["U"], "frequency": {"every": 2},
                                    "steps": {"Two": {"variables": ["ALL"]}}}}})"));
  const korC_FieldOutput& request =
      RecordCast<korC_FieldOutput>(OnlyModel(odb).fieldOutputs_.ConstGet("F"));
  EXPECT_EQ(request.DomainType(), korC_SetDomain);
  EXPECT_EQ(RegionKindBits(request.regionData), NodeRegionBit);
  EXPECT_EQ(request.ConstGetState("One").VariablesType(), korC_ListedVariables);
  EXPECT_EQ(request.ConstGetState("Two").VariablesType(), korC_AllVariables);
  EXPECT_EQ(request.ConstGetState("Two").frequency.State(), mdl_AttributePropagated);
  EXPECT_EQ(request.ConstGetState("Two").frequency.ConstGet().every, 2);
}

TEST(OutputRequests, LoaderMessages) {
  // A static step, and a heat transfer step after it for the cases that need one.
  const auto model = [](const std::string& requests, bool heat = false) {
    return InModel(R"({"steps": [{"name": "Initial"}, {"name": "Load", "procedure": "static"})" +
                   std::string(heat ? R"(, {"name": "Heat", "procedure": "heatTransfer"})" : "") +
                   "], " + requests + "}");
  };
  const std::string field = "models/M/fieldOutputRequests/F";
  const std::string history = "models/M/historyOutputRequests/H";
  ExpectMessages({
      {"unknown variable",
       model(R"("fieldOutputRequests": {"F": {"createdIn": "Load", "variables": ["U", "UX"]}})"),
       {field + "/variables: \"UX\" is not a field output variable of the static procedure of "
                "step \"Load\""}},
      {"a history variable in field output",
       model(R"("fieldOutputRequests": {"F": {"createdIn": "Load", "variables": ["ALLIE"]}})"),
       {field + "/variables: \"ALLIE\" is not a field output variable of the static procedure "
                "of step \"Load\""}},
      {"inherited into a procedure that lacks it",
       model(R"("historyOutputRequests": {"H": {"createdIn": "Load", "variables": ["ALLIE"]}})",
             true),
       {history + "/variables: \"ALLIE\" is not a history output variable of the heatTransfer "
                  "procedure of step \"Heat\""}},
      {"changed in a later step",
       model(R"("fieldOutputRequests": {"F": {"createdIn": "Load",
                "steps": {"Heat": {"variables": ["NT", "S11"]}}}})",
             true),
       {field + "/steps/Heat/variables: \"S11\" is not a field output variable of the "
                "heatTransfer procedure of step \"Heat\""}},
      {"symbols stand alone",
       model(R"("fieldOutputRequests": {"F": {"createdIn": "Load", "variables": ["U", "ALL"]}})"),
       {field + "/variables/1: \"ALL\" stands alone"}},
      {"one frequency kind",
       model(R"("fieldOutputRequests": {"F": {"createdIn": "Load",
                "frequency": {"every": 1, "intervals": 10}}})"),
       {field + "/frequency: give exactly one of \"every\", \"intervals\", \"timeInterval\", "
                "\"modes\" and \"timePoints\""}},
      {"frequency values",
       model(R"("fieldOutputRequests": {"F": {"createdIn": "Load", "frequency": {"intervals": 0}},
                "G": {"createdIn": "Load", "frequency": {"every": -1}}})"),
       {field + "/frequency/intervals: the intervals must be 1 or more, found 0",
        "models/M/fieldOutputRequests/G/frequency/every: the increments between outputs must "
        "be 0 or more, found -1"}},
      {"a kind the procedure does not allow",
       model(R"("fieldOutputRequests": {"F": {"createdIn": "Load", "frequency": {"modes": [1]}}})"),
       {field + "/frequency: the static procedure of step \"Load\" cannot write output at modes"}},
      {"what a step writes after its output",
       InModel(R"({"steps": [{"name": "Initial"},
                {"name": "Load", "procedure": "static", "controls": {}}]})"),
       {"models/M/steps/1/controls: solution controls are not supported yet"}},
      {"unknown region",
       model(R"("fieldOutputRequests": {"F": {"createdIn": "Load", "region": "Nowhere"}})"),
       {field + "/region: no set \"Nowhere\" in the assembly"}},
  });
}
