// The field builder and its cards: exact text of the field blocks of whole
// models, initial conditions ahead of the first step and step cards after.
#include "model/json/loader.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace keydeck;

namespace {

// A brick with the node set "Tip"; a beam part whose pipe profile has eight
// temperature points, when `beams` is asked for.
std::string Parts(bool beams) {
  std::string parts = R"("parts": {"Block": {
    "nodes": {"labels": [1, 2, 3, 4, 5, 6, 7, 8],
              "coordinates": [[0, 0, 0], [1, 0, 0], [1, 1, 0], [0, 1, 0],
                              [0, 0, 1], [1, 0, 1], [1, 1, 1], [0, 1, 1]]},
    "elements": [{"type": "C3D8R", "labels": [1], "connectivity": [[1, 2, 3, 4, 5, 6, 7, 8]]}],
    "sets": {"Tip": {"nodes": [5, 6]}}})";
  if (beams)
    parts += R"(, "Rod": {
    "nodes": {"labels": [1, 2], "coordinates": [[0, 0, 0], [1, 0, 0]]},
    "elements": [{"type": "B31", "labels": [1], "connectivity": [[1, 2]]}],
    "sets": {"All": {"elements": [1]}},
    "sectionAssignments": [{"region": "All", "section": "Tube"}],
    "beamOrientations": [{"region": "All", "direction": [0, 0, 1]}]})";
  parts += R"(},
  "assembly": {"instances": {"B-1": {"part": "Block"})";
  if (beams)
    parts += R"(, "R-1": {"part": "Rod"})";
  parts += "}},";
  if (beams)
    parts += R"("materials": {"Steel": {"elastic": {"table": [[200000, 0.3]]}}},
  "profiles": {"Pipe": {"type": "pipe", "radius": 2, "thickness": 0.2}},
  "sections": {"Tube": {"type": "beam", "integration": "duringAnalysis", "profile": "Pipe",
                        "material": "Steel"}},)";
  return parts;
}

constexpr const char* ThreeSteps = R"([{"name": "Initial"}, {"name": "S1", "procedure": "static"},
    {"name": "S2", "procedure": "static"}, {"name": "S3", "procedure": "static"}])";

// The deck of a model with the given fields, less the output lines.
std::string DeckWith(const std::string& fields, const std::string& steps, bool beams) {
  std::vector<std::string> warnings;
  const odb_Odb odb = LoadModelText(
      R"({"format": "keydeck-model", "version": 1, "models": {"Default Model": {)" + Parts(beams) +
          R"("amplitudes": {"Ramp": {"type": "tabular", "data": [0, 0, 1, 1]}},
          "steps": )" +
          steps + R"(, "predefinedFields": )" + fields + "}}}",
      warnings);
  return test::WithoutNoOutputLines(test::DeckOfModel(odb));
}

// The deck from the first field block on, less the step banners, "*Step"
// lines and procedure cards.
std::string FieldBlocks(const std::string& fields, const std::string& steps = ThreeSteps,
                        bool beams = false) {
  return test::StepBlocks(DeckWith(fields, steps, beams), "** FIELDS");
}

TEST(FieldBuilder, TemperatureIsAnInitialConditionThenAStepCard) {
  EXPECT_EQ(FieldBlocks(R"({"T": {"type": "temperature", "region": "B-1.Tip",
      "createdIn": "Initial", "values": [20], "steps": {"S2": {"values": [80]}}}})"),
            "** FIELDS\n** Name: T   Type: Temperature\n*Initial Conditions, type=TEMPERATURE\n"
            "B-1.Tip, 20.\n-- S1\n-- S2\n** FIELDS\n** Name: T   Type: Temperature\n"
            "*Temperature\nB-1.Tip, 80.\n-- S3\n");
}

TEST(FieldBuilder, AResetRestartsTheClassAndADeactivationStandsAlone) {
  // The reset of "A" in S2 restarts all temperatures there: "B", merely
  // propagated, is written again. In S3 "B" is deactivated.
  EXPECT_EQ(FieldBlocks(R"({
      "A": {"type": "temperature", "region": "B-1.Tip", "createdIn": "S1", "values": [1],
            "steps": {"S2": {"status": "fieldReset"}}},
      "B": {"type": "temperature", "region": "B-1.Tip", "createdIn": "S1", "values": [2],
            "amplitude": "Ramp", "steps": {"S3": {"status": "deactivated"}}}})"),
            "** FIELDS\n** Name: A   Type: Temperature\n*Temperature\nB-1.Tip, 1.\n"
            "** Name: B   Type: Temperature\n*Temperature, amplitude=Ramp\nB-1.Tip, 2.\n"
            "-- S2\n** FIELDS\n** Name: A   Type: Temperature\n*Temperature, op=NEW\n"
            "** Name: B   Type: Temperature\n*Temperature, op=NEW, amplitude=Ramp\nB-1.Tip, 2.\n"
            "-- S3\n** FIELDS\n** Name: B   Type: Temperature\n*Temperature, op=NEW\n");
}

