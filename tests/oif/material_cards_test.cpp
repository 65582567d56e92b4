#include "model/database.h"
#include "oif/oif_Creep.h"
#include "oif/oif_Elastic.h"
#include "oif/oif_GasketBehavior.h"
#include "oif/oif_GasketElasticity.h"
#include "oif/oif_GasketThicknessBehavior.h"
#include "oif/oif_Material.h"
#include "oif/oif_MaterialBuilder.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_Ornl.h"
#include "oif/oif_Plastic.h"
#include "oif/oif_RateDependent.h"
#include "oif/oif_TableCards.h"
#include "oif/oif_Viscous.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {

using keydeck::test::DeckText;
using Rows = std::vector<std::vector<double>>;

kmaC_MaterialTable Table(const Rows& rows) {
  kmaC_MaterialTable table(static_cast<int>(rows.size()),
                           rows.empty() ? 0 : static_cast<int>(rows.front().size()));
  for (int row = 0; row < table.Rows(); ++row)
    for (int column = 0; column < table.Cols(); ++column)
      table.Get(row, column) = rows[row][column];
  return table;
}

// A record of a dependent table behaviour ("*Density", ...).
template <class Record>
Record Dependent(const Rows& rows, int dependencies = 0, bool temperature = false) {
  Record record;
  record.table = Table(rows);
  record.dependencies = dependencies;
  record.temperatureDependency = temperature;
  return record;
}

template <class Record> Record Plain(const Rows& rows) {
  Record record;
  record.table = Table(rows);
  return record;
}

// 1, 2, ... count as one row.
Rows Counting(int count) {
  Rows rows(1);
  for (int i = 1; i <= count; ++i)
    rows[0].push_back(i);
  return rows;
}

using Case = std::pair<std::string, const char*>; // deck text, expected text

void ExpectTexts(const std::vector<Case>& cases) {
  for (std::size_t i = 0; i < cases.size(); ++i) {
    SCOPED_TRACE("case " + std::to_string(i));
    EXPECT_EQ(cases[i].first, cases[i].second);
  }
}

TEST(MaterialCards, TableCardsWithoutParameters) {
  ExpectTexts({
      {DeckText(oif_Density(Dependent<kmaC_Density>({{7800}}))), "*Density\n7800.,\n"},
      // Without a temperature column the temperature slot stays blank.
      {DeckText(oif_Density(Dependent<kmaC_Density>({{7800, 1, 2}}, 2))),
       "*Density, dependencies=2\n7800., ,1.,2.\n"},
      {DeckText(oif_Density(Dependent<kmaC_Density>({{7800, 20, 1}}, 1, true))),
       "*Density, dependencies=1\n7800.,20., 1.\n"},
      {DeckText(oif_SpecificHeat(Dependent<kmaC_SpecificHeat>({{450, 3}, {500, 4}}, 1))),
       "*Specific Heat, dependencies=1\n450., ,3.\n500., ,4.\n"},
      {DeckText(oif_Density(Dependent<kmaC_Density>({}))), "*Density\n"},
      {DeckText(oif_DeformationPlasticity(
           Plain<kmaC_DeformationPlasticity>({{2e11, 0.3, 2e8, 10, 0.5}}))),
       "*Deformation Plasticity\n 2e+11,   0.3, 2e+08,   10.,   0.5\n"},
      {DeckText(oif_CycledPlastic(Plain<kmaC_CycledPlastic>(Counting(9)))),
       "*Cycled Plastic\n1.,2.,3.,4.,5.,6.,7.,8.\n9.,\n"},
  });
}

kmaC_Elastic Elastic(kmaC_Elastic::TypeEnm type, const Rows& rows, int moduli = 0) {
  kmaC_Elastic elastic;
  elastic.type = type;
  elastic.table = Table(rows);
  elastic.moduli = moduli;
  return elastic;
}

TEST(MaterialCards, ElasticTypeAndModuli) {
  const kmaC_Elastic engineering = Elastic(kmaC_Elastic::EngineeringConstants, Counting(9));
  kmaC_Elastic orthotropic = Elastic(kmaC_Elastic::Orthotropic, {{1, 2, 3, 4, 5, 6, 7, 8, 9, 1}});
  orthotropic.dependencies = 1;
  ExpectTexts({
      {DeckText(oif_Elastic(engineering, /*hasViscoelastic=*/true)),
       "*Elastic, type=ENGINEERING CONSTANTS, moduli=INSTANTANEOUS\n"
       "1.,2.,3.,4.,5.,6.,7.,8.\n9.,\n"},
      {DeckText(oif_Elastic(Elastic(kmaC_Elastic::Isotropic, {{200, 0.3}}, 1), true)),
       "*Elastic, moduli=LONG TERM\n200., 0.3\n"},
      // Without a viscoelastic behaviour the moduli are never named.
      {DeckText(oif_Elastic(Elastic(kmaC_Elastic::Isotropic, {{200, 0.3}}, 1), false)),
       "*Elastic\n200., 0.3\n"},
      {DeckText(oif_Elastic(orthotropic, false)),
       "*Elastic, dependencies=1, type=ORTHOTROPIC\n1.,2.,3.,4.,5.,6.,7.,8.\n9., ,1.\n"},
  });
}

