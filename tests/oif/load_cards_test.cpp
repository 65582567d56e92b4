// The load builder and its cards: exact text of the load blocks of whole
// models, and of cards on records that no model file can give yet.
#include "base/nex_Exception.h"
#include "model/json/loader.h"
#include "oif/oif_BoundaryForBoltLoad.h"
#include "oif/oif_Cecharge.h"
#include "oif/oif_Cload.h"
#include "oif/oif_Dsload.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace keydeck;
using keydeck::test::DeckText;

namespace {

// A brick and a wedge, node sets "Tip" and "Edge", element set "All", the
// surface "Top" over both element types, and the assembly's node set "Load".
constexpr const char* Mesh = R"(
  "parts": {"Block": {
    "nodes": {"labels": [1, 2, 3, 4, 5, 6, 7, 8, 9, 10],
              "coordinates": [[0, 0, 0], [10, 0, 0], [10, 10, 0], [0, 10, 0], [0, 0, 10],
                              [10, 0, 10], [10, 10, 10], [0, 10, 10], [20, 0, 0], [20, 0, 10]]},
    "elements": [{"type": "C3D8R", "labels": [1], "connectivity": [[1, 2, 3, 4, 5, 6, 7, 8]]},
                 {"type": "C3D6", "labels": [2], "connectivity": [[2, 9, 3, 6, 10, 7]]}],
    "sets": {"Tip": {"nodes": [9, 10]}, "Edge": {"nodes": [2, 6]}, "All": {"elements": [1, 2]}},
    "surfaces": {"Top": {"faces": [{"face": "S2", "elements": [1, 2]}]}}}},
  "assembly": {"instances": {"B-1": {"part": "Block"}},
               "sets": {"Load": {"nodes": [{"instance": "B-1", "labels": [9]}]}}},
  "amplitudes": {"Ramp": {"type": "tabular", "data": [0, 0, 1, 1]}},)";

constexpr const char* ThreeSteps = R"([{"name": "Initial"}, {"name": "S1", "procedure": "static"},
    {"name": "S2", "procedure": "static"}, {"name": "S3", "procedure": "static"}])";

odb_Odb ModelWith(const std::string& loads, const std::string& steps) {
  std::vector<std::string> warnings;
  return LoadModelText(std::string(R"({"format": "keydeck-model", "version": 1, "models": {
      "Default Model": {)") +
                           Mesh + R"("steps": )" + steps + R"(, "loads": )" + loads + "}}}",
                       warnings);
}

// The load cards of each step: the deck lines from the first step on, less
// the step banners, "*Step" lines and procedure cards.
std::string LoadBlocks(const std::string& loads, const std::string& steps = ThreeSteps) {
  return test::StepBlocks(test::WithoutNoOutputLines(test::DeckOfModel(ModelWith(loads, steps))),
                          "** ---");
}

// The load of that name in a model with the given loads, after loading.
LoadHandle LoadOf(const odb_Odb& odb, const char* name) {
  return odb.ddb().model("Default Model").loads_.ConstGetMap().ConstGet(name);
}

} // namespace

TEST(LoadBuilder, PressureOnASurfaceOfTwoElementTypes) {
  EXPECT_EQ(LoadBlocks(R"({"P": {"type": "pressure", "region": "B-1.Top", "createdIn": "S1",
                               "magnitude": 5, "amplitude": "Ramp"}})"),
            "-- S1\n** LOADS\n** Name: P   Type: Pressure\n*Dsload, amplitude=Ramp\n"
            "B-1.Top, P, 5.\n-- S2\n-- S3\n");
}

TEST(LoadBuilder, GravityOnTheWholeModelRewritesItsWholeLine) {
  // Only y changes in S2, but the line holds all three components.
  EXPECT_EQ(LoadBlocks(R"({"G": {"type": "gravity", "createdIn": "S1", "component2": -9.81,
                               "steps": {"S2": {"component1": 9.81}}}})"),
            "-- S1\n** LOADS\n** Name: G   Type: Gravity\n*Dload\n, GRAV, 9.81, 0., -1., 0.\n"
            "-- S2\n** LOADS\n** Name: G   Type: Gravity\n*Dload\n"
            ", GRAV, 13.8734, 0.707107, -0.707107, 0.\n-- S3\n");
}

