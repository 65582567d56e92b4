#include "model/json/dumper.h"
#include "model/json/loader.h"
#include "tests/model/loading.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <numbers>
#include <string>
#include <vector>

using namespace keydeck;
using namespace keydeck::test;

namespace {

// A part "P" of twelve nodes and three classes: bricks 1 and 2, shells 11
// and 12, beams 21 and 22. `more` adds members to the part.
std::string PartText(const std::string& more) {
  return R"({"nodes": {"labels": [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12],
      "coordinates": [[0, 0, 0], [1, 0, 0], [1, 1, 0], [0, 1, 0], [0, 0, 1], [1, 0, 1],
                      [1, 1, 1], [0, 1, 1], [0, 0, 2], [1, 0, 2], [1, 1, 2], [0, 1, 2]]},
    "elements": [
      {"type": "C3D8R", "labels": [1, 2],
       "connectivity": [[1, 2, 3, 4, 5, 6, 7, 8], [5, 6, 7, 8, 9, 10, 11, 12]]},
      {"type": "S4R", "labels": [11, 12], "connectivity": [[1, 2, 3, 4], [5, 6, 7, 8]]},
      {"type": "B31", "labels": [21, 22], "connectivity": [[1, 2], [2, 3]]}])" +
         more + "}";
}

std::string WithPartMembers(const std::string& more) { return WithPart(PartText(more)); }

// The part "P" with two instances, "I-1" (mesh 1) and "I-2" (mesh 2), and
// `assembly` as further members of the assembly.
std::string WithAssembly(const std::string& assembly) {
  return InModel(R"({"parts": {"P": )" + PartText("") +
                 R"(}, "assembly": {"instances": {"I-2": {"part": "P"}, "I-1": {"part": "P"}})" +
                 assembly + "}}");
}

// A set's data in a few words: its kind, then each subset as
// "mesh/class indices", with "@facet" behind each index of a facet set.
std::string Describe(const rgnC_SetData& set) {
  const char* const kinds[] = {"nodes", "elements", "facets"};
  std::string text = std::string(set.Name().View()) + " " + kinds[set.SetType()];
  if (set.Internal())
    text += " internal";
  for (int i = 0; i < set.NumSubsets(); ++i) {
    const rgnC_SubsetData& subset = set.SubSet(i);
    // Appended piece by piece: a literal + std::to_string trips a false
    // overlap warning of the compiler.
    text.append(i == 0 ? ": " : " | ").append(std::to_string(subset.MeshIndex()));
    text.append("/").append(std::to_string(subset.ClassIndex()));
    for (int j = 0; j < subset.Size(); ++j) {
      text.append(j == 0 ? " " : ",").append(std::to_string(subset.indices[j]));
      if (set.SetType() == res_FacetSet)
        text.append("@").append(std::to_string(subset.facetIds[j]));
    }
  }
  return text;
}

std::vector<std::string> Describe(const ddb_SetList& sets) {
  std::vector<std::string> texts;
  for (const ddb_Set& set : sets)
    texts.push_back(Describe(set.set()));
  return texts;
}

std::vector<std::string> PartSets(const odb_Odb& odb) {
  return Describe(OnlyModel(odb).part().get("P").mesh().set());
}

