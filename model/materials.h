#pragma once

#include "base/cow_2DArray.h"
#include "base/cow_String.h"
#include "model/records.h"

#include <concepts>
#include <cstdint>
#include <optional>
#include <string_view>

/// A table of doubles of a material behaviour, rows by columns: the data
/// columns of the behaviour, then a temperature column when the behaviour
/// depends on temperature, then one column per field variable.
class kmaC_MaterialTable {
public:
  kmaC_MaterialTable() = default;
  kmaC_MaterialTable(int rows, int columns) : values_(rows, columns) {}
  explicit kmaC_MaterialTable(const cow_2DArray<double>& values) : values_(values) {}

  int Rows() const { return values_.Rows(); }
  int Cols() const { return values_.Cols(); }
  const cow_2DArray<double>& Values() const { return values_; }
  double ConstGet(int row, int column) const { return values_.ConstGet(row, column); }
  double& Get(int row, int column) { return values_.Get(row, column); }
  /// Orders the rows on the columns from the last back to `column`, the last
  /// column deciding first; rows equal on those columns keep their order.
  void Sort(int column);

private:
  cow_2DArray<double> values_;
};

namespace keydeck {

/// The columns that the table of a behaviour has, left to right: its data
/// columns, a temperature column, one column per field variable. A record
/// that knows them says so through `TableColumns ExpectedColumns() const`,
/// and the loader checks its table against them.
struct TableColumns {
  int data = 0;                     ///< the data columns; the fewest of them with `moreData`
  bool moreData = false;            ///< any number of data columns from `data` up will do
  bool temperature = false;         ///< a temperature column follows the data
  bool optionalTemperature = false; ///< a temperature column may follow the data
  int fieldVariables = 0;           ///< the field-variable columns at the end

  /// The columns of a table that has just what is required; counted wide,
  /// since the counts behind them come from the file.
  std::int64_t Fewest() const {
    return std::int64_t{data} + (temperature ? 1 : 0) + fieldVariables;
  }
  bool Fits(int columns) const {
    return columns == Fewest() || (moreData && columns > Fewest()) ||
           (optionalTemperature && columns == Fewest() + 1);
  }
};

/// A record that knows the columns of its one table.
template <class R>
concept ColumnCheckedRecord = requires(const R& record) {
  { record.ExpectedColumns() } -> std::same_as<TableColumns>;
};

/// The columns of a table that may depend on temperature and field variables.
constexpr TableColumns DependentColumns(int data, bool temperatureDependency, int dependencies) {
  return {.data = data, .temperature = temperatureDependency, .fieldVariables = dependencies};
}

} // namespace keydeck

/// The table of a behaviour that may depend on temperature and field
/// variables: the three fields that every such record has, named once. The
/// records derive from it.
class kmaC_DependentTableFields {
public:
  /// The columns of the table with `data` data columns before the temperature
  /// and field-variable columns.
  keydeck::TableColumns Columns(int data) const {
    return keydeck::DependentColumns(data, temperatureDependency, dependencies);
  }
  /// The same for a table whose number of data columns is not known: one
  /// or more.
  keydeck::TableColumns SomeColumns() const {
    keydeck::TableColumns columns = Columns(1);
    columns.moreData = true;
    return columns;
  }
  template <class V> void TableFields(V& v) {
    v({"temperatureDependency", "true when a temperature column follows the data columns"},
      temperatureDependency, false);
    v({"dependencies", "the number of field-variable columns at the end of each row"}, dependencies,
      keydeck::Count{0});
    v({"table", "the rows of the table: data, then temperature, then field variables"}, table);
  }

  bool temperatureDependency = false;
  int dependencies = 0;
  kmaC_MaterialTable table;
};

/// A behaviour whose table depends on temperature and field variables and
/// has no parameters of its own ("*Density", "*Specific Heat", ...). The tag
/// names the behaviour and says how many data columns it has.
template <class Tag> class kmaC_DependentTable : public kmaC_DependentTableFields {
public:
  keydeck::TableColumns ExpectedColumns() const { return Columns(Tag::DataColumns); }
  template <class V> void Fields(V& v) { TableFields(v); }
};

