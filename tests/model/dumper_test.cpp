#include "model/json/dumper.h"
#include "model/json/loader.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

using namespace keydeck;

namespace {

odb_Odb Load(const std::string& json) {
  std::vector<std::string> warnings;
  return LoadModelText(json, warnings);
}

// A model with something in every field the file has so far: two parts, two
// instances of one part, sets and surfaces of every kind, placements, steps
// with load cases, raw text at every level.
const char* const FullModel = R"({"format": "keydeck-model", "version": 1, "models": {
  "Default Model": {
    "topLevelSolverInput": "** generated\n",
    "solverInput": "*Physical Constants, absolute zero=-273.15\n",
    "absoluteZero": -273.15, "stefanBoltzmann": 5.670374419e-8, "waveFormulation": "scattered",
    "restartJob": "old", "restartStep": "Step-1", "restartIncrement": 12, "endRestartStep": true,
    "globalJob": "global", "shellToSolid": true,
    "parts": {
      "Plate": {
        "nodes": {"labels": [1, 2, 3, 4, 5, 6],
                  "coordinates": [[0, 0, 0], [0.1, 0, 0], [0.2, 0, 0], [0, 0.1, 1e-20],
                                  [0.1, 0.1, -0], [0.2, 0.1, 3.4028234e38]]},
        "elements": [{"type": "S4R", "labels": [1], "connectivity": [[1, 2, 5, 4]]},
                     {"type": "S3", "labels": [2, 3], "connectivity": [[2, 3, 6], [2, 6, 5]]}],
        "sets": {"Edge": {"nodes": {"generate": [1, 3, 1]}},
                 "All": {"elements": [3, 1, 2], "internal": true}},
        "surfaces": {"Top": {"faces": [{"face": "SPOS", "elements": [1]},
                                       {"face": "SNEG", "elements": {"generate": [2, 3, 1]}}]},
                     "Corner": {"nodes": [6], "internal": true}},
        "solverInput": "*Part text \"quoted\"\twith tab"},
      "Empty": {}},
    "assembly": {"name": "Assembly-A", "solverInput": "*assembly text",
                 "instances": {"Plate-2": {"part": "Plate", "solverInput": "*instance text",
                                           "translation": [0.1, -0, 2e-300],
                                           "rotation": {"axis": [1, 1, 0], "angle": 33.3}},
                               "Plate-1": {"part": "Plate", "rotation": {"axis": [0, 0, 0], "angle": 0}}},
                 "sets": {"Pair": {"nodes": [{"instance": "Plate-2", "labels": [1]},
                                             {"instance": "Plate-1", "labels": {"generate": [4, 6, 2]}}]},
                          "Shells": {"elements": [{"instance": "Plate-1", "labels": [1]}], "internal": true}},
                 "surfaces": {"Both": {"faces": [{"instance": "Plate-1", "face": "SPOS", "elements": [2]},
                                                 {"instance": "Plate-2", "face": "SNEG", "elements": [1]}],
                                       "internal": true},
                              "Points": {"nodes": [{"instance": "Plate-2", "labels": [5]}]}}},
    "steps": [{"name": "Initial", "solverInput": "*initial text"},
              {"name": "Load", "procedure": "staticRiks", "solverInput": "*step text",
               "loadCases": {"LC-2": {}, "LC-1": {}}},
              {"name": "Modes", "procedure": "heatTransfer"}]},
  "Other": {}}})";

TEST(Dumper, DumpAndLoadIsAFixedPoint) {
  const std::string first = DumpModel(Load(FullModel));
  const std::string second = DumpModel(Load(first));
  EXPECT_EQ(first, second);
  // The dump holds the model, not only a stable text.
  const odb_Odb reloaded = Load(first);
  const ddb_Model& model = reloaded.ddb().model("Default Model");
  EXPECT_EQ(model.waveFormulation(), "scattered");
  EXPECT_EQ(model.restartIncrement(), 12);
  EXPECT_EQ(model.stefanBoltzmann(), 5.670374419e-8);
  EXPECT_EQ(model.part().get("Plate").solverInput(), "*Part text \"quoted\"\twith tab");
  EXPECT_EQ(model.step().container().NameAt(2), "Modes");
  EXPECT_EQ(RecordCast<ddb_PartInstance>(model.rootAssembly().instance().ConstGet("Plate-2"))
                .mesh()
                .elementData()
                .elementClass(1)
                .elementConnectivity(),
            (cow_List<int>{1, 2, 5, 1, 5, 4}));
  EXPECT_TRUE(reloaded.ddb().models_.IsMember("Other"));
  EXPECT_EQ(model.part().get("Plate").mesh().set().Size(), 4);
  EXPECT_EQ(model.rootAssembly().set().Size(), 4);
  // Ranges stay ranges, and placements stay as written.
  EXPECT_NE(first.find(R"("generate": [4, 6, 2])"), std::string::npos);
  EXPECT_NE(first.find(R"("translation": [0.1, -0, 2e-300])"), std::string::npos);
  EXPECT_NE(first.find(R"("angle": 33.3)"), std::string::npos);
}

