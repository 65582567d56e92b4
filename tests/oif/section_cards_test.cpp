#include "model/profiles.h"
#include "model/sections.h"
#include "oif/oif_BeamGeneralSection.h"
#include "oif/oif_BeamSection.h"
#include "oif/oif_MembraneSection.h"
#include "oif/oif_ShellGeneralSection.h"
#include "oif/oif_ShellSection.h"
#include "oif/oif_SolidSection.h"
#include "oif/oif_TransverseShear.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using keydeck::test::DeckText;

kseC_Layer Layer(double thickness, const char* material, double angle, int points = 3) {
  kseC_Layer layer;
  layer.thickness = thickness;
  layer.material = material;
  layer.orientationAngle = angle;
  layer.numIntegrationPoints = points;
  return layer;
}

TEST(SolidSectionCard, HomogeneousAndTruss) {
  kseC_HomogenousSolidSection solid;
  solid.material = "Steel";
  EXPECT_EQ(DeckText(oif_SolidSection("Body", solid, "", "")),
            "*Solid Section, elset=Body, material=Steel\n1.,\n");
  solid.thickness = 2.5;
  solid.material = "Mild steel";
  EXPECT_EQ(DeckText(oif_SolidSection("Body", solid, "Ori-1", "EC-2")),
            "*Solid Section, elset=Body, orientation=Ori-1, controls=EC-2, "
            "material=\"Mild steel\"\n2.5,\n");
  kseC_TrussSection truss;
  truss.material = "Steel";
  truss.area = 0.25;
  // A truss uses the solid keyword and never names orientation or controls.
  EXPECT_EQ(DeckText(oif_SolidSection("Bars", truss, "Ori-1", "EC-1")),
            "*Solid Section, elset=Bars, material=Steel\n0.25,\n");
  EXPECT_THROW(DeckText(oif_SolidSection("Body", kseC_MembraneSection(), "", "")),
               nex_PrimException);
}

TEST(SolidSectionCard, CompositeLayersRepeatInReverseWhenSymmetric) {
  kseC_CompositeSolidSection composite;
  composite.layers = {Layer(1, "A", 0), Layer(0.5, "B", 45, 5), Layer(2, "Mild steel", -45)};
  const std::string head = "*Solid Section, elset=Plate, composite, controls=EC-1\n";
  const std::string a = "1, 3, A, 0\n", b = "0.5, 5, B, 45\n", c = "2, 3, Mild steel, -45\n";
  EXPECT_EQ(DeckText(oif_SolidSection("Plate", composite, "", "EC-1")), head + a + b + c);
  composite.symmetric = true;
  EXPECT_EQ(DeckText(oif_SolidSection("Plate", composite, "", "EC-1")),
            head + a + b + c + c + b + a);
  composite.layers = {Layer(1, "A", 0)};
  EXPECT_EQ(DeckText(oif_SolidSection("Plate", composite, "", "EC-1")), head + a);
}

TEST(ShellSectionCard, HomogeneousParameters) {
  kseC_HomogenousShellSection shell;
  shell.material = "Steel";
  shell.thickness = 2;
  EXPECT_EQ(DeckText(oif_ShellSection("Skin", shell, "", "", 0.0)),
            "*Shell Section, elset=Skin, material=Steel\n2., 5\n");
  shell.temperatureKind = kseC_ShellSection::TemperaturePoints;
  shell.numTempPoints = 3;
  shell.integrationRule = kseC_GeometryShellSection::Gauss;
  shell.poisson = 0.5;
  shell.thicknessModulus = 0; // given, so the stack direction follows the orientation
  EXPECT_EQ(DeckText(oif_ShellSection("Skin", shell, "Ori-1", "EC-1", -0.5)),
            "*Shell Section, elset=Skin, orientation=Ori-1, controls=EC-1, temperature=3, "
            "material=Steel, section integration=GAUSS,\n"
            "poisson=0.5, offset=-0.5, stack direction=ORIENTATION\n2., 5\n");
  shell.thicknessModulus = 2e5;
  shell.general = true;
  EXPECT_EQ(DeckText(oif_ShellSection("Skin", shell, "", "", 0.0)),
            "*Shell General Section, elset=Skin, temperature=3, material=Steel, "
            "section integration=GAUSS, poisson=0.5,\nthickness modulus=200000.\n2., \n");
}

