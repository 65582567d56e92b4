#include "model/json/dumper.h"
#include "model/json/loader.h"
#include "model/materials.h"
#include "tests/model/loading.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <string_view>
#include <vector>

using namespace keydeck;
using namespace keydeck::test;

namespace {

std::string WithMaterials(const std::string& materials) {
  return InModel(R"({"materials": )" + materials + "}");
}

// A file whose one material "Steel" is `body`.
std::string WithSteel(const std::string& body) {
  return WithMaterials(R"({"Steel": )" + body + "}");
}

const kmaC_Material& MaterialOf(const odb_Odb& odb, const char* name) {
  return OnlyModel(odb).material().ConstGet(name);
}

std::vector<std::vector<double>> RowsOf(const kmaC_MaterialTable& table) {
  std::vector<std::vector<double>> rows(static_cast<std::size_t>(table.Rows()));
  for (int r = 0; r < table.Rows(); ++r)
    for (int c = 0; c < table.Cols(); ++c)
      rows[static_cast<std::size_t>(r)].push_back(table.ConstGet(r, c));
  return rows;
}

struct Loaded {
  std::vector<std::string> messages;
  std::vector<std::string> warnings;
};

Loaded LoadWithWarnings(const std::string& json) {
  Loaded loaded;
  try {
    LoadModelText(json, loaded.warnings);
  } catch (const ModelFileError& error) {
    loaded.messages = error.Messages();
  }
  return loaded;
}

const std::string SteelBody = R"({
  "density": {"table": [[7.85e-9]]},
  "elastic": {"type": "isotropic", "table": [[210000, 0.3]]},
  "plastic": {"temperatureDependency": true,
              "table": [[250, 0, 20], [300, 0.1, 20], [200, 0, 400]]},
  "regularization": {"rtol": 0.01}})";

TEST(MaterialFile, LoadsOptionsAndKeepsTableRowsInFileOrder) {
  const odb_Odb odb = Load(WithSteel(SteelBody));
  const kmaC_Material& steel = MaterialOf(odb, "Steel");
  ASSERT_TRUE(steel.density && steel.elastic && steel.plastic && steel.regularization);
  EXPECT_EQ(RowsOf(steel.density->table), (std::vector<std::vector<double>>{{7.85e-9}}));
  EXPECT_EQ(steel.elastic->type, kmaC_Elastic::Isotropic);
  EXPECT_EQ(RowsOf(steel.elastic->table), (std::vector<std::vector<double>>{{210000, 0.3}}));
  EXPECT_TRUE(steel.plastic->temperatureDependency);
  // Rows stay as the file gives them: 400 after 20, 200 after 300.
  EXPECT_EQ(RowsOf(steel.plastic->table),
            (std::vector<std::vector<double>>{{250, 0, 20}, {300, 0.1, 20}, {200, 0, 400}}));
  EXPECT_EQ(steel.regularization->rtol, 0.01);
  EXPECT_EQ(steel.regularization->strainRateRegularization, kmaC_Regularization::Logarithmic);
  EXPECT_FALSE(steel.creep || steel.viscous || steel.thicknessBehavior);
  EXPECT_FALSE(steel.plastic->rateDependent);
}

