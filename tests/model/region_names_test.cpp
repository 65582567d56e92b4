#include "model/json/region_names.h"
#include "tests/model/loading.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace keydeck;
using namespace keydeck::test;

namespace {

// Instances "Beam-1" (mesh 2) and "b-2" (mesh 3) of one part with the set
// "Tip" and the surface "Face"; "A" (mesh 1) of a part without sets; the
// assembly's own sets "Ends" and "Tip".
const char* const Model = R"({"format": "keydeck-model", "version": 1, "models": {"M": {
  "parts": {
    "Beam": {"nodes": {"labels": [1, 2], "coordinates": [[0, 0, 0], [1, 0, 0]]},
             "elements": [{"type": "B31", "labels": [1], "connectivity": [[1, 2]]}],
             "sets": {"Tip": {"nodes": [2]}},
             "surfaces": {"Face": {"faces": [{"face": "END2", "elements": [1]}]}}},
    "Empty": {}},
  "assembly": {
    "instances": {"Beam-1": {"part": "Beam"}, "b-2": {"part": "Beam"}, "A": {"part": "Empty"}},
    "sets": {"Tip": {"nodes": [{"instance": "b-2", "labels": [2]}]},
             "Ends": {"nodes": [{"instance": "Beam-1", "labels": [1, 2]}]}}}}}})";

TEST(RegionNames, ResolveScopedNames) {
  const odb_Odb odb = Load(Model);
  const ddb_Model& model = OnlyModel(odb);
  const struct {
    const char* name;
    const char* path;
    int setIndex;
    const char* setName;
    int meshIndex; // of the set's first subset
  } cases[] = {
      {"Tip", "rootAssembly.setData", 1, "Tip", 3},
      {"Ends", "rootAssembly.setData", 0, "Ends", 2},
      {"\"Ends\"", "rootAssembly.setData", 0, "Ends", 2},
      {"Beam-1.Tip", "rootAssembly.mesh[2].setData", 1, "Tip", 2},
      {"Beam-1.Face", "rootAssembly.mesh[2].setData", 0, "Face", 2},
      {"\"b-2\".Tip", "rootAssembly.mesh[3].setData", 1, "Tip", 3},
      {"\"Beam-1\".\"Tip\"", "rootAssembly.mesh[2].setData", 1, "Tip", 2},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    LoadErrors errors;
    const rgnC_Region region = ResolveRegion(model, c.name, "loads/L/region", errors);
    EXPECT_EQ(errors.Messages(), std::vector<std::string>{});
    EXPECT_TRUE(region.HasSet());
    EXPECT_EQ(region.Path(), c.path);
    EXPECT_EQ(region.SetIndex(), c.setIndex);
    EXPECT_EQ(region.ConstSet().Name(), c.setName);
    ASSERT_GT(region.ConstSet().NumSubsets(), 0);
    EXPECT_EQ(region.ConstSet().SubSet(0).MeshIndex(), c.meshIndex);
  }
}

TEST(RegionNames, Messages) {
  const odb_Odb odb = Load(Model);
  const std::pair<const char*, const char*> cases[] = {
      {"Nope", R"(no set "Nope" in the assembly)"},
      {"Face", R"(no set "Face" in the assembly)"},
      {"Beam-9.Tip", R"(no instance "Beam-9")"},
      {"Beam-1.Nope", R"(no set "Nope" in instance "Beam-1")"},
      {"A.Tip", R"(no set "Tip" in instance "A")"},
      {"a.b.Tip",
       R"(region name "a.b.Tip" has 3 pieces; a region is "set" or "instance.set", and a name )"
       "that holds a dot is written in quotes"},
      {"\"a.b.Tip", R"(in region name "\"a.b.Tip": a quote is not closed)"},
      {"\"a.b\"x.Tip", R"(in region name "\"a.b\"x.Tip": quotes must enclose a whole name)"},
      {"a\"b\".Tip", R"(in region name "a\"b\".Tip": quotes must enclose a whole name)"},
      {"", R"(no set "" in the assembly)"},
      {"Beam-1.", R"(no set "" in instance "Beam-1")"},
  };
  for (const auto& [name, message] : cases) {
    SCOPED_TRACE(name);
    LoadErrors errors;
    const rgnC_Region region =
        ResolveRegion(OnlyModel(odb), name, "models/M/loads/L/region", errors);
    EXPECT_EQ(errors.Messages(),
              std::vector<std::string>{std::string("models/M/loads/L/region: ") + message});
    EXPECT_FALSE(region.HasSet());
  }
}

} // namespace