TEST(ShellSectionCard, CompositeLayersAndRebar) {
  kseC_CompositeShellSection shell;
  shell.layers = {Layer(0.5, "Ply A", 30, 3), Layer(0.25, "B", 0, 5)};
  shell.layers.Get(1).orientationName = "Ori-2";
  kseC_RebarLayer rebar;
  rebar.name = "R";
  rebar.material = "Steel";
  rebar.area = 0.1;
  rebar.spacing = 2;
  shell.rebarLayers.emplace();
  shell.rebarLayers->layers = {rebar};
  // A named orientation stands in place of the angle.
  EXPECT_EQ(DeckText(oif_ShellSection("Skin", shell, "", "", 0.0)),
            "*Shell Section, elset=Skin, composite\n"
            "0.5, 3, \"Ply A\", 30.\n"
            "0.25, 5, B, Ori-2\n"
            "*Rebar Layer\nR, 0.1, 2., 0., Steel, 0., 1\n");
  shell.general = true;
  shell.rebarLayers.reset();
  EXPECT_EQ(DeckText(oif_ShellSection("Skin", shell, "", "", 0.0)),
            "*Shell General Section, elset=Skin, composite\n"
            "0.5, , \"Ply A\", 30.\n"
            "0.25, , B, Ori-2\n");
}

TEST(ShellSectionCard, StiffnessShellsCannotBeWritten) {
  kseC_UserShellSection user;
  user.symmetric = false;
  EXPECT_THROW(DeckText(oif_ShellSection("Skin", user, "", "", 0.0)), nex_PrimException);
  EXPECT_THROW(DeckText(oif_ShellGeneralSection("Skin", user, "", "", 0.0)), nex_PrimException);
  // Other sections give no card at all.
  EXPECT_EQ(DeckText(oif_ShellGeneralSection("Skin", kseC_HomogenousShellSection(), "", "", 0)),
            "");
  EXPECT_EQ(DeckText(oif_ShellSection("Skin", kseC_TrussSection(), "", "", 0)), "");
}

TEST(ShellSectionCard, MembraneAndTransverseShear) {
  kseC_MembraneSection membrane;
  membrane.material = "Rubber";
  membrane.thickness = 0.1;
  EXPECT_EQ(DeckText(oif_MembraneSection("Skin", membrane, "", "")),
            "*Membrane Section, elset=Skin, material=Rubber\n0.1,\n");
  membrane.poisson = 0.5;
  EXPECT_EQ(DeckText(oif_MembraneSection("Skin", membrane, "Ori-1", "EC-1")),
            "*Membrane Section, elset=Skin, material=Rubber, orientation=Ori-1, controls=EC-1, "
            "poisson=0.5\n0.1,\n");
  kseC_TransverseShearShell shear;
  shear.shear2 = 5;
  EXPECT_EQ(DeckText(oif_TransverseShear(shear)), "*Transverse Shear\n5., 5., 0.\n");
  shear = kseC_TransverseShearShell();
  shear.shear1 = 3;
  shear.shear3 = 1;
  EXPECT_EQ(DeckText(oif_TransverseShear(shear)), "*Transverse Shear\n3., 3., 1.\n");
}

template <class Profile> Profile Make(auto&& fill) {
  Profile profile;
  fill(profile);
  return profile;
}

kseC_BeamSection Beam(kseC_BeamSection::IntegrationEnm integration) {
  kseC_BeamSection beam;
  beam.material = "Steel";
  beam.integration = integration;
  return beam;
}

const gsl_Vector Down{0, 0, -1};

std::string BeamText(const kseC_BeamSection& beam, const kbpC_BeamProfile* profile) {
  if (beam.integration == kseC_BeamSection::DuringAnalysis)
    return DeckText(oif_BeamSection("Beams", beam, Down, profile));
  return DeckText(oif_BeamGeneralSection("Beams", beam, Down, profile));
}

