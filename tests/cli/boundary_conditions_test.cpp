// Boundary conditions through the command: the cards each step gets under
// the propagation rule, and what the command says of a bad condition.
#include "tests/support/deck_text.h"
#include "tests/support/run_keydeck.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;
using keydeck::test::ReadFile;

// One beam instance with node sets "Fixed" and "Tip" and element set "All";
// an assembly node set "x.y" only where a test adds it; an amplitude "Ramp";
// steps Step-1 to Step-3 after the initial step. `extra` goes into the
// model object, `steps` replaces the step list.
std::string ModelText(const std::string& extra, const std::string& stepList = "") {
  const std::string steps =
      stepList.empty() ? R"([{"name": "Initial"}, {"name": "Step-1", "procedure": "static"},
          {"name": "Step-2", "procedure": "static"}, {"name": "Step-3", "procedure": "static"}])"
                       : stepList;
  return R"({"format": "keydeck-model", "version": 1, "models": {"M": {
    "parts": {"Beam": {
      "nodes": {"labels": [1, 2, 3], "coordinates": [[0, 0, 0], [1, 0, 0], [2, 0, 0]]},
      "elements": [{"type": "B31", "labels": [1, 2], "connectivity": [[1, 2], [2, 3]]}],
      "sets": {"Fixed": {"nodes": [1]}, "Tip": {"nodes": [3]}, "All": {"elements": [1, 2]}}}},
    "assembly": {"instances": {"Beam-1": {"part": "Beam"}}},
    "amplitudes": {"Ramp": {"type": "tabular", "data": [0, 0, 1, 1]}},
    "steps": )" +
         steps + ",\n" + extra + "}}}";
}

class BoundaryConditionsCommand : public keydeck::test::CommandTest {
protected:
  // Runs "keydeck write" on `text`; returns the exit status, stderr in `err`.
  int Write(const std::string& text, std::string& err) const {
    const fs::path model = folder_ / "model.json";
    std::ofstream(model) << text;
    const keydeck::test::Outcome outcome = keydeck::test::RunKeydeck(
        {"write", "-q", "-m", "M", "-o", Out().string(), model.string()}, folder_);
    err = outcome.err;
    return outcome.status;
  }
  // The deck from the first "*Step" on, for a model that writes.
  std::string Steps(const std::string& text) const {
    std::string err;
    EXPECT_EQ(Write(text, err), 0) << err;
    const std::string deck =
        keydeck::test::WithoutNoOutputLines(ReadFile((Out() / "model.inp").string()));
    const std::size_t at = deck.find("** STEP: Step-1");
    return at == std::string::npos ? deck : deck.substr(at);
  }
  // Checks that each model fails with exactly its message and writes nothing.
  void ExpectFailures(const std::pair<std::string, std::string>* cases, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      SCOPED_TRACE(i);
      std::string err;
      EXPECT_EQ(Write(cases[i].first, err), 1);
      EXPECT_EQ(err, "keydeck: " + cases[i].second);
      EXPECT_EQ(Written(), std::vector<std::string>{});
    }
  }
};

// The banner between steps, as the step builder writes it.
const std::string Banner = "** ----------------------------------------------------------------\n";

std::string StepHead(const char* name) {
  return std::string("** \n** STEP: ") + name + "\n** \n*Step, name=" + name +
         "\n*Static\n1., 1., 1e-05, 1.\n";
}

TEST_F(BoundaryConditionsCommand, AmplitudeSetInStepTwoPropagatesSilentlyInStepThree) {
  // Set in Step-2 with only the amplitude: every value is written again,
  // in place; Step-3 inherits it and writes nothing.
  const std::string deck = Steps(ModelText(R"("boundaryConditions": {"Pull": {
      "type": "displacement", "region": "Beam-1.Tip", "createdIn": "Step-1", "u1": 0.5, "u2": 0,
      "steps": {"Step-2": {"amplitude": "Ramp"}}}})"));
  EXPECT_EQ(deck, StepHead("Step-1").substr(4) +
                      "** \n** BOUNDARY CONDITIONS\n** \n"
                      "** Name: Pull Type: Displacement/Rotation\n*Boundary\n"
                      "Beam-1.Tip, 1, 1, 0.5\nBeam-1.Tip, 2, 2\n*End Step\n" +
                      Banner + StepHead("Step-2") +
                      "** \n** BOUNDARY CONDITIONS\n** \n"
                      "** Name: Pull Type: Displacement/Rotation\n*Boundary, amplitude=Ramp\n"
                      "Beam-1.Tip, 1, 1, 0.5\nBeam-1.Tip, 2, 2\n*End Step\n" +
                      Banner + StepHead("Step-3") + "*End Step\n");
}

