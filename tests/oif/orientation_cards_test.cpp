#include "model/database.h"
#include "model/json/load_errors.h"
#include "model/json/loader.h"
#include "model/json/region_names.h"
#include "oif/oif_DatumCsys.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_Orientation.h"
#include "oif/oif_Transform.h"
#include "oif/oif_TransformBuilder.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

using keydeck::test::DeckText;

// A part with a cylindrical datum and a node set, placed once by a
// translation of 10 along x, and the assembly's own datums of each kind.
constexpr const char* DatumModel = R"({"format": "keydeck-model", "version": 1, "models": {"M": {
  "parts": {"P": {
    "nodes": {"labels": [1, 2], "coordinates": [[0, 0, 0], [1, 0, 0]]},
    "sets": {"Bolt": {"nodes": [1, 2]}},
    "datums": {"Local": {"type": "cylindrical", "point1": [1, 0, 0], "point2": [0, 1, 0]}}}},
  "assembly": {
    "instances": {"Beam-1": {"part": "P", "translation": [10, 0, 0]}},
    "sets": {"Tip": {"nodes": [{"instance": "Beam-1", "labels": [2]}]}},
    "datums": {
      "Rect": {"type": "rectangular", "origin": [1, 2, 3], "point1": [1, 3, 3], "point2": [0, 2, 3]},
      "Cyl": {"type": "cylindrical", "origin": [0, 0, 5], "point1": [1, 0, 5], "point2": [0, 1, 5]},
      "Sph": {"type": "spherical", "origin": [1, 1, 1], "point1": [2, 1, 1], "point2": [1, 1, 2]},
      "Fine": {"type": "rectangular", "point1": [1, 1e-20, 0], "point2": [0, 0.123456789012345678, 0]},
      "My csys": {"type": "cylindrical", "point1": [1, 0, 0], "point2": [0, 1, 0]}}}}}})";

ddb_Model LoadDatumModel() {
  std::vector<std::string> warnings;
  return keydeck::LoadModelText(DatumModel, warnings).ddb().model("M");
}

dtmC_DatumRef DatumNamed(const ddb_Model& model, const char* name) {
  for (int i = 0; i < model.datums_.Size(); ++i)
    if (model.datums_.ConstGet(i).Shortcut() == name)
      return dtmC_DatumRef(i + 1);
  ADD_FAILURE() << "no datum " << name;
  return dtmC_DatumRef();
}

TEST(OrientationCards, TransformOfEachKind) {
  const ddb_Model model = LoadDatumModel();
  const std::pair<const char*, const char*> cases[] = {
      {"Rect",
       "*Transform, nset=_T-Rect\n"
       "          0.,           1.,           0.,          -1.,           0.,           0.\n"},
      {"Cyl",
       "*Transform, nset=_T-Cyl, type=C\n"
       "          0.,           0.,           5.,           0.,           0.,           6.\n"},
      {"Sph",
       "*Transform, nset=_T-Sph, type=S\n"
       "          1.,           1.,           1.,           1.,           0.,           1.\n"},
      // 15 digits, and a component below 1e-15 as 0.
      {"Fine",
       "*Transform, nset=_T-Fine\n"
       "          1.,           0.,           0.,           0.,           1.,           0.\n"}};
  for (const auto& [name, deck] : cases) {
    SCOPED_TRACE(name);
    EXPECT_EQ(DeckText(oif_Transform(model, DatumNamed(model, name), cow_String("_T-") + name)),
              deck);
  }
  EXPECT_EQ(DeckText(oif_Transform(model, dtmC_DatumRef(), "_T-None")), "");
}