/// A behaviour given by a plain table and nothing else ("*Gel", ...). The tag
/// says what columns the table has.
template <class Tag> class kmaC_PlainTable {
public:
  keydeck::TableColumns ExpectedColumns() const { return Tag::Columns; }
  template <class V> void Fields(V& v) {
    v({"table", "the rows of the table, as many columns in each as the behaviour takes"}, table);
  }

  kmaC_MaterialTable table;
};

namespace keydeck::MaterialTags {
// Data columns of each behaviour with a dependent table and no parameters.
struct Density {
  static constexpr int DataColumns = 1;
};
struct SpecificHeat {
  static constexpr int DataColumns = 1;
};
struct Solubility {
  static constexpr int DataColumns = 1;
};
struct Potential {
  static constexpr int DataColumns = 6;
};
struct FailStress {
  static constexpr int DataColumns = 7;
};
struct FailStrain {
  static constexpr int DataColumns = 5;
};
// Columns of each behaviour with a plain table. Deformation plasticity and
// porous bulk moduli may add a temperature column without saying so.
struct LatentHeat {
  static constexpr TableColumns Columns{.data = 3};
};
struct Gel {
  static constexpr TableColumns Columns{.data = 4};
};
struct DeformationPlasticity {
  static constexpr TableColumns Columns{.data = 5, .optionalTemperature = true};
};
struct PorousBulkModuli {
  static constexpr TableColumns Columns{.data = 2, .optionalTemperature = true};
};
struct CycledPlastic {
  static constexpr TableColumns Columns{.data = 1, .moreData = true};
};
} // namespace keydeck::MaterialTags

using kmaC_Density = kmaC_DependentTable<keydeck::MaterialTags::Density>;
using kmaC_SpecificHeat = kmaC_DependentTable<keydeck::MaterialTags::SpecificHeat>;
using kmaC_Solubility = kmaC_DependentTable<keydeck::MaterialTags::Solubility>;
using kmaC_Potential = kmaC_DependentTable<keydeck::MaterialTags::Potential>;
using kmaC_FailStress = kmaC_DependentTable<keydeck::MaterialTags::FailStress>;
using kmaC_FailStrain = kmaC_DependentTable<keydeck::MaterialTags::FailStrain>;
using kmaC_LatentHeat = kmaC_PlainTable<keydeck::MaterialTags::LatentHeat>;
using kmaC_Gel = kmaC_PlainTable<keydeck::MaterialTags::Gel>;
using kmaC_DeformationPlasticity = kmaC_PlainTable<keydeck::MaterialTags::DeformationPlasticity>;
using kmaC_PorousBulkModuli = kmaC_PlainTable<keydeck::MaterialTags::PorousBulkModuli>;
using kmaC_CycledPlastic = kmaC_PlainTable<keydeck::MaterialTags::CycledPlastic>;

/// "*Elastic": the elastic moduli, with optional failure limits.
class kmaC_Elastic : public kmaC_DependentTableFields {
public:
  enum TypeEnm : int {
    Isotropic = 0,
    Orthotropic = 1,
    Anisotropic = 2,
    EngineeringConstants = 3,
    Lamina = 4,
    Traction = 5,
    CoupledTraction = 6,
  };
  /// The data columns of each type of elasticity.
  static int DataColumns(TypeEnm type);
  keydeck::TableColumns ExpectedColumns() const { return Columns(DataColumns(type)); }

  template <class V> void Fields(V& v) {
    v({"type", "the kind of elasticity, which sets the data columns of the table"}, type,
      Isotropic);
    v({"noCompression", "true when the material bears no compressive stress"}, noCompression,
      false);
    v({"noTension", "true when the material bears no tensile stress"}, noTension, false);
    TableFields(v);
    v({"longTermModuli", "not 0 when the moduli are long-term ones; it counts only beside a "
                         "viscoelastic behaviour"},
      moduli, 0);
    v({"failStress", "the stress limits of the material: 7 data columns"}, failStress,
      std::optional<kmaC_FailStress>());
    v({"failStrain", "the strain limits of the material: 5 data columns"}, failStrain,
      std::optional<kmaC_FailStrain>());
  }