TEST_F(BoundaryConditionsCommand, ChangedValueAloneIsWrittenInPlace) {
  const std::string deck = Steps(ModelText(R"("boundaryConditions": {"Pull": {
      "type": "displacement", "region": "Beam-1.Tip", "createdIn": "Step-1", "u1": 0.5, "u2": 0,
      "steps": {"Step-3": {"u1": 2}}}})"));
  const std::string step3 = deck.substr(deck.find("** STEP: Step-3"));
  EXPECT_NE(step3.find("*Boundary\nBeam-1.Tip, 1, 1, 2.\n*End Step"), std::string::npos) << step3;
  EXPECT_EQ(deck.find("** STEP: Step-2") + 1, deck.rfind("** STEP: Step-2") + 1);
  const std::string step2 = deck.substr(deck.find("** STEP: Step-2"), step3.size());
  EXPECT_EQ(step2.find("*Boundary"), std::string::npos) << step2;
}

TEST_F(BoundaryConditionsCommand, DeactivationRestartsTheClassAndRewritesTheOthers) {
  const std::string deck = Steps(ModelText(R"("boundaryConditions": {
      "Fix": {"type": "displacement", "region": "Beam-1.Fixed", "createdIn": "Initial",
              "fixed": true, "u1": 0, "u2": 0},
      "Pull": {"type": "displacement", "region": "Beam-1.Tip", "createdIn": "Step-1", "u1": 0.5,
               "steps": {"Step-3": {"status": "deactivated"}}},
      "Spin": {"type": "velocity", "region": "Beam-1.Tip", "createdIn": "Step-2", "vr3": 1.5}})"));
  const std::string step3 = deck.substr(deck.find("** STEP: Step-3"));
  EXPECT_EQ(step3, "** STEP: Step-3\n** \n*Step, name=Step-3\n*Static\n1., 1., 1e-05, 1.\n"
                   "** \n** BOUNDARY CONDITIONS\n** \n"
                   "** Name: Fix Type: Displacement/Rotation\n"
                   "*Boundary, op=NEW, fixed\nBeam-1.Fixed, 1, 1\nBeam-1.Fixed, 2, 2\n"
                   "** Name: Pull Type: Displacement/Rotation\n*Boundary, op=NEW\n"
                   "** Name: Spin Type: Velocity/Angular velocity\n"
                   "*Boundary, op=NEW, type=VELOCITY\nBeam-1.Tip, 6, 6, 1.5\n*End Step\n");
}

TEST_F(BoundaryConditionsCommand, LoadCasesTakeTheirOwnConditionsScaledOrAWipe) {
  const std::string steps = R"([{"name": "Initial"}, {"name": "Step-1", "procedure": "static",
      "loadCases": {"A": {"boundaryConditions": {"Pull": {"scale": 2}}}, "B": {}}}])";
  const std::string deck = Steps(ModelText(R"("boundaryConditions": {"Pull": {
      "type": "displacement", "region": "Beam-1.Tip", "createdIn": "Step-1", "u1": 0.5,
      "u3": -1}})",
                                           steps));
  EXPECT_EQ(deck.substr(deck.find("** \n** LOAD CASES")),
            "** \n** LOAD CASES\n** \n*Load Case, name=A\n"
            "** Name: Pull Type: Displacement/Rotation   Scale factor: 2\n"
            "*Boundary, op=NEW\nBeam-1.Tip, 1, 1, 1.\nBeam-1.Tip, 3, 3, -2.\n*End Load Case\n"
            "*Load Case, name=B\n*Boundary, op=NEW\n*End Load Case\n*End Step\n");
}

TEST_F(BoundaryConditionsCommand, BaseNameAndDatumSystem) {
  const std::string text = ModelText(R"("boundaryConditions": {"__basename__Rail": {
      "type": "symmetry", "region": "Beam-1.Tip", "createdIn": "Step-1", "symmetry": "encastre"}})");
  const std::string deck = Steps(text);
  EXPECT_NE(deck.find("** Name: Rail Type: Symmetry/Antisymmetry/Encastre\n"
                      "*Boundary, base name=Rail\nBeam-1.Tip, ENCASTRE\n"),
            std::string::npos)
      << deck;
}