// Sets and surfaces share one list in byte order of their names; node sets
// have one subset, element sets one per class in class order (file order
// within), and every instance gets the list under its own mesh index.
TEST(PartSets, BecomeSubsetsInEveryInstance) {
  const odb_Odb odb = Load(InModel(R"({"parts": {"P": )" + PartText(R"(,
      "sets": {"b": {"nodes": [5, 1, 5]}, "Mixed": {"elements": [22, 1, 12, 2, 21], "internal": true},
               "Empty": {"nodes": []}, "None": {"elements": []}},
      "surfaces": {"Touch": {"nodes": [12]}, "C": {"faces": [{"face": "S1", "elements": [2]}]}})") +
                                   R"(}, "assembly": {"instances": {"I-2": {"part": "P"},
                                      "I-1": {"part": "P"}}}})"));
  const std::vector<std::string> expected = {"C facets: 0/0 1@0",
                                             "Empty nodes: 0/-1",
                                             "Mixed elements internal: 0/0 0,1 | 0/1 1 | 0/2 1,0",
                                             "None elements",
                                             "Touch nodes: 0/-1 11",
                                             "b nodes: 0/-1 4,0,4"};
  EXPECT_EQ(PartSets(odb), expected);

  const ddb_Model& model = OnlyModel(odb);
  const ddb_SetList& partSets = model.part().get("P").mesh().set();
  for (const auto& [name, meshIndex] : {std::pair{"I-1", 1}, std::pair{"I-2", 2}}) {
    SCOPED_TRACE(name);
    const ddb_SetList& sets = InstanceOf(model, name).set();
    std::vector<std::string> stamped = expected;
    for (std::string& text : stamped)
      for (std::size_t at = text.find("0/"); at != std::string::npos; at = text.find("0/", at))
        text.replace(at, 1, std::to_string(meshIndex));
    EXPECT_EQ(Describe(sets), stamped);
    EXPECT_TRUE(sets.ConstGet(2).set().SubSet(0).indices.SharesWith(
        partSets.ConstGet(2).set().SubSet(0).indices));
  }
}

// A range gives first, first + step, ... as far as they do not pass last.
TEST(PartSets, GenerateRanges) {
  const std::pair<const char*, const char*> cases[] = {
      {"[1, 12, 3]", "0,3,6,9"},  // last not reached: 12 is no label of the range
      {"[2, 11, 3]", "1,4,7,10"}, // last reached
      {"[4, 4, 1]", "3"},         // one label
      {"[10, 12, 1]", "9,10,11"}, // step 1
      {"[3, 5, 100]", "2"},       // a step beyond last
  };
  for (const auto& [range, indices] : cases) {
    SCOPED_TRACE(range);
    const odb_Odb odb = Load(
        WithPartMembers(std::string(R"(, "sets": {"R": {"nodes": {"generate": )") + range + "}}}"));
    EXPECT_EQ(PartSets(odb), std::vector<std::string>{std::string("R nodes: 0/-1 ") + indices});
  }
  const odb_Odb odb =
      Load(WithPartMembers(R"(, "sets": {"E": {"elements": {"generate": [1, 21, 10]}}},
      "surfaces": {"F": {"faces": [{"face": "SNEG", "elements": {"generate": [11, 12, 1]}}]}})"));
  EXPECT_EQ(PartSets(odb), (std::vector<std::string>{"E elements: 0/0 0 | 0/1 0 | 0/2 0",
                                                     "F facets: 0/1 0@1,1@1"}));
}

// Face labels become facet ids by the shape of each element's type; subsets
// follow the first appearance of their class, entries the file.
TEST(PartSurfaces, FacetIdsOnSolidShellAndBeamClasses) {
  const odb_Odb odb = Load(WithPartMembers(R"(, "surfaces": {"Load": {"internal": true, "faces": [
      {"face": "SNEG", "elements": [12]},
      {"face": "S2", "elements": [2, 1]},
      {"face": "END2", "elements": [21]},
      {"face": "S6", "elements": [1]},
      {"face": "SPOS", "elements": [11, 12]},
      {"face": "END1", "elements": [22, 22]}]}})"));
  EXPECT_EQ(PartSets(odb), std::vector<std::string>{"Load facets internal: 0/1 1@1,0@0,1@0 | "
                                                    "0/0 1@1,0@1,0@5 | 0/2 0@1,1@0,1@0"});
}