TEST(Dumper, LeavesDefaultsOutAndKeepsItsLayout) {
  const std::string dump = DumpModel(Load(R"({"format": "keydeck-model", "version": 1,
      "models": {"M": {"absoluteZero": 0, "parts": {"P": {
        "nodes": {"labels": [3, 1], "coordinates": [[0.5, -2, 1e-7], [1, 2, 3]]},
        "elements": [{"type": "T3D2", "labels": [9], "connectivity": [[1, 3]]}]}},
        "assembly": {"name": "Assembly"}, "steps": [{"name": "Initial", "solverInput": ""}]}}})"));
  EXPECT_EQ(dump, R"({
  "format": "keydeck-model",
  "version": 1,
  "models": {
    "M": {
      "parts": {
        "P": {
          "nodes": {
            "labels": [3, 1],
            "coordinates": [
              [0.5, -2, 1e-07],
              [1, 2, 3]
            ]
          },
          "elements": [
            {
              "type": "T3D2",
              "labels": [9],
              "connectivity": [
                [1, 3]
              ]
            }
          ]
        }
      },
      "assembly": {},
      "steps": [
        {
          "name": "Initial"
        }
      ],
      "absoluteZero": 0
    }
  }
}
)");
}

TEST(Dumper, EscapesText) {
  ddb_Model model;
  model.solverInput_ = "a\"b\\c\nd\x01\x1f\t\xC3\xA9";
  ddb_Ddb ddb;
  ddb.models_.Insert("M \\1", model);
  const std::string dump = DumpModel(odb_Odb(ddb));
  EXPECT_NE(dump.find(R"("solverInput": "a\"b\\c\nd\u0001\u001f\t)"
                      "\xC3\xA9\""),
            std::string::npos);
  const odb_Odb reloaded = Load(dump);
  EXPECT_EQ(reloaded.ddb().model("M \\1").solverInput(), model.solverInput_);
}

// Reals of every magnitude go out and come back bit for bit: doubles in a
// double field, floats in the coordinates.
TEST(Dumper, RealsRoundTripExactly) {
  std::mt19937_64 random(20240601);
  std::vector<double> doubles = {0.1, -0.0, 5e-324, 1.7976931348623157e308, 1e21, 1e-7};
  while (doubles.size() < 400) {
    const double value = std::bit_cast<double>(random());
    if (std::isfinite(value) && value != NotGivenDouble)
      doubles.push_back(value);
  }
  std::vector<float> floats = {0.1f, -0.0f, 1e-45f, 3.4028235e38f, 16777217.0f, 1.0000001f};
  while (floats.size() < 3000) {
    const float value = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
    if (std::isfinite(value))
      floats.push_back(value);
  }
  ddb_Ddb ddb;
  for (std::size_t i = 0; i < doubles.size(); ++i) {
    ddb_Model model;
    model.absoluteZero_ = doubles[i];
    ddb.models_.Insert(cow_String(static_cast<int>(i)), model);
  }
  ddb_Part part;
  for (std::size_t i = 0; i < floats.size(); i += 3) {
    part.mesh_.nodes.labels.Append(static_cast<int>(i));
    part.mesh_.nodes.coordinates.Append(
        {floats[i], floats[(i + 1) % floats.size()], floats[(i + 2) % floats.size()]});
  }
  ddb.models_.Get("0").parts_.parts_.Insert("P", part);

  const odb_Odb reloaded = Load(DumpModel(odb_Odb(ddb)));
  for (std::size_t i = 0; i < doubles.size(); ++i)
    EXPECT_EQ(std::bit_cast<std::uint64_t>(
                  reloaded.ddb().model(cow_String(static_cast<int>(i))).absoluteZero()),
              std::bit_cast<std::uint64_t>(doubles[i]))
        << doubles[i];
  const uti_CoordCont3D& coordinates =
      reloaded.ddb().model("0").part().get("P").mesh().nodeData().CoordContainer();
  ASSERT_EQ(coordinates.Size(), part.mesh_.nodes.coordinates.Size());
  for (int i = 0; i < coordinates.Size(); ++i)
    for (int k = 0; k < 3; ++k)
      EXPECT_EQ(std::bit_cast<std::uint32_t>(coordinates[i][static_cast<std::size_t>(k)]),
                std::bit_cast<std::uint32_t>(
                    part.mesh_.nodes.coordinates[i][static_cast<std::size_t>(k)]));
}

} // namespace