TEST_F(BoundaryConditionsCommand, BadConditionsFailWithTheirPath) {
  const std::string at = "models/M/boundaryConditions/";
  const auto bc = [](const std::string& fields) {
    return ModelText(R"("boundaryConditions": {"BC": {"type": "displacement", )" + fields + "}}");
  };
  const std::pair<std::string, std::string> cases[] = {
      {bc(R"("region": "Beam-1.Nope", "createdIn": "Step-1", "u1": 0)"),
       at + "BC/region: no set \"Nope\" in instance \"Beam-1\"\n"},
      {bc(R"("region": "Beam-1.All", "createdIn": "Step-1", "u1": 0)"),
       at + "BC/region: \"Beam-1.All\" is an element set; a boundary condition acts on a node "
            "set\n"},
      {bc(R"("region": "Beam-1.Tip", "createdIn": "Step-1", "u1": 0, "amplitude": "Nope")"),
       at + "BC/amplitude: no amplitude \"Nope\"\n"},
      {bc(R"("region": "Beam-1.Tip", "createdIn": "Step-1", "u1": 0,
             "steps": {"Step-2": {"amplitude": "Nope"}})"),
       at + "BC/steps/Step-2/amplitude: no amplitude \"Nope\"\n"},
      {bc(R"("region": "Beam-1.Tip", "createdIn": "Step-1", "u1": 0, "csys": "Nope")"),
       at + "BC/csys: no datum \"Nope\" in the assembly or its instances\n"},
      {bc(R"("region": "Beam-1.Tip", "createdIn": "Step-1", "magnitude": 1)"),
       at + "BC: unknown field \"magnitude\"\n"},
      {ModelText(R"("boundaryConditions": {"T": {"type": "temperature", "region": "Beam-1.Tip",
                    "createdIn": "Step-1", "magnitude": 20, "dofs": [11, 5]}})"),
       at + "T/dofs/1: degree of freedom 5 is outside 11 to 99\n"},
      {ModelText(R"("boundaryConditions": {"S": {"type": "submodel", "region": "Beam-1.Tip",
                    "createdIn": "Step-1", "globalStep": "1", "dofs": [1, 7]}})"),
       at + "S/dofs/1: degree of freedom 7 is outside 1 to 6\n"},
      {ModelText(R"("boundaryConditions": {})",
                 R"([{"name": "Initial"}, {"name": "Step-1", "procedure": "static",
                     "loadCases": {"A": {"boundaryConditions": {"Nope": {}}}}}])"),
       "models/M/steps/1/loadCases/A/boundaryConditions/Nope: no boundary condition \"Nope\"\n"},
      {ModelText(R"("boundaryConditions": {})",
                 R"([{"name": "Initial"}, {"name": "Step-1", "procedure": "static",
                     "loadCases": {"A": {"loads": {"Nope": {"scale": 2}}}}}])"),
       "models/M/steps/1/loadCases/A/loads/Nope: no load \"Nope\"\n"},
      {ModelText(R"("boundaryConditions": {})",
                 R"([{"name": "Initial"}, {"name": "Step-1", "procedure": "static",
                     "loadCases": {"A": {"baseStateOnly": true, "loads": {"Nope": {}}}}}])"),
       "models/M/steps/1/loadCases/A/loads/Nope: no load \"Nope\"\n"
       "models/M/steps/1/loadCases/A/loads: a load case with \"baseStateOnly\" takes no loads "
       "of its own\n"},
  };
  ExpectFailures(cases, std::size(cases));
}

TEST_F(BoundaryConditionsCommand, StepEntriesThatBreakThePropagationRule) {
  const std::string at = "models/M/boundaryConditions/BC/";
  const auto bc = [](const std::string& createdIn, const std::string& steps) {
    return ModelText(R"("boundaryConditions": {"BC": {"type": "displacement",
        "region": "Beam-1.Tip", "createdIn": ")" +
                     createdIn + R"(", "u1": 1, "steps": )" + steps + "}}");
  };
  const std::pair<std::string, std::string> cases[] = {
      {bc("Step-1", R"({"Step-9": {"u1": 2}})"), at + "steps/Step-9: no step \"Step-9\"\n"},
      {bc("Step-9", "{}"), at + "createdIn: no step \"Step-9\"\n"},
      {bc("Step-2", R"({"Step-1": {"u1": 2}})"),
       at + "steps/Step-1: this step comes before the step \"Step-2\" that creates the "
            "condition\n"},
      {bc("Step-1", R"({"Step-2": {"status": "deactivated"}, "Step-3": {"u1": 2}})"),
       at + "steps/Step-3: the condition is deactivated in the step \"Step-2\"; give "
            "\"status\": \"created\" to create it again first\n"},
      {bc("Step-1", R"({"Step-2": {"u1": 2}, "Step-2": {"u1": 3}})"),
       at + "steps: duplicate key \"Step-2\"\n"},
      {bc("Step-1", R"({"Step-2": {"v1": 2}})"), at + "steps/Step-2: unknown field \"v1\"\n"},
  };
  ExpectFailures(cases, std::size(cases));
}

TEST_F(BoundaryConditionsCommand, DottedSetNamesAreRefused) {
  // The deck would print set "x.y" of the assembly exactly as set "y" of an
  // instance "x", so such a name never reaches a deck.
  const std::string text = R"({"format": "keydeck-model", "version": 1, "models": {"M": {
    "parts": {"P": {"nodes": {"labels": [1], "coordinates": [[0, 0, 0]]},
                    "sets": {"y": {"nodes": [1]}, "a.b": {"nodes": [1]}}}},
    "assembly": {"instances": {"x": {"part": "P"}},
                 "sets": {"x.y": {"nodes": [{"instance": "x", "labels": [1]}]}}}}}})";
  const std::pair<std::string, std::string> cases[] = {
      {text, "models/M/parts/P/sets/a.b: a set name must not hold a dot: the deck would read "
             "\"a.b\" as an instance and one of its sets\n"
             "models/M/assembly/sets/x.y: a set name must not hold a dot: the deck would read "
             "\"x.y\" as an instance and one of its sets\n"},
  };
  ExpectFailures(cases, std::size(cases));
}

} // namespace