TEST(MaterialFile, NestedOptionsAndDefaults) {
  const odb_Odb odb = Load(WithSteel(R"({
    "elastic": {"type": "engineeringConstants", "noTension": true, "longTermModuli": 1,
                "table": [[1, 2, 3, 0.1, 0.2, 0.3, 4, 5, 6]],
                "failStress": {"table": [[1, 2, 3, 4, 5, 6, 7]]}},
    "plastic": {"hardening": "combined", "dataType": "halfCycle", "numBackstress": 2,
                "table": [[250, 0]],
                "rateDependent": {"type": "yieldRatio", "table": [[1.2, 100]]},
                "ornl": {"reset": true}},
    "creep": {"law": "hyperbolic", "table": [[1, 2, 3, 4, 5]]},
    "viscous": {"law": "time", "dependencies": 1, "table": [[1, 2, 3, 0.5, 7]]},
    "regularization": {"strainRateRegularization": "linear"}})"));
  const kmaC_Material& steel = MaterialOf(odb, "Steel");
  EXPECT_EQ(steel.elastic->type, kmaC_Elastic::EngineeringConstants);
  EXPECT_TRUE(steel.elastic->noTension);
  EXPECT_FALSE(steel.elastic->noCompression);
  EXPECT_EQ(steel.elastic->moduli, 1);
  EXPECT_TRUE(steel.elastic->failStress.has_value());
  EXPECT_FALSE(steel.elastic->failStrain.has_value());
  EXPECT_EQ(steel.plastic->hardening, kmaC_Plastic::Combined);
  EXPECT_EQ(steel.plastic->dataType, kmaC_Plastic::HalfCycle);
  EXPECT_EQ(steel.plastic->numBackstress, 2);
  EXPECT_EQ(steel.plastic->rateDependent->type, kmaC_RateDependent::YieldRatio);
  EXPECT_TRUE(steel.plastic->ornl->reset);
  EXPECT_EQ(steel.plastic->ornl->a, kmaC_Ornl::aDef);
  EXPECT_EQ(steel.plastic->ornl->h, NotGivenDouble);
  EXPECT_EQ(steel.creep->law, kmaC_Creep::Hyperbolic);
  EXPECT_EQ(steel.viscous->law, kmaC_Viscous::TimeLaw);
  EXPECT_EQ(steel.viscous->dependencies, 1);
  EXPECT_EQ(steel.regularization->rtol, kmaC_Regularization::rtolDef);
  EXPECT_EQ(steel.regularization->strainRateRegularization, kmaC_Regularization::Linear);
}

TEST(MaterialFile, TableMessages) {
  const std::string at = "models/M/materials/Steel/";
  ExpectMessages({
      {"ragged rows",
       WithSteel(R"({"plastic": {"table": [[250, 0], [300, 0.1], [320, 0.2, 1], [330]]}})"),
       {at + "plastic/table/2: row has 3 values, rows above have 2",
        at + "plastic/table/3: row has 1 value, rows above have 2"}},
      {"empty first row",
       WithSteel(R"({"density": {"table": [[], [1]]}})"),
       {at + "density/table/0: a table row must hold at least one value"}},
      {"cells",
       WithSteel(R"({"elastic": {"table": [[210000, "0.3"], 5, [1e999, 0.3]]}})"),
       {at + "elastic/table/0/1: expected a number, found a string",
        at + "elastic/table/1: expected an array, found a number",
        at + "elastic/table/2/0: the number 1e999 is out of range"}},
      {"not a table",
       WithSteel(R"({"density": {"table": {"rows": 1}}})"),
       {at + "density/table: expected an array, found an object"}},
      {"table missing",
       WithSteel(R"({"density": {"dependencies": 1}})"),
       {at + R"(density: missing field "table")"}},
  });
}

