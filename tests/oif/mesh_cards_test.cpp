#include "model/database.h"
#include "model/json/loader.h"
#include "oif/oif_AssemblyElement.h"
#include "oif/oif_ElementFromMesh.h"
#include "oif/oif_Instance.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_Node.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace {

using keydeck::test::DeckText;

/// A model of one part "P" with the given nodes and elements JSON, and one
/// instance "P-1" of it.
odb_Odb PartModel(const std::string& nodes, const std::string& elements) {
  std::vector<std::string> warnings;
  return keydeck::LoadModelText(R"({"format": "keydeck-model", "version": 1, "models": {
      "Default Model": {"parts": {"P": {"nodes": )" +
                                    nodes + R"(, "elements": )" + elements + R"(}},
      "assembly": {"instances": {"P-1": {"part": "P"}}}}}})",
                                warnings);
}

/// The nodes "1..count" on the x axis.
std::string NodesOnALine(int count, int firstLabel = 1) {
  std::string labels;
  std::string coordinates;
  for (int i = 0; i < count; ++i) {
    const char* const separator = i == 0 ? "" : ",";
    labels.append(separator).append(std::to_string(firstLabel + i));
    coordinates.append(separator).append("[").append(std::to_string(i)).append(", 0, 0]");
  }
  return R"({"labels": [)" + labels + R"(], "coordinates": [)" + coordinates + "]}";
}

std::string ElementsText(const odb_Odb& odb) {
  const ddb_Model& model = odb.ddb().model("Default Model");
  const oif_ModelInfo info(model);
  const auto& instance = keydeck::RecordCast<ddb_PartInstance>(
      *model.rootAssembly().instance().ConstGetMap().ConstGet("P-1"));
  return DeckText(oif_ElementFromMesh(instance, info));
}

TEST(MeshCards, TwentyNodeElementWrapsAfterFifteenNodes) {
  const odb_Odb odb = PartModel(NodesOnALine(20), R"([{"type": "U20", "labels": [1],
      "connectivity": [[1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,20]]}])");
  EXPECT_EQ(ElementsText(odb), "*Element, type=U20\n"
                               "1,  1,  2,  3,  4,  5,  6,  7,  8,  9, 10, 11, 12, 13, 14, 15,\n"
                               "   16, 17, 18, 19, 20\n");
}

TEST(MeshCards, SixteenthNodeStandsAloneWithoutIndent) {
  const odb_Odb odb = PartModel(NodesOnALine(16), R"([{"type": "U16", "labels": [7],
      "connectivity": [[1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16]]}])");
  EXPECT_EQ(ElementsText(odb), "*Element, type=U16\n"
                               "7,  1,  2,  3,  4,  5,  6,  7,  8,  9, 10, 11, 12, 13, 14, 15,\n"
                               " 16\n");
}

TEST(MeshCards, NodeColumnsFollowTheWidestLabel) {
  struct Case {
    int firstLabel;
    const char* line; // the line of element 5 on nodes firstLabel and firstLabel + 1
  };
  const Case cases[] = {
      {98, "5, 98, 99\n"}, {999999, "5, 999999,1000000\n"}, {12345678, "5,12345678,12345679\n"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.firstLabel);
    const std::string a = std::to_string(c.firstLabel);
    const std::string b = std::to_string(c.firstLabel + 1);
    const odb_Odb odb = PartModel(NodesOnALine(2, c.firstLabel), R"([{"type": "T3D2", "labels": [5],
        "connectivity": [[)" + a + "," + b + "]]}]");
    EXPECT_EQ(ElementsText(odb), std::string("*Element, type=T3D2\n") + c.line);
  }
}