TEST(LoadBuilder, ForceOnAnAssemblySetWritesTheLinesItsStepSets) {
  EXPECT_EQ(LoadBlocks(R"({"F": {"type": "concentratedForce", "region": "Load",
                               "createdIn": "S1", "component1": 100, "component3": -50,
                               "steps": {"S3": {"component3": -60}}}})"),
            "-- S1\n** LOADS\n** Name: F   Type: Concentrated force\n*Cload\nLoad, 1, 100.\n"
            "Load, 3, -50.\n-- S2\n-- S3\n** LOADS\n** Name: F   Type: Concentrated force\n"
            "*Cload\nLoad, 3, -60.\n");
}

TEST(LoadBuilder, DeactivatingAForceRestartsItsClass) {
  // In S2 the class restarts: the remaining force is written again in full.
  EXPECT_EQ(LoadBlocks(R"({"A": {"type": "concentratedForce", "region": "Load", "createdIn": "S1",
                               "component2": 1, "steps": {"S2": {"status": "deactivated"}}},
                         "B": {"type": "moment", "region": "B-1.Tip", "createdIn": "S1",
                               "component1": 2, "follower": true}})"),
            "-- S1\n** LOADS\n** Name: A   Type: Concentrated force\n*Cload\nLoad, 2, 1.\n"
            "** Name: B   Type: Moment\n*Cload, follower\nB-1.Tip, 4, 2.\n"
            "-- S2\n** LOADS\n** Name: A   Type: Concentrated force\n*Cload, op=NEW\n"
            "** Name: B   Type: Moment\n*Cload, op=NEW, follower\nB-1.Tip, 4, 2.\n-- S3\n");
}

TEST(LoadBuilder, TwoLoadsOfOneClassOnOneRegionRestartInEveryStep) {
  EXPECT_EQ(LoadBlocks(R"({"A": {"type": "concentratedForce", "region": "Load", "createdIn": "S2",
                               "component2": 1},
                         "B": {"type": "moment", "region": "Load", "createdIn": "S1",
                               "component3": 2}})"),
            "-- S1\n** LOADS\n** Name: B   Type: Moment\n*Cload, op=NEW\nLoad, 6, 2.\n"
            "-- S2\n** LOADS\n** Name: A   Type: Concentrated force\n*Cload, op=NEW\nLoad, 2, 1.\n"
            "** Name: B   Type: Moment\n*Cload, op=NEW\nLoad, 6, 2.\n"
            "-- S3\n** LOADS\n** Name: A   Type: Concentrated force\n*Cload, op=NEW\nLoad, 2, 1.\n"
            "** Name: B   Type: Moment\n*Cload, op=NEW\nLoad, 6, 2.\n");
}

TEST(LoadBuilder, LoadCaseHoldsItsOwnLoadsWithTheirScale) {
  const char* steps = R"([{"name": "Initial"},
      {"name": "S1", "procedure": "static",
       "loadCases": {"LC-B": {"loads": {"F": {"scale": -1}}}, "LC-A": {"loads": {"F": {"scale": 2.5}}}}}])";
  EXPECT_EQ(LoadBlocks(R"({"F": {"type": "concentratedForce", "region": "Load", "createdIn": "S1",
                               "component1": 4},
                         "Other": {"type": "pressure", "region": "B-1.Top", "createdIn": "S1",
                                   "magnitude": 1}})",
                       steps),
            // A load case without boundary conditions of its own wipes those
            // of the step.
            "-- S1\n** LOAD CASES\n*Load Case, name=LC-A\n*Boundary, op=NEW\n"
            "** Name: F   Type: Concentrated force   Scale factor: 2.5\n*Cload\nLoad, 1, 10.\n"
            "*End Load Case\n*Load Case, name=LC-B\n*Boundary, op=NEW\n"
            "** Name: F   Type: Concentrated force   Scale factor: -1\n*Cload\nLoad, 1, -4.\n"
            "*End Load Case\n");
}

