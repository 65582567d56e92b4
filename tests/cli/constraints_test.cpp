// Constraints through the command: what it says of a constraint that the
// model cannot carry, with the constraint's path.
#include "tests/support/deck_text.h"
#include "tests/support/run_keydeck.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

namespace fs = std::filesystem;

class ConstraintsCommand : public keydeck::test::CommandTest {
protected:
  // Runs "keydeck write" on a model with a node set "Tip", an element set
  // "All" and a surface "Top" of instance "P-1" and the given constraints;
  // returns the exit status, with stderr in `err`.
  int Write(const std::string& constraints, std::string& err) const {
    return WriteBrickModel(R"(,
      "constraints": )" + constraints,
                           err);
  }
};

TEST_F(ConstraintsCommand, RefusesWhatTheModelCannotCarry) {
  const std::pair<const char*, const char*> cases[] = {
      {R"({"C": {"type": "tie", "main": "P-1.Side", "secondary": "P-1.Tip"}})",
       "models/M/constraints/C/main: no set \"Side\" in instance \"P-1\"\n"},
      {R"({"C": {"type": "tie", "main": "P-1.Tip", "secondary": "P-1.Top"}})",
       "models/M/constraints/C/main: \"P-1.Tip\" is a node set; the main region of a tie must be "
       "a surface\n"},
      {R"({"C": {"type": "tie", "main": "P-1.Top", "secondary": "P-1.All"}})",
       "models/M/constraints/C/secondary: \"P-1.All\" is an element set; the secondary region of "
       "a tie must be a surface or a node set\n"},
      {R"({"C": {"type": "tie", "main": "P-1.Top"}})",
       "models/M/constraints/C: missing field \"secondary\"\n"},
      {R"({"C": {"type": "tie", "main": "P-1.Top", "secondary": "P-1.Tip",
                 "positionTolerance": 0}})",
       "models/M/constraints/C/positionTolerance: the position tolerance must be above 0\n"},
      {R"({"C": {"type": "coupling", "referenceNode": "P-1.Top", "surface": "P-1.Top"}})",
       "models/M/constraints/C/referenceNode: \"P-1.Top\" is a surface; the reference node of a "
       "coupling must be a node set\n"},
      {R"({"C": {"type": "coupling", "referenceNode": "P-1.Tip", "surface": "P-1.Top",
                 "u1": false, "u2": false, "u3": false,
                 "ur1": false, "ur2": false, "ur3": false}})",
       "models/M/constraints/C/u1: a coupling needs at least one degree of freedom\n"},
      {R"({"C": {"type": "coupling", "referenceNode": "P-1.Tip", "surface": "P-1.Top",
                 "influenceRadius": -1}})",
       "models/M/constraints/C/influenceRadius: the influence radius must be above 0\n"},
      {R"({"C": {"type": "coupling", "referenceNode": "P-1.Tip", "surface": "P-1.Top",
                 "weighting": "quartic"}})",
       "models/M/constraints/C/weighting:"},
      {R"({"C": {"type": "coupling", "referenceNode": "P-1.Tip", "surface": "P-1.Top",
                 "orientation": "Skew"}})",
       "models/M/constraints/C/orientation: no datum \"Skew\" in the assembly or its "
       "instances\n"},
      {R"({"C": {"type": "equation", "terms": [{"coefficient": 1, "set": "P-1.Tip", "dof": 1,
                                               "csys": "P-1.Skew"}]}})",
       "models/M/constraints/C/terms/0/csys: no datum \"P-1.Skew\" in the assembly or its "
       "instances\n"},
      {R"({"C": {"type": "rigidBody", "referenceNode": "P-1.Tip", "elset": "P-1.Top"}})",
       "models/M/constraints/C/elset: \"P-1.Top\" is a surface; the elements of a rigid body "
       "must be an element set\n"},
      {R"({"C": {"type": "rigidBody", "referenceNode": "P-1.Tip", "pinNodes": "Nowhere"}})",
       "models/M/constraints/C/pinNodes: no set \"Nowhere\" in the assembly\n"},
      {R"({"C": {"type": "equation", "terms": []}})",
       "models/M/constraints/C/terms: an equation needs at least one term\n"},
      {R"({"C": {"type": "equation", "terms": [{"coefficient": 1, "set": "P-1.Tip", "dof": 7}]}})",
       "models/M/constraints/C/terms/0/dof: the degree of freedom must be 1 to 6\n"},
      {R"({"C": {"type": "equation", "terms": [{"coefficient": 0, "set": "P-1.Tip", "dof": 1},
                                              {"coefficient": 1, "set": "P-1.All", "dof": 1}]}})",
       "models/M/constraints/C/terms/0/coefficient: the first coefficient of an equation must "
       "not be 0\n"},
      {R"({"C": {"type": "equation", "terms": [{"coefficient": 1, "set": "P-1.Tip", "dof": 1},
                                              {"coefficient": 1, "set": "P-1.All", "dof": 1}]}})",
       "models/M/constraints/C/terms/1/set: \"P-1.All\" is an element set; the set of an "
       "equation term must be a node set\n"},
      {R"({"C": {"type": "embeddedRegion", "host": "P-1.All", "embedded": "P-1.All",
                 "roundoffTolerance": -1e-6}})",
       "models/M/constraints/C/roundoffTolerance: the roundoff tolerance must not be negative\n"},
      {R"({"C": {"type": "shellToSolidCoupling"}})",
       "models/M/constraints/C/type: constraint type \"shellToSolidCoupling\" is not supported "
       "yet\n"},
      {R"({"C": {"type": "cyclicSymmetry"}})", "models/M/constraints/C/type:"},
      {R"({"C": {"type": "tie", "main": "P-1.Top", "secondary": "P-1.Tip", "master": "x"}})",
       "models/M/constraints/C: unknown field \"master\"\n"},
  };
  for (const auto& [constraints, message] : cases) {
    SCOPED_TRACE(constraints);
    std::string err;
    EXPECT_EQ(Write(constraints, err), 1);
    EXPECT_NE(err.find(message), std::string::npos) << err;
    EXPECT_FALSE(fs::exists(folder_ / "model.inp"));
  }
}

TEST_F(ConstraintsCommand, WritesAConstraintOfTheModel) {
  std::string err;
  ASSERT_EQ(Write(R"({"C": {"type": "tie", "main": "P-1.Top", "secondary": "P-1.Top"}})", err), 0)
      << err;
  const std::string deck = keydeck::test::ReadFile((folder_ / "model.inp").string());
  EXPECT_NE(deck.find("** Constraint: C\n*Tie, name=C, adjust=yes\nP-1.Top, P-1.Top\n"
                      "*End Assembly\n"),
            std::string::npos)
      << deck;
}

} // namespace