  TypeEnm type = Isotropic;
  bool noCompression = false;
  bool noTension = false;
  int moduli = 0; ///< non-zero: the moduli are long-term ones
  std::optional<kmaC_FailStress> failStress;
  std::optional<kmaC_FailStrain> failStrain;
};

template <> struct keydeck::EnumTable<kmaC_Elastic::TypeEnm> {
  static constexpr std::string_view Noun = "elastic type";
  static constexpr EnumEntry<kmaC_Elastic::TypeEnm> Entries[] = {
      {kmaC_Elastic::Isotropic, "ISOTROPIC", "isotropic"},
      {kmaC_Elastic::Orthotropic, "ORTHOTROPIC", "orthotropic"},
      {kmaC_Elastic::Anisotropic, "ANISOTROPIC", "anisotropic"},
      {kmaC_Elastic::EngineeringConstants, "ENGINEERING CONSTANTS", "engineeringConstants"},
      {kmaC_Elastic::Lamina, "LAMINA", "lamina"},
      {kmaC_Elastic::Traction, "TRACTION", "traction"},
      {kmaC_Elastic::CoupledTraction, "COUPLED TRACTION", "coupledTraction"},
  };
};

/// "*Ornl": the constitutive model of the ORNL rules, a companion of
/// "*Plastic" and "*Creep".
class kmaC_Ornl {
public:
  static constexpr double aDef = 0.3;
  static constexpr double hDef = keydeck::NotGivenDouble;
  static constexpr bool resetDef = false;

  template <class V> void Fields(V& v) {
    v({"a", "the saturation rate of the kinematic shift"}, a, aDef);
    v({"h", "the hardening modulus of the kinematic shift; the solver's own when left out"}, h,
      hDef);
    v({"reset", "true to reset the kinematic shift"}, reset, resetDef);
  }

  double a = aDef;
  double h = hDef;
  bool reset = resetDef;
};

/// "*Rate Dependent": rate dependence of the yield stress. Each type has two
/// data columns (a factor and a rate or an exponent).
class kmaC_RateDependent : public kmaC_DependentTableFields {
public:
  enum TypeEnm : int { Power = 0, YieldRatio = 1, JohnsonCook = 2 };
  keydeck::TableColumns ExpectedColumns() const { return Columns(2); }
  template <class V> void Fields(V& v) {
    v({"type", "the law of the rate dependence"}, type, Power);
    TableFields(v);
  }

  TypeEnm type = Power;
};

// The power law is the solver's default and is never named in the deck.
template <> struct keydeck::EnumTable<kmaC_RateDependent::TypeEnm> {
  static constexpr std::string_view Noun = "rate dependence type";
  static constexpr EnumEntry<kmaC_RateDependent::TypeEnm> Entries[] = {
      {kmaC_RateDependent::Power, "", "power"},
      {kmaC_RateDependent::YieldRatio, "YIELD RATIO", "yieldRatio"},
      {kmaC_RateDependent::JohnsonCook, "JOHNSON COOK", "johnsonCook"},
  };
};

/// "*Cyclic Hardening": the isotropic part of combined hardening, as a table
/// of stress against plastic strain, or as three parameters.
class kmaC_CyclicHardening : public kmaC_DependentTableFields {
public:
  keydeck::TableColumns ExpectedColumns() const { return Columns(parameters ? 3 : 2); }
  template <class V> void Fields(V& v) {
    TableFields(v);
    v({"parameters", "true when the table gives three parameters (3 data columns) instead of "
                     "stress against plastic strain (2)"},
      parameters, false);
  }

  bool parameters = false;
};

/// "*Anneal Temperature": the temperature above which the material anneals.
class kmaC_AnnealTemperature {
public:
  keydeck::TableColumns ExpectedColumns() const {
    return keydeck::DependentColumns(1, /*temperatureDependency=*/false, dependencies);
  }
  template <class V> void Fields(V& v) {
    v({"dependencies", "the number of field-variable columns at the end of each row"}, dependencies,
      keydeck::Count{0});
    v({"table", "the rows of the table: the anneal temperature, then field variables"}, table);
  }

  int dependencies = 0;
  kmaC_MaterialTable table;
};