// A load case that takes the base state alone is passed over: F stands in
// S1's own list, as every load case of S1 is such, and G only in the load
// case of S2 that names it.
TEST(LoadBuilder, LoadCasesOfTheBaseStateAloneLeaveTheLoadsToTheStep) {
  const char* steps = R"([{"name": "Initial"},
      {"name": "S1", "procedure": "static", "loadCases": {"Base": {"baseStateOnly": true}}},
      {"name": "S2", "procedure": "static",
       "loadCases": {"Base": {"baseStateOnly": true}, "Own": {"loads": {"G": {"scale": 2}}}}}])";
  EXPECT_EQ(LoadBlocks(R"({"F": {"type": "concentratedForce", "region": "Load", "createdIn": "S1",
                               "component1": 4},
                         "G": {"type": "concentratedForce", "region": "B-1.Tip",
                               "createdIn": "S2", "component2": 3}})",
                       steps),
            "-- S1\n** LOADS\n** Name: F   Type: Concentrated force\n*Cload\nLoad, 1, 4.\n"
            "** LOAD CASES\n*Load Case, name=Base\n*Boundary, op=NEW\n*End Load Case\n"
            "-- S2\n** LOAD CASES\n*Load Case, name=Base\n*Boundary, op=NEW\n*End Load Case\n"
            "*Load Case, name=Own\n*Boundary, op=NEW\n"
            "** Name: G   Type: Concentrated force   Scale factor: 2\n*Cload\nB-1.Tip, 2, 6.\n"
            "*End Load Case\n");
}

TEST(LoadBuilder, BoltLoadIsAForceOnlyByTheFirstMethod) {
  EXPECT_EQ(LoadBlocks(R"({"Force": {"type": "boltLoad", "region": "B-1.Edge", "createdIn": "S1",
                                   "method": "applyForce", "magnitude": 1000,
                                   "steps": {"S2": {"method": "fixLength"}}},
                         "Length": {"type": "boltLoad", "region": "B-1.Tip", "createdIn": "S1",
                                    "method": "adjustLength", "magnitude": 0.5}})"),
            // The length condition is a "*Boundary" card. S2 turns the force
            // into a length condition: its force card restarts empty, the
            // boundary condition takes over, and the change of method restarts
            // the boundary class, so the other length condition is written again.
            "-- S1\n** BOUNDARY CONDITIONS\n** Name: Length Type: Bolt load\n*Boundary\n"
            "B-1.Tip, 1, 1, 0.5\n"
            "** LOADS\n** Name: Force   Type: Bolt load\n*Cload\nB-1.Edge, 1, 1000.\n"
            "-- S2\n** BOUNDARY CONDITIONS\n** Name: Force Type: Bolt load\n"
            "*Boundary, op=NEW, fixed\nB-1.Edge, 1, 1\n"
            "** Name: Length Type: Bolt load\n*Boundary, op=NEW\nB-1.Tip, 1, 1, 0.5\n"
            "** LOADS\n** Name: Force   Type: Bolt load\n*Cload, op=NEW\n-- S3\n");
}