TEST(OrientationCards, FifteenDigitsOfAnOrigin) {
  std::vector<std::string> warnings;
  const odb_Odb odb = keydeck::LoadModelText(R"({"format": "keydeck-model", "version": 1,
    "models": {"M": {"assembly": {"datums": {"C": {"type": "spherical",
      "origin": [0.123456789012345678, -2.5e-16, 123456.789], "point1": [1, 0, 123456.789],
      "point2": [0, 1, 123456.789]}}}}}})",
                                             warnings);
  const ddb_Model& model = odb.ddb().model("M");
  EXPECT_EQ(DeckText(oif_Transform(model, dtmC_DatumRef(1), "T")),
            "*Transform, nset=T, type=S\n"
            "0.123456789012346,           0.,   123456.789, 0.123456789012346,           0.,"
            "   123457.789\n");
}

TEST(OrientationCards, OrientationOfEachKindAndRotationAxis) {
  const ddb_Model model = LoadDatumModel();
  const dtmC_DatumRef cylinder = DatumNamed(model, "Cyl");
  const char* const cylinderLines =
      "*Orientation, name=Cyl, system=CYLINDRICAL\n"
      "          0.,           0.,           5.,           0.,           0.,           6.\n";
  using Axis = ptoC_MaterialOrientation::axisEnm;
  const std::pair<Axis, const char*> axes[] = {{ptoC_MaterialOrientation::Axis1, "1, 30.\n"},
                                               {ptoC_MaterialOrientation::Axis2, "2, 30.\n"},
                                               {ptoC_MaterialOrientation::Axis3, "3, 30.\n"}};
  for (const auto& [axis, line] : axes) {
    SCOPED_TRACE(line);
    EXPECT_EQ(DeckText(oif_Orientation(model, cylinder, "Cyl", true, 30.0, axis)),
              std::string(cylinderLines) + line);
  }
  EXPECT_EQ(DeckText(oif_Orientation(model, cylinder, "Cyl", false, 30.0, axes[0].first)),
            cylinderLines);
  EXPECT_EQ(
      DeckText(oif_Orientation(model, DatumNamed(model, "Sph"), "S", false, 0, axes[0].first)),
      "*Orientation, name=S, system=SPHERICAL\n"
      "          1.,           1.,           1.,           1.,           0.,           1.\n");
  EXPECT_EQ(
      DeckText(oif_Orientation(model, DatumNamed(model, "Rect"), "R", true, 0, axes[0].first)),
      "*Orientation, name=R\n"
      "          0.,           1.,           0.,          -1.,           0.,           0.\n"
      "1, 0.\n");
  // No datum: nothing at all, not even the keyword; the user's own system.
  EXPECT_EQ(DeckText(oif_Orientation(model, dtmC_DatumRef(), "X", true, 30.0, axes[0].first)), "");
  EXPECT_EQ(DeckText(oif_Orientation("Ori-1")), "*Orientation, name=Ori-1, system=user\n");
}

TEST(OrientationCards, DatumOnThePartAndThroughTheInstance) {
  const ddb_Model model = LoadDatumModel();
  const char* const axisLine = "3, 0.\n";
  ptoC_MaterialOrientation orientation;
  orientation.csys = DatumNamed(model, "Local");
  orientation.axis = ptoC_MaterialOrientation::Axis3;
  // In the part's frame, as an instance block writes it.
  EXPECT_EQ(DeckText(oif_Orientation(model, orientation, "Ori-1", gsl_Matrix())),
            std::string("*Orientation, name=Ori-1, system=CYLINDRICAL\n"
                        "          0.,           0.,           0.,           0.,           0.,"
                        "           1.\n") +
                axisLine);
  // Moved by a matrix, and as the assembly sees the instance's datum.
  gsl_Matrix half;
  half.AxisRotation(gsl_Point{}, gsl_Vector{1, 0, 0}, 3.141592653589793);
  half.SetTranslation(gsl_Vector{0, 0, 2});
  EXPECT_EQ(DeckText(oif_Orientation(model, orientation, "Ori-1", half)),
            std::string("*Orientation, name=Ori-1, system=CYLINDRICAL\n"
                        "          0.,           0.,           2.,           0.,           0.,"
                        "           1.\n") +
                axisLine);
  EXPECT_EQ(DeckText(oif_Transform(model, DatumNamed(model, "Beam-1_Local"), "_T-Beam-1_Local")),
            "*Transform, nset=_T-Beam-1_Local, type=C\n"
            "         10.,           0.,           0.,          10.,           0.,           1.\n");
}

