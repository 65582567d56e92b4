#include "model/json/dumper.h"
#include "tests/model/loading.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <string>
#include <vector>

using namespace keydeck;
using namespace keydeck::test;

namespace {

// A part "P" of two beams with an element set "Beams" and a node set
// "Ends"; `more` adds members to the part.
std::string PartText(const std::string& more) {
  return R"({"nodes": {"labels": [1, 2, 3], "coordinates": [[0, 0, 0], [1, 0, 0], [2, 0, 0]]},
    "elements": [{"type": "B31", "labels": [1, 2], "connectivity": [[1, 2], [2, 3]]}],
    "sets": {"Beams": {"elements": [1, 2]}, "Ends": {"nodes": [1, 3]}})" +
         more + "}";
}

// The part with an instance "I" placed by `placement` (instance members),
// and `assembly` as further members of the assembly.
std::string PlacedModel(const std::string& part, const std::string& placement,
                        const std::string& assembly = "") {
  return InModel(R"({"parts": {"P": )" + PartText(part) +
                 R"(}, "assembly": {"instances": {"I": {"part": "P")" + placement + "}}" +
                 assembly + "}}");
}

void ExpectNear(const gsl_Vector& actual, const gsl_Vector& expected) {
  EXPECT_NEAR(actual.x, expected.x, 1e-12);
  EXPECT_NEAR(actual.y, expected.y, 1e-12);
  EXPECT_NEAR(actual.z, expected.z, 1e-12);
}

TEST(Datums, AxesFromOriginAndTwoPoints) {
  const odb_Odb odb = Load(PlacedModel(R"(, "datums": {"D": {"type": "spherical",
      "origin": [1, 1, 1], "point1": [3, 1, 1], "point2": [5, 4, 1]}})",
                                       ""));
  const ddb_DatumCsys& csys = OnlyModel(odb).datum(1).CvtDatumCsys();
  EXPECT_EQ(csys.GetCsysType(), dtu_Spherical);
  ExpectNear(csys.GetOrigin(), {1, 1, 1});
  ExpectNear(csys.GetXaxis(), {1, 0, 0}); // towards point1, of length 1
  ExpectNear(csys.GetYaxis(), {0, 1, 0}); // point2 lies on its side of x
  ExpectNear(csys.GetZaxis(), {0, 0, 1});
  EXPECT_EQ(OnlyModel(odb).datum(1).GetDatumType(), dtu_CoordinateSystem);
}

// Part datums in the part's frame first, then the assembly's, then each
// instance's as the instance places it: translated, then rotated about an
// axis through the origin.
TEST(Datums, ModelListAndInstancePlacement) {
  const odb_Odb odb = Load(PlacedModel(
      R"(, "datums": {"Local": {"type": "cylindrical", "origin": [1, 0, 0],
          "point1": [2, 0, 0], "point2": [1, 1, 0]}})",
      R"(, "translation": [0, 0, 5], "rotation": {"axis": [0, 0, 2], "angle": 90})",
      R"(, "datums": {"Global": {"type": "rectangular", "point1": [1, 0, 0], "point2": [0, 1, 0]}})"));
  const ddb_Model& model = OnlyModel(odb);
  ASSERT_EQ(model.datums_.Size(), 3);
  EXPECT_EQ(model.datum(1).Shortcut(), "Local");
  EXPECT_EQ(model.datum(2).Shortcut(), "Global");
  EXPECT_EQ(model.datum(3).Shortcut(), "I_Local");
  ExpectNear(model.datum(1).CvtDatumCsys().GetOrigin(), {1, 0, 0});
  const ddb_DatumCsys& placed = model.datum(3).CvtDatumCsys();
  ExpectNear(placed.GetOrigin(), {0, 1, 5});
  ExpectNear(placed.GetXaxis(), {0, 1, 0});
  ExpectNear(placed.GetYaxis(), {-1, 0, 0});
  ExpectNear(placed.GetZaxis(), {0, 0, 1});
}

TEST(Datums, OrientationsReachEachInstance) {
  const odb_Odb odb = Load(InModel(R"({"parts": {"P": )" + PartText(R"(,
      "datums": {"Cyl": {"type": "cylindrical", "point1": [1, 0, 0], "point2": [0, 1, 0]}},
      "materialOrientations": [{"region": "Beams", "datum": "Cyl", "axis": "axis3", "angle": 30},
                               {"region": "Beams"}],
      "beamOrientations": [{"region": "Beams", "direction": [0, 1, 0]}])") +
                                   R"(}, "assembly": {"instances": {"B": {"part": "P"},
                                       "A": {"part": "P"}}}})"));
  const ddb_Model& model = OnlyModel(odb);
  for (const char* name : {"A", "B"}) {
    SCOPED_TRACE(name);
    const ddb_PartInstance& instance = InstanceOf(model, name);
    const ddb_MaterialOrientationContainer& materials = instance.materialOrientations();
    ASSERT_EQ(materials.size(), 2);
    const ptoC_MaterialOrientation& first = materials.get(0).orientation();
    EXPECT_EQ(first.csys, dtmC_DatumRef(1)); // the part's own datum
    EXPECT_EQ(first.axis, ptoC_MaterialOrientation::Axis3);
    EXPECT_EQ(first.angle, 30);
    EXPECT_TRUE(materials.get(1).orientation().csys.IsNullRef());
    EXPECT_EQ(materials.get(1).orientation().axis, ptoC_MaterialOrientation::Axis1);
    const rgnC_Region& region = materials.get(0).region();
    EXPECT_EQ(region.Path(),
              "rootAssembly.mesh[" + cow_String(instance.mesh().meshIndex()) + "].setData");
    EXPECT_EQ(region.ConstSet().Name(), "Beams");
    EXPECT_EQ(region.ConstSet().SubSet(0).MeshIndex(), instance.mesh().meshIndex());
    const ddb_BeamOrientationContainer& beams = instance.beamOrientations();
    ASSERT_EQ(beams.size(), 1);
    EXPECT_EQ(beams.get(0).orientation().Direction(), (gsl_Vector{0, 1, 0}));
    EXPECT_EQ(beams.get(0).region(), region);
  }
}

