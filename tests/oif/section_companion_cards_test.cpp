#include "model/element_controls.h"
#include "model/sections.h"
#include "oif/oif_GasketSection.h"
#include "oif/oif_HourglassStiffness.h"
#include "oif/oif_Mass.h"
#include "oif/oif_RebarLayer.h"
#include "oif/oif_RotaryI.h"
#include "oif/oif_SectionControls.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using keydeck::test::DeckText;

kseC_PointSection PointSection(double mass, double r0, double r1, double r2, double r3, double r4,
                               double r5) {
  kseC_PointSection section;
  section.mass = mass;
  section.r0 = r0;
  section.r1 = r1;
  section.r2 = r2;
  section.r3 = r3;
  section.r4 = r4;
  section.r5 = r5;
  return section;
}

TEST(SectionCompanionCards, MassAndRotaryInertia) {
  kseC_PointSection section = PointSection(2.5, 11, 12, 13, 22, 23, 33);
  EXPECT_EQ(DeckText(oif_Mass("Points", section)), "*Mass, elset=Points\n2.5, \n");
  // The section's upper triangle by rows becomes the deck's diagonal first.
  EXPECT_EQ(DeckText(oif_RotaryI("Points", section, "")),
            "*RotaryI, elset=Points\n11., 22., 33., 12., 13., 23.\n");
  section.alpha = 0.5;
  section.composite = 0.25;
  EXPECT_EQ(DeckText(oif_Mass("Points", section)),
            "*Mass, elset=Points, alpha=0.5, composite=0.25\n2.5, \n");
  oif_RotaryI rotary("Points", section, "Ori-1");
  EXPECT_EQ(DeckText(rotary), "*RotaryI, elset=Points, alpha=0.5, composite=0.25, "
                              "orientation=Ori-1\n11., 22., 33., 12., 13., 23.\n");
  rotary.SetMoName("Ori-2");
  EXPECT_EQ(DeckText(rotary), "*RotaryI, elset=Points, alpha=0.5, composite=0.25, "
                              "orientation=Ori-2\n11., 22., 33., 12., 13., 23.\n");

  kefC_PointMassInertia inertia;
  inertia.mass = 1;
  inertia.i11 = 1;
  inertia.i22 = 2;
  inertia.i33 = 3;
  inertia.i12 = 4;
  inertia.i13 = 5;
  inertia.i23 = 6;
  EXPECT_EQ(DeckText(oif_Mass("Feature", inertia)), "*Mass, elset=Feature\n1., \n");
  EXPECT_EQ(DeckText(oif_RotaryI("Feature", inertia, "")),
            "*RotaryI, elset=Feature\n1., 2., 3., 4., 5., 6.\n");
}

TEST(SectionCompanionCards, EmptyMassAndInertia) {
  const kseC_PointSection nothing = PointSection(0, 0, 0, 0, 0, 0, 0);
  EXPECT_TRUE(oif_Mass("Points", nothing).IsEmpty());
  EXPECT_TRUE(oif_RotaryI("Points", nothing, "Ori-1").IsEmpty());
  EXPECT_EQ(DeckText(oif_Mass("Points", nothing)), "");
  EXPECT_EQ(DeckText(oif_RotaryI("Points", nothing, "Ori-1")), "");
  // Each of the six components alone makes the inertia count.
  for (int i = 0; i < 6; ++i) {
    SCOPED_TRACE(i);
    double r[6] = {0, 0, 0, 0, 0, 0};
    r[i] = 1e-30;
    EXPECT_FALSE(
        oif_RotaryI("P", PointSection(0, r[0], r[1], r[2], r[3], r[4], r[5]), "").IsEmpty());
  }
  EXPECT_FALSE(oif_Mass("P", PointSection(-1, 0, 0, 0, 0, 0, 0)).IsEmpty());
}