TEST(PartSets, Messages) {
  ExpectMessages({
      {"both kinds",
       WithPartMembers(R"(, "sets": {"S": {"nodes": [1], "elements": [1]}})"),
       {R"(models/M/parts/P/sets/S: a set has "nodes" or "elements", not both)"}},
      {"no kind",
       WithPartMembers(R"(, "sets": {"S": {"internal": true}})"),
       {R"(models/M/parts/P/sets/S: a set needs "nodes" or "elements")"}},
      {"unknown labels",
       WithPartMembers(R"(, "sets": {"N": {"nodes": [1, 99, 2, 0]}, "E": {"elements": [3]}})"),
       {"models/M/parts/P/sets/E/elements/0: no element 3 in the part",
        "models/M/parts/P/sets/N/nodes/1: no node 99 in the part",
        "models/M/parts/P/sets/N/nodes/3: no node 0 in the part"}},
      // Only the first label of a range that is missing: a range may be long.
      {"range past the labels",
       WithPartMembers(R"(, "sets": {"N": {"nodes": {"generate": [10, 2000000000, 1]}}})"),
       {"models/M/parts/P/sets/N/nodes/generate: no node 13 in the part"}},
      {"range faults",
       WithPartMembers(R"(, "sets": {"A": {"nodes": {"generate": [1, 5, 0]}},
                                    "B": {"nodes": {"generate": [9, 5, 1]}},
                                    "C": {"nodes": {"generate": [1, 5]}},
                                    "D": {"nodes": {"generate": [1, "5", 1, 4]}},
                                    "E": {"nodes": {"generat": [1, 5, 1]}},
                                    "F": {"nodes": "all"},
                                    "G": {"nodes": [1, "2"]}})"),
       {"models/M/parts/P/sets/A/nodes/generate/2: the step must be 1 or more, found 0",
        "models/M/parts/P/sets/B/nodes/generate: the first label 9 lies beyond the last 5",
        "models/M/parts/P/sets/C/nodes/generate: expected 3 integers, found 2",
        "models/M/parts/P/sets/D/nodes/generate/1: expected an integer, found a string",
        "models/M/parts/P/sets/D/nodes/generate: expected 3 integers, found 4",
        R"(models/M/parts/P/sets/E/nodes: unknown field "generat"; did you mean "generate"?)",
        R"(models/M/parts/P/sets/E/nodes: missing field "generate")",
        R"(models/M/parts/P/sets/F/nodes: expected an array of labels or {"generate": [first, )"
        R"(last, step]}, found a string)",
        "models/M/parts/P/sets/G/nodes/1: expected an integer, found a string"}},
      {"set fields",
       WithPartMembers(R"(, "sets": {"S": {"node": [1], "internal": 1}, "T": []})"),
       {R"(models/M/parts/P/sets/S: unknown field "node"; did you mean "nodes"?)",
        "models/M/parts/P/sets/S/internal: expected true or false, found a number",
        "models/M/parts/P/sets/T: expected an object, found an array"}},
      {"nameless",
       WithPartMembers(R"(, "sets": {"": {"nodes": [1]}}, "surfaces": {"": {"nodes": [1]}})"),
       {"models/M/parts/P/sets: a name must not be empty",
        "models/M/parts/P/surfaces: a name must not be empty"}},
      // A fault in a set leaves the mesh checked, and the other way round.
      {"set and mesh faults",
       WithPart(R"({"nodes": {"labels": [1], "coordinates": [[0, 0, 0]]},
                    "elements": [{"type": "T3D2", "labels": [1], "connectivity": [[1, 2]]}],
                    "sets": {"S": {"nodes": [1, "x"]}, "T": {"nodes": [3]}}})"),
       {"models/M/parts/P/sets/S/nodes/1: expected an integer, found a string",
        "models/M/parts/P/elements/0/connectivity/0/1: no node 2 in the part",
        "models/M/parts/P/sets/T/nodes/0: no node 3 in the part"}},
      {"labels of a broken mesh go unchecked",
       WithPart(R"({"nodes": {"labels": ["x"], "coordinates": [[0, 0, 0]]},
                    "sets": {"T": {"nodes": [3]}}})"),
       {"models/M/parts/P/nodes/labels/0: expected an integer, found a string"}},
  });
}

