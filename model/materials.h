#pragma once

#include "base/cow_2DArray.h"
#include "base/cow_String.h"
#include "model/records.h"

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

/// The three fields of every table that may depend on temperature and field
/// variables, named once.
template <class V>
void DependentTableFields(V& v, bool& temperatureDependency, int& dependencies,
                          kmaC_MaterialTable& table) {
  v("temperatureDependency", temperatureDependency, false);
  v("dependencies", dependencies, 0);
  v("table", table);
}

/// The columns a dependent table must have: its data columns, the
/// temperature column if any, the field-variable columns.
inline int DependentTableColumns(int dataColumns, bool temperatureDependency, int dependencies) {
  return dataColumns + (temperatureDependency ? 1 : 0) + dependencies;
}

/// A behaviour whose table depends on temperature and field variables and
/// has no parameters of its own ("*Density", "*Specific Heat", ...). The tag
/// names the behaviour and says how many data columns it has.
template <class Tag> class kmaC_DependentTable {
public:
  static constexpr int DataColumns() { return Tag::DataColumns; }
  int ExpectedColumns() const {
    return DependentTableColumns(Tag::DataColumns, temperatureDependency, dependencies);
  }
  template <class V> void Fields(V& v) {
    DependentTableFields(v, temperatureDependency, dependencies, table);
  }

  bool temperatureDependency = false;
  int dependencies = 0;
  kmaC_MaterialTable table;
};

/// A behaviour given by a plain table and nothing else ("*Gel", ...).
template <class Tag> class kmaC_PlainTable {
public:
  /// 0 when the table may have any number of columns.
  int ExpectedColumns() const { return Tag::DataColumns; }
  template <class V> void Fields(V& v) { v("table", table); }

  kmaC_MaterialTable table;
};

namespace keydeck::MaterialTags {
// Data columns of each behaviour with a table and no parameters; 0 means any.
struct Density { static constexpr int DataColumns = 1; };
struct SpecificHeat { static constexpr int DataColumns = 1; };
struct Solubility { static constexpr int DataColumns = 1; };
struct Potential { static constexpr int DataColumns = 6; };
struct FailStress { static constexpr int DataColumns = 7; };
struct FailStrain { static constexpr int DataColumns = 5; };
struct LatentHeat { static constexpr int DataColumns = 3; };
struct Gel { static constexpr int DataColumns = 4; };
struct DeformationPlasticity { static constexpr int DataColumns = 5; };
struct PorousBulkModuli { static constexpr int DataColumns = 2; };
struct CycledPlastic { static constexpr int DataColumns = 0; };
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
class kmaC_Elastic {
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
  int ExpectedColumns() const {
    return DependentTableColumns(DataColumns(type), temperatureDependency, dependencies);
  }

  template <class V> void Fields(V& v) {
    v("type", type, Isotropic);
    v("noCompression", noCompression, false);
    v("noTension", noTension, false);
    DependentTableFields(v, temperatureDependency, dependencies, table);
    v("longTermModuli", moduli, 0);
    v("failStress", failStress, std::optional<kmaC_FailStress>());
    v("failStrain", failStrain, std::optional<kmaC_FailStrain>());
  }

  TypeEnm type = Isotropic;
  bool noCompression = false;
  bool noTension = false;
  bool temperatureDependency = false;
  int dependencies = 0;
  int moduli = 0; ///< non-zero: the moduli are long-term ones
  kmaC_MaterialTable table;
  std::optional<kmaC_FailStress> failStress;
  std::optional<kmaC_FailStrain> failStrain;
};

/// "*Ornl": the constitutive model of the ORNL rules, a companion of
/// "*Plastic" and "*Creep".
class kmaC_Ornl {
public:
  static constexpr double aDef = 0.3;
  static constexpr double hDef = keydeck::NotGivenDouble;
  static constexpr bool resetDef = false;

  template <class V> void Fields(V& v) {
    v("a", a, aDef);
    v("h", h, hDef);
    v("reset", reset, resetDef);
  }

