// Steps as a user of the command meets them: the deck's step blocks, and the
// step faults of a model file refused with a message and no deck.
#include "tests/support/run_keydeck.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using keydeck::test::Outcome;
using keydeck::test::ReadFile;
using keydeck::test::RunKeydeck;

class StepCommand : public keydeck::test::CommandTest {
protected:
  // Writes a model whose steps after the initial one are `steps`, runs
  // `keydeck write` on it.
  Outcome Write(const std::string& steps) {
    const fs::path model = folder_ / "job.json";
    std::ofstream(model, std::ios::binary)
        << R"({"format": "keydeck-model", "version": 1, "models": {"Default Model": {
             "parts": {"P": {"nodes": {"labels": [1, 2], "coordinates": [[0, 0, 0], [1, 0, 0]]},
                            "sets": {"All": {"nodes": [1]}, "Two": {"nodes": [1, 2]}}}},
             "assembly": {"instances": {"P-1": {"part": "P"}}},
             "steps": [{"name": "Initial"}, )"
        << steps << "]}}}";
    return RunKeydeck({"write", model.string(), "-o", folder_.string()}, folder_);
  }
  std::string Deck() const { return ReadFile((folder_ / "job.inp").string()); }
  bool DeckExists() const { return fs::exists(folder_ / "job.inp"); }
};

TEST_F(StepCommand, WritesStepCardAndProcedureWithoutWarning) {
  const Outcome run = Write(R"({"name": "Pull", "procedure": "static", "nlgeom": true})");
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.err, "");
  EXPECT_NE(Deck().find("** STEP: Pull\n** \n*Step, name=Pull, nlgeom=YES\n*Static\n"
                        "1., 1., 1e-05, 1.\n*Output, field, frequency=0\n"
                        "*Output, history, frequency=0\n*End Step\n"),
            std::string::npos)
      << Deck();
}