TEST(PartSurfaces, Messages) {
  ExpectMessages({
      {"both kinds",
       WithPartMembers(R"(, "surfaces": {"S": {"nodes": [1], "faces": []}})"),
       {R"(models/M/parts/P/surfaces/S: a surface has "faces" or "nodes", not both)"}},
      {"no kind",
       WithPartMembers(R"(, "surfaces": {"S": {}})"),
       {R"(models/M/parts/P/surfaces/S: a surface needs "faces" or "nodes")"}},
      {"a set's name",
       WithPartMembers(R"(, "sets": {"S": {"nodes": [1]}}, "surfaces": {"S": {"nodes": [2]}})"),
       {"models/M/parts/P/surfaces/S: a set of the same name exists in the part"}},
      // One message for each entry, at its first element that does not fit.
      {"faces that do not fit",
       WithPartMembers(R"(, "surfaces": {"S": {"faces": [
           {"face": "S7", "elements": [2, 1]},
           {"face": "S1", "elements": [11]},
           {"face": "SPOS", "elements": [22]},
           {"face": "END1", "elements": [1, 21]},
           {"face": "s1", "elements": [1]}]}})"),
       {R"(models/M/parts/P/surfaces/S/faces/0/face: face "S7" does not fit element 2 of type )"
        "C3D8R (faces S1 to S6)",
        R"(models/M/parts/P/surfaces/S/faces/1/face: face "S1" does not fit element 11 of type )"
        "S4R (faces SPOS and SNEG)",
        R"(models/M/parts/P/surfaces/S/faces/2/face: face "SPOS" does not fit element 22 of )"
        "type B31 (faces END1 and END2)",
        R"(models/M/parts/P/surfaces/S/faces/3/face: face "END1" does not fit element 1 of )"
        "type C3D8R (faces S1 to S6)",
        R"(models/M/parts/P/surfaces/S/faces/4/face: face "s1" does not fit element 1 of type )"
        "C3D8R (faces S1 to S6)"}},
      {"a type without known faces",
       WithPart(R"({"nodes": {"labels": [1], "coordinates": [[0, 0, 0]]},
                    "elements": [{"type": "MASS", "labels": [4], "connectivity": [[1]]}],
                    "surfaces": {"S": {"faces": [{"face": "S1", "elements": [4]}]}}})"),
       {R"(models/M/parts/P/surfaces/S/faces/0/face: face "S1" does not fit element 4 of type )"
        "MASS, whose faces are not known"}},
      {"entry fields and labels",
       WithPartMembers(R"(, "surfaces": {"S": {"faces": [{"elements": [1]},
           {"face": "S1", "elements": [1, 5]}, {"face": 1, "elements": []}], "nodes": null}})"),
       {R"(models/M/parts/P/surfaces/S/faces/0: missing field "face")",
        "models/M/parts/P/surfaces/S/faces/2/face: expected a string, found a number",
        R"(models/M/parts/P/surfaces/S/nodes: expected an array of labels or {"generate": )"
        "[first, last, step]}, found null"}},
      {"unknown element",
       WithPartMembers(R"(, "surfaces": {"S": {"faces": [{"face": "S1", "elements": [1, 5]}]},
                                         "T": {"nodes": {"generate": [11, 13, 1]}}})"),
       {"models/M/parts/P/surfaces/S/faces/0/elements/1: no element 5 in the part",
        "models/M/parts/P/surfaces/T/nodes/generate: no node 13 in the part"}},
  });
}