/// "*Plastic": the yield stress against plastic strain, with its companions.
class kmaC_Plastic : public kmaC_DependentTableFields {
public:
  enum HardeningEnm : int {
    IsotropicHardening = 0,
    Kinematic = 1,
    Mixed = 2,
    Combined = 3,
    JohnsonCookHardening = 4,
    User = 5,
  };
  enum DataTypeEnm : int { NoDataType = 0, HalfCycle = 1, Stabilized = 2, Parameters = 3 };

  /// Yield stress and plastic strain, and the strain rate with `rate`; the
  /// six Johnson-Cook constants; for combined hardening the stabilized strain
  /// range where it counts, or the yield stress and two constants per
  /// backstress; the properties of user hardening in the first column.
  keydeck::TableColumns ExpectedColumns() const;

  template <class V> void Fields(V& v) {
    v({"hardening", "the hardening rule, which sets the data columns of the table"}, hardening,
      IsotropicHardening);
    v({"rateColumn", "true when the third column of the table is the strain rate"}, rate, false);
    v({"dataType", "the kind of data of combined hardening"}, dataType, NoDataType);
    v({"strainRangeDependency", "true when stabilized data has a strain-range column"},
      strainRangeDependency, false);
    v({"numBackstress", "the number of backstresses of half-cycle and parameter data"},
      numBackstress, keydeck::Count{1});
    TableFields(v);
    v({"rateDependent", "the dependence of the yield stress on the strain rate"}, rateDependent,
      std::optional<kmaC_RateDependent>());
    v({"potential", "the ratios of anisotropic yield: 6 data columns"}, potential,
      std::optional<kmaC_Potential>());
    v({"cyclicHardening", "the isotropic part of combined hardening"}, cyclicHardening,
      std::optional<kmaC_CyclicHardening>());
    v({"ornl", "the constitutive model of the ORNL rules"}, ornl, std::optional<kmaC_Ornl>());
    v({"cycledPlastic", "the cycled yield stress of the ORNL rules"}, cycledPlastic,
      std::optional<kmaC_CycledPlastic>());
    v({"annealTemperature", "the temperature above which the material anneals"}, annealTemperature,
      std::optional<kmaC_AnnealTemperature>());
  }

  HardeningEnm hardening = IsotropicHardening;
  bool rate = false; ///< the table holds the strain rate in column 2
  DataTypeEnm dataType = NoDataType;
  bool strainRangeDependency = false;
  int numBackstress = 1;
  std::optional<kmaC_RateDependent> rateDependent;
  std::optional<kmaC_Potential> potential;
  std::optional<kmaC_CyclicHardening> cyclicHardening;
  std::optional<kmaC_Ornl> ornl;
  std::optional<kmaC_CycledPlastic> cycledPlastic;
  std::optional<kmaC_AnnealTemperature> annealTemperature;
};

template <> struct keydeck::EnumTable<kmaC_Plastic::HardeningEnm> {
  static constexpr std::string_view Noun = "hardening";
  static constexpr EnumEntry<kmaC_Plastic::HardeningEnm> Entries[] = {
      {kmaC_Plastic::IsotropicHardening, "ISOTROPIC", "isotropic"},
      {kmaC_Plastic::Kinematic, "KINEMATIC", "kinematic"},
      {kmaC_Plastic::Mixed, "MIXED", "mixed"},
      {kmaC_Plastic::Combined, "COMBINED", "combined"},
      {kmaC_Plastic::JohnsonCookHardening, "JOHNSON COOK", "johnsonCook"},
      {kmaC_Plastic::User, "USER", "user"},
  };
};

// No data type leaves the parameter off the card: it has no deck text.
template <> struct keydeck::EnumTable<kmaC_Plastic::DataTypeEnm> {
  static constexpr std::string_view Noun = "data type";
  static constexpr EnumEntry<kmaC_Plastic::DataTypeEnm> Entries[] = {
      {kmaC_Plastic::NoDataType, "", "none"},
      {kmaC_Plastic::HalfCycle, "HALF CYCLE", "halfCycle"},
      {kmaC_Plastic::Stabilized, "STABILIZED", "stabilized"},
      {kmaC_Plastic::Parameters, "PARAMETERS", "parameters"},
  };
};