TEST(MeshCards, ClassesMergeByTypeInTreeOrderAndSurfTypesAreLeftOut) {
  // Types "A", "C", "B" in that order: "C" goes to the second child of "A",
  // "B" to its first, so the map visits A, B, C.
  const odb_Odb odb = PartModel(NodesOnALine(3), R"([
      {"type": "A", "labels": [1], "connectivity": [[1, 2]]},
      {"type": "C", "labels": [2], "connectivity": [[2, 3]]},
      {"type": "SFM3D4SURF", "labels": [9], "connectivity": [[1, 2]]},
      {"type": "B", "labels": [3], "connectivity": [[3, 1]]},
      {"type": "A", "labels": [10], "connectivity": [[3, 2]]}])");
  EXPECT_EQ(ElementsText(odb), "*Element, type=A\n1, 1, 2\n10, 3, 2\n"
                               "*Element, type=B\n3, 3, 1\n"
                               "*Element, type=C\n2, 2, 3\n");
}

TEST(MeshCards, NodeLines) {
  const odb_Odb odb = PartModel(
      R"({"labels": [1, 1000000], "coordinates": [[0, -1.5, 123456.789], [1e-9, 0.1, -2]]})", "[]");
  const ddb_Model& model = odb.ddb().model("Default Model");
  const oif_ModelInfo info(model);
  const auto& instance = keydeck::RecordCast<ddb_PartInstance>(
      *model.rootAssembly().instance().ConstGetMap().ConstGet("P-1"));
  EXPECT_EQ(DeckText(oif_Node(instance, info)),
            "*Node\n"
            "      1,           0.,         -1.5,     123456.8\n"
            "1000000,        1e-09,          0.1,          -2.\n");
  EXPECT_EQ(ElementsText(odb), "");
  EXPECT_EQ(DeckText(oif_Node()), "");
}

ddb_PartInstance Placed(std::vector<double> transform) {
  ddb_PartInstance instance;
  instance.name_ = "Link 1";
  instance.partName_ = "Link";
  instance.transform_.SetFromArray(transform.data(), static_cast<int>(transform.size()));
  return instance;
}

TEST(InstanceCard, PlacementLines) {
  EXPECT_EQ(DeckText(oif_Instance(Placed({0, 0, 0, 0, 0, 0}))),
            "*Instance, name=\"Link 1\", part=Link\n");
  EXPECT_EQ(DeckText(oif_Instance(Placed({1.5, 0, -2, 0, 0, 0}))),
            "*Instance, name=\"Link 1\", part=Link\n"
            "         1.5,           0.,          -2.\n");
  // A half turn about z: the solver reads the first line as the translation,
  // so a turned instance gets a zero one.
  EXPECT_EQ(DeckText(oif_Instance(Placed({0, 0, 0, 0, 0, 3.141592653589793}))),
            "*Instance, name=\"Link 1\", part=Link\n"
            "          0.,           0.,           0.\n"
            "          0.,           0.,           0.,           0.,           0.,           1.,"
            "         180.\n");
  const double quarter = 3.141592653589793 / 2;
  EXPECT_EQ(DeckText(oif_Instance(Placed({10, 20, 30, quarter, 0, 0}))),
            "*Instance, name=\"Link 1\", part=Link\n"
            "         10.,          20.,          30.\n"
            "          0.,           0.,           0.,           1.,           0.,           0.,"
            "          90.\n");
}