TEST(LoadCards, BoundaryForBoltLoadByMethod) {
  const odb_Odb odb = ModelWith(
      R"({"Adjust": {"type": "boltLoad", "region": "B-1.Tip", "createdIn": "S1",
                     "method": "adjustLength", "magnitude": -0.5,
                     "steps": {"S2": {"method": "fixLength"}, "S3": {"status": "deactivated"}}},
          "Force": {"type": "boltLoad", "region": "B-1.Tip", "createdIn": "S1",
                    "method": "applyForce", "magnitude": 3}})",
      ThreeSteps);
  const LoadHandle adjust = LoadOf(odb, "Adjust");
  EXPECT_EQ(DeckText(oif_BoundaryForBoltLoad(adjust, "S1", "B-1.Tip", true, 2.0)),
            "*Boundary\nB-1.Tip, 1, 1, -1.\n");
  EXPECT_EQ(DeckText(oif_BoundaryForBoltLoad(adjust, "S2", "B-1.Tip", false, 1.0)),
            "*Boundary, op=NEW, fixed\nB-1.Tip, 1, 1\n");
  EXPECT_EQ(DeckText(oif_BoundaryForBoltLoad(adjust, "S3", "B-1.Tip", true, 1.0)),
            "*Boundary, op=NEW\n");
  EXPECT_EQ(DeckText(oif_BoundaryForBoltLoad(LoadOf(odb, "Force"), "S1", "B-1.Tip", true, 1.0)),
            "*Boundary, op=NEW\n");
}

TEST(LoadBuilder, HydrostaticAndUserPressures) {
  EXPECT_EQ(LoadBlocks(R"({"W": {"type": "pressure", "region": "B-1.Top", "createdIn": "S1",
                               "distribution": "hydrostatic", "magnitude": 3, "zeroHeight": 10,
                               "referenceHeight": 0, "steps": {"S2": {"zeroHeight": 12}}}})"),
            "-- S1\n** LOADS\n** Name: W   Type: Pressure\n*Dsload\nB-1.Top, HP, 3., 10., 0.\n"
            "-- S2\n** LOADS\n** Name: W   Type: Pressure\n*Dsload\nB-1.Top, HP, 3., 12., 0.\n"
            "-- S3\n");
}

TEST(LoadBuilder, BodyAndSurfaceLoadsOfEachForm) {
  EXPECT_EQ(LoadBlocks(R"({
        "A": {"type": "bodyForce", "region": "B-1.All", "createdIn": "S1", "component1": 2,
              "component2": 0, "component3": -1},
        "B": {"type": "bodyForce", "region": "B-1.All", "createdIn": "S1", "component2": 0,
              "distribution": "userDefined"},
        "C": {"type": "rotationalBodyForce", "region": "B-1.All", "createdIn": "S1",
              "centrifugal": true, "magnitude": 3, "point1": [0, 0, 1], "point2": [0, 0, 3]},
        "D": {"type": "surfaceTraction", "region": "B-1.Top", "createdIn": "S1", "magnitude": 2,
              "direction": [0, 3, 4], "follower": false, "constantResultant": true},
        "E": {"type": "bodyHeatFlux", "region": "B-1.All", "createdIn": "S1", "magnitude": 7,
              "amplitude": "Ramp"},
        "F": {"type": "surfaceCharge", "region": "B-1.Top", "createdIn": "S1", "magnitude": 4},
        "G": {"type": "concentratedHeatFlux", "region": "B-1.Tip", "createdIn": "S1",
              "magnitude": 5},
        "H": {"type": "lineLoad", "region": "B-1.All", "createdIn": "S1", "system": "local",
              "component1": 1, "component2": 2},
        "I": {"type": "shellEdgeLoad", "region": "B-1.Top", "createdIn": "S1", "kind": "general",
              "magnitude": 1, "direction": [2, 0, 0]}})",
                       R"([{"name": "Initial"}, {"name": "S1", "procedure": "static"}])"),
            // Loads of one class on one region restart their class: "*Dload"
            // and "*Dsload" carry ", op=NEW" here.
            "-- S1\n** LOADS\n"
            // a zero component writes no line, but for the user form
            "** Name: A   Type: Body force\n*Dload, op=NEW\nB-1.All, BX, 2.\nB-1.All, BZ, -1.\n"
            "** Name: B   Type: Body force\n*Dload, op=NEW\nB-1.All, BYNU, 0.\n"
            "** Name: C   Type: Rotational body force\n*Dload, op=NEW\n"
            "B-1.All, CENTRIF, 9.,0.,0.,1.,0.,0.,1.\n"
            "** Name: D   Type: Surface traction\n*Dsload, op=NEW, follower=NO, "
            "constant resultant=YES\nB-1.Top, TRVEC, 2., 0., 0.6, 0.8\n"
            "** Name: E   Type: Body heat flux\n*Dflux, amplitude=Ramp\nB-1.All, BF, 7.\n"
            "** Name: F   Type: Surface charge\n*Dsecharge\nB-1.Top,ES,4.\n"
            "** Name: G   Type: Concentrated heat flux\n*Cflux\nB-1.Tip, 11, 5.\n"
            "** Name: H   Type: Line load\n*Dload, op=NEW\nB-1.All, P1, 1.\nB-1.All, P2, 2.\n"
            "** Name: I   Type: Shell edge load\n*Dsload, op=NEW\nB-1.Top, EDLD, 1., 1., 0., 0.\n");
}