/// "*Creep": the creep law and its table.
class kmaC_Creep : public kmaC_DependentTableFields {
public:
  enum LawEnm : int {
    Time = 0,
    Strain = 1,
    UserLaw = 2,
    Anand = 3,
    Hyperbolic = 4,
    PowerLaw = 5,
    TimePowerLaw = 6,
    DoublePowerLaw = 7,
  };

  /// Three constants for time and strain hardening, five for the
  /// hyperbolic-sine law; the other laws are not checked beyond one column.
  keydeck::TableColumns ExpectedColumns() const;

  template <class V> void Fields(V& v) {
    v({"law", "the creep law, which sets the data columns of the table"}, law, Strain);
    TableFields(v);
    v({"ornl", "the constitutive model of the ORNL rules"}, ornl, std::optional<kmaC_Ornl>());
    v({"potential", "the ratios of anisotropic yield: 6 data columns"}, potential,
      std::optional<kmaC_Potential>());
  }

  LawEnm law = Strain;
  std::optional<kmaC_Ornl> ornl;
  std::optional<kmaC_Potential> potential;
};

// The card spells the hyperbolic-sine law in short; the table keeps the
// law's full name.
template <> struct keydeck::EnumTable<kmaC_Creep::LawEnm> {
  static constexpr std::string_view Noun = "creep law";
  static constexpr EnumEntry<kmaC_Creep::LawEnm> Entries[] = {
      {kmaC_Creep::Time, "TIME", "time"},
      {kmaC_Creep::Strain, "STRAIN", "strain"},
      {kmaC_Creep::UserLaw, "USER", "user"},
      {kmaC_Creep::Anand, "ANAND", "anand"},
      {kmaC_Creep::Hyperbolic, "HYPERBOLIC", "hyperbolic"},
      {kmaC_Creep::PowerLaw, "POWER LAW", "powerLaw"},
      {kmaC_Creep::TimePowerLaw, "TIME POWER LAW", "timePowerLaw"},
      {kmaC_Creep::DoublePowerLaw, "DOUBLE POWER", "doublePowerLaw"},
  };
};

/// "*Viscous": the viscous part of a two-layer viscoplastic model.
class kmaC_Viscous : public kmaC_DependentTableFields {
public:
  enum LawEnm : int { StrainLaw = 1, TimeLaw = 2, UserViscousLaw = 3 };

  /// Four constants for time and strain hardening; a user law is not checked
  /// beyond one column.
  keydeck::TableColumns ExpectedColumns() const {
    return law == UserViscousLaw ? SomeColumns() : Columns(4);
  }

  template <class V> void Fields(V& v) {
    v({"law", "the viscous law, which sets the data columns of the table"}, law, StrainLaw);
    TableFields(v);
  }

  LawEnm law = StrainLaw;
};

template <> struct keydeck::EnumTable<kmaC_Viscous::LawEnm> {
  static constexpr std::string_view Noun = "viscous law";
  static constexpr EnumEntry<kmaC_Viscous::LawEnm> Entries[] = {
      {kmaC_Viscous::StrainLaw, "STRAIN", "strain"},
      {kmaC_Viscous::TimeLaw, "TIME", "time"},
      {kmaC_Viscous::UserViscousLaw, "USER", "user"},
  };
};

/// How the solver regularises the material's tables: a tolerance and the
/// scale of strain-rate regularisation, on the "*Material" line.
class kmaC_Regularization {
public:
  enum StrainRateRegularizationEnm : int { Logarithmic = 0, Linear = 1 };
  static constexpr double rtolDef = 0.03;

  template <class V> void Fields(V& v) {
    v({"rtol", "the tolerance of the regularization of the material's tables"}, rtol, rtolDef);
    v({"strainRateRegularization", "the scale of strain-rate regularization"},
      strainRateRegularization, Logarithmic);
  }

  double rtol = rtolDef;
  StrainRateRegularizationEnm strainRateRegularization = Logarithmic;
};

template <> struct keydeck::EnumTable<kmaC_Regularization::StrainRateRegularizationEnm> {
  static constexpr std::string_view Noun = "strain rate regularization";
  static constexpr EnumEntry<kmaC_Regularization::StrainRateRegularizationEnm> Entries[] = {
      {kmaC_Regularization::Logarithmic, "LOGARITHMIC", "logarithmic"},
      {kmaC_Regularization::Linear, "LINEAR", "linear"},
  };
};