TEST(SectionCompanionCards, SectionControlsParameters) {
  using Params = bme_ElemCtrlParams;
  Params params;
  params.distortionControl = Params::Yes;
  params.kinematicSplit = Params::Centroid;
  params.hourglass = Params::Combined;
  params.weightFactor = 0.75;
  params.secondOrderAccuracy = Params::Yes;
  params.stressRate = Params::Spin;
  params.scale1 = 0.5;
  EXPECT_EQ(DeckText(oif_SectionControls(params, "EC-1", false)),
            "*Section Controls, name=EC-1, DISTORTION CONTROL=YES, kinematic split=CENTROID, "
            "hourglass=COMBINED, second order accuracy=YES, stress rate=SPIN, weight factor=0.75\n"
            "0.5, 1., 1.\n");
  params = Params();
  params.distortionControl = Params::No;
  params.kinematicSplit = Params::Orthogonal;
  params.hourglass = Params::Enhanced;
  params.weightFactor = 0.75; // only beside a combined hourglass control
  params.scale5 = 2;
  EXPECT_EQ(DeckText(oif_SectionControls(params, "EC-2", false)),
            "*Section Controls, name=EC-2, DISTORTION CONTROL=NO, kinematic split=ORTHOGONAL, "
            "hourglass=ENHANCED\n1., 1., 1., 1., 2.\n");
  const std::pair<Params::HourglassEnm, const char*> hourglass[] = {
      {Params::RelaxStiffness, "RELAX STIFFNESS"},
      {Params::Stiffness, "STIFFNESS"},
      {Params::Viscous, "VISCOUS"}};
  for (const auto& [value, text] : hourglass) {
    SCOPED_TRACE(text);
    params = Params();
    params.hourglass = value;
    EXPECT_EQ(DeckText(oif_SectionControls(params, "EC-3", true)),
              std::string("*Section Controls, name=EC-3, hourglass=") + text + "\n1., 1., 1.\n");
  }
}

TEST(SectionCompanionCards, SectionControlsLengthRatioWithinTolerance) {
  bme_ElemCtrlParams params;
  params.distortionControl = bme_ElemCtrlParams::Yes;
  params.lengthRatio = 0.1000001;
  EXPECT_EQ(DeckText(oif_SectionControls(params, "EC-1", false)),
            "*Section Controls, name=EC-1, DISTORTION CONTROL=YES\n1., 1., 1.\n");
  params.lengthRatio = 0.1001;
  EXPECT_EQ(DeckText(oif_SectionControls(params, "EC-1", false)),
            "*Section Controls, name=EC-1, DISTORTION CONTROL=YES, length ratio=0.1001\n"
            "1., 1., 1.\n");
}

// The implicit solver's library reads the hourglass control and its scale
// factors; the explicit solver's reads every section control setting.
TEST(SectionCompanionCards, SectionControlsEmptyByLibrary) {
  using Params = bme_ElemCtrlParams;
  EXPECT_TRUE(oif_SectionControls(Params(), "EC-0", true).IsEmpty());
  EXPECT_TRUE(oif_SectionControls(Params(), "EC-0", false).IsEmpty());
  EXPECT_EQ(DeckText(oif_SectionControls(Params(), "EC-0", false)), "");

  Params explicitOnly;
  explicitOnly.distortionControl = Params::Yes;
  EXPECT_TRUE(oif_SectionControls(explicitOnly, "EC-1", true).IsEmpty());
  EXPECT_FALSE(oif_SectionControls(explicitOnly, "EC-1", false).IsEmpty());

  Params scaled;
  scaled.scale2 = 0.5;
  EXPECT_FALSE(oif_SectionControls(scaled, "EC-2", true).IsEmpty());
  EXPECT_FALSE(oif_SectionControls(scaled, "EC-2", false).IsEmpty());

  Params bulk; // bulk viscosity within the card's tolerance of its default
  bulk.scale4 = 1.0000001;
  EXPECT_TRUE(oif_SectionControls(bulk, "EC-3", false).IsEmpty());
  bulk.scale4 = 1.5;
  EXPECT_FALSE(oif_SectionControls(bulk, "EC-3", false).IsEmpty());
  EXPECT_TRUE(oif_SectionControls(bulk, "EC-3", true).IsEmpty());
}

TEST(SectionCompanionCards, ElementControlDefaultsByLibrary) {
  using Params = bme_ElemCtrlParams;
  for (int library : {0, 1, 2})
    EXPECT_TRUE(Params().IsDefault(library)) << library;
  Params stiff;
  stiff.hourglassStiffness2 = 5;
  EXPECT_FALSE(stiff.IsDefault(1));
  EXPECT_TRUE(stiff.IsDefault(2)); // an explicit job gets no stiffness card
  EXPECT_FALSE(stiff.IsDefault(0));
  Params split;
  split.kinematicSplit = Params::Orthogonal;
  EXPECT_TRUE(split.IsDefault(1));
  EXPECT_FALSE(split.IsDefault(2));
  EXPECT_FALSE(split.IsDefault(0));
  // Equal controls are found again by any difference at all.
  EXPECT_FALSE(Params() != Params());
  Params ratio;
  ratio.lengthRatio = 0.1000001;
  EXPECT_TRUE(ratio != Params());
  Params library;
  library.library = 2;
  EXPECT_TRUE(library != Params());
}