// The data line of each profile, on a section integrated during the analysis.
TEST(BeamSectionCard, ProfileLines) {
  const kseC_BeamSection beam = Beam(kseC_BeamSection::DuringAnalysis);
  const std::string head = "*Beam Section, elset=Beams, material=Steel, temperature=GRADIENTS, ";
  const kbpC_RectangularProfile rect = Make<kbpC_RectangularProfile>([](auto& p) {
    p.a = 1;
    p.b = 2.5;
  });
  const kbpC_CircularProfile circle = Make<kbpC_CircularProfile>([](auto& p) { p.r = 3; });
  const kbpC_PipeProfile pipe = Make<kbpC_PipeProfile>([](auto& p) {
    p.r = 3;
    p.t = 0.2;
  });
  const kbpC_HexagonalProfile hexagon = Make<kbpC_HexagonalProfile>([](auto& p) {
    p.r = 3;
    p.t = 0.2;
  });
  const kbpC_IbeamProfile ibeam =
      Make<kbpC_IbeamProfile>([](auto& p) { p.i = {1, 2, 3, 4, 5, 6, 7}; });
  const kbpC_LbeamProfile lbeam = Make<kbpC_LbeamProfile>([](auto& p) { p.l = {1, 2, 3, 4}; });
  const kbpC_TbeamProfile tbeam = Make<kbpC_TbeamProfile>([](auto& p) { p.t = {1, 2, 3, 4, 5}; });
  const kbpC_TrapezoidalProfile trapezoid = Make<kbpC_TrapezoidalProfile>([](auto& p) {
    p.z = {1, 2, 3, 4};
  });
  kbpC_BoxProfile box = Make<kbpC_BoxProfile>([](auto& p) {
    p.a = 10;
    p.b = 20;
    p.t1 = 1;
    p.t2 = 2;
    p.t3 = 3;
    p.t4 = 4;
  });
  const kbpC_BoxProfile uniformBox = Make<kbpC_BoxProfile>([&](auto& p) {
    p = box;
    p.uniformThickness = true;
  });
  const std::pair<const kbpC_BeamProfile*, const char*> cases[] = {
      {&rect, "section=RECT\n1., 2.5\n"},
      {&circle, "section=CIRC\n3.\n"},
      {&pipe, "section=PIPE\n3., 0.2\n"},
      {&hexagon, "section=HEX\n3., 0.2\n"},
      {&ibeam, "section=I\n1., 2., 3., 4., 5., 6., 7.\n"},
      {&lbeam, "section=L\n1., 2., 3., 4.\n"},
      // A T is an I with a bottom flange of no width.
      {&tbeam, "section=I\n3., 2., 0., 1., 0., 4., 5.\n"},
      {&trapezoid, "section=TRAPEZOID\n1., 2., 3., 4.\n"},
      {&box, "section=BOX\n10., 20., 1., 2., 3., 4.\n"},
      {&uniformBox, "section=BOX\n10., 20., 1., 1., 1., 1.\n"},
      {nullptr, "**ERROR -- Illegal Beam Profile Definition\n\n"},
  };
  for (const auto& [profile, lines] : cases) {
    SCOPED_TRACE(lines);
    EXPECT_EQ(BeamText(beam, profile), head + lines + "0.,0.,-1.\n");
  }
}

TEST(BeamSectionCard, ArbitraryProfileRows) {
  kbpC_ArbitraryProfile profile;
  profile.start = {0, 1};
  profile.segments = kmaC_MaterialTable(1, 3);
  profile.segments.Get(0, 0) = 2;
  profile.segments.Get(0, 2) = 0.1;
  const kseC_BeamSection beam = Beam(kseC_BeamSection::DuringAnalysis);
  const std::string head = "*Beam Section, elset=Beams, material=Steel, temperature=GRADIENTS, ";
  // One segment: one data line and the empty line the solver wants.
  EXPECT_EQ(BeamText(beam, &profile),
            head + "section=ARBITRARY\n1, 0., 1., 2., 0., 0.1\n\n0.,0.,-1.\n");
  kmaC_MaterialTable two(2, 3);
  two.Get(0, 0) = 2;
  two.Get(0, 2) = 0.1;
  two.Get(1, 0) = 2;
  two.Get(1, 1) = 3;
  two.Get(1, 2) = 0.2;
  profile.segments = two;
  EXPECT_EQ(BeamText(beam, &profile),
            head + "section=ARBITRARY\n2, 0., 1., 2., 0., 0.1\n2., 3., 0.2\n0.,0.,-1.\n");
}