/// "*Gasket elasticity, component=MEMBRANE": membrane elasticity of a gasket.
class kmaC_MembraneElastic {
public:
  template <class V> void Fields(V& v) {
    v({"dependencies", "the number of field-variable columns at the end of each row"}, dependencies,
      keydeck::Count{0});
    v({"table", "the rows of the table: membrane elastic data, then field variables"}, table);
  }

  int dependencies = 0;
  kmaC_MaterialTable table;
};

/// "*Gasket elasticity": transverse shear elasticity of a gasket.
class kmaC_TransShearElastic {
public:
  template <class V> void Fields(V& v) {
    v({"variableForce", "1 when the table is given per unit force"}, variable, 0);
    v({"dependencies", "the number of field-variable columns at the end of each row"}, dependencies,
      keydeck::Count{0});
    v({"table", "the rows of the table: transverse shear elastic data, then field variables"},
      table);
  }

  int variable = 0; ///< 1: the table is given per unit force
  int dependencies = 0;
  kmaC_MaterialTable table;
};

/// "*Gasket contact area": the contact area of a gasket against closure.
class kmaC_ContactArea {
public:
  template <class V> void Fields(V& v) {
    v({"dependencies", "the number of field-variable columns at the end of each row"}, dependencies,
      keydeck::Count{0});
    v({"table", "the rows of the table: contact area data, then field variables"}, table);
  }

  int dependencies = 0;
  kmaC_MaterialTable table;
};

/// "*Gasket Thickness Behavior": the gasket's pressure against closure, in
/// loading and in unloading.
class kmaC_ThicknessBehavior {
public:
  enum VariableUnitsEnm : int { Stress = 0, Force = 1 };
  static constexpr double tensileStiffnessFactorDef = 0.001;
  static constexpr double yieldValueDef = 0.1;

  template <class V> void Fields(V& v) {
    v({"dependencies",
       "the number of field-variable columns at the end of each row of the loading table"},
      dependencies, keydeck::Count{0});
    v({"tensileStiffnessFactor", "the tensile stiffness as a fraction of the initial compressive "
                                 "stiffness"},
      tensileStiffnessFactor, tensileStiffnessFactorDef);
    v({"damage", "true for the damage model of unloading"}, damage, false);
    v({"unloadingDependencies", "the number of field-variable columns of the unloading table"},
      unloadingDependencies, keydeck::Count{0});
    v({"variable", "whether the tables give the pressure as a stress or as a force"}, variable,
      Stress);
    v({"yieldValue", "the yield onset with yieldOnset, else the drop of the slope"}, yieldValue,
      yieldValueDef);
    v({"yieldOnset", "true when yieldValue gives the yield onset"}, yieldOnset, false);
    v({"loading", "the rows of the loading table"}, loading);
    v({"unloading", "the rows of the unloading table; empty for none"}, unloading,
      kmaC_MaterialTable());
    v({"contactArea", "the contact area of the gasket against closure"}, contactArea,
      std::optional<kmaC_ContactArea>());
  }

  int dependencies = 0;
  double tensileStiffnessFactor = tensileStiffnessFactorDef;
  bool damage = false;
  int unloadingDependencies = 0;
  VariableUnitsEnm variable = Stress;
  double yieldValue = yieldValueDef; ///< the yield onset, or the slope drop without onset
  bool yieldOnset = false;
  kmaC_MaterialTable loading;
  kmaC_MaterialTable unloading;
  std::optional<kmaC_ContactArea> contactArea;
};

template <> struct keydeck::EnumTable<kmaC_ThicknessBehavior::VariableUnitsEnm> {
  static constexpr std::string_view Noun = "gasket variable";
  static constexpr EnumEntry<kmaC_ThicknessBehavior::VariableUnitsEnm> Entries[] = {
      {kmaC_ThicknessBehavior::Stress, "STRESS", "stress"},
      {kmaC_ThicknessBehavior::Force, "FORCE", "force"},
  };
};

