#include "model/database.h"
#include "model/json/loader.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_Surface.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using keydeck::test::DeckText;

/// Two shells "P" with instances "P-1" and "P-2", and the given surfaces of
/// the part and of the assembly.
odb_Odb ShellModel(const std::string& partSurfaces, const std::string& assemblySurfaces) {
  std::vector<std::string> warnings;
  return keydeck::LoadModelText(R"({"format": "keydeck-model", "version": 1, "models": {"M": {
      "parts": {"P": {
        "nodes": {"labels": [1, 2, 3, 4, 5, 6],
                  "coordinates": [[0,0,0],[1,0,0],[2,0,0],[0,1,0],[1,1,0],[2,1,0]]},
        "elements": [{"type": "S4R", "labels": [1, 2], "connectivity": [[1,2,5,4],[2,3,6,5]]}],
        "surfaces": )" + partSurfaces + R"(}},
      "assembly": {"instances": {"P-1": {"part": "P"}, "P-2": {"part": "P"}},
                   "surfaces": )" + assemblySurfaces + "}}}}",
                                warnings);
}

const ddb_Set& SetNamed(const ddb_SetList& sets, const char* name) {
  for (const ddb_Set& set : sets)
    if (set.setLabel() == name)
      return set;
  throw std::runtime_error("no such set");
}

TEST(SurfaceCards, ShellSidesMakeOneSetEach) {
  const odb_Odb odb = ShellModel(
      R"({"Skin": {"faces": [{"face": "SNEG", "elements": [2]}, {"face": "SPOS", "elements": [1, 2]}]}})",
      "{}");
  const ddb_Model& model = odb.ddb().model("M");
  const auto& instance =
      keydeck::RecordCast<ddb_PartInstance>(model.rootAssembly().instance().ConstGet("P-1"));
  // Faces in the map's order: "SNEG" came first and is the root.
  EXPECT_EQ(DeckText(oif_Surface(SetNamed(instance.set(), "Skin").set(), instance)),
            "*Elset, elset=_Skin_SNEG, internal\n"
            "2, \n"
            "*Elset, elset=_Skin_SPOS, internal\n"
            "1,2\n"
            "*Surface, type=ELEMENT, name=Skin\n"
            "_Skin_SNEG, SNEG\n"
            "_Skin_SPOS, SPOS\n");
}

TEST(SurfaceCards, AssemblySurfaceGroupsItsInstances) {
  const odb_Odb odb = ShellModel("{}", R"({"Both": {"faces": [
      {"instance": "P-2", "face": "SPOS", "elements": [1]},
      {"instance": "P-1", "face": "SPOS", "elements": [2, 1]}]}})");
  const ddb_Assembly& assembly = odb.ddb().model("M").rootAssembly();
  // All element sets of all instances stand before the one "*Surface" line.
  EXPECT_EQ(DeckText(oif_Surface(SetNamed(assembly.set(), "Both").set(), assembly)),
            "*Elset, elset=_Both_SPOS, instance=P-2, internal\n"
            "1, \n"
            "*Elset, elset=_Both_SPOS, instance=P-1, internal\n"
            "1,2\n"
            "*Surface, type=ELEMENT, name=Both\n"
            "_Both_SPOS, SPOS\n"
            "_Both_SPOS, SPOS\n");
}

TEST(SurfaceCards, EmptyFaceNameAndNodeSurface) {
  // A shell facet id of 6 names its face with the empty text.
  ddb_PartInstance instance;
  instance.mesh_.index = 3;
  ddb_ElementClass shells;
  shells.type = "S4R";
  shells.labels = {5};
  instance.mesh_.elements.classes = {shells};
  rgnC_SetData set;
  set.name = "Mid";
  set.type = res_FacetSet;
  rgnC_SubsetData subset;
  subset.meshIndex = 3;
  subset.classIndex = 0;
  subset.indices = {0};
  subset.facetIds = {6};
  set.subsets = {subset};
  EXPECT_EQ(DeckText(oif_Surface(set, instance)), "*Elset, elset=_Mid_, internal\n"
                                                  "5, \n"
                                                  "*Surface, type=ELEMENT, name=Mid\n"
                                                  "_Mid_, \n");

  const oif_ModelInfo info{ddb_Model()};
  EXPECT_EQ(DeckText(oif_Surface(info, "I_Tip_CNS_", "I.Tip")),
            "*Surface, type=NODE, name=I_Tip_CNS_\nI.Tip, 1.\n");
}

} // namespace