// The record says how many columns its table has; the loader holds the
// table to it.
TEST(MaterialFile, ColumnCountMessages) {
  const std::string at = "models/M/materials/Steel/";
  ExpectMessages({
      {"isotropic elastic with temperature",
       WithSteel(
           R"({"elastic": {"temperatureDependency": true, "table": [[210000, 0.3, 20, 1]]}})"),
       {at + "elastic/table: expected 3 columns (2 data, 1 temperature), found 4"}},
      {"orthotropic elastic with field variables",
       WithSteel(R"({"elastic": {"type": "orthotropic", "dependencies": 2,
                                 "table": [[1, 2, 3, 4, 5, 6, 7, 8, 9, 0]]}})"),
       {at + "elastic/table: expected 11 columns (9 data, 2 field variables), found 10"}},
      {"density with one field variable",
       WithSteel(R"({"density": {"dependencies": 1, "temperatureDependency": true,
                                 "table": [[7.85e-9, 20]]}})"),
       {at + "density/table: expected 3 columns (1 data, 1 temperature, 1 field variable), "
             "found 2"}},
      {"rate column",
       WithSteel(R"({"plastic": {"rateColumn": true, "table": [[250, 0]]}})"),
       {at + "plastic/table: expected 3 columns (3 data), found 2"}},
      {"johnson cook hardening",
       WithSteel(R"({"plastic": {"hardening": "johnsonCook", "table": [[1, 2, 3, 4, 5]]}})"),
       {at + "plastic/table: expected 6 columns (6 data), found 5"}},
      {"combined parameters take two per backstress",
       WithSteel(R"({"plastic": {"hardening": "combined", "dataType": "parameters",
                                 "numBackstress": 2, "table": [[1, 2, 3]]}})"),
       {at + "plastic/table: expected 5 columns (5 data), found 3"}},
      {"nested records",
       WithSteel(R"({"plastic": {"table": [[250, 0]],
                                 "rateDependent": {"table": [[1, 2, 3]]},
                                 "cyclicHardening": {"parameters": true, "table": [[1, 2]]},
                                 "annealTemperature": {"dependencies": 1, "table": [[900]]}},
                    "elastic": {"table": [[1, 0.3]], "failStrain": {"table": [[1, 2, 3, 4]]}}})"),
       {at + "plastic/rateDependent/table: expected 2 columns (2 data), found 3",
        at + "plastic/cyclicHardening/table: expected 3 columns (3 data), found 2",
        at + "plastic/annealTemperature/table: expected 2 columns (1 data, 1 field variable), "
             "found 1",
        at + "elastic/failStrain/table: expected 5 columns (5 data), found 4"}},
      {"plain tables",
       WithSteel(R"({"gel": {"table": [[1, 2, 3]]},
                    "deformationPlasticity": {"table": [[1, 2, 3, 4, 5, 6, 7]]},
                    "porousBulkModuli": {"table": [[1]]}})"),
       {at + "gel/table: expected 4 columns (4 data), found 3",
        at + "deformationPlasticity/table: expected 5 or 6 columns (5 data, 1 optional "
             "temperature), found 7",
        at + "porousBulkModuli/table: expected 2 or 3 columns (2 data, 1 optional temperature), "
             "found 1"}},
      {"a law that takes any number of constants still needs its other columns",
       WithSteel(R"({"creep": {"law": "anand", "temperatureDependency": true,
                               "dependencies": 1, "table": [[1, 2]]}})"),
       {at + "creep/table: expected at least 3 columns (at least 1 data, 1 temperature, 1 field "
             "variable), found 2"}},
      {"negative field variables",
       WithSteel(R"({"density": {"dependencies": -1, "table": [[1]]}})"),
       {at + "density/dependencies: expected a count from 0 to 1000, found -1"}},
      // Counts are bounded before any column is counted, so no sum overflows.
      {"field variables beyond a deck's tables",
       WithSteel(R"({"elastic": {"dependencies": 2147483647, "table": [[1, 2]]}})"),
       {at + "elastic/dependencies: expected a count from 0 to 1000, found 2147483647"}},
      {"backstresses beyond a deck's tables",
       WithSteel(R"({"plastic": {"hardening": "combined", "dataType": "parameters",
                    "numBackstress": 1073741824, "table": []}})"),
       {at + "plastic/numBackstress: expected a count from 0 to 1000, found 1073741824"}},
      {"most field variables",
       WithSteel(R"({"density": {"dependencies": 1000, "table": [[1, 2]]}})"),
       {at + "density/table: expected 1001 columns (1 data, 1000 field variables), found 2"}},
      // A faulty table gets its own messages, not a column count on top.
      {"no count for a ragged table",
       WithSteel(R"({"density": {"table": [[1], [1, 2]]}})"),
       {at + "density/table/1: row has 2 values, rows above have 1"}},
  });
}

TEST(MaterialFile, TablesThatFit) {
  const char* const bodies[] = {
      R"({"elastic": {"temperatureDependency": true, "table": [[210000, 0.3, 20]]}})",
      R"({"elastic": {"type": "anisotropic", "table": [[1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12,
                                                        13, 14, 15, 16, 17, 18, 19, 20, 21]]}})",
      R"({"plastic": {"rateColumn": true, "dependencies": 1, "table": [[250, 0, 0.1, 3]]}})",
      R"({"plastic": {"hardening": "user", "table": [[1], [2], [3]]}})",
      R"({"plastic": {"hardening": "combined", "dataType": "stabilized",
                      "strainRangeDependency": true, "table": [[1, 2, 0.01]]}})",
      R"({"plastic": {"hardening": "combined", "dataType": "stabilized", "table": [[1, 2]]}})",
      R"({"creep": {"law": "powerLaw", "table": [[1, 2, 3, 4, 5, 6]]}})",
      R"({"creep": {"table": [[1e-20, 3, -0.5]]}})",
      R"({"viscous": {"law": "user", "table": [[1]]}})",
      R"({"deformationPlasticity": {"table": [[1, 2, 3, 4, 5, 6]]}})",
      R"({"plastic": {"table": [[250, 0]], "cycledPlastic": {"table": [[1, 2, 3, 4, 5]]}}})",
      R"({"latentHeat": {"table": [[1, 2, 3]]}, "solubility": {"table": [[1]]},
          "specificHeat": {"table": [[450]]}})",
  };
  for (const char* body : bodies) {
    SCOPED_TRACE(body);
    EXPECT_EQ(MessagesOf(WithSteel(body)), std::vector<std::string>{});
  }
}