TEST(LoadBuilder, DeactivatedFormsWriteTheirKeywordAlone) {
  EXPECT_EQ(LoadBlocks(R"({
        "E": {"type": "bodyHeatFlux", "region": "B-1.All", "createdIn": "S1", "magnitude": 7,
              "steps": {"S2": {"status": "deactivated"}}},
        "F": {"type": "concentratedCharge", "region": "B-1.Tip", "createdIn": "S1",
              "magnitude": 4, "steps": {"S2": {"status": "deactivated"}}}})",
                       R"([{"name": "Initial"}, {"name": "S1", "procedure": "static"},
                           {"name": "S2", "procedure": "static"}])"),
            "-- S1\n** LOADS\n** Name: E   Type: Body heat flux\n*Dflux\nB-1.All, BF, 7.\n"
            "** Name: F   Type: Concentrated charge\n*Cecharge\nB-1.Tip, ,4.\n"
            "-- S2\n** LOADS\n** Name: E   Type: Body heat flux\n*Dflux, op=NEW\n"
            "** Name: F   Type: Concentrated charge\n*Cecharge, op=NEW\n");
}

// No step of a model file carries imaginary parts yet; the cards are given
// complex records directly.
TEST(LoadCards, ComplexLoadsWriteOneCardPerNonZeroPart) {
  const odb_Odb odb = ModelWith(
      R"({"F": {"type": "concentratedForce", "region": "Load", "createdIn": "S1",
                "component1": 3, "component2": 0},
          "P": {"type": "pressure", "region": "B-1.Top", "createdIn": "S1", "magnitude": 2},
          "Q": {"type": "concentratedCharge", "region": "B-1.Tip", "createdIn": "S1",
                "magnitude": 1}})",
      ThreeSteps);
  const kprC_StepContainer& steps = odb.ddb().model("Default Model").step().container();
  std::vector<RecordFault> faults;
  const auto complex = [&](auto record, auto setImaginary) {
    setImaginary(record.created);
    record.DeriveStates(steps, faults);
    return LoadHandle(record);
  };
  const auto force = [&](double imag1, double imag2) {
    return complex(RecordCast<kloC_ConcentratedForce>(*LoadOf(odb, "F")), [&](kloC_VectorState& s) {
      s.imaginary1 = {imag1, mdl_AttributeSet};
      s.imaginary2 = {imag2, mdl_AttributeSet};
    });
  };
  EXPECT_EQ(DeckText(oif_Cload(force(0, -1), "S1", true, "Load", 2.0)),
            "*Cload, load case=1\nLoad, 1, 6.\n*Cload, load case=2\nLoad, 2, -2.\n");
  // A zero imaginary part: only the real card.
  EXPECT_EQ(DeckText(oif_Cload(force(0, 0), "S1", true, "Load", 1.0)),
            "*Cload, load case=1\nLoad, 1, 3.\n");
  const LoadHandle pressure =
      complex(RecordCast<kloC_Pressure>(*LoadOf(odb, "P")), [](kloC_PressureState& s) {
        s.imaginary = {0.5, mdl_AttributeSet};
      });
  EXPECT_EQ(DeckText(oif_Dsload(pressure, "S1", false, "B-1.Top", 1.0)),
            "*Dsload, op=NEW, load case=1\nB-1.Top, P, 2.\n"
            "*Dsload, op=NEW, load case=2\nB-1.Top, P, 0.5\n");
  const LoadHandle charge =
      complex(RecordCast<kloC_ConcentratedCharge>(*LoadOf(odb, "Q")), [](kloC_MagnitudeState& s) {
        s.imaginary = {-2, mdl_AttributeSet};
      });
  EXPECT_EQ(DeckText(oif_Cecharge(charge, "S1", true, "B-1.Tip", 1.0)),
            "*Cecharge, load case=1\nB-1.Tip, ,1.\n*Cecharge, load case=2\nB-1.Tip, ,-2.\n");
  EXPECT_TRUE(faults.empty());
}