TEST(SectionCompanionCards, HourglassStiffness) {
  bme_ElemCtrlParams params;
  EXPECT_EQ(DeckText(oif_HourglassStiffness(params)), "");
  params.hourglassStiffness2 = 0.5;
  EXPECT_EQ(DeckText(oif_HourglassStiffness(params)), "*Hourglass Stiffness\n0., , 0.5, 0.\n");
  params.hourglassStiffness1 = 100;
  params.hourglassStiffness3 = 2;
  EXPECT_EQ(DeckText(oif_HourglassStiffness(params)), "*Hourglass Stiffness\n100., , 0.5, 2.\n");
}

TEST(SectionCompanionCards, GasketSection) {
  kseC_GasketSection section;
  section.material = "Gasket A";
  EXPECT_EQ(DeckText(oif_GasketSection("Seal", section, false, "")),
            "*Gasket Section, elset=Seal, material=\"Gasket A\"\n, 0., 0., 1.\n");
  section.gasketValue2 = 2.5;
  section.gasketValue1 = 0.1;
  section.gasketValue3 = 0.2;
  section.gasketValue0 = 3;
  section.stabilizationStiffness = 1e-4;
  EXPECT_EQ(DeckText(oif_GasketSection("Seal", section, true, "Ori-1")),
            "*Gasket Section, elset=Seal, behavior=\"Gasket A\", orientation=Ori-1, "
            "stabilization stiffness=0.0001\n2.5, 0.1, 0.2, 3.\n");
  EXPECT_EQ(DeckText(oif_GasketSection("Seal", kseC_PointSection(), true, "")), "");
}

kseC_RebarLayer Layer(const char* name, const char* orientation) {
  kseC_RebarLayer layer;
  layer.name = name;
  layer.material = "Steel";
  layer.area = 0.5;
  layer.spacing = 10;
  layer.angularSpacing = 15;
  layer.position = 0.25;
  layer.rebarOrientation = 45;
  layer.orientationName = orientation;
  return layer;
}

TEST(SectionCompanionCards, RebarLayerBlocks) {
  kseC_RebarLayers rebar;
  rebar.layers = {Layer("R1", ""), Layer("R2", "Ori B"), Layer("R3", "")};
  EXPECT_EQ(DeckText(oif_RebarLayer(rebar, "", false)), "*Rebar Layer\n"
                                                        "R1, 0.5, 10., 0.25, Steel, 45., 1\n"
                                                        "R3, 0.5, 10., 0.25, Steel, 45., 1\n"
                                                        "*Rebar Layer, orientation=\"Ori B\"\n"
                                                        "R2, 0.5, 10., 0.25, Steel, , 1\n");
  rebar.spacingKind = kseC_RebarLayers::AngularSpacing;
  EXPECT_EQ(DeckText(oif_RebarLayer(rebar, "Shell Ori", true)),
            "*Rebar Layer, angular spacing, orientation=\"Shell Ori\"\n"
            "R1, 0.5, 15., , Steel, 45., 1\n"
            "R3, 0.5, 15., , Steel, 45., 1\n"
            "*Rebar Layer, angular spacing, orientation=\"Ori B\"\n"
            "R2, 0.5, 15., , Steel, , 1\n");
  // Every layer with an orientation of its own: no block without one.
  rebar.spacingKind = kseC_RebarLayers::ConstantSpacing;
  rebar.layers = {Layer("R1", "O1"), Layer("R2", "O2")};
  EXPECT_EQ(DeckText(oif_RebarLayer(rebar, "Shell", false)),
            "*Rebar Layer, orientation=O1\nR1, 0.5, 10., 0.25, Steel, , 1\n"
            "*Rebar Layer, orientation=O2\nR2, 0.5, 10., 0.25, Steel, , 1\n");
  EXPECT_EQ(DeckText(oif_RebarLayer(kseC_RebarLayers(), "Shell", false)), "");
}

} // namespace