// An empty table is legal; it takes the record's columns, so that a card
// that counts on a column finds it.
TEST(MaterialFile, EmptyTableTakesTheRecordsColumns) {
  const odb_Odb odb = Load(WithSteel(R"({"plastic": {"rateColumn": true, "table": []},
      "elastic": {"type": "lamina", "temperatureDependency": true, "table": []}})"));
  const kmaC_Material& steel = MaterialOf(odb, "Steel");
  EXPECT_EQ(steel.plastic->table.Rows(), 0);
  EXPECT_EQ(steel.plastic->table.Cols(), 3);
  EXPECT_EQ(steel.elastic->table.Cols(), 7);
}

TEST(MaterialFile, EnumerationAndFieldMessages) {
  const std::string at = "models/M/materials/Steel/";
  ExpectMessages({
      {"elastic type",
       WithSteel(R"({"elastic": {"type": "isotropc", "table": [[1, 0.3]]}})"),
       {at + R"(elastic/type: unknown elastic type "isotropc"; expected one of isotropic, )"
             "orthotropic, anisotropic, engineeringConstants, lamina, traction, "
             "coupledTraction"}},
      {"hardening and data type",
       WithSteel(R"({"plastic": {"hardening": "Kinematic", "dataType": 1, "table": [[1, 0]]}})"),
       {at + R"(plastic/hardening: unknown hardening "Kinematic"; expected one of isotropic, )"
             "kinematic, mixed, combined, johnsonCook, user",
        at + "plastic/dataType: expected a string, found a number"}},
      {"laws",
       WithSteel(R"({"creep": {"law": "hyperb", "table": []},
                    "viscous": {"law": "power", "table": []}})"),
       {at + R"(creep/law: unknown creep law "hyperb"; expected one of time, strain, user, )"
             "anand, hyperbolic, powerLaw, timePowerLaw, doublePowerLaw",
        at + R"(viscous/law: unknown viscous law "power"; expected one of strain, time, user)"}},
      {"rate dependence and regularization",
       WithSteel(R"({"plastic": {"table": [], "rateDependent": {"type": "jc", "table": []}},
                    "regularization": {"strainRateRegularization": "log"}})"),
       {at + R"(plastic/rateDependent/type: unknown rate dependence type "jc"; expected one )"
             "of power, yieldRatio, johnsonCook",
        at + R"(regularization/strainRateRegularization: unknown strain rate regularization )"
             R"("log"; expected one of logarithmic, linear)"}},
      {"misspelt option",
       WithSteel(R"({"densty": {"table": [[1]]}})"),
       {"models/M/materials/Steel: "
        R"(unknown field "densty"; did you mean "density"?)"}},
      {"misspelt option not supported yet",
       WithSteel(R"({"hyperelastc": {}})"),
       {"models/M/materials/Steel: "
        R"(unknown field "hyperelastc"; did you mean )"
        R"("hyperelastic"?)"}},
      {"misspelt field of an option",
       WithSteel(R"({"elastic": {"tabel": [[1, 0.3]]}})"),
       {at + R"(elastic: unknown field "tabel"; did you mean "table"?)",
        at + R"(elastic: missing field "table")"}},
      {"material not an object",
       WithSteel("[]"),
       {"models/M/materials/Steel: expected an object, found an array"}},
      {"duplicate material",
       WithMaterials(R"({"Steel": {}, "Steel": {}})"),
       {R"(models/M/materials: duplicate key "Steel")"}},
  });
}