// Sets on instances: one subset per instance mesh and class, in the order in
// which they first appear; an instance named twice adds to its subset.
TEST(AssemblySets, SpanInstances) {
  const odb_Odb odb = Load(WithAssembly(R"(,
      "sets": {"Ends": {"nodes": [{"instance": "I-2", "labels": [3]},
                                  {"instance": "I-1", "labels": {"generate": [1, 2, 1]}},
                                  {"instance": "I-2", "labels": [4]}]},
               "Body": {"internal": true, "elements": [{"instance": "I-1", "labels": [21, 1, 2]},
                                                       {"instance": "I-2", "labels": [2]}]}},
      "surfaces": {"Both": {"faces": [{"instance": "I-2", "face": "S2", "elements": [1]},
                                      {"instance": "I-1", "face": "SPOS", "elements": [11]},
                                      {"instance": "I-2", "face": "S3", "elements": [2]}]},
                   "Dots": {"nodes": [{"instance": "I-1", "labels": [7]}]}})"));
  EXPECT_EQ(Describe(OnlyModel(odb).rootAssembly().set()),
            (std::vector<std::string>{"Body elements internal: 1/2 0 | 1/0 0,1 | 2/0 1",
                                      "Both facets: 2/0 0@1,1@2 | 1/1 0@0", "Dots nodes: 1/-1 6",
                                      "Ends nodes: 2/-1 2,3 | 1/-1 0,1"}));
}

TEST(AssemblySets, Messages) {
  ExpectMessages({
      {"unknown instance",
       WithAssembly(R"(, "sets": {"E": {"nodes": [{"instance": "I-9", "labels": [1]}]}},
           "surfaces": {"F": {"faces": [{"instance": "", "face": "S1", "elements": [1]}]}})"),
       // A reference is a name, so the loader refuses an empty one before any
       // lookup.
       {R"(models/M/assembly/surfaces/F/faces/0/instance: a name must not be empty)",
        R"(models/M/assembly/sets/E/nodes/0/instance: no instance "I-9")"}},
      {"unknown labels",
       WithAssembly(R"(, "sets": {"E": {"elements": [{"instance": "I-1", "labels": [1, 99]}]},
                                  "N": {"nodes": [{"instance": "I-2", "labels": {"generate": [12, 14, 1]}}]}})"),
       {R"(models/M/assembly/sets/E/elements/0/labels/1: no element 99 in instance "I-1")",
        R"(models/M/assembly/sets/N/nodes/0/labels/generate: no node 13 in instance "I-2")"}},
      {"faces that do not fit",
       WithAssembly(
           R"(, "surfaces": {"F": {"faces": [{"instance": "I-1", "face": "S2", "elements": [11]}]}})"),
       {R"(models/M/assembly/surfaces/F/faces/0/face: face "S2" does not fit element 11 of type )"
        "S4R (faces SPOS and SNEG)"}},
      {"kinds and names",
       WithAssembly(R"(, "sets": {"S": {}, "T": {"nodes": [], "elements": []}},
           "surfaces": {"S": {"nodes": []}, "U": {}})"),
       {R"(models/M/assembly/sets/S: a set needs "nodes" or "elements")",
        R"(models/M/assembly/sets/T: a set has "nodes" or "elements", not both)",
        "models/M/assembly/surfaces/S: a set of the same name exists in the assembly",
        R"(models/M/assembly/surfaces/U: a surface needs "faces" or "nodes")"}},
      {"entry fields",
       WithAssembly(R"(, "sets": {"S": {"nodes": [{"instance": "I-1", "label": [1]}]}})"),
       {R"(models/M/assembly/sets/S/nodes/0: unknown field "label"; did you mean "labels"?)",
        R"(models/M/assembly/sets/S/nodes/0: missing field "labels")"}},
      // The instance's part has a fault of its own: its labels go unchecked.
      {"instance of a broken part",
       InModel(R"({"parts": {"P": {"nodes": {"labels": [1, 1], "coordinates": [[0, 0, 0]]}}},
           "assembly": {"instances": {"A": {"part": "P"}, "B": {"part": "Q"}},
             "sets": {"S": {"nodes": [{"instance": "A", "labels": [1]}, {"instance": "B", "labels": [5]}]}}}})"),
       {"models/M/parts/P/nodes: 2 node labels but 1 coordinate row",
        "models/M/parts/P/nodes/labels/1: duplicate node label 1, also at index 0",
        R"(models/M/assembly/instances/B/part: no part "Q" in the model)"}},
  });
}

// The digits the deck prints an angle with.
std::string Digits15(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.15g", value);
  return text;
}