  double a = aDef;
  double h = hDef;
  bool reset = resetDef;
};

/// "*Rate Dependent": rate dependence of the yield stress.
class kmaC_RateDependent {
public:
  enum TypeEnm : int { Power = 0, YieldRatio = 1, JohnsonCook = 2 };
  template <class V> void Fields(V& v) {
    v("type", type, Power);
    DependentTableFields(v, temperatureDependency, dependencies, table);
  }

  TypeEnm type = Power;
  bool temperatureDependency = false;
  int dependencies = 0;
  kmaC_MaterialTable table;
};

/// "*Cyclic Hardening": the isotropic part of combined hardening.
class kmaC_CyclicHardening {
public:
  template <class V> void Fields(V& v) {
    DependentTableFields(v, temperatureDependency, dependencies, table);
    v("parameters", parameters, false);
  }

  bool temperatureDependency = false;
  int dependencies = 0;
  bool parameters = false;
  kmaC_MaterialTable table;
};

/// "*Anneal Temperature": the temperature above which the material anneals.
class kmaC_AnnealTemperature {
public:
  template <class V> void Fields(V& v) {
    v("dependencies", dependencies, 0);
    v("table", table);
  }

  int dependencies = 0;
  kmaC_MaterialTable table;
};

/// "*Plastic": the yield stress against plastic strain, with its companions.
class kmaC_Plastic {
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

  template <class V> void Fields(V& v) {
    v("hardening", hardening, IsotropicHardening);
    v("rate", rate, false);
    v("dataType", dataType, NoDataType);
    v("strainRangeDependency", strainRangeDependency, false);
    v("numBackstress", numBackstress, 1);
    DependentTableFields(v, temperatureDependency, dependencies, table);
    v("rateDependent", rateDependent, std::optional<kmaC_RateDependent>());
    v("potential", potential, std::optional<kmaC_Potential>());
    v("cyclicHardening", cyclicHardening, std::optional<kmaC_CyclicHardening>());
    v("ornl", ornl, std::optional<kmaC_Ornl>());
    v("cycledPlastic", cycledPlastic, std::optional<kmaC_CycledPlastic>());
    v("annealTemperature", annealTemperature, std::optional<kmaC_AnnealTemperature>());
  }

  HardeningEnm hardening = IsotropicHardening;
  bool rate = false; ///< the table holds the strain rate in column 2
  DataTypeEnm dataType = NoDataType;
  bool strainRangeDependency = false;
  int numBackstress = 1;
  bool temperatureDependency = false;
  int dependencies = 0;
  kmaC_MaterialTable table;
  std::optional<kmaC_RateDependent> rateDependent;
  std::optional<kmaC_Potential> potential;
  std::optional<kmaC_CyclicHardening> cyclicHardening;
  std::optional<kmaC_Ornl> ornl;
  std::optional<kmaC_CycledPlastic> cycledPlastic;
  std::optional<kmaC_AnnealTemperature> annealTemperature;
};

/// "*Creep": the creep law and its table.
class kmaC_Creep {
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

  template <class V> void Fields(V& v) {
    v("law", law, Strain);
    DependentTableFields(v, temperatureDependency, dependencies, table);
    v("ornl", ornl, std::optional<kmaC_Ornl>());
    v("potential", potential, std::optional<kmaC_Potential>());
  }

  LawEnm law = Strain;
  bool temperatureDependency = false;
  int dependencies = 0;
  kmaC_MaterialTable table;
  std::optional<kmaC_Ornl> ornl;
  std::optional<kmaC_Potential> potential;
};

/// "*Viscous": the viscous part of a two-layer viscoplastic model.
class kmaC_Viscous {
public:
  enum LawEnm : int { StrainLaw = 1, TimeLaw = 2, UserViscousLaw = 3 };

  template <class V> void Fields(V& v) {
    v("law", law, StrainLaw);
    DependentTableFields(v, temperatureDependency, dependencies, table);
  }