TEST(MaterialCards, ElasticFailureCardsThenNoCompressionAndNoTension) {
  kmaC_Elastic elastic = Elastic(kmaC_Elastic::Isotropic, {{200, 0.3}});
  elastic.failStress = Dependent<kmaC_FailStress>(Counting(7));
  elastic.failStrain = Dependent<kmaC_FailStrain>({{0.01, 0.02, 0.01, 0.02, 0.01}});
  elastic.noCompression = true;
  elastic.noTension = true;
  EXPECT_EQ(DeckText(oif_Elastic(elastic, false)), R"(*Elastic
200., 0.3
*Fail Strain
 0.01, 0.02, 0.01, 0.02, 0.01
*Fail Stress
1.,2.,3.,4.,5.,6.,7.
*No Compression
*No Tension
)");
}

kmaC_Plastic Plastic(const Rows& rows) {
  kmaC_Plastic plastic;
  plastic.table = Table(rows);
  return plastic;
}

TEST(MaterialCards, PlasticRateTablesInAscendingRate) {
  kmaC_Plastic plastic = Plastic({{200, 0, 10}, {150, 0.1, 0.1}, {100, 0, 0.1}});
  plastic.rate = true;
  plastic.hardening = kmaC_Plastic::JohnsonCookHardening; // dropped with a rate column
  EXPECT_EQ(DeckText(oif_Plastic(plastic)), R"(*Plastic, rate=0.1
100.,0.
150., 0.1
*Plastic, rate=10.
200.,0.
)");
  // A field column: the temperature slot stays blank in front of it, and
  // within a rate the rows follow the field value.
  plastic = Plastic({{100, 0, 0.1, 5}, {120, 0, 0.1, 1}});
  plastic.rate = true;
  plastic.dependencies = 1;
  EXPECT_EQ(DeckText(oif_Plastic(plastic)), R"(*Plastic, rate=0.1, dependencies=1
120.,0., ,1.
100.,0., ,5.
)");
}

TEST(MaterialCards, PlasticHardening) {
  kmaC_Plastic johnsonCook = Plastic({{500, 300, 0.2, 1, 1500, 20}});
  johnsonCook.hardening = kmaC_Plastic::JohnsonCookHardening;

  kmaC_Plastic halfCycle = Plastic({{200, 0}});
  halfCycle.hardening = kmaC_Plastic::Combined;
  halfCycle.dataType = kmaC_Plastic::HalfCycle;
  halfCycle.numBackstress = 0;

  kmaC_Plastic user = Plastic({{1}, {2}, {3}, {4}, {5}, {6}, {7}, {8}, {9}, {10}});
  user.hardening = kmaC_Plastic::User;

  // Stabilized combined hardening leaves its third column blank ahead of
  // the temperature, unless it depends on the strain range.
  kmaC_Plastic stabilized = Plastic({{200, 0, 20}});
  stabilized.hardening = kmaC_Plastic::Combined;
  stabilized.dataType = kmaC_Plastic::Stabilized;
  stabilized.temperatureDependency = true;
  kmaC_Plastic strainRange = stabilized;
  strainRange.strainRangeDependency = true;
  kmaC_Plastic isothermal = stabilized;
  isothermal.table = Table({{200, 0}});
  isothermal.temperatureDependency = false;

  ExpectTexts({
      {DeckText(oif_Plastic(johnsonCook)),
       "*Plastic, hardening=JOHNSON COOK\n500., 300.,  0.2,   1.,1500.,  20.\n"},
      {DeckText(oif_Plastic(halfCycle)),
       "*Plastic, hardening=COMBINED, datatype=HALF CYCLE, numbackstress=0\n200.,0.\n"},
      {DeckText(oif_Plastic(user)), "*Plastic, hardening=USER, properties=10\n"
                                    "1., 2., 3., 4., 5., 6., 7., 8.\n 9.,10.\n"},
      {DeckText(oif_Plastic(stabilized)),
       "*Plastic, hardening=COMBINED, datatype=STABILIZED\n200., 0., ,20.\n"},
      {DeckText(oif_Plastic(strainRange)),
       "*Plastic, hardening=COMBINED, datatype=STABILIZED\n200., 0.,20.\n"},
      {DeckText(oif_Plastic(isothermal)),
       "*Plastic, hardening=COMBINED, datatype=STABILIZED\n200.,0.\n"},
  });
}