TEST(Datums, LoaderErrors) {
  const char* const cyl = R"("type": "cylindrical", "point1": [1, 0, 0], "point2": [0, 1, 0])";
  ExpectMessages({
      {"zero axis",
       PlacedModel(R"(, "datums": {"D": {"type": "rectangular", "origin": [1, 2, 3],
           "point1": [1, 2, 3], "point2": [0, 1, 0]}})",
                   ""),
       {"models/M/parts/P/datums/D/point1: the x axis has zero length: point1 is the origin"}},
      {"no plane",
       PlacedModel("", "", R"(, "datums": {"D": {"type": "spherical", "point1": [1, 1, 1],
           "point2": [-2, -2, -2]}})"),
       {"models/M/assembly/datums/D/point2: origin, point1 and point2 lie on one line and span "
        "no plane"}},
      {"kind",
       PlacedModel(R"(, "datums": {"D": {"type": "polar", "point1": [1, 0, 0],
           "point2": [0, 1, 0]}})",
                   ""),
       {"models/M/parts/P/datums/D/type: unknown coordinate system type \"polar\"; expected one "
        "of rectangular, cylindrical, spherical"}},
      {"missing point",
       PlacedModel(R"(, "datums": {"D": {"type": "cylindrical", "point1": [1, 0, 0]}})", ""),
       {"models/M/parts/P/datums/D: missing field \"point2\""}},
      {"unknown datum",
       PlacedModel(std::string(R"(, "datums": {"Cyl": {)") + cyl + R"(}},
           "materialOrientations": [{"region": "Beams", "datum": "Cy1"}])",
                   ""),
       {"models/M/parts/P/materialOrientations/0/datum: no datum \"Cy1\" in the part"}},
      {"assembly datum from a part",
       PlacedModel(R"(, "materialOrientations": [{"region": "Beams", "datum": "G"}])", "",
                   std::string(R"(, "datums": {"G": {)") + cyl + "}}"),
       {"models/M/parts/P/materialOrientations/0/datum: no datum \"G\" in the part"}},
      {"unknown set",
       PlacedModel(R"(, "materialOrientations": [{"region": "Beam"}],
           "beamOrientations": [{"region": "Ends", "direction": [0, 0, 1]}])",
                   ""),
       {"models/M/parts/P/beamOrientations/0/region: no element set \"Ends\" in the part",
        "models/M/parts/P/materialOrientations/0/region: no element set \"Beam\" in the part"}},
      {"fault in the mesh",
       WithPart(R"({"nodes": {"labels": [1, 1], "coordinates": [[0, 0, 0], [1, 0, 0]]},
           "materialOrientations": [{"region": "Beams"}]})"),
       {"models/M/parts/P/nodes/labels/1: duplicate node label 1, also at index 0"}},
      {"zero direction",
       PlacedModel(R"(, "beamOrientations": [{"region": "Beams", "direction": [0, 0, 0]}])", ""),
       {"models/M/parts/P/beamOrientations/0/direction: the direction has zero length"}},
      {"axis word",
       PlacedModel(R"(, "materialOrientations": [{"region": "Beams", "axis": 3}])", ""),
       {"models/M/parts/P/materialOrientations/0/axis: expected a string, found a number"}},
      {"taken name",
       PlacedModel(std::string(R"(, "datums": {"D": {)") + cyl + "}}", "",
                   std::string(R"(, "datums": {"I_D": {)") + cyl + "}}"),
       {"models/M/assembly/instances/I: the datum \"D\" of its part is named \"I_D\" in the "
        "assembly, and another datum has that name"}},
  });
}

} // namespace

namespace {

TEST(Datums, DumpAndLoadKeepThem) {
  const std::string json = PlacedModel(
      R"(, "datums": {"Cyl": {"type": "cylindrical", "origin": [0, 0, 1], "point1": [1, 0, 1],
          "point2": [0, 1, 1]}},
      "materialOrientations": [{"region": "Beams", "datum": "Cyl", "axis": "axis2", "angle": 5}],
      "beamOrientations": [{"region": "Beams", "direction": [0, 1, 0]}])",
      "", R"(, "datums": {"G": {"type": "spherical", "point1": [1, 0, 0], "point2": [0, 1, 0]}})");
  const std::string first = DumpModel(Load(json));
  EXPECT_EQ(DumpModel(Load(first)), first);
  const odb_Odb reloaded = Load(first);
  const ddb_Model& model = OnlyModel(reloaded);
  ASSERT_EQ(model.datums_.Size(), 3);
  EXPECT_EQ(model.datum(2).CvtDatumCsys().GetCsysType(), dtu_Spherical);
  const ptoC_MaterialOrientation& orientation =
      InstanceOf(model, "I").materialOrientations().get(0).orientation();
  EXPECT_EQ(orientation.axis, ptoC_MaterialOrientation::Axis2);
  EXPECT_EQ(orientation.angle, 5);
  EXPECT_EQ(InstanceOf(model, "I").beamOrientations().size(), 1);
}

} // namespace