  LawEnm law = StrainLaw;
  bool temperatureDependency = false;
  int dependencies = 0;
  kmaC_MaterialTable table;
};

/// How the solver regularises the material's tables: a tolerance and the
/// scale of strain-rate regularisation, on the "*Material" line.
class kmaC_Regularization {
public:
  enum StrainRateRegularizationEnm : int { Logarithmic = 0, Linear = 1 };
  static constexpr double rtolDef = 0.03;

  template <class V> void Fields(V& v) {
    v("rtol", rtol, rtolDef);
    v("strainRateRegularization", strainRateRegularization, Logarithmic);
  }

  double rtol = rtolDef;
  StrainRateRegularizationEnm strainRateRegularization = Logarithmic;
};

/// "*Gasket elasticity, component=MEMBRANE": membrane elasticity of a gasket.
class kmaC_MembraneElastic {
public:
  template <class V> void Fields(V& v) {
    v("dependencies", dependencies, 0);
    v("table", table);
  }

  int dependencies = 0;
  kmaC_MaterialTable table;
};

/// "*Gasket elasticity": transverse shear elasticity of a gasket.
class kmaC_TransShearElastic {
public:
  template <class V> void Fields(V& v) {
    v("variableForce", variable, 0);
    v("dependencies", dependencies, 0);
    v("table", table);
  }

  int variable = 0; ///< 1: the table is given per unit force
  int dependencies = 0;
  kmaC_MaterialTable table;
};

/// "*Gasket contact area": the contact area of a gasket against closure.
class kmaC_ContactArea {
public:
  template <class V> void Fields(V& v) {
    v("dependencies", dependencies, 0);
    v("table", table);
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
    v("dependencies", dependencies, 0);
    v("tensileStiffnessFactor", tensileStiffnessFactor, tensileStiffnessFactorDef);
    v("damage", damage, false);
    v("unloadingDependencies", unloadingDependencies, 0);
    v("variable", variable, Stress);
    v("yieldValue", yieldValue, yieldValueDef);
    v("yieldOnset", yieldOnset, false);
    v("loading", loading);
    v("unloading", unloading, kmaC_MaterialTable());
    v("contactArea", contactArea, std::optional<kmaC_ContactArea>());
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

/// A material: one optional record per behaviour. The deck writes the
/// behaviours in its own fixed order, whatever order the file gives them in.
class kmaC_Material {
public:
  virtual ~kmaC_Material() = default;
  virtual kmaC_Material* Copy() const { return new kmaC_Material(*this); }
  static constexpr unsigned TypeId() { return keydeck::TypeIds::Material; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  virtual unsigned DynTypeId() const { return TypeId(); }

  template <class V> void Fields(V& v) {
    v("creep", creep, std::optional<kmaC_Creep>());
    v("deformationPlasticity", deformationPlasticity,
      std::optional<kmaC_DeformationPlasticity>());
    v("density", density, std::optional<kmaC_Density>());
    v("elastic", elastic, std::optional<kmaC_Elastic>());
    v("thicknessBehavior", thicknessBehavior, std::optional<kmaC_ThicknessBehavior>());
    v("transShearElastic", transShearElastic, std::optional<kmaC_TransShearElastic>());
    v("membraneElastic", membraneElastic, std::optional<kmaC_MembraneElastic>());
    v("gel", gel, std::optional<kmaC_Gel>());
    v("latentHeat", latentHeat, std::optional<kmaC_LatentHeat>());
    v("plastic", plastic, std::optional<kmaC_Plastic>());
    v("porousBulkModuli", porousBulkModuli, std::optional<kmaC_PorousBulkModuli>());
    v("regularization", regularization, std::optional<kmaC_Regularization>());
    v("solubility", solubility, std::optional<kmaC_Solubility>());
    v("specificHeat", specificHeat, std::optional<kmaC_SpecificHeat>());
    v("viscous", viscous, std::optional<kmaC_Viscous>());
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