TEST(BeamSectionCard, KeywordLineOfBothForms) {
  kseC_BeamSection beam = Beam(kseC_BeamSection::DuringAnalysis);
  beam.poisson = 0.3;
  beam.temperatureVariation = kseC_BeamSection::Values;
  const kbpC_CircularProfile circle = Make<kbpC_CircularProfile>([](auto& p) { p.r = 3; });
  EXPECT_EQ(DeckText(oif_BeamSection("Beams", beam, gsl_Vector{0.5, 1, 0}, &circle)),
            "*Beam Section, elset=Beams, material=Steel, poisson = 0.3, temperature=VALUES, "
            "section=CIRC\n3.\n0.5,1.,0.\n");
  kseC_BeamSection general = Beam(kseC_BeamSection::BeforeAnalysis);
  general.dependencies = 1;
  general.density = 7.8;
  general.zero = 20;
  // The general section's keyword line has two commas in a row before its dependencies.
  EXPECT_EQ(BeamText(general, &circle),
            "*Beam General Section, elset=Beams, , dependencies=1, zero=20., density=7.8, "
            "section=CIRC\n3.\n0.,0.,-1.\n");
}

TEST(BeamSectionCard, GeneralizedProfile) {
  kbpC_GeneralizedProfile profile;
  profile.g = {1, 2, 3, 4, 5, 0, 0};
  EXPECT_EQ(BeamText(Beam(kseC_BeamSection::BeforeAnalysis), &profile),
            "*Beam General Section, elset=Beams, section=GENERAL\n1., 2., 3., 4., 5.\n"
            "0.,0.,-1.\n");
  profile.g[6] = 7;
  EXPECT_EQ(BeamText(Beam(kseC_BeamSection::BeforeAnalysis), &profile),
            "*Beam General Section, elset=Beams, section=GENERAL\n1., 2., 3., 4., 5., 0., 7.\n"
            "0.,0.,-1.\n");
  // An integrated section cannot take it; the deck says so and goes on.
  EXPECT_EQ(BeamText(Beam(kseC_BeamSection::DuringAnalysis), &profile),
            "*Beam Section, elset=Beams, material=Steel, temperature=GRADIENTS, "
            "**ERROR -- Generalized Profile cannot be used with this section.\n\n0.,0.,-1.\n");
}

TEST(BeamSectionCard, GeneralSectionResponseAndOptions) {
  kseC_BeamSection beam = Beam(kseC_BeamSection::BeforeAnalysis);
  beam.behaviorTable = kmaC_MaterialTable(1, 3);
  beam.behaviorTable.Get(0, 0) = 2e5;
  beam.behaviorTable.Get(0, 1) = 8e4;
  beam.behaviorTable.Get(0, 2) = 20;
  beam.behaviorFlag1 = false; // no expansion: its column stays blank
  beam.alpha = 0.1;
  beam.composite = 0.2;
  beam.shearCenter = {0, 0.5};
  beam.centroid = {0, 0};
  beam.sectionPoints = kmaC_MaterialTable(5, 2);
  for (int row = 0; row < 5; ++row)
    beam.sectionPoints.Get(row, 0) = row + 1;
  const kbpC_CircularProfile circle = Make<kbpC_CircularProfile>([](auto& p) { p.r = 3; });
  EXPECT_EQ(BeamText(beam, &circle), "*Beam General Section, elset=Beams, section=CIRC\n3.\n"
                                     "0.,0.,-1.\n"
                                     "200000.,80000., ,   20.\n"
                                     "*Damping, alpha=0.1, composite=0.2\n"
                                     "*Shear Center\n0., 0.5\n"
                                     "*Section Points\n1., 0., 2., 0., 3., 0., 4., 0.\n5., 0.\n");
}

TEST(BeamSectionCard, FluidInertia) {
  kseC_BeamSection beam = Beam(kseC_BeamSection::DuringAnalysis);
  beam.fluidInertia.emplace();
  beam.fluidInertia->values = {1000, 0.5, 1, 0, 0, 0};
  const kbpC_CircularProfile circle = Make<kbpC_CircularProfile>([](auto& p) { p.r = 3; });
  const std::string head = "*Beam Section, elset=Beams, material=Steel, temperature=GRADIENTS, "
                           "section=CIRC\n3.\n0.,0.,-1.\n";
  EXPECT_EQ(BeamText(beam, &circle), head + "*Beam Fluid Inertia\n1000., , , 0.5\n");
  beam.fluidInertia->half = true;
  beam.fluidInertia->values = {1000, 0.5, 2, 0.3, 6, 0.1};
  EXPECT_EQ(BeamText(beam, &circle),
            head + "*Beam Fluid Inertia, half\n1000., 6., 0.1, 0.5, 2., 0.3\n");
  beam.fluidInertia->values = {1000, 0.5, 1, 0.3, 0, 0};
  EXPECT_EQ(BeamText(beam, &circle), head + "*Beam Fluid Inertia, half\n1000., , , 0.5, , 0.3\n");
}

} // namespace