TEST(LoadCards, ACardOfAnotherKindRaises) {
  const odb_Odb odb = ModelWith(
      R"({"P": {"type": "pressure", "region": "B-1.Top", "createdIn": "S1", "magnitude": 2},
          "F": {"type": "concentratedForce", "region": "Load", "createdIn": "S1"}})",
      ThreeSteps);
  const auto raised = [](const qkw_Keyword& card) {
    try {
      DeckText(card);
    } catch (const nex_PrimException& failure) {
      return std::string(failure.what());
    }
    return std::string();
  };
  EXPECT_EQ(raised(oif_Cload(LoadOf(odb, "P"), "S1", true, "Top", 1.0)),
            "\"Invalid load type for *Cload\" == 0");
  EXPECT_EQ(raised(oif_Dsload(LoadOf(odb, "F"), "S1", true, "Load", 1.0)),
            "\"Invalid load type for *Dsload\" == 0");
}

TEST(LoadBuilder, ConcentratedAndFlowLoadsOfEachKind) {
  EXPECT_EQ(LoadBlocks(R"({
        "J": {"type": "connectorMoment", "region": "B-1.All", "createdIn": "S1", "component2": 3},
        "K": {"type": "concentratedPoreFluid", "region": "B-1.Tip", "createdIn": "S1",
              "magnitude": 2},
        "L": {"type": "inwardVolumeAcceleration", "region": "B-1.Edge", "createdIn": "S1",
              "magnitude": 0},
        "M": {"type": "generalizedPlaneStrain", "region": "Load", "createdIn": "S1",
              "component1": 1, "component3": 2},
        "N": {"type": "pipePressure", "region": "B-1.All", "createdIn": "S1", "side": "outside",
              "distribution": "hydrostatic", "magnitude": 2, "zeroHeight": 5,
              "referenceHeight": 1, "diameter": 0.3},
        "O": {"type": "fluidFlux", "region": "B-1.Tip", "createdIn": "S1", "magnitude": 4},
        "P": {"type": "bodyCurrent", "region": "B-1.All", "createdIn": "S1", "magnitude": 0}})",
                       R"([{"name": "Initial"}, {"name": "S1", "procedure": "static"}])"),
            "-- S1\n** LOADS\n"
            "** Name: J   Type: Connector moment\n*Connector Load\nB-1.All, 5, 3.\n"
            "** Name: K   Type: Concentrated pore fluid\n*Cload\nB-1.Tip, 8, 2.\n"
            // a zero value of one of these is written all the same
            "** Name: L   Type: Inward volume acceleration\n*Cload\nB-1.Edge, 8, 0.\n"
            "** Name: M   Type: Generalized plane strain\n*Cload\nLoad, 3, 1.\nLoad, 5, 2.\n"
            "** Name: N   Type: Pipe pressure\n*Dload\nB-1.All, HPE, 2., 5., 1., 0.3\n"
            "** Name: O   Type: Fluid cavity flux\n*Fluid Flux\nB-1.Tip, 4.\n"
            // but not that of a charge or current
            "** Name: P   Type: Body current\n*Decurrent\n");
}