// Each behaviour that the deck will write later is refused by name.
TEST(MaterialFile, BehavioursNotSupportedYet) {
  const char* const keys[] = {"acousticMedium",
                              "capPlasticity",
                              "clayPlasticity",
                              "concrete",
                              "conductivity",
                              "damping",
                              "depvar",
                              "dielectric",
                              "diffusivity",
                              "druckerPrager",
                              "electricalConductivity",
                              "eos",
                              "expansion",
                              "foam",
                              "heatGeneration",
                              "hyperelastic",
                              "hyperfoam",
                              "hypoelastic",
                              "inelasticHeatFraction",
                              "jouleHeatFraction",
                              "moistureSwelling",
                              "permeability",
                              "piezoelectric",
                              "poreFluidExpansion",
                              "porousElastic",
                              "porousMetalPlasticity",
                              "sorption",
                              "swelling",
                              "userDefinedField",
                              "userMaterial",
                              "userOutputVariables",
                              "viscoelastic",
                              "castIronPlasticity",
                              "mohrCoulomb",
                              "concreteDamagedPlasticity"};
  for (const char* key : keys) {
    SCOPED_TRACE(key);
    const std::vector<std::string> messages =
        MessagesOf(WithSteel(std::string(R"({")") + key + R"(": {"table": [[1]]}})"));
    ASSERT_EQ(messages.size(), 1u);
    const std::string path = std::string("models/M/materials/Steel/") + key + ": ";
    EXPECT_TRUE(messages[0].starts_with(path)) << messages[0];
    EXPECT_TRUE(messages[0].ends_with(" behaviour is not supported yet")) << messages[0];
  }
  ExpectMessages({
      {"words of the message",
       WithSteel(R"({"hyperelastic": {}, "foam": {}, "eos": 1})"),
       {"models/M/materials/Steel/hyperelastic: hyperelastic behaviour is not supported yet",
        "models/M/materials/Steel/foam: crushable foam behaviour is not supported yet",
        "models/M/materials/Steel/eos: equation of state behaviour is not supported yet"}},
  });
}

// Behaviours that the deck leaves out on purpose load with any value, are
// not kept, and are named in a warning.
TEST(MaterialFile, DroppedBehavioursWarn) {
  const char* const keys[] = {
      "brittleCracking", "softRockPlasticity",   "damageInitiation",       "fluidLeakoff",
      "gapFlow",         "gapConductance",       "gapConvection",          "gapRadiation",
      "lowDensityFoam",  "magneticPermeability", "mullinsEffect",          "shear",
      "viscosity",       "superElasticity",      "meanFieldHomogenization"};
  const char* const values[] = {R"({"table": [[1, 2]], "anything": [true, null]})", "3", "null",
                                R"([[1, 2], {"a": "b"}])"};
  for (const char* key : keys) {
    for (const char* value : values) {
      SCOPED_TRACE(std::string(key) + " " + value);
      const Loaded loaded = LoadWithWarnings(WithSteel(
          std::string(R"({"density": {"table": [[1]]}, ")") + key + "\": " + value + "}"));
      EXPECT_EQ(loaded.messages, std::vector<std::string>{});
      EXPECT_EQ(loaded.warnings,
                std::vector<std::string>{std::string("models/M/materials/Steel/") + key +
                                         ": the deck leaves out this behaviour; the solver will "
                                         "not see it"});
    }
  }
  const odb_Odb odb = Load(WithSteel(R"({"mullinsEffect": {"table": [[1]]}})"));
  EXPECT_EQ(DumpModel(odb).find("mullins"), std::string::npos);
}

TEST(MaterialFile, DroppedBehaviourFaults) {
  ExpectMessages({
      {"given twice",
       WithSteel(R"({"shear": 1, "shear": 2})"),
       {R"(models/M/materials/Steel: duplicate key "shear")"}},
      // The value goes unread, but its syntax is still checked.
      {"broken value",
       WithSteel(R"({"shear": [1 2]})"),
       {"invalid JSON at line 1, column 96 (byte offset 95): expected \",\" or \"]\""}},
  });
  // No warning from a file that does not load.
  const Loaded loaded = LoadWithWarnings(WithSteel(R"({"shear": 1, "density": 1})"));
  EXPECT_EQ(loaded.messages, std::vector<std::string>{
                                 "models/M/materials/Steel/density: expected an object, found a "
                                 "number"});
  EXPECT_EQ(loaded.warnings, std::vector<std::string>{});
}

// Gasket behaviours load; without a gasket section that names the material
// the deck writes it as an ordinary material and drops them, and says so.
TEST(MaterialFile, GasketBehavioursLoadWithAWarning) {
  const Loaded loaded = LoadWithWarnings(WithMaterials(R"({
    "G": {"thicknessBehavior": {"variable": "force", "loading": [[0, 0], [10, 0.1]],
                                "contactArea": {"table": [[1, 0]]}},
          "membraneElastic": {"table": [[1]]}},
    "Plain": {"density": {"table": [[1]]}}})"));
  EXPECT_EQ(loaded.messages, std::vector<std::string>{});
  EXPECT_EQ(loaded.warnings,
            (std::vector<std::string>{
                "models/M/materials/G/thicknessBehavior: no gasket section uses this material, "
                "so the deck leaves out its gasket behaviour",
                "models/M/materials/G/membraneElastic: no gasket section uses this material, so "
                "the deck leaves out its gasket behaviour"}));

  const odb_Odb odb = Load(WithMaterials(
      R"({"G": {"thicknessBehavior": {"variable": "force", "loading": [[0, 0], [10, 0.1]]}}})"));
  const kmaC_ThicknessBehavior& thickness = *MaterialOf(odb, "G").thicknessBehavior;
  EXPECT_EQ(thickness.variable, kmaC_ThicknessBehavior::Force);
  EXPECT_EQ(RowsOf(thickness.loading), (std::vector<std::vector<double>>{{0, 0}, {10, 0.1}}));
  EXPECT_EQ(thickness.unloading.Rows(), 0);
  EXPECT_EQ(thickness.tensileStiffnessFactor, kmaC_ThicknessBehavior::tensileStiffnessFactorDef);

  ExpectMessages({{"gasket variable",
                   WithMaterials(R"({"G": {"thicknessBehavior": {"variable": "pressure",
                                                                 "loading": []}}})"),
                   {R"(models/M/materials/G/thicknessBehavior/variable: unknown gasket )"
                    R"(variable "pressure"; expected one of stress, force)"}}});
}