TEST(Instances, PlacementBecomesTheTransform) {
  const double pi = std::numbers::pi;
  const struct {
    const char* placement;
    std::vector<double> transform;
    const char* degrees;
  } cases[] = {
      {"", {0, 0, 0, 0, 0, 0}, "0"},
      {R"("translation": [1.5, -2, 1e-9])", {1.5, -2, 1e-9, 0, 0, 0}, "0"},
      {R"("rotation": {"axis": [0, 0, 1], "angle": 90})", {0, 0, 0, 0, 0, pi / 2}, "90"},
      {R"("rotation": {"axis": [0, 0, -5], "angle": 90})", {0, 0, 0, 0, 0, -pi / 2}, "90"},
      {R"("rotation": {"axis": [0, 1e300, 0], "angle": 180})", {0, 0, 0, 0, pi, 0}, "180"},
      {R"("rotation": {"axis": [1e-310, 0, 0], "angle": 45})", {0, 0, 0, pi / 4, 0, 0}, "45"},
      {R"("rotation": {"axis": [0, 0, 0], "angle": 0})", {0, 0, 0, 0, 0, 0}, "0"},
      {R"("rotation": {"axis": [1, 0, 0], "angle": 0})", {0, 0, 0, 0, 0, 0}, "0"},
      {R"("translation": [0, 40, 0], "rotation": {"axis": [3, 4, 0], "angle": 30})",
       {0, 40, 0, 0.6 * pi / 6, 0.8 * pi / 6, 0},
       "30"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.placement);
    const std::string instance =
        std::string(R"({"part": "P")") + (*c.placement ? ", " : "") + c.placement + "}";
    const odb_Odb odb = Load(
        InModel(R"({"parts": {"P": {}}, "assembly": {"instances": {"A": )" + instance + "}}}"));
    const cow_List<double>& transform = InstanceOf(OnlyModel(odb), "A").transform();
    ASSERT_EQ(transform.Size(), 6);
    for (int i = 0; i < 6; ++i)
      EXPECT_NEAR(transform[i], c.transform[static_cast<std::size_t>(i)], 1e-15) << i;
    const double angle = std::hypot(transform[3], transform[4], transform[5]);
    EXPECT_EQ(Digits15(angle * 180.0 / 3.141592653589793), c.degrees);
    // The dump gives the placement back as written, so a second load gives
    // the same transform to the last bit.
    const odb_Odb again = Load(DumpModel(odb));
    const cow_List<double>& reloaded = InstanceOf(OnlyModel(again), "A").transform();
    for (int i = 0; i < 6; ++i)
      EXPECT_EQ(std::bit_cast<std::uint64_t>(reloaded[i]),
                std::bit_cast<std::uint64_t>(transform[i]));
  }
}

TEST(Instances, PlacementMessages) {
  const auto withInstance = [](const std::string& members) {
    return InModel(R"({"parts": {"P": {}}, "assembly": {"instances": {"A": {"part": "P", )" +
                   members + "}}}}");
  };
  ExpectMessages({
      {"zero axis",
       withInstance(R"("rotation": {"axis": [0, -0, 0], "angle": 1e-300})"),
       {"models/M/assembly/instances/A/rotation/axis: a rotation needs an axis of non-zero "
        "length"}},
      {"value types",
       withInstance(R"("translation": [1, "2", 3], "rotation": {"axis": [0, 1], "angle": "90"})"),
       {"models/M/assembly/instances/A/translation/1: expected a number, found a string",
        "models/M/assembly/instances/A/rotation/axis: expected 3 numbers, found 2",
        "models/M/assembly/instances/A/rotation/angle: expected a number, found a string"}},
      {"rotation fields",
       withInstance(R"("rotation": {"axis": [0, 0, 1], "degrees": 90})"),
       {R"(models/M/assembly/instances/A/rotation: unknown field "degrees")",
        R"(models/M/assembly/instances/A/rotation: missing field "angle")"}},
      {"translation of four",
       withInstance(R"("translation": [1, 2, 3, 4])"),
       {"models/M/assembly/instances/A/translation: expected 3 numbers, found 4"}},
  });
}

} // namespace