TEST(OrientationCards, OrientationNames) {
  const ddb_Model model = LoadDatumModel();
  const oif_ModelInfo info(model);
  const dtmC_DatumRef cylinder = DatumNamed(model, "Cyl");
  EXPECT_EQ(info.GetOrientationName(cylinder, 0.0, "ConnOri-0-1"), "Cyl");
  EXPECT_EQ(info.GetOrientationName(cylinder, 15.0, "ConnOri-0-1"), "Cyl_ConnOri-0-1_");
  EXPECT_EQ(info.GetOrientationName(cylinder, 15.0, ""), "Cyl");
  EXPECT_EQ(info.GetOrientationName(DatumNamed(model, "My csys"), 0.0, ""), "\"My csys\"");
  EXPECT_EQ(info.GetOrientationName(DatumNamed(model, "Beam-1_Local"), 0.0, ""), "Beam-1_Local");
}

// The transform builder with the datum users that a test names, in the
// place of the model's families.
class TransformBuilderWithUsers : public oif_TransformBuilder {
public:
  TransformBuilderWithUsers(oif_ModelInfo& info,
                            std::vector<std::pair<rgnC_Region, dtmC_DatumRef>> users)
      : oif_TransformBuilder(info), users_(std::move(users)) {}
  qkw_BuilderComponent* Copy() const override { return new TransformBuilderWithUsers(*this); }

protected:
  void CollectCsysRegionsList() override {
    for (const auto& [region, datum] : users_)
      AppendCsysRegion(region, datum);
  }

private:
  std::vector<std::pair<rgnC_Region, dtmC_DatumRef>> users_;
};

std::string AssemblyText(const ddb_Model& model,
                         std::vector<std::pair<const char*, const char*>> users) {
  oif_ModelInfo info(model);
  keydeck::LoadErrors errors;
  std::vector<std::pair<rgnC_Region, dtmC_DatumRef>> resolved;
  for (const auto& [region, datum] : users)
    resolved.emplace_back(keydeck::ResolveRegion(model, region, "test", errors),
                          DatumNamed(model, datum));
  EXPECT_TRUE(errors.Empty());
  TransformBuilderWithUsers builder(info, resolved);
  builder.Build();
  std::string text;
  for (const auto& card : builder.AssemblyDefinition())
    text += DeckText(*card);
  return text;
}

TEST(OrientationCards, TransformBuilderGroupsTheSetsOfOneDatum) {
  const ddb_Model model = LoadDatumModel();
  // Two users of one datum on different sets, one of another datum, and a
  // repeat of a set: one node set and one transform per datum, in order of
  // the datum's first user.
  EXPECT_EQ(AssemblyText(model, {{"Beam-1.Bolt", "Beam-1_Local"},
                                 {"Tip", "Rect"},
                                 {"Tip", "Beam-1_Local"},
                                 {"Beam-1.Bolt", "Beam-1_Local"}}),
            "*Nset, nset=_T-Beam-1_Local\n"
            "Beam-1.Bolt, \n"
            "Tip, \n"
            "*Transform, nset=_T-Beam-1_Local, type=C\n"
            "         10.,           0.,           0.,          10.,           0.,           1.\n"
            "*Nset, nset=_T-Rect\n"
            "Tip, \n"
            "*Transform, nset=_T-Rect\n"
            "          0.,           1.,           0.,          -1.,           0.,           0.\n");
  // The set of sets prints its name as it stands; the transform quotes it.
  EXPECT_EQ(AssemblyText(model, {{"Tip", "My csys"}}),
            "*Nset, nset=_T-My csys\n"
            "Tip, \n"
            "*Transform, nset=\"_T-My csys\", type=C\n"
            "          0.,           0.,           0.,           0.,           0.,           1.\n");
  EXPECT_EQ(AssemblyText(model, {}), "");
}

} // namespace