TEST(FieldBuilder, TemperaturesArePaddedToTheTemperaturePointsOfTheBeams) {
  // The pipe profile has eight points: three values become eight, seven to a
  // line, in the initial condition and in the step card alike.
  EXPECT_EQ(FieldBlocks(R"({"T": {"type": "temperature", "region": "B-1.Tip",
      "createdIn": "Initial", "values": [1, 2, 3], "steps": {"S1": {"values": [4]}}}})",
                        R"([{"name": "Initial"}, {"name": "S1", "procedure": "static"}])",
                        /*beams=*/true),
            "** FIELDS\n** Name: T   Type: Temperature\n*Initial Conditions, type=TEMPERATURE\n"
            "B-1.Tip, 1., 2., 3., 3., 3., 3., 3.\n, 3.\n-- S1\n** FIELDS\n"
            "** Name: T   Type: Temperature\n*Temperature\nB-1.Tip, 4., 4., 4., 4., 4., 4., 4.\n"
            ", 4.\n");
}

TEST(FieldBuilder, FileNamesLoseOnlyAFilEnding) {
  const auto fromFile = [](const char* file) {
    return FieldBlocks(std::string(R"({"T": {"type": "temperature", "region": "B-1.Tip",
        "createdIn": "S1", "distribution": "fromFile", "file": ")") +
                           file + R"(", "endStep": 2, "endIncrement": 0}})",
                       R"([{"name": "Initial"}, {"name": "S1", "procedure": "static"}])");
  };
  EXPECT_EQ(fromFile("run.FIL"),
            "** FIELDS\n** Name: T   Type: Temperature\n*Temperature, file=run, estep=2\n");
  EXPECT_EQ(fromFile("x.ab"),
            "** FIELDS\n** Name: T   Type: Temperature\n*Temperature, file=x.ab, estep=2\n");
  EXPECT_EQ(fromFile(".fil"),
            "** FIELDS\n** Name: T   Type: Temperature\n*Temperature, file=.fil, estep=2\n");
}

TEST(FieldBuilder, StepCardsByUserAndFromAFile) {
  // The reset of "U" restarts the field variables in S2: "M", propagated,
  // gets ", op=NEW" there like the reset card.
  EXPECT_EQ(FieldBlocks(R"({
      "A": {"type": "temperature", "region": "B-1.Tip", "createdIn": "S1",
            "distribution": "fromFileAndUser", "file": "heat.Fil", "beginIncrement": 3,
            "interpolation": "midside"},
      "M": {"type": "field", "number": 5, "region": "B-1.Tip", "createdIn": "S1",
            "distribution": "fromFile", "file": "m.fil", "beginStep": 0,
            "interpolation": "interpolate", "absoluteExteriorTolerance": 0},
      "U": {"type": "field", "number": 6, "region": "B-1.Tip", "createdIn": "S1",
            "distribution": "userDefined", "steps": {"S2": {"status": "fieldReset"}}}})",
                        R"([{"name": "Initial"}, {"name": "S1", "procedure": "static"},
                            {"name": "S2", "procedure": "static"}])"),
            "** FIELDS\n** Name: A   Type: Temperature\n"
            "*Temperature, user, file=heat, binc=3, midside\n"
            "** Name: M   Type: Field variable\n*Field, number=5, file=m, interpolate\n"
            "** Name: U   Type: Field variable\n*Field, number=6, user\nB-1.Tip\n"
            "-- S2\n** FIELDS\n** Name: M   Type: Field variable\n"
            "*Field, op=NEW, number=5, file=m, interpolate\n"
            "** Name: U   Type: Field variable\n*Field, op=NEW\n");
}

TEST(FieldBuilder, InitialConditionsFromAFileAndByUser) {
  EXPECT_EQ(FieldBlocks(R"({
      "F": {"type": "field", "number": 3, "region": "B-1.Tip", "createdIn": "Initial",
            "distribution": "userDefined"},
      "T": {"type": "temperature", "region": "B-1.Tip", "createdIn": "Initial",
            "distribution": "fromFile", "file": "old.fil", "beginStep": 2, "beginIncrement": 5,
            "interpolation": "interpolate", "absoluteExteriorTolerance": 0.5,
            "exteriorTolerance": 0.05}})",
                        R"([{"name": "Initial"}])"),
            "** FIELDS\n** Name: F   Type: Field variable\n"
            "*Initial Conditions, type=FIELD, variable = 3, USER\nB-1.Tip\n"
            "** Name: T   Type: Temperature\n*Initial Conditions, type=TEMPERATURE, file=old, "
            "step=2, inc=5, interpolate, absolute exterior tolerance=0.5\n");
}

