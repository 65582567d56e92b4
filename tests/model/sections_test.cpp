#include "model/json/dumper.h"
#include "model/properties.h"
#include "tests/model/loading.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace keydeck;
using namespace keydeck::test;

namespace {

// A model with a material "Steel", the sections and profiles given (object
// members) and a part "P" of two beams with the element set "Beams" and the
// section assignments given, placed once as instance "I".
std::string SectionModel(const std::string& sections, const std::string& profiles = "",
                         const std::string& assignments = "") {
  return InModel(R"({"materials": {"Steel": {"density": {"table": [[7.8e-9]]}}},
    "sections": {)" +
                 sections + R"(}, "profiles": {)" + profiles + R"(},
    "parts": {"P": {"nodes": {"labels": [1, 2, 3], "coordinates": [[0, 0, 0], [1, 0, 0], [2, 0, 0]]},
      "elements": [{"type": "B31", "labels": [1, 2], "connectivity": [[1, 2], [2, 3]]}],
      "sets": {"Beams": {"elements": [1, 2]}, "Ends": {"nodes": [1, 3]}},
      "sectionAssignments": [)" +
                 assignments +
                 R"(]}},
    "assembly": {"instances": {"I": {"part": "P"}}}})");
}

std::vector<std::string> WarningsOf(const std::string& json) {
  std::vector<std::string> warnings;
  LoadModelText(json, warnings);
  return warnings;
}

TEST(SectionFile, EachSectionAndProfileKindRoundTrips) {
  const std::string sections = R"(
    "A": {"type": "homogeneousSolid", "material": "Steel", "thickness": 2},
    "B": {"type": "compositeSolid", "symmetric": true,
          "layers": [{"thickness": 1, "material": "Steel", "angle": 45}]},
    "C": {"type": "homogeneousShell", "material": "Steel", "thickness": 0.5, "poisson": 0.3,
          "integrationRule": "gauss", "transverseShear": {"k11": 5},
          "rebar": {"spacing": "angular", "layers": [{"name": "R", "material": "Steel", "area": 1}]}},
    "D": {"type": "compositeShell", "layers": [{"thickness": 1, "material": "Steel",
          "orientation": "Ply"}]},
    "E": {"type": "generalShell", "symmetric": false},
    "F": {"type": "membrane", "material": "Steel"},
    "G": {"type": "truss", "material": "Steel", "area": 3},
    "H": {"type": "beam", "profile": "Box", "material": "Steel",
          "fluidInertia": {"density": 1000, "half": true}},
    "J": {"type": "beam", "profile": "Gen", "integration": "beforeAnalysis",
          "response": [[2e5, 8e4]], "sectionPoints": [[1, 2], [3, 4]], "centroid": [0.5, 0]},
    "K": {"type": "gasket", "material": "Steel"},
    "L": {"type": "point", "mass": 2})";
  const std::string profiles = R"(
    "Rect": {"type": "rectangle", "width": 1, "height": 2},
    "Circ": {"type": "circle", "radius": 1},
    "Pipe": {"type": "pipe", "radius": 1, "thickness": 0.1},
    "Box": {"type": "box", "width": 1, "height": 2, "uniformThickness": true, "thickness1": 0.1},
    "I": {"type": "i", "offset": 1, "height": 2, "bottomWidth": 1, "topWidth": 1,
          "bottomThickness": 0.1, "topThickness": 0.1, "webThickness": 0.1},
    "L": {"type": "l", "width": 1, "height": 1, "thickness1": 0.1, "thickness2": 0.1},
    "T": {"type": "t", "width": 1, "height": 1, "offset": 0.5, "flangeThickness": 0.1,
          "webThickness": 0.1},
    "Trap": {"type": "trapezoid", "width": 2, "height": 1, "topWidth": 1, "offset": 0},
    "Hex": {"type": "hexagon", "radius": 1, "thickness": 0.1},
    "Arb": {"type": "arbitrary", "start": [0, 0], "segments": [[1, 0, 0.1], [1, 1, 0.2]]},
    "Gen": {"type": "generalized", "area": 1, "i11": 2, "i12": 0, "i22": 3, "j": 4})";
  const odb_Odb odb = Load(SectionModel(sections, profiles));
  const std::string dump = DumpModel(odb);
  EXPECT_EQ(DumpModel(Load(dump)), dump);
  const ddb_Model& model = OnlyModel(odb);
  const unsigned sectionIds[] = {0x2600003, 0x2600004, 0x260000b, 0x260000c, 0x260000e, 0x2600012,
                                 0x2600011, 0x260000f, 0x260000f, 0x2600018, 0x2600019};
  int i = 0;
  for (const auto& [name, section] : model.sections())
    EXPECT_EQ(section->DynTypeId(), sectionIds[i++]) << name.View();
  EXPECT_EQ(i, 11);
  const auto& shell = RecordCast<kseC_HomogenousShellSection>(model.sections().ConstGet("C"));
  EXPECT_EQ(shell.PoissonDefined(), 1);
  EXPECT_EQ(shell.integrationRule, kseC_GeometryShellSection::Gauss);
  EXPECT_EQ(shell.numIntegrationPoints, 5);
  EXPECT_EQ(shell.rebarLayers->spacingKind, kseC_RebarLayers::AngularSpacing);
  const auto& arbitrary = RecordCast<kbpC_ArbitraryProfile>(model.profiles().ConstGet("Arb"));
  const cow_2DArray<double> points = arbitrary.Points();
  ASSERT_EQ(points.Rows(), 3);
  EXPECT_EQ(points.ConstGet(0, 2), 0);
  EXPECT_EQ(points.ConstGet(2, 2), 0.2);
  EXPECT_EQ(model.profiles().Size(), 11);
}