TEST(MaterialCards, PlasticCompanionsInOrder) {
  kmaC_Plastic plastic = Plastic({{200, 0}});
  kmaC_AnnealTemperature anneal;
  anneal.dependencies = 1;
  anneal.table = Table({{900, 1}});
  plastic.annealTemperature = anneal;
  plastic.cycledPlastic = Plain<kmaC_CycledPlastic>({{1, 2}});
  plastic.ornl = kmaC_Ornl();
  kmaC_CyclicHardening cyclic;
  cyclic.parameters = true;
  cyclic.table = Table({{200, 100, 5}});
  plastic.cyclicHardening = cyclic;
  plastic.potential = Dependent<kmaC_Potential>(Counting(6));
  kmaC_RateDependent rateDependent;
  rateDependent.type = kmaC_RateDependent::YieldRatio;
  rateDependent.table = Table({{1.2, 0.1}});
  plastic.rateDependent = rateDependent;
  EXPECT_EQ(DeckText(oif_Plastic(plastic)), R"(*Plastic
200.,0.
*Rate Dependent, type=YIELD RATIO
 1.2, 0.1
*Potential
1.,2.,3.,4.,5.,6.
*Cyclic Hardening, parameters
200.,100.,  5.
*Ornl
*Cycled Plastic
1.,2.
*Anneal Temperature, dependencies=1
900.,1.
)");
  rateDependent.type = kmaC_RateDependent::JohnsonCook;
  EXPECT_EQ(DeckText(oif_RateDependent(rateDependent)),
            "*Rate Dependent, type=JOHNSON COOK\n 1.2, 0.1\n");
  rateDependent.type = kmaC_RateDependent::Power; // the default, not named
  EXPECT_EQ(DeckText(oif_RateDependent(rateDependent)), "*Rate Dependent\n 1.2, 0.1\n");
}

TEST(MaterialCards, CreepViscousAndOrnl) {
  const auto creep = [](kmaC_Creep::LawEnm law) {
    kmaC_Creep record;
    record.law = law;
    record.table = Table({{1, 2, 3}});
    return DeckText(oif_Creep(record));
  };
  const auto viscous = [](kmaC_Viscous::LawEnm law, int dependencies = 0) {
    kmaC_Viscous record;
    record.law = law;
    record.dependencies = dependencies;
    record.table = Table(dependencies == 0 ? Rows{{1, 2, 3}} : Rows{{1, 2, 3, 4}});
    return DeckText(oif_Viscous(record));
  };
  const auto ornl = [](double a, double h, bool reset) {
    kmaC_Ornl record;
    record.a = a;
    record.h = h;
    record.reset = reset;
    return DeckText(oif_Ornl(record));
  };
  kmaC_Creep withCompanions;
  withCompanions.table = Table({{1, 2, 3}});
  withCompanions.potential = Dependent<kmaC_Potential>(Counting(6));
  withCompanions.ornl = kmaC_Ornl();
  withCompanions.ornl->a = 0.5;
  ExpectTexts({
      {creep(kmaC_Creep::Hyperbolic), "*Creep, law=HYPERB\n1.,2.,3.\n"},
      {creep(kmaC_Creep::Time), "*Creep, law=TIME\n1.,2.,3.\n"},
      {creep(kmaC_Creep::Strain), "*Creep\n1.,2.,3.\n"},
      {DeckText(oif_Creep(withCompanions)),
       "*Creep\n1.,2.,3.\n*Ornl, a=0.5\n*Potential\n1.,2.,3.,4.,5.,6.\n"},
      {viscous(kmaC_Viscous::TimeLaw), "*Viscous, law=TIME\n1.,2.,3.\n"},
      {viscous(kmaC_Viscous::UserViscousLaw), "*Viscous, law=USER\n1.,2.,3.\n"},
      {viscous(kmaC_Viscous::StrainLaw), "*Viscous\n1.,2.,3.\n"},
      {viscous(kmaC_Viscous::TimeLaw, 1), "*Viscous, dependencies=1, law=TIME\n1.,2.,3., ,4.\n"},
      {ornl(kmaC_Ornl::aDef, kmaC_Ornl::hDef, false), "*Ornl\n"},
      {ornl(0.5, 2, true), "*Ornl, a=0.5, h=2., reset\n"},
      {ornl(kmaC_Ornl::aDef, 1e6, false), "*Ornl, h=1e+06\n"},
  });
}