// Every word of an enumeration table loads as its value and dumps as the
// same word; the words are unique, and each value has one entry.
template <class E, class Get>
void ExpectRoundTrip(const char* before, const char* after, const Get& get) {
  std::set<std::string_view> words;
  std::set<int> values;
  for (const EnumEntry<E>& entry : EnumTable<E>::Entries) {
    SCOPED_TRACE(entry.fileText);
    EXPECT_TRUE(words.insert(entry.fileText).second) << "word used twice";
    EXPECT_TRUE(values.insert(static_cast<int>(entry.value)).second) << "value listed twice";
    const std::string json =
        WithSteel(std::string(before) + "\"" + std::string(entry.fileText) + "\"" + after);
    const odb_Odb odb = Load(json);
    EXPECT_EQ(get(MaterialOf(odb, "Steel")), entry.value);
    const odb_Odb reloaded = Load(DumpModel(odb));
    EXPECT_EQ(get(MaterialOf(reloaded, "Steel")), entry.value);
  }
  // The values run from the lowest without a gap.
  EXPECT_EQ(*values.rbegin() - *values.begin() + 1, static_cast<int>(values.size()));
}

TEST(MaterialFile, EnumerationWordsRoundTripThroughDump) {
  ExpectRoundTrip<kmaC_Elastic::TypeEnm>(R"({"elastic": {"table": [], "type": )", "}}",
                                         [](const kmaC_Material& m) { return m.elastic->type; });
  ExpectRoundTrip<kmaC_Plastic::HardeningEnm>(
      R"({"plastic": {"table": [], "hardening": )", "}}",
      [](const kmaC_Material& m) { return m.plastic->hardening; });
  ExpectRoundTrip<kmaC_Plastic::DataTypeEnm>(
      R"({"plastic": {"table": [], "hardening": "combined", "dataType": )", "}}",
      [](const kmaC_Material& m) { return m.plastic->dataType; });
  ExpectRoundTrip<kmaC_RateDependent::TypeEnm>(
      R"({"plastic": {"table": [], "rateDependent": {"table": [], "type": )", "}}}",
      [](const kmaC_Material& m) { return m.plastic->rateDependent->type; });
  ExpectRoundTrip<kmaC_Creep::LawEnm>(R"({"creep": {"table": [], "law": )", "}}",
                                      [](const kmaC_Material& m) { return m.creep->law; });
  ExpectRoundTrip<kmaC_Viscous::LawEnm>(R"({"viscous": {"table": [], "law": )", "}}",
                                        [](const kmaC_Material& m) { return m.viscous->law; });
  ExpectRoundTrip<kmaC_Regularization::StrainRateRegularizationEnm>(
      R"({"regularization": {"strainRateRegularization": )", "}}",
      [](const kmaC_Material& m) { return m.regularization->strainRateRegularization; });
  ExpectRoundTrip<kmaC_ThicknessBehavior::VariableUnitsEnm>(
      R"({"thicknessBehavior": {"loading": [], "variable": )", "}}",
      [](const kmaC_Material& m) { return m.thicknessBehavior->variable; });
}