namespace keydeck {

/// True for the behaviours that only a gasket section's material writes
/// ("*Gasket behavior"); an ordinary "*Material" leaves them out.
template <class T> constexpr bool IsGasketOption = false;
template <> inline constexpr bool IsGasketOption<kmaC_ThicknessBehavior> = true;
template <> inline constexpr bool IsGasketOption<kmaC_TransShearElastic> = true;
template <> inline constexpr bool IsGasketOption<kmaC_MembraneElastic> = true;

} // namespace keydeck

/// A material: one optional record per behaviour. The deck writes the
/// behaviours in its own fixed order, whatever order the file gives them in.
class kmaC_Material {
public:
  static constexpr const char* Description = "a material: its behaviours, each written as a card";
  virtual ~kmaC_Material() = default;
  virtual kmaC_Material* Copy() const { return new kmaC_Material(*this); }
  static constexpr unsigned TypeId() { return keydeck::TypeIds::Material; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  virtual unsigned DynTypeId() const { return TypeId(); }

  template <class V> void Fields(V& v) {
    v({"creep", "creep: the creep law and its constants"}, creep, std::optional<kmaC_Creep>());
    v({"deformationPlasticity",
       "deformation plasticity: Young's modulus, Poisson's ratio, yield stress, exponent and "
       "yield offset, and an optional temperature"},
      deformationPlasticity, std::optional<kmaC_DeformationPlasticity>());
    v({"density", "the mass density"}, density, std::optional<kmaC_Density>());
    v({"elastic", "elasticity: the elastic moduli"}, elastic, std::optional<kmaC_Elastic>());
    v({"thicknessBehavior", "the thickness behaviour of a gasket"}, thicknessBehavior,
      std::optional<kmaC_ThicknessBehavior>());
    v({"transShearElastic", "the transverse shear elasticity of a gasket"}, transShearElastic,
      std::optional<kmaC_TransShearElastic>());
    v({"membraneElastic", "the membrane elasticity of a gasket"}, membraneElastic,
      std::optional<kmaC_MembraneElastic>());
    v({"gel", "gel swelling of a porous medium: 4 data columns"}, gel, std::optional<kmaC_Gel>());
    v({"latentHeat", "the latent heat, with the solidus and liquidus temperatures"}, latentHeat,
      std::optional<kmaC_LatentHeat>());
    v({"plastic", "plasticity: the yield stress against plastic strain, with its companions"},
      plastic, std::optional<kmaC_Plastic>());
    v({"porousBulkModuli",
       "the bulk moduli of the solid grains and of the permeating fluid, and an optional "
       "temperature"},
      porousBulkModuli, std::optional<kmaC_PorousBulkModuli>());
    v({"regularization", "the regularization of the tables, on the material's own line"},
      regularization, std::optional<kmaC_Regularization>());
    v({"solubility", "the solubility of the diffusing substance"}, solubility,
      std::optional<kmaC_Solubility>());
    v({"specificHeat", "the specific heat"}, specificHeat, std::optional<kmaC_SpecificHeat>());
    v({"viscous", "the viscous part of a two-layer viscoplastic model"}, viscous,
      std::optional<kmaC_Viscous>());
  }

  /// True when the material carries a gasket behaviour.
  bool HasGasketOption() const {
    return thicknessBehavior.has_value() || transShearElastic.has_value() ||
           membraneElastic.has_value();
  }

  std::optional<kmaC_Creep> creep;
  std::optional<kmaC_DeformationPlasticity> deformationPlasticity;
  std::optional<kmaC_Density> density;
  std::optional<kmaC_Elastic> elastic;
  std::optional<kmaC_ThicknessBehavior> thicknessBehavior;
  std::optional<kmaC_TransShearElastic> transShearElastic;
  std::optional<kmaC_MembraneElastic> membraneElastic;
  std::optional<kmaC_Gel> gel;
  std::optional<kmaC_LatentHeat> latentHeat;
  std::optional<kmaC_Plastic> plastic;
  std::optional<kmaC_PorousBulkModuli> porousBulkModuli;
  std::optional<kmaC_Regularization> regularization;
  std::optional<kmaC_Solubility> solubility;
  std::optional<kmaC_SpecificHeat> specificHeat;
  std::optional<kmaC_Viscous> viscous;
};