kmaC_Regularization Regularization(double rtol,
                                   kmaC_Regularization::StrainRateRegularizationEnm strainRate =
                                       kmaC_Regularization::Logarithmic) {
  kmaC_Regularization regularization;
  regularization.rtol = rtol;
  regularization.strainRateRegularization = strainRate;
  return regularization;
}

TEST(MaterialCards, MaterialLine) {
  const auto material = [](const char* name, std::optional<kmaC_Regularization> regularization) {
    kmaC_Material record;
    record.regularization = regularization;
    return DeckText(oif_Material(name, record));
  };
  ExpectTexts({
      {material("Steel", std::nullopt), "*Material, name=Steel\n"},
      {material("Steel", kmaC_Regularization()), "*Material, name=Steel\n"},
      {material("Steel", Regularization(0.05)), "*Material, name=Steel, rtol=0.05\n"},
      {material("Steel", Regularization(0.03, kmaC_Regularization::Linear)),
       "*Material, name=Steel, strain rate regularization=LINEAR\n"},
      {material("Steel", Regularization(0.01, kmaC_Regularization::Linear)),
       "*Material, name=Steel, rtol=0.01, strain rate regularization=LINEAR\n"},
      {material("Steel 2", std::nullopt), "*Material, name=\"Steel 2\"\n"},
  });
}

TEST(MaterialCards, MaterialBehavioursInDeckOrder) {
  // Set in the reverse of the deck's order.
  kmaC_Material material;
  kmaC_Viscous viscous;
  viscous.table = Table({{1}});
  material.viscous = viscous;
  material.specificHeat = Dependent<kmaC_SpecificHeat>({{450}});
  material.solubility = Dependent<kmaC_Solubility>({{1}});
  material.porousBulkModuli = Plain<kmaC_PorousBulkModuli>({{1, 2}});
  material.plastic = Plastic({{200, 0}});
  material.latentHeat = Plain<kmaC_LatentHeat>({{1, 2, 3}});
  material.gel = Plain<kmaC_Gel>(Counting(4));
  material.elastic = Elastic(kmaC_Elastic::Isotropic, {{200, 0.3}});
  material.density = Dependent<kmaC_Density>({{7800}});
  material.deformationPlasticity = Plain<kmaC_DeformationPlasticity>(Counting(5));
  kmaC_Creep creep;
  creep.table = Table({{1, 2, 3}});
  material.creep = creep;
  material.regularization = Regularization(0.05);
  EXPECT_EQ(DeckText(oif_Material("Steel", material)), R"(*Material, name=Steel, rtol=0.05
*Creep
1.,2.,3.
*Deformation Plasticity
1.,2.,3.,4.,5.
*Density
7800.,
*Elastic
200., 0.3
*Gel
1.,2.,3.,4.
*Latent Heat
1.,2.,3.
*Plastic
200.,0.
*Porous Bulk Moduli
1.,2.
*Solubility
1.,
*Specific Heat
450.,
*Viscous
1.,
)");
}

kmaC_ThicknessBehavior Thickness(const Rows& loading) {
  kmaC_ThicknessBehavior thickness;
  thickness.loading = Table(loading);
  return thickness;
}

TEST(MaterialCards, GasketThicknessBehavior) {
  kmaC_ThicknessBehavior full = Thickness({{0, 0, 1}});
  full.dependencies = 1;
  full.tensileStiffnessFactor = 0.002;
  full.damage = true;
  full.unloadingDependencies = 2;
  full.variable = kmaC_ThicknessBehavior::Force;
  full.yieldOnset = true; // written even at the value's default
  full.unloading = Table({{0.5, 0, 1, 2}});
  kmaC_ContactArea area;
  area.dependencies = 1;
  area.table = Table({{0.5, 1}});
  full.contactArea = area;

  kmaC_ThicknessBehavior slopeDrop = Thickness({{0, 0}});
  slopeDrop.yieldValue = 0.2;
  slopeDrop.contactArea = area; // only for a behaviour per unit force

  kmaC_ContactArea plainArea;
  plainArea.table = Table({{0.5, 1}});
  kmaC_ThicknessBehavior plainForce = Thickness({{0, 0}});
  plainForce.variable = kmaC_ThicknessBehavior::Force;
  plainForce.contactArea = plainArea;

  ExpectTexts({
      {DeckText(oif_GasketThicknessBehavior(full)),
       // The contact area's dependencies stand in front of its first data line.
       R"(*Gasket Thickness Behavior, dependencies=1, tensile stiffness factor=0.002, type=DAMAGE, variable=FORCE, yield onset=0.1
0.,0.,1.
*Gasket Thickness Behavior, direction=UNLOADING, dependencies=2, type=DAMAGE, variable=FORCE
 0.5,0.,1.,2.
*Gasket contact area
, dependencies=1 0.5,1.
)"},
      {DeckText(oif_GasketThicknessBehavior(slopeDrop)),
       "*Gasket Thickness Behavior, slope drop=0.2\n0.,0.\n"},
      {DeckText(oif_GasketThicknessBehavior(plainForce)),
       "*Gasket Thickness Behavior, variable=FORCE\n0.,0.\n*Gasket contact area\n 0.5,1.\n"},
  });
}