TEST(AssemblyElementCard, ConnectorLinesNameInstanceNodes) {
  ddb_Model model;
  ddb_PartInstance instance = Placed({0, 0, 0, 0, 0, 0});
  instance.name_ = "Arm 1";
  instance.mesh_.index = 1;
  model.assembly_.instances_.Insert("Arm 1", instance);
  ddb_Mesh& mesh = model.assembly_.mesh_;
  model.assembly_.hasMesh_ = true;
  mesh.nodes.labels = {100};
  mesh.nodes.coordinates = {uti_Coord3D{0, 0, 0}};
  mesh.nodes.scopedLabels = {7, 8};
  mesh.nodes.scopedInstances = {"Arm 1", "Arm 1"};
  ddb_ElementClass wires;
  wires.type = "CONN3D2";
  wires.labels = {1, 2};
  wires.connectivity = cow_2DArray<int>(2, 2);
  wires.nodeIndices = {0, 1, 2, 1}; // 100 to Arm 1.7, Arm 1.8 to Arm 1.7
  mesh.elements.classes = {wires};

  rgnC_Region region;
  region.path = "rootAssembly.setData";
  region.setIndex = 0;
  region.set.type = res_ElementSet;
  rgnC_SubsetData subset;
  subset.meshIndex = 0;
  subset.classIndex = 0;
  subset.indices = {1, 0};
  region.set.subsets = {subset};

  oif_ModelInfo info(model);
  EXPECT_EQ(DeckText(oif_AssemblyElement(region, "Wires", info)), "*Element, type=CONN3D2\n"
                                                                  "2, \"Arm 1\".8, \"Arm 1\".7\n"
                                                                  "1, 100, \"Arm 1\".7\n");
}

} // namespace

namespace {

/// Reads element lines back: label, then its node labels, across wrapped lines.
std::vector<std::vector<int>> ElementRows(const std::string& deck, int nodesPerElement) {
  std::vector<int> values;
  std::string number;
  for (std::size_t i = deck.find('\n') + 1; i < deck.size(); ++i) { // past "*Element"
    const char c = deck[i];
    if (c >= '0' && c <= '9') {
      number += c;
      continue;
    }
    if (!number.empty())
      values.push_back(std::stoi(number));
    number.clear();
  }
  std::vector<std::vector<int>> rows;
  for (std::size_t at = 0; at + static_cast<std::size_t>(nodesPerElement) < values.size() + 1;
       at += static_cast<std::size_t>(nodesPerElement) + 1)
    rows.emplace_back(values.begin() + static_cast<std::ptrdiff_t>(at),
                      values.begin() + static_cast<std::ptrdiff_t>(at) + nodesPerElement + 1);
  return rows;
}

TEST(MeshCards, PropertyElementLinesNameTheNodesOfTheFile) {
  std::mt19937 random(7);
  for (int round = 0; round < 60; ++round) {
    const int nodes = 2 + static_cast<int>(random() % 40);
    const int perElement = 1 + static_cast<int>(random() % 27);
    const int elements = 1 + static_cast<int>(random() % 12);
    std::vector<int> nodeLabels;
    for (int label = 1 + static_cast<int>(random() % 5000);
         static_cast<int>(nodeLabels.size()) < nodes; label += 1 + static_cast<int>(random() % 300))
      nodeLabels.push_back(label);
    std::string labels;
    std::string coordinates;
    for (int i = 0; i < nodes; ++i) {
      labels.append(i ? "," : "").append(std::to_string(nodeLabels[static_cast<std::size_t>(i)]));
      coordinates.append(i ? ",[0,0,0]" : "[0,0,0]");
    }
    std::vector<std::vector<int>> expected;
    std::string elementLabels;
    std::string rows;
    for (int e = 0; e < elements; ++e) {
      std::vector<int> row{1 + e * 1000 + static_cast<int>(random() % 999)};
      rows.append(e ? ",[" : "[");
      for (int j = 0; j < perElement; ++j) {
        row.push_back(nodeLabels[random() % nodeLabels.size()]);
        rows.append(j ? "," : "").append(std::to_string(row.back()));
      }
      rows.append("]");
      elementLabels.append(e ? "," : "").append(std::to_string(row.front()));
      expected.push_back(row);
    }
    const odb_Odb odb = PartModel(
        R"({"labels": [)" + labels + R"(], "coordinates": [)" + coordinates + "]}",
        R"([{"type": "U", "labels": [)" + elementLabels + R"(], "connectivity": [)" + rows + "]}]");
    SCOPED_TRACE(round);
    EXPECT_EQ(ElementRows(ElementsText(odb), perElement), expected);
  }
}

} // namespace
