// The constraint builder and its cards: exact text of the constraints of
// whole models, as they stand at the end of the assembly.
#include "model/json/loader.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace keydeck;

namespace {

// A brick with the node sets "Tip" and "Corner", the element set "All" and
// the surface "Top"; an instance "B-1", and the assembly's node set "RP".
constexpr const char* Mesh = R"(
  "parts": {"Block": {
    "nodes": {"labels": [1, 2, 3, 4, 5, 6, 7, 8],
              "coordinates": [[0, 0, 0], [1, 0, 0], [1, 1, 0], [0, 1, 0],
                              [0, 0, 1], [1, 0, 1], [1, 1, 1], [0, 1, 1]]},
    "elements": [{"type": "C3D8R", "labels": [1], "connectivity": [[1, 2, 3, 4, 5, 6, 7, 8]]}],
    "sets": {"Tip": {"nodes": [5, 6]}, "Corner": {"nodes": [7]}, "All": {"elements": [1]}},
    "surfaces": {"Top": {"faces": [{"face": "S2", "elements": [1]}]}}}},
  "assembly": {"instances": {"B-1": {"part": "Block"}},
               "sets": {"RP": {"nodes": [{"instance": "B-1", "labels": [1]}]}}},)";

// The deck lines of the assembly after its own sets: node-based surfaces and
// constraints, up to "*End Assembly".
std::string AssemblyTail(const std::string& constraints) {
  std::vector<std::string> warnings;
  const odb_Odb odb = LoadModelText(
      std::string(R"({"format": "keydeck-model", "version": 1, "models": {"Default Model": {)") +
          Mesh + R"("constraints": )" + constraints + "}}}",
      warnings);
  const std::string deck = test::DeckOfModel(odb);
  const std::size_t end = deck.find("*End Assembly");
  // The assembly's own sets end with the card of "RP" and its one label.
  const std::size_t label = deck.find("\n", deck.find("*Nset, nset=RP, instance=B-1")) + 1;
  const std::size_t begin = deck.find("\n", label) + 1;
  return deck.substr(begin, end - begin);
}

constexpr const char* Title = "** \n** CONSTRAINTS\n** \n";

TEST(ConstraintCards, TieWithDefaultsAndWithEveryOption) {
  EXPECT_EQ(AssemblyTail(R"({"T": {"type": "tie", "main": "B-1.Top", "secondary": "B-1.Top"}})"),
            std::string(Title) + "** Constraint: T\n*Tie, name=T, adjust=yes\nB-1.Top, B-1.Top\n");
  // A node set as the secondary region stands as a node-based surface.
  EXPECT_EQ(AssemblyTail(R"({"T": {"type": "tie", "main": "B-1.Top", "secondary": "B-1.Tip",
      "adjust": false, "positionTolerance": 0.25, "tieRotations": false, "constraintRatio": 0.5,
      "formulation": "nodeToSurface", "thickness": false}})"),
            std::string("*Surface, type=NODE, name=B-1_Tip_CNS_\nB-1.Tip, 1.\n") + Title +
                "** Constraint: T\n*Tie, name=T, adjust=no, position tolerance=0.25, no rotation, "
                "constraint ratio=0.5, type=NODE TO SURFACE, no thickness\n"
                "B-1_Tip_CNS_, B-1.Top\n");
}

TEST(ConstraintCards, LongTieLineBreaksAfterAComma) {
  const std::string name = "Glue" + std::string(86, 'x');
  EXPECT_EQ(AssemblyTail(R"({")" + name + R"(": {"type": "tie", "main": "B-1.Top",
      "secondary": "B-1.Top", "positionTolerance": 0.25, "tieRotations": false}})"),
            std::string(Title) + "** Constraint: " + name + "\n*Tie, name=" + name +
                ", adjust=yes,\nposition tolerance=0.25, no rotation\nB-1.Top, B-1.Top\n");
}

TEST(ConstraintCards, KinematicCouplingWritesOnlyWhatIsNotAllSix) {
  // All six degrees of freedom: the bare card, and no influence radius.
  EXPECT_EQ(AssemblyTail(R"({"C": {"type": "coupling", "referenceNode": "RP",
      "surface": "B-1.Top"}})"),
            std::string(Title) +
                "** Constraint: C\n*Coupling, constraint name=C, ref node=RP, surface=B-1.Top\n"
                "*Kinematic\n");
  EXPECT_EQ(AssemblyTail(R"({"C": {"type": "coupling", "referenceNode": "B-1.Corner",
      "surface": "B-1.Top", "influenceRadius": 1.5, "u2": false, "ur1": false, "ur3": false}})"),
            std::string(Title) +
                "** Constraint: C\n*Coupling, constraint name=C, ref node=B-1.Corner, "
                "surface=B-1.Top, influence radius=1.5\n*Kinematic\n1, 1\n3, 3\n5, 5\n");
}