TEST(FieldBuilder, FieldVariablesTakeAsManyLinesAsTheLongestAndAreWrittenInEveryStep) {
  EXPECT_EQ(FieldBlocks(R"({
      "Long": {"type": "field", "number": 1, "region": "B-1.Tip", "createdIn": "Initial",
               "values": [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15]},
      "Short": {"type": "field", "number": 2, "region": "B-1.Tip", "createdIn": "Initial",
                "values": [7]}})",
                        R"([{"name": "Initial"}, {"name": "S1", "procedure": "static"}])"),
            "** FIELDS\n** Name: Long   Type: Field variable\n"
            "*Initial Conditions, type=FIELD, variable = 1\n"
            "B-1.Tip, 1., 2., 3., 4., 5., 6., 7.\n, 8., 9., 10., 11., 12., 13., 14., 15.\n"
            "** Name: Short   Type: Field variable\n*Initial Conditions, type=FIELD, variable = 2\n"
            "B-1.Tip, 7.\n\n"
            "-- S1\n** FIELDS\n** Name: Long   Type: Field variable\n*Field, number=1\n"
            "B-1.Tip, 1., 2., 3., 4., 5., 6., 7.\n, 8., 9., 10., 11., 12., 13., 14., 15.\n"
            "** Name: Short   Type: Field variable\n*Field, number=2\nB-1.Tip, 7.\n");
}

TEST(FieldBuilder, VelocitiesStandInTheInitialStepAlone) {
  EXPECT_EQ(FieldBlocks(R"({
      "R": {"type": "velocity", "region": "B-1.Tip", "createdIn": "Initial", "rotating": true,
            "angularVelocity": 10, "velocity1": 1, "velocity3": 2,
            "point1": [0, 0, 1], "point2": [1, 0, 1]},
      "V": {"type": "velocity", "region": "B-1.Tip", "createdIn": "Initial", "velocity2": 4}})",
                        R"([{"name": "Initial"}, {"name": "S1", "procedure": "static"}])"),
            "** FIELDS\n** Name: R   Type: Velocity\n*Initial Conditions, type=ROTATING VELOCITY\n"
            "B-1.Tip, 10., 1.,  , 2., \n0., 0., 1., 1., 0., 1., \n"
            "** Name: V   Type: Velocity\n*Initial Conditions, type=VELOCITY\nB-1.Tip, 2, 4.\n"
            "-- S1\n");
}

TEST(FieldBuilder, PressureStressHasOneCardInEveryStep) {
  EXPECT_EQ(FieldBlocks(R"({
      "File": {"type": "pressureStress", "region": "B-1.Tip", "createdIn": "S1",
               "distribution": "fromFile", "file": "soil.fil", "magnitude": 0},
      "P": {"type": "pressureStress", "region": "B-1.Tip", "createdIn": "Initial",
            "magnitude": 5, "steps": {"S2": {"magnitude": 6, "amplitude": "Ramp"},
                                      "S3": {"status": "deactivated"}}}})"),
            "** FIELDS\n** Name: P   Type: Pressure stress\n*Pressure stress\nB-1.Tip, 5.\n"
            "-- S1\n** FIELDS\n** Name: File   Type: Pressure stress\n"
            "*Pressure stress, file=soil.fil\nB-1.Tip, 0.\n"
            "-- S2\n** FIELDS\n** Name: P   Type: Pressure stress\n"
            "*Pressure stress, amplitude=Ramp\nB-1.Tip, 6.\n"
            "-- S3\n** FIELDS\n** Name: P   Type: Pressure stress\n*Pressure stress, op=NEW\n");
}

TEST(FieldBuilder, AFieldInALoadCaseCarriesItsScale) {
  // A step with load cases holds its fields in them alone: "Out" is in none.
  const std::string deck = DeckWith(R"({
      "In": {"type": "temperature", "region": "B-1.Tip", "createdIn": "S1", "values": [3]},
      "Out": {"type": "temperature", "region": "B-1.Tip", "createdIn": "S1", "values": [4]}})",
                                    R"([{"name": "Initial"}, {"name": "S1", "procedure": "static",
                            "loadCases": {"LC": {"fields": {"In": {"scale": 2.5}}}}}])",
                                    false);
  EXPECT_NE(deck.find("*Load Case, name=LC\n*Boundary, op=NEW\n** Name: In   Type: Temperature   "
                      "Scale factor: 2.5\n"
                      "*Temperature\nB-1.Tip, 7.5\n*End Load Case\n"),
            std::string::npos)
      << deck;
  EXPECT_EQ(deck.find("Out"), std::string::npos) << deck;
  EXPECT_EQ(deck.find("** FIELDS"), std::string::npos) << deck;
}

} // namespace
