#include "model/json/derive.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace keydeck;

namespace {

ddb_ElementClass Class(const char* type, cow_List<int> labels,
                       const std::vector<std::vector<int>>& rows) {
  ddb_ElementClass elementClass;
  elementClass.type = type;
  elementClass.labels = labels;
  const int cols = rows.empty() ? 0 : static_cast<int>(rows[0].size());
  elementClass.connectivity = cow_2DArray<int>(static_cast<int>(rows.size()), cols);
  for (int r = 0; r < static_cast<int>(rows.size()); ++r)
    for (int c = 0; c < cols; ++c)
      elementClass.connectivity.Get(r, c) =
          rows[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
  return elementClass;
}

ddb_Part Part(cow_List<int> nodeLabels, cow_List<ddb_ElementClass> classes) {
  ddb_Part part;
  part.mesh_.nodes.labels = nodeLabels;
  part.mesh_.nodes.coordinates.Fill(nodeLabels.Size(), {0, 0, 0});
  part.mesh_.elements.classes = classes;
  return part;
}

ddb_PartInstance Instance(const char* partName) {
  ddb_PartInstance instance;
  instance.partName_ = partName;
  return instance;
}

const ddb_PartInstance& InstanceOf(const ddb_Model& model, const char* name) {
  return RecordCast<ddb_PartInstance>(model.rootAssembly().instance().ConstGet(name));
}

std::vector<int> Values(const cow_List<int>& list) { return {list.begin(), list.end()}; }

// Node labels in order (looked up without a table), scattered (by hash) and
// close together (by table), negative and at the ends of the int range.
TEST(Derive, NodeIndicesFollowTheLabels) {
  const struct {
    const char* name;
    cow_List<int> labels;
    std::vector<std::vector<int>> rows;
    std::vector<int> indices;
  } cases[] = {
      {"in order", {5, 6, 7}, {{7, 5, 6}, {6, 6, 5}}, {2, 0, 1, 1, 1, 0}},
      {"in order up to the largest int",
       {2147483646, 2147483647},
       {{2147483647, 2147483646}},
       {1, 0}},
      {"dense, out of order", {10, 30, 20}, {{30, 10, 20}, {20, 20, 10}}, {1, 0, 2, 2, 2, 0}},
      {"sparse", {7, 1000000000, -5}, {{-5, 7}, {1000000000, -5}}, {2, 0, 1, 2}},
      {"int range",
       {2147483647, -2147483647 - 1, 0},
       {{0, 2147483647, -2147483647 - 1}},
       {2, 0, 1}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    ddb_Model model;
    model.parts_.parts_.Insert("P", Part(c.labels, {Class("T", {1, 2}, c.rows)}));
    if (c.rows.size() == 1)
      model.parts_.parts_.Get("P").mesh_.elements.classes.Get(0).labels = {1};
    LoadErrors errors;
    DeriveModel("models/M", model, errors);
    EXPECT_EQ(errors.Messages(), std::vector<std::string>{});
    EXPECT_EQ(
        Values(model.part().get("P").mesh().elementData().elementClass(0).elementConnectivity()),
        c.indices);
  }
}

// Labels just outside a run of labels in order are no nodes; each is
// reported at its place and gets index 0.
TEST(Derive, UnknownNodesBesideLabelsInOrder) {
  ddb_Model model;
  model.parts_.parts_.Insert("P",
                             Part({5, 6, 7}, {Class("T", {1, 2}, {{4, 7}, {8, -2147483647 - 1}})}));
  LoadErrors errors;
  DeriveModel("models/M", model, errors);
  EXPECT_EQ(errors.Messages(),
            (std::vector<std::string>{
                "models/M/parts/P/elements/0/connectivity/0/0: no node 4 in the part",
                "models/M/parts/P/elements/0/connectivity/1/0: no node 8 in the part",
                "models/M/parts/P/elements/0/connectivity/1/1: no node -2147483648 in the part"}));
  EXPECT_EQ(
      Values(model.part().get("P").mesh().elementData().elementClass(0).elementConnectivity()),
      (std::vector<int>{0, 2, 0, 0}));
}

TEST(Derive, ManyScatteredLabels) {
  cow_List<int> labels;
  for (int i = 0; i < 5000; ++i)
    labels.Append((i * 7919) % 5000 * 100003 - 250000000); // a permutation, spread wide
  std::vector<std::vector<int>> rows;
  for (int i = 0; i < 5000; i += 2)
    rows.push_back({labels[i + 1], labels[i]});
  ddb_Model model;
  model.parts_.parts_.Insert("P", Part(labels, {Class("T", cow_List<int>(), rows)}));
  cow_List<int>& elementLabels = model.parts_.parts_.Get("P").mesh_.elements.classes.Get(0).labels;
  for (int i = 0; i < 2500; ++i)
    elementLabels.Append(i + 1);
  LoadErrors errors;
  DeriveModel("models/M", model, errors);
  ASSERT_TRUE(errors.Empty()) << errors.Messages()[0];
  const cow_List<int>& indices =
      model.part().get("P").mesh().elementData().elementClass(0).elementConnectivity();
  ASSERT_EQ(indices.Size(), 5000);
  for (int i = 0; i < 5000; i += 2) {
    EXPECT_EQ(indices[i], i + 1);
    EXPECT_EQ(indices[i + 1], i);
  }
}

TEST(Derive, InstancesShareTheirPartsMeshUnderIndicesInNameOrder) {
  ddb_Model model;
  model.parts_.parts_.Insert("Beam", Part({1, 2}, {Class("B31", {1}, {{1, 2}})}));
  model.parts_.parts_.Insert("Plate", Part({5}, {}));
  for (const char* name : {"b", "a", "C"})
    model.assembly_.instances_.Insert(name, Instance("Beam"));
  model.assembly_.instances_.Insert("Plate-1", Instance("Plate"));
  model.assembly_.mesh_.index = 7;
  LoadErrors errors;
  DeriveModel("models/M", model, errors);
  ASSERT_TRUE(errors.Empty());

  const ddb_Mesh& beam = model.part().get("Beam").mesh();
  const std::pair<const char*, int> expected[] = {{"C", 1}, {"Plate-1", 2}, {"a", 3}, {"b", 4}};
  for (const auto& [name, index] : expected) {
    SCOPED_TRACE(name);
    const ddb_PartInstance& instance = InstanceOf(model, name);
    EXPECT_EQ(instance.name(), name);
    EXPECT_EQ(instance.mesh().meshIndex(), index);
    EXPECT_EQ(&model.mesh(index), &instance.mesh());
  }
  const ddb_PartInstance& a = InstanceOf(model, "a");
  EXPECT_TRUE(a.nodeData().UserNodeLabels().SharesWith(beam.nodeData().UserNodeLabels()));
  EXPECT_TRUE(a.mesh().elements.classes.SharesWith(beam.elements.classes));
  EXPECT_EQ(Values(a.elementData().elementClass(0).elementConnectivity()),
            (std::vector<int>{0, 1}));
  EXPECT_EQ(model.rootAssembly().mesh().meshIndex(), 0);
  EXPECT_EQ(&model.mesh(0), &model.rootAssembly().mesh());
}

TEST(Derive, ReportsWhatSpansRecords) {
  ddb_Model model;
  model.parts_.parts_.Insert(
      "P", Part({1, 2, 1}, {Class("T", {4, 5}, {{1, 3}}), Class("Q", {5}, {{2, 2}})}));
  model.parts_.parts_.Get("P").mesh_.nodes.coordinates.Resize(2);
  model.assembly_.instances_.Insert("I", Instance("Q"));
  LoadErrors errors;
  DeriveModel("models/M", model, errors);
  EXPECT_EQ(errors.Messages(),
            (std::vector<std::string>{
                "models/M/parts/P/nodes: 3 node labels but 2 coordinate rows",
                "models/M/parts/P/nodes/labels/2: duplicate node label 1, also at index 0",
                "models/M/parts/P/elements/1/labels/0: duplicate element label 5, also at "
                "elements/0/labels/1",
                "models/M/parts/P/elements/0: 2 element labels but 1 connectivity row",
                "models/M/parts/P/elements/0/connectivity/0/1: no node 3 in the part",
                R"(models/M/assembly/instances/I/part: no part "Q" in the model)"}));
}

TEST(Derive, LeavesAlonePartsAndInstancesThatAlreadyHaveErrors) {
  ddb_Model model;
  model.parts_.parts_.Insert("P", Part({1}, {Class("T", {1}, {{9}})}));
  model.parts_.parts_.Insert("Q", Part({1}, {Class("T", {1}, {{1}})}));
  model.assembly_.instances_.Insert("I", Instance(""));
  LoadErrors errors;
  errors.Add("models/M/parts/P/nodes/labels/0", "an earlier fault");
  errors.Add("models/M/assembly/instances/I", "another one");
  DeriveModel("models/M", model, errors);
  EXPECT_EQ(errors.Count(), 2);
  EXPECT_EQ(model.part().get("P").mesh().elementData().elementClass(0).elementConnectivity().Size(),
            0);
  EXPECT_EQ(model.part().get("Q").mesh().elementData().elementClass(0).elementConnectivity().Size(),
            1);
}

} // namespace