TEST(ConstraintCards, DistributingCouplingWithItsWeighting) {
  EXPECT_EQ(AssemblyTail(R"({"D": {"type": "coupling", "coupling": "distributing",
      "referenceNode": "RP", "surface": "B-1.Tip", "weighting": "cubic",
      "ur1": false, "ur2": false, "ur3": false}})"),
            std::string("*Surface, type=NODE, name=B-1_Tip_CNS_\nB-1.Tip, 1.\n") + Title +
                "** Constraint: D\n*Coupling, constraint name=D, ref node=RP, "
                "surface=B-1_Tip_CNS_\n*Distributing, weighting method=CUBIC\n1, 1\n2, 2\n3, 3\n");
}

TEST(ConstraintCards, RigidBody) {
  // With only its reference node the card is one line.
  EXPECT_EQ(AssemblyTail(R"({"R": {"type": "rigidBody", "referenceNode": "RP"}})"),
            std::string(Title) + "** Constraint: R\n*Rigid Body, ref node=RP\n");
  EXPECT_EQ(AssemblyTail(R"({"R": {"type": "rigidBody", "referenceNode": "RP", "elset": "B-1.All",
      "pinNodes": "B-1.Corner", "tieNodes": "B-1.Tip", "positionAtCenterOfMass": true,
      "isothermal": true}})"),
            std::string(Title) +
                "** Constraint: R\n*Rigid Body, ref node=RP, elset=B-1.All, pin nset=B-1.Corner, "
                "tie nset=B-1.Tip, position=CENTER OF MASS, isothermal=YES\n");
}

TEST(ConstraintCards, EquationAndEmbeddedRegion) {
  EXPECT_EQ(AssemblyTail(R"({"E": {"type": "equation", "terms": [
      {"coefficient": 1, "set": "B-1.Corner", "dof": 3},
      {"coefficient": -0.5, "set": "RP", "dof": 6}]}})"),
            std::string(Title) +
                "** Constraint: E\n*Equation\n2\nB-1.Corner, 3, 1.\nRP, 6, -0.5\n");
  // Tolerances at the solver's defaults are left out.
  EXPECT_EQ(AssemblyTail(R"({"M": {"type": "embeddedRegion", "host": "B-1.All",
      "embedded": "B-1.All"}})"),
            std::string(Title) +
                "** Constraint: M\n*Embedded Element, host elset=B-1.All\nB-1.All\n");
  EXPECT_EQ(AssemblyTail(R"({"M": {"type": "embeddedRegion", "host": "B-1.All",
      "embedded": "B-1.All", "exteriorTolerance": 0, "absoluteExteriorTolerance": 0.2,
      "roundoffTolerance": 1e-05}})"),
            std::string(Title) +
                "** Constraint: M\n*Embedded Element, host elset=B-1.All, absolute exterior "
                "tolerance=0.2, exterior tolerance=0., roundoff tolerance=1e-05\nB-1.All\n");
}

TEST(ConstraintCards, InByteOrderOfNameWithOneTitleAndSharedSurfacesOnce) {
  // "Z" sorts ahead of "a"; both name the node set "B-1.Tip" as a surface,
  // which gets one node-based surface.
  EXPECT_EQ(AssemblyTail(R"({
      "a": {"type": "tie", "main": "B-1.Top", "secondary": "B-1.Tip"},
      "Z": {"type": "coupling", "referenceNode": "RP", "surface": "B-1.Tip"},
      "Y-rigid": {"type": "rigidBody", "referenceNode": "RP"}})"),
            std::string("*Surface, type=NODE, name=B-1_Tip_CNS_\nB-1.Tip, 1.\n") + Title +
                "** Constraint: Y-rigid\n*Rigid Body, ref node=RP\n"
                "** Constraint: Z\n*Coupling, constraint name=Z, ref node=RP, "
                "surface=B-1_Tip_CNS_\n*Kinematic\n"
                "** Constraint: a\n*Tie, name=a, adjust=yes\nB-1_Tip_CNS_, B-1.Top\n");
}

TEST(ConstraintCards, NoConstraintsNoTitle) { EXPECT_EQ(AssemblyTail("{}"), ""); }

} // namespace