TEST(MaterialCards, GasketBehaviorWritesOnlyGasketCards) {
  kmaC_Material material;
  material.density = Dependent<kmaC_Density>({{7800}});
  material.elastic = Elastic(kmaC_Elastic::Isotropic, {{200, 0.3}});
  kmaC_TransShearElastic shear;
  shear.variable = 1;
  shear.dependencies = 1;
  shear.table = Table({{3, 1}});
  material.transShearElastic = shear;
  material.thicknessBehavior = Thickness({{0, 0}});
  kmaC_MembraneElastic membrane;
  membrane.table = Table({{1000, 0.3}});
  material.membraneElastic = membrane;
  kmaC_Creep creep;
  creep.table = Table({{1, 2, 3}});
  material.creep = creep;
  // The name stands as it is, unlike that of a "*Material".
  EXPECT_EQ(DeckText(oif_GasketBehavior("Seal 1", material)), R"(*Gasket behavior, name=Seal 1
*Creep
1.,2.,3.
*Gasket elasticity, component=MEMBRANE
1000., 0.3
*Gasket Thickness Behavior
0.,0.
*Gasket elasticity, dependencies=1, variable=FORCE
3.,1.
)");
  shear.variable = 0;
  shear.dependencies = 0;
  EXPECT_EQ(DeckText(oif_GasketElasticity(shear)), "*Gasket elasticity\n3.,1.\n");
}

std::string MaterialDefinitions(const ddb_Model& model) {
  oif_ModelInfo info(model);
  oif_MaterialBuilder builder(info);
  builder.Build();
  std::string text;
  for (const auto& card : builder.ModelDefinition())
    text += DeckText(*card);
  return text;
}

kseC_GasketSection GasketSection(const char* material) {
  kseC_GasketSection section;
  section.material = material;
  return section;
}

TEST(MaterialCards, BuilderChoosesGasketBehaviorForGasketSections) {
  ddb_Model model;
  EXPECT_EQ(MaterialDefinitions(model), "");

  kmaC_Material gasket;
  gasket.density = Dependent<kmaC_Density>({{7800}});
  gasket.thicknessBehavior = Thickness({{0, 0}, {0.1, 50}});
  model.materials_.Insert("Gasket", gasket);
  model.materials_.Insert("Aluminium", kmaC_Material());
  const char* const heading = "** \n** MATERIALS\n** \n*Material, name=Aluminium\n";
  const std::string ordinary = std::string(heading) + "*Material, name=Gasket\n*Density\n7800.,\n";
  EXPECT_EQ(MaterialDefinitions(model), ordinary);

  // A gasket section of another material changes nothing.
  model.sections_.Insert("GS-1", GasketSection("Other"));
  EXPECT_EQ(MaterialDefinitions(model), ordinary);

  // A gasket section's material without a gasket behaviour stays ordinary.
  model.sections_.Insert("GS-2", GasketSection("Aluminium"));
  model.sections_.Insert("GS-3", GasketSection("Gasket"));
  EXPECT_EQ(MaterialDefinitions(model), std::string(heading) + R"(*Gasket behavior, name=Gasket
*Gasket Thickness Behavior
  0., 0.
 0.1,50.
)");
}

TEST(MaterialCards, MaterialsFollowTheAssemblyInTheDeck) {
  ddb_Model model;
  model.materials_.Insert("Steel", kmaC_Material());
  ddb_Ddb ddb;
  ddb.models_.Insert("Default Model", model);
  const std::string deck = keydeck::test::DeckOfModel(odb_Odb(ddb));
  EXPECT_NE(deck.find("*End Assembly\n** \n** MATERIALS\n** \n*Material, name=Steel\n"),
            std::string::npos)
      << deck;
}

} // namespace