// Each instance holds the part's assignments, their regions in its own mesh.
TEST(SectionFile, AssignmentsReachEachInstance) {
  const odb_Odb odb = Load(SectionModel(R"("S": {"type": "truss", "material": "Steel"})", "",
                                        R"({"region": "Beams", "section": "S", "offset": 0.5})"));
  const ddb_PartInstance& instance = InstanceOf(OnlyModel(odb), "I");
  ASSERT_EQ(instance.sectionAssignments().Size(), 1);
  const ptoC_SectionAssignment& assignment = instance.sectionAssignments().ConstGet(0);
  EXPECT_EQ(assignment.sectionName(), "S");
  EXPECT_EQ(assignment.offset(), 0.5);
  EXPECT_EQ(assignment.region().Path(), "rootAssembly.mesh[1].setData");
  EXPECT_EQ(assignment.region().ConstSet().Name(), "Beams");
}

TEST(SectionFile, Messages) {
  ExpectMessages({
      {"missing materials",
       SectionModel(R"("A": {"type": "homogeneousSolid", "material": "Stel"},
         "B": {"type": "compositeShell", "layers": [{"thickness": 1, "material": "Steel"},
           {"thickness": 1, "material": "Alu"}],
           "rebar": {"layers": [{"name": "R", "material": "Iron", "area": 1}]}})"),
       {"models/M/sections/A/material: no material \"Stel\" in the model",
        "models/M/sections/B/layers/1/material: no material \"Alu\" in the model",
        "models/M/sections/B/rebar/layers/0/material: no material \"Iron\" in the model"}},
      {"profiles: missing, negative or left out",
       SectionModel(R"("B": {"type": "beam", "profile": "Nope", "material": "Steel"})",
                    R"("R": {"type": "rectangle", "width": -2, "height": 1},
                       "C": {"type": "circle"},
                       "Arb": {"type": "arbitrary", "start": [0, 0], "segments": [[1, 0, -0.5]]},
                       "Row": {"type": "arbitrary", "start": [0, 0], "segments": [[1, 0]]})"),
       {"models/M/profiles/C: missing field \"radius\"",
        "models/M/sections/B/profile: no profile \"Nope\" in the model",
        "models/M/profiles/Arb/segments/0/2: a dimension must not be negative, found -0.5",
        "models/M/profiles/R/width: a dimension must not be negative, found -2",
        "models/M/profiles/Row/segments: a segment is a row of x, y and thickness, found 2 "
        "values"}},
      {"composite sections without layers",
       SectionModel(R"("A": {"type": "compositeSolid", "layers": []},
                       "B": {"type": "compositeShell"})"),
       {"models/M/sections/B: missing field \"layers\"",
        "models/M/sections/A/layers: a composite section needs at least one layer"}},
      {"beam material and shell temperature points",
       SectionModel(R"("B": {"type": "beam", "profile": "R"},
                       "S": {"type": "homogeneousShell", "material": "Steel", "thickness": 1,
                             "temperature": "points"})",
                    R"("R": {"type": "rectangle", "width": 1, "height": 1})"),
       {"models/M/sections/B/material: a beam section integrated during the analysis needs a "
        "material",
        "models/M/sections/S/temperaturePoints: temperature at points needs 1 or more "
        "temperature points"}},
      {"kinds and assignments",
       SectionModel(R"("A": {"type": "solid"}, "B": {"material": "Steel"})", "",
                    R"({"region": "Ends", "section": "A"}, {"region": "Nope", "section": "A"},
                       {"section": "A"})"),
       {"models/M/sections/A/type: unknown section type \"solid\"; expected one of "
        "homogeneousSolid, compositeSolid, homogeneousShell, compositeShell, generalShell, beam, "
        "truss, membrane, gasket, point",
        "models/M/sections/B: missing field \"type\"",
        "models/M/parts/P/sectionAssignments/2: missing field \"region\"",
        "models/M/parts/P/sectionAssignments/0/region: no element set \"Ends\" in the part",
        "models/M/parts/P/sectionAssignments/1/region: no element set \"Nope\" in the part"}},
  });
}

// A section that the model lacks is written around, so the file loads; the
// warning says what the deck will hold.
TEST(SectionFile, MissingSectionWarns) {
  EXPECT_EQ(WarningsOf(SectionModel(R"("S": {"type": "truss", "material": "Steel"})", "",
                                    R"({"region": "Beams", "section": "S"},
                                       {"region": "Beams", "section": "Gone"})")),
            std::vector<std::string>{
                "models/M/parts/P/sectionAssignments/1/section: no section \"Gone\" in the "
                "model, so the deck writes the region's comment and no section card"});
}

} // namespace

namespace {

// Classes compare the four indices and not the label; a class answers for
// its first member and lists its members' labels in order.
TEST(ElementProperties, ClassesOfEqualIndices) {
  const bme_Property first{.label = 7, .sectionIndex = 1, .matOriIndex = 0};
  bme_Property second = first;
  second.label = 3;
  EXPECT_TRUE(first == second);
  second.beamOriIndex = 0;
  EXPECT_FALSE(first == second);
  bme_MapPropertyArray classes;
  classes.Insert(0, cow_List<bme_Property>{
                        first, bme_Property{.label = 3, .sectionIndex = 1, .matOriIndex = 0}});
  EXPECT_EQ(classes.ElementIds(0), (cow_List<int>{7, 3}));
  EXPECT_EQ(classes.SectionIndex(0), 1);
  EXPECT_EQ(classes.ElemCtrlIndex(0), bme_Property::Unset);
  EXPECT_EQ(classes.MatOriIndex(0), 0);
}

} // namespace
