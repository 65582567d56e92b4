// Loads through the command: what it says of a load that the model cannot
// carry, with the load's path.
#include "tests/support/deck_text.h"
#include "tests/support/run_keydeck.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;

class LoadsCommand : public keydeck::test::CommandTest {
protected:
  // Runs "keydeck write" on a model with a node set "Tip", an element set
  // "All", a surface "Top", the amplitude "Ramp", a static step "S1" with
  // the load case "LC" and the given loads; returns the exit status, with
  // stderr in `err`.
  int Write(const std::string& loads, std::string& err) const {
    return WriteBrickModel(R"(,
      "amplitudes": {"Ramp": {"type": "tabular", "data": [0, 0, 1, 1]}},
      "steps": [{"name": "Initial"},
                {"name": "S1", "procedure": "static",
                 "loadCases": {"LC": {"loads": {"L": {}}}}}],
      "loads": )" + loads,
                           err);
  }
};

TEST_F(LoadsCommand, RefusesWhatTheModelCannotCarry) {
  const std::pair<const char*, const char*> cases[] = {
      {R"({"L": {"type": "pressure", "region": "P-1.Side", "createdIn": "S1", "magnitude": 1}})",
       "models/M/loads/L/region: no set \"Side\" in instance \"P-1\"\n"},
      {R"({"L": {"type": "pressure", "region": "P-1.Tip", "createdIn": "S1", "magnitude": 1}})",
       "models/M/loads/L/region: \"P-1.Tip\" is a node set; a load of type \"pressure\" needs a "
       "surface\n"},
      {R"({"L": {"type": "concentratedForce", "region": "P-1.All", "createdIn": "S1"}})",
       "models/M/loads/L/region: \"P-1.All\" is an element set; a load of type "
       "\"concentratedForce\" needs a node set\n"},
      {R"({"L": {"type": "concentratedForce", "createdIn": "S1"}})",
       "models/M/loads/L/region: a load of type \"concentratedForce\" needs a node set\n"},
      {R"({"L": {"type": "inertiaRelief", "region": "P-1.All", "createdIn": "S1"}})",
       "models/M/loads/L/region: a load of type \"inertiaRelief\" takes no region\n"},
      {R"({"L": {"type": "gravity", "createdIn": "S1", "component3": -1, "amplitude": "Step",
                 "steps": {}}})",
       "models/M/loads/L/amplitude: no amplitude \"Step\" in the model\n"},
      {R"({"L": {"type": "concentratedForce", "region": "P-1.Tip", "createdIn": "S1",
                 "component1": 1, "imaginary1": 2}})",
       "models/M/loads/L/imaginary1: step \"S1\" takes no imaginary parts: only a steady-state "
       "step carries a complex load\n"},
      {R"({"L": {"type": "concentratedPoreFluid", "region": "P-1.Tip", "createdIn": "S1",
                 "magnitude": 1, "imaginary": 2}})",
       "models/M/loads/L/imaginary: a concentrated pore fluid load cannot be complex\n"},
      {R"({"L": {"type": "bodyForce", "region": "P-1.All", "createdIn": "S1",
                 "distribution": "hydrostatic"}})",
       "models/M/loads/L/distribution: only a pressure may be hydrostatic\n"},
      {R"({"L": {"type": "concentratedForce", "region": "P-1.Tip", "createdIn": "S1",
                 "csys": "Nowhere"}})",
       "models/M/loads/L/csys: no datum \"Nowhere\" in the assembly or its instances\n"},
      {R"({"L": {"type": "surfaceTraction", "region": "P-1.Top", "createdIn": "S1",
                 "direction": [0, 0, 0]}})",
       "models/M/loads/L/direction: the direction has zero length\n"},
  };
  for (const auto& [loads, message] : cases) {
    SCOPED_TRACE(loads);
    std::string err;
    EXPECT_EQ(Write(loads, err), 1);
    EXPECT_NE(err.find(message), std::string::npos) << err;
    EXPECT_FALSE(fs::exists(folder_ / "model.inp"));
  }
}

TEST_F(LoadsCommand, WritesALoadOfTheModel) {
  std::string err;
  ASSERT_EQ(Write(R"({"L": {"type": "concentratedHeatFlux", "region": "P-1.Tip",
                           "createdIn": "S1", "magnitude": 2, "dof": 12}})",
                  err),
            0)
      << err;
  const std::string deck = keydeck::test::ReadFile((folder_ / "model.inp").string());
  EXPECT_NE(deck.find("*Load Case, name=LC\n*Boundary, op=NEW\n** Name: L   Type: Concentrated "
                      "heat flux   Scale "
                      "factor: 1\n*Cflux\nP-1.Tip, 12, 2.\n*End Load Case\n"),
            std::string::npos)
      << deck;
}

} // namespace