// The deck texts of the enumerators where the deck spells a word its own way.
TEST(MaterialFile, EnumerationDeckTexts) {
  EXPECT_EQ(FindEnumEntry(kmaC_Elastic::EngineeringConstants)->deckText, "ENGINEERING CONSTANTS");
  EXPECT_EQ(FindEnumEntry(kmaC_Elastic::CoupledTraction)->deckText, "COUPLED TRACTION");
  EXPECT_EQ(FindEnumEntry(kmaC_Plastic::JohnsonCookHardening)->deckText, "JOHNSON COOK");
  EXPECT_EQ(FindEnumEntry(kmaC_Plastic::HalfCycle)->deckText, "HALF CYCLE");
  EXPECT_EQ(FindEnumEntry(kmaC_Creep::Hyperbolic)->deckText, "HYPERBOLIC");
  EXPECT_EQ(FindEnumEntry(kmaC_Creep::DoublePowerLaw)->deckText, "DOUBLE POWER");
  EXPECT_EQ(FindEnumEntry(kmaC_Creep::TimePowerLaw)->deckText, "TIME POWER LAW");
  EXPECT_EQ(FindEnumEntry(kmaC_RateDependent::YieldRatio)->deckText, "YIELD RATIO");
  EXPECT_EQ(FindEnumEntry(kmaC_Viscous::UserViscousLaw)->deckText, "USER");
  EXPECT_EQ(FindEnumEntry(kmaC_Regularization::Linear)->deckText, "LINEAR");
}

TEST(MaterialFile, DumpKeepsTablesAndLeavesDefaultsOut) {
  const odb_Odb odb = Load(WithSteel(SteelBody));
  const std::string dump = DumpModel(odb);
  EXPECT_EQ(DumpModel(Load(dump)), dump);
  EXPECT_NE(dump.find(R"("table": [
              [250, 0, 20],
              [300, 0.1, 20],
              [200, 0, 400]
            ])"),
            std::string::npos)
      << dump;
  // The default type, the flags left false and the default hardening are
  // left out; a value the file gives is kept.
  EXPECT_EQ(dump.find(R"("type")"), std::string::npos) << dump;
  EXPECT_EQ(dump.find("noCompression"), std::string::npos) << dump;
  EXPECT_EQ(dump.find("hardening"), std::string::npos) << dump;
  EXPECT_NE(dump.find(R"("rtol": 0.01)"), std::string::npos) << dump;
  EXPECT_NE(dump.find(R"("temperatureDependency": true)"), std::string::npos) << dump;
}

// The file's objects are unordered: materials come in name order whatever
// order the file gives them in.
TEST(MaterialFile, MaterialsInNameOrder) {
  const odb_Odb odb = Load(WithMaterials(R"({"b": {}, "B": {}, "a": {}, "A 2": {}})"));
  EXPECT_EQ(OnlyModel(odb).material().Keys(), (cow_List<cow_String>{"A 2", "B", "a", "b"}));
}

} // namespace