TEST_F(StepCommand, StepFaultsExitOneWithoutDeck) {
  const std::pair<const char*, const char*> cases[] = {
      {R"({"name": "S", "procedure": "static", "timePeriod": -2})",
       "models/Default Model/steps/1/timePeriod: the time period must not be negative, found -2"},
      {R"({"name": "S", "procedure": "static", "initialIncrement": 3})",
       "models/Default Model/steps/1/initialIncrement: the initial increment 3 is larger than "
       "the time period 1"},
      {R"({"name": "S", "procedure": "static", "minIncrement": 1, "maxIncrement": 0.5})",
       "models/Default Model/steps/1/minIncrement: the smallest increment 1 is larger than the "
       "largest 0.5"},
      {R"({"name": "S", "procedure": "heatTransfer", "nlgeom": true})",
       R"(models/Default Model/steps/1: unknown field "nlgeom" for procedure "heatTransfer")"},
      {R"({"name": "S", "procedure": "staticRiks", "limitNode": "P-1.Tip"})",
       R"(models/Default Model/steps/1/limitNode: no set "Tip" in instance "P-1")"},
      {R"({"name": "S", "procedure": "frequency"})",
       R"(models/Default Model/steps/1/procedure: procedure "frequency" is not supported yet)"},
      {R"({"name": "S", "procedure": "static", "monitor": {"node": "P-1.Tip"}})",
       R"(models/Default Model/steps/1/monitor/node: no set "Tip" in instance "P-1")"},
      {R"({"name": "S", "procedure": "static", "monitor": {"node": "P-1.All", "dof": 31}})",
       "models/Default Model/steps/1/monitor/dof: degree of freedom 31 is outside 1 to 30"},
      {R"({"name": "S", "procedure": "static", "monitor": {"node": "P-1.Two"}})",
       R"(models/Default Model/steps/1/monitor/node: "P-1.Two" is not a node set of one node)"},
      {R"({"name": "S", "procedure": "explicitDynamics",
           "massScaling": [{"kind": "fixed", "region": "P-1.All"}]})",
       "models/Default Model/steps/1/massScaling/0/region: \"P-1.All\" is not an element set; "
       "mass scaling acts on elements"},
      {R"({"name": "S", "procedure": "static", "monitor": {"dof": 1}})",
       R"(models/Default Model/steps/1/monitor: missing field "node")"},
      {R"({"name": "S", "procedure": "static", "monitor": {"node": "P-1.All", "every": 0}})",
       "models/Default Model/steps/1/monitor/every: the increments between reports must be 1 "
       "or more, found 0"},
      {R"({"name": "S", "procedure": "static", "restart": {"intervals": -1}})",
       "models/Default Model/steps/1/restart/intervals: the intervals must be 0 or more, found -1"},
      {R"({"name": "S", "procedure": "explicitDynamics", "restart": {"intervals": 0}})",
       "models/Default Model/steps/1/restart/intervals: the intervals must be 1 or more, found 0"},
      {R"({"name": "S", "procedure": "explicitDynamics",
           "massScaling": [{"kind": "variable", "factor": 2, "every": 1}]})",
       "models/Default Model/steps/1/massScaling/0/factor: only a fixed mass scaling takes a "
       "factor"},
      {R"({"name": "S", "procedure": "explicitDynamics",
           "massScaling": [{"kind": "variable", "intervals": 2}]})",
       "models/Default Model/steps/1/massScaling/0/intervals: only a fixed mass scaling repeats "
       "by intervals"},
      {R"({"name": "S", "procedure": "explicitDynamics",
           "massScaling": [{"kind": "fixed", "intervals": 2, "every": 3}]})",
       R"(models/Default Model/steps/1/massScaling/0: give at most one of "every" and "intervals")"},
      {R"({"name": "S", "procedure": "explicitDynamics",
           "massScaling": [{"kind": "reinitialize", "factor": 2}]})",
       "models/Default Model/steps/1/massScaling/0: a mass scaling that reinitializes or disables "
       "takes no target, factor or repeats"},
      {R"({"name": "S", "procedure": "explicitDynamics",
           "massScaling": [{"kind": "fixed", "region": "P-1.Gone", "targetTimeIncrement": -1}]})",
       "models/Default Model/steps/1/massScaling/0/targetTimeIncrement: the target time "
       "increment must not be negative"},
      {R"({"name": "S", "procedure": "explicitDynamics",
           "massScaling": [{"kind": "fixed", "region": "P-1.Gone"}]})",
       R"(models/Default Model/steps/1/massScaling/0/region: no set "Gone" in instance "P-1")"},
      {R"({"name": "S", "procedure": "static", "massScaling": []})",
       R"(models/Default Model/steps/1: unknown field "massScaling" for procedure "static")"},
      {R"({"name": "S", "procedure": "static", "solverControls": {"reset": true, "tolerance": 1}})",
       "models/Default Model/steps/1/solverControls: controls set back to the defaults take no "
       "values"},
      {R"({"name": "S", "procedure": "explicitDynamics", "solverControls": {}})",
       R"(models/Default Model/steps/1: unknown field "solverControls" for procedure )"
       R"("explicitDynamics")"},
      // Each solver takes only its own options.
      {R"({"name": "S", "procedure": "explicitDynamics", "restart": {"every": 2}})",
       R"(models/Default Model/steps/1/restart: unknown field "every")"},
      {R"({"name": "S", "procedure": "explicitDynamics", "diagnosticPrint": {"residual": false}})",
       R"(models/Default Model/steps/1/diagnosticPrint: unknown field "residual")"},
      {R"({"name": "S", "procedure": "static", "diagnosticPrint": {"massChange": true}})",
       R"(models/Default Model/steps/1/diagnosticPrint: unknown field "massChange")"},
  };
  for (const auto& [steps, message] : cases) {
    SCOPED_TRACE(steps);
    const Outcome run = Write(steps);
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find(message), std::string::npos) << run.err;
    EXPECT_FALSE(DeckExists());
  }
}

} // namespace
