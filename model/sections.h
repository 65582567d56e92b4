#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/materials.h"
#include "model/records.h"
#include "model/regions.h"

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// One layer of rebar in a shell: its name, material, bar area and spacing
/// (a length, or an angle for angular spacing), its position in the
/// thickness, and its orientation: an angle to the first local direction,
/// or an orientation of its own by name.
class kseC_RebarLayer {
public:
  static constexpr const char* Description = "one layer of rebar in a shell";
  template <class V> void Fields(V& v) {
    v({"name", "the name of the layer"}, name);
    v({"material", "the name of the material of the bars"}, material);
    v({"area", "the cross-sectional area of one bar"}, area);
    v({"spacing", "the spacing of the bars, a length, with constant spacing"}, spacing, 0.0);
    v({"angularSpacing", "the angle between the bars, with angular spacing"}, angularSpacing, 0.0);
    v({"position", "the position of the layer in the thickness of the shell"}, position, 0.0);
    v({"angle", "the angle of the bars to the first local direction, in degrees"}, rebarOrientation,
      0.0);
    v({"orientation",
       "the name of an orientation of the layer's own; the shell's own directions when left out"},
      orientationName, cow_String());
  }

  double area = 0;
  keydeck::DeckName orientationName; ///< empty for the shell's own directions
  double rebarOrientation = 0;
  double spacing = 0;
  double position = 0;
  double angularSpacing = 0;
  keydeck::DeckName name;
  keydeck::DeckName material;
};

/// The rebar layers of a shell section and how their spacing is given.
class kseC_RebarLayers {
public:
  static constexpr const char* Description = "the rebar layers of a shell section";
  enum SpacingEnm : int { ConstantSpacing = 0, AngularSpacing = 1 };

  template <class V> void Fields(V& v) {
    v({"spacing", "whether the bars are spaced by a length (constant) or by an angle (angular)"},
      spacingKind, ConstantSpacing);
    v({"layers", "the layers of rebar"}, layers);
  }

  SpacingEnm spacingKind = ConstantSpacing;
  cow_List<kseC_RebarLayer> layers;
};

template <> struct keydeck::EnumTable<kseC_RebarLayers::SpacingEnm> {
  static constexpr std::string_view Noun = "rebar spacing";
  static constexpr EnumEntry<kseC_RebarLayers::SpacingEnm> Entries[] = {
      {kseC_RebarLayers::ConstantSpacing, "", "constant"},
      {kseC_RebarLayers::AngularSpacing, "angular spacing", "angular"},
  };
};
/// The kinds of section, by type id; the model file names them by word.
enum kseC_SectionTypeEnm : unsigned {
  kseC_HomogeneousSolidType = keydeck::TypeIds::HomogeneousSolidSection,
  kseC_CompositeSolidType = keydeck::TypeIds::CompositeSolidSection,
  kseC_HomogeneousShellType = keydeck::TypeIds::HomogeneousShellSection,
  kseC_CompositeShellType = keydeck::TypeIds::CompositeShellSection,
  kseC_UserShellType = keydeck::TypeIds::UserShellSection,
  kseC_BeamType = keydeck::TypeIds::BeamSection,
  kseC_TrussType = keydeck::TypeIds::TrussSection,
  kseC_MembraneType = keydeck::TypeIds::MembraneSection,
  kseC_GasketType = keydeck::TypeIds::GasketSection,
  kseC_PointType = keydeck::TypeIds::PointSection,
};

// Kinds have no deck text: the cards tell them by type id.
template <> struct keydeck::EnumTable<kseC_SectionTypeEnm> {
  static constexpr std::string_view Noun = "section type";
  static constexpr EnumEntry<kseC_SectionTypeEnm> Entries[] = {
      {kseC_HomogeneousSolidType, "", "homogeneousSolid"},
      {kseC_CompositeSolidType, "", "compositeSolid"},
      {kseC_HomogeneousShellType, "", "homogeneousShell"},
      {kseC_CompositeShellType, "", "compositeShell"},
      {kseC_UserShellType, "", "generalShell"},
      {kseC_BeamType, "", "beam"},
      {kseC_TrussType, "", "truss"},
      {kseC_MembraneType, "", "membrane"},
      {kseC_GasketType, "", "gasket"},
      {kseC_PointType, "", "point"},
  };
};

/// A section of the model, of the kind its type id says.
class kseC_Section {
public:
  virtual ~kseC_Section() = default;
  virtual kseC_Section* Copy() const = 0;
  virtual unsigned DynTypeId() const = 0;
  /// What is wrong with the record's data that its fields cannot say one by
  /// one, if anything: a composite section without layers, for one.
  virtual std::optional<keydeck::RecordFault> CheckData() const { return std::nullopt; }
  /// The names of the materials that the section uses, each with the path
  /// of its field below the section, so that the loader can check them.
  virtual void Materials(std::vector<std::pair<std::string, cow_String>>& out) const;

  template <class V> void Fields(V& v) {
    v({"type", "the kind of section, which decides its other fields"}, type);
  }

  kseC_SectionTypeEnm type = kseC_HomogeneousSolidType; ///< the kind, which is the class
};

namespace keydeck {

/// The common part of every section class: its kind, type id and copy.
template <class Record, kseC_SectionTypeEnm Type, class Base = kseC_Section>
class SectionKind : public Base {
public:
  static constexpr kseC_SectionTypeEnm Kind = Type;
  kseC_Section* Copy() const override { return new Record(static_cast<const Record&>(*this)); }
  static constexpr unsigned TypeId() { return Type; }
  static bool IsKindOf(unsigned id) { return id == Type; }
  unsigned DynTypeId() const override { return Type; }

protected:
  SectionKind() { this->type = Type; }
};

} // namespace keydeck

/// One layer of a composite section: its thickness, material, integration
/// points and orientation, an angle or an orientation by name.
class kseC_Layer {
public:
  static constexpr const char* Description = "one layer of a composite section";
  template <class V> void Fields(V& v) {
    v({"thickness", "the thickness of the layer"}, thickness);
    v({"material", "the name of the material of the layer"}, material);
    v({"integrationPoints", "the number of integration points through the layer"},
      numIntegrationPoints, 3);
    v({"angle", "the angle of the layer's directions to the section's, in degrees"},
      orientationAngle, 0.0);
    v({"orientation",
       "the name of an orientation of the deck for the layer (a shell layer writes it in "
       "place of the angle); none when left out"},
      orientationName, cow_String());
  }

  double thickness = 0;
  keydeck::DeckName orientationName; ///< empty for none
  double orientationAngle = 0;
  int numIntegrationPoints = 3;
  keydeck::DeckName material;
};

/// The fault of a composite section without layers.
std::optional<keydeck::RecordFault> LayersFault(const cow_List<kseC_Layer>& layers);

/// A solid section of one material; `thickness` is that of plane elements.
class kseC_HomogenousSolidSection
    : public keydeck::SectionKind<kseC_HomogenousSolidSection, kseC_HomogeneousSolidType> {
public:
  static constexpr const char* Description = "a solid section of one material";
  void Materials(std::vector<std::pair<std::string, cow_String>>& out) const override;
  template <class V> void Fields(V& v) {
    kseC_Section::Fields(v);
    v({"material", "the name of the material"}, material);
    v({"thickness", "the thickness of plane stress and plane strain elements"}, thickness, 1.0);
  }

  double thickness = 1;
  keydeck::DeckName material;
};

/// A solid section of layers; a symmetric one repeats its layers in reverse.
class kseC_CompositeSolidSection
    : public keydeck::SectionKind<kseC_CompositeSolidSection, kseC_CompositeSolidType> {
public:
  static constexpr const char* Description = "a solid section of layers";
  std::optional<keydeck::RecordFault> CheckData() const override { return LayersFault(layers); }
  void Materials(std::vector<std::pair<std::string, cow_String>>& out) const override;
  template <class V> void Fields(V& v) {
    kseC_Section::Fields(v);
    v({"layers", "the layers, at least one, from the bottom up"}, layers);
    v({"symmetric", "true to repeat the layers after the last one in reverse order"}, symmetric,
      false);
  }

  bool symmetric = false;
  cow_List<kseC_Layer> layers;
};

/// A truss section: the cross-sectional area and the material.
class kseC_TrussSection : public keydeck::SectionKind<kseC_TrussSection, kseC_TrussType> {
public:
  static constexpr const char* Description = "a truss section: its material and area";
  void Materials(std::vector<std::pair<std::string, cow_String>>& out) const override;
  template <class V> void Fields(V& v) {
    kseC_Section::Fields(v);
    v({"material", "the name of the material"}, material);
    v({"area", "the cross-sectional area"}, area, 1.0);
  }

  double area = 1;
  keydeck::DeckName material;
};

/// The transverse shear stiffness of a shell: K11, K12 and K22.
class kseC_TransverseShearShell {
public:
  static constexpr const char* Description =
      "the transverse shear stiffness of a shell: K11, K12, K22";
  template <class V> void Fields(V& v) {
    v({"k11", "the stiffness K11; that of K22 when 0"}, shear1, 0.0);
    v({"k22", "the stiffness K22; that of K11 when 0"}, shear2, 0.0);
    v({"k12", "the coupling stiffness K12"}, shear3, 0.0);
  }

  double shear1 = 0;
  double shear2 = 0;
  double shear3 = 0;
};

/// Where the enumeration of a shell's integration rule lives.
class kseC_GeometryShellSection {
public:
  enum IntegrationRuleEnm : int { DefaultRule = 0, Simpson = 1, Gauss = 2 };
};

template <> struct keydeck::EnumTable<kseC_GeometryShellSection::IntegrationRuleEnm> {
  static constexpr std::string_view Noun = "integration rule";
  static constexpr EnumEntry<kseC_GeometryShellSection::IntegrationRuleEnm> Entries[] = {
      {kseC_GeometryShellSection::DefaultRule, "", "default"},
      {kseC_GeometryShellSection::Simpson, "SIMPSON", "simpson"},
      {kseC_GeometryShellSection::Gauss, "GAUSS", "gauss"},
  };
};

/// What every shell section has: the general form (response integrated once,
/// before the analysis), Poisson's ratio of the thickness change, the
/// integration rule, how temperature varies through the thickness, the
/// thickness modulus, rebar and transverse shear stiffness.
class kseC_ShellSection : public kseC_Section {
public:
  /// How temperature is given through the thickness: a gradient, or values
  /// at `numTempPoints` points.
  enum TemperatureEnm : int { TemperatureGradient = 0, TemperaturePoints = 1 };

  static bool IsKindOf(unsigned id) {
    return id >= keydeck::TypeIds::HomogeneousShellSection &&
           id <= keydeck::TypeIds::UserShellSection;
  }
  static constexpr unsigned TypeId() { return keydeck::TypeIds::HomogeneousShellSection; }
  std::optional<keydeck::RecordFault> CheckData() const override;
  void Materials(std::vector<std::pair<std::string, cow_String>>& out) const override;
  int PoissonDefined() const { return poisson != keydeck::NotGivenDouble ? 1 : 0; }

  template <class V> void Fields(V& v) {
    kseC_Section::Fields(v);
    v({"general",
       "true for a general shell section: the response is integrated once, before the analysis"},
      general, false);
    v({"poisson", "the effective Poisson's ratio of the thickness change; the solver's own when "
                  "left out"},
      poisson, keydeck::NotGivenDouble);
    v({"integrationRule", "the integration rule through the thickness"}, integrationRule,
      kseC_GeometryShellSection::DefaultRule);
    v({"temperature", "how temperature varies through the thickness: a gradient, or values at "
                      "points"},
      temperatureKind, TemperatureGradient);
    v({"temperaturePoints", "the number of temperature points through the thickness, with "
                            "temperature at points"},
      numTempPoints, keydeck::Count{0});
    v({"thicknessModulus", "the elastic modulus through the thickness; none when left out"},
      thicknessModulus, keydeck::NotGivenDouble);
    v({"rebar", "rebar layers in the shell; none when left out"}, rebarLayers, std::nullopt);
    v({"transverseShear", "the transverse shear stiffness; the solver's own when left out"},
      transverseShear, std::nullopt);
  }

  bool symmetric = true; ///< false makes a general shell section unsymmetric
  bool general = false;
  double poisson = keydeck::NotGivenDouble;
  kseC_GeometryShellSection::IntegrationRuleEnm integrationRule =
      kseC_GeometryShellSection::DefaultRule;
  TemperatureEnm temperatureKind = TemperatureGradient;
  int numTempPoints = 0;
  double thicknessModulus = keydeck::NotGivenDouble;
  std::optional<kseC_RebarLayers> rebarLayers;
  std::optional<kseC_TransverseShearShell> transverseShear;
};

template <> struct keydeck::EnumTable<kseC_ShellSection::TemperatureEnm> {
  static constexpr std::string_view Noun = "temperature variation";
  static constexpr EnumEntry<kseC_ShellSection::TemperatureEnm> Entries[] = {
      {kseC_ShellSection::TemperatureGradient, "GRADIENT", "gradient"},
      {kseC_ShellSection::TemperaturePoints, "POINTS", "points"},
  };
};

/// A shell section of one material.
class kseC_HomogenousShellSection
    : public keydeck::SectionKind<kseC_HomogenousShellSection, kseC_HomogeneousShellType,
                                  kseC_ShellSection> {
public:
  static constexpr const char* Description = "a shell section of one material";
  void Materials(std::vector<std::pair<std::string, cow_String>>& out) const override;
  template <class V> void Fields(V& v) {
    kseC_ShellSection::Fields(v);
    v({"material", "the name of the material"}, material);
    v({"thickness", "the thickness of the shell"}, thickness);
    v({"integrationPoints", "the number of integration points through the thickness"},
      numIntegrationPoints, 5);
  }

  keydeck::DeckName material;
  double thickness = 0;
  int numIntegrationPoints = 5;
};

/// A shell section of layers.
class kseC_CompositeShellSection
    : public keydeck::SectionKind<kseC_CompositeShellSection, kseC_CompositeShellType,
                                  kseC_ShellSection> {
public:
  static constexpr const char* Description = "a shell section of layers";
  std::optional<keydeck::RecordFault> CheckData() const override;
  void Materials(std::vector<std::pair<std::string, cow_String>>& out) const override;
  template <class V> void Fields(V& v) {
    kseC_ShellSection::Fields(v);
    v({"layers", "the layers, at least one, from the bottom up"}, layers);
  }

  cow_List<kseC_Layer> layers;
};

/// A general shell section given by its stiffness. The deck cannot hold one
/// yet: writing a model that assigns it stops with an error.
class kseC_UserShellSection
    : public keydeck::SectionKind<kseC_UserShellSection, kseC_UserShellType, kseC_ShellSection> {
public:
  static constexpr const char* Description =
      "a shell section given by its stiffness; a deck that assigns it cannot be written yet";
  template <class V> void Fields(V& v) {
    kseC_Section::Fields(v);
    v({"symmetric", "false for an unsymmetric stiffness"}, symmetric, true);
  }
};

/// A membrane section: thickness, material and Poisson's ratio.
class kseC_MembraneSection : public keydeck::SectionKind<kseC_MembraneSection, kseC_MembraneType> {
public:
  static constexpr const char* Description = "a membrane section: its material and thickness";
  void Materials(std::vector<std::pair<std::string, cow_String>>& out) const override;
  int PoissonDefined() const { return poisson != keydeck::NotGivenDouble ? 1 : 0; }
  template <class V> void Fields(V& v) {
    kseC_Section::Fields(v);
    v({"material", "the name of the material"}, material);
    v({"thickness", "the thickness of the membrane"}, thickness, 1.0);
    v({"poisson", "the effective Poisson's ratio of the thickness change; the solver's own when "
                  "left out"},
      poisson, keydeck::NotGivenDouble);
  }

  double thickness = 1;
  double poisson = keydeck::NotGivenDouble;
  keydeck::DeckName material;
};

/// The added mass of a beam in a fluid: the values of the data line of
/// "*Beam Fluid Inertia", named by their meaning; `half` for a beam with
/// fluid on one side only.
class kseC_BeamFluidInertia {
public:
  static constexpr const char* Description = "the added mass of a beam immersed in a fluid";
  template <class V> void Fields(V& v) {
    v({"half", "true for a beam with fluid on one side only"}, half, false);
    v({"density", "the density of the fluid"}, values[0]);
    v({"diameter", "the outside diameter of the section; left blank when 0"}, values[4], 0.0);
    v({"center1", "the local 1-coordinate of the section's center; left blank when 0"}, values[5],
      0.0);
    v({"center2", "the local 2-coordinate of the section's center"}, values[1], 0.0);
    v({"transverseCoefficient", "the added mass coefficient of transverse motion"}, values[2], 1.0);
    v({"axialCoefficient", "the added mass coefficient of axial motion at the ends"}, values[3],
      0.0);
  }

  bool half = false;
  /// By position tag f0 to f5; the data line holds f0, f4, f5, f1, f2, f3.
  std::array<double, 6> values{0, 0, 1, 0, 0, 0};
};

/// A beam section: its profile by name and either a material, for a section
/// integrated during the analysis, or its general response given before it.
class kseC_BeamSection : public keydeck::SectionKind<kseC_BeamSection, kseC_BeamType> {
public:
  /// When the section's response is integrated.
  enum IntegrationEnm : int { BeforeAnalysis = 0, DuringAnalysis = 1 };
  /// How temperature varies over the section.
  enum TemperatureEnm : int { Gradients = 0, Values = 1 };

  static constexpr const char* Description =
      "a beam section: its profile and its material, or its general response";
  std::optional<keydeck::RecordFault> CheckData() const override;
  void Materials(std::vector<std::pair<std::string, cow_String>>& out) const override;
  bool hasFluidInertia() const { return fluidInertia.has_value(); }

  template <class V> void Fields(V& v) {
    kseC_Section::Fields(v);
    v({"profile", "the name of the beam profile of the section"}, profileName);
    v({"integration", "during the analysis, from the material (a beam section), or before it, "
                      "from the general response (a beam general section)"},
      integration, DuringAnalysis);
    v({"material",
       "the name of the material; required for integration during the analysis, unused before"},
      material, cow_String());
    v({"poisson", "the effective Poisson's ratio of the section; the solver's own when left out"},
      poisson, keydeck::NotGivenDouble);
    v({"temperature", "how temperature varies over the section"}, temperatureVariation, Gradients);
    v({"density", "the density of a general section; none when left out"}, density,
      keydeck::NotGivenDouble);
    v({"zero", "the temperature of zero thermal expansion of a general section"}, zero,
      keydeck::NotGivenDouble);
    v({"dependencies", "the field variables of a general section's response table"}, dependencies,
      keydeck::Count{0});
    v({"response", "a general section's response rows: Young's modulus, shear modulus, thermal "
                   "expansion, temperature, field variables"},
      behaviorTable, kmaC_MaterialTable());
    v({"expansionColumn", "false when the response rows give no thermal expansion: the deck "
                          "leaves its column blank"},
      behaviorFlag1, true);
    v({"temperatureColumn", "false when the response rows give no temperature: the deck leaves "
                            "its column blank"},
      behaviorFlag2, true);
    v({"alpha", "the factor of mass-proportional damping of a general section"}, alpha, 0.0);
    v({"beta", "the factor of stiffness-proportional damping of a general section"}, beta, 0.0);
    v({"composite", "the fraction of critical damping of a general section"}, composite, 0.0);
    v({"centroid", "the centroid of a general section, in the section's axes"}, centroid,
      std::array<double, 2>{0, 0});
    v({"shearCenter", "the shear center of a general section, in the section's axes"}, shearCenter,
      std::array<double, 2>{0, 0});
    v({"sectionPoints", "points of a general section for output, one row of two coordinates each"},
      sectionPoints, kmaC_MaterialTable());
    v({"fluidInertia", "the added mass of the beam in a fluid; none when left out"}, fluidInertia,
      std::nullopt);
  }

  IntegrationEnm integration = DuringAnalysis;
  double poisson = keydeck::NotGivenDouble;
  int dependencies = 0;
  double density = keydeck::NotGivenDouble;
  double zero = keydeck::NotGivenDouble;
  TemperatureEnm temperatureVariation = Gradients;
  double alpha = 0, beta = 0, composite = 0; ///< damping
  std::optional<kseC_BeamFluidInertia> fluidInertia;
  keydeck::DeckName material;
  keydeck::DeckName profileName;
  kmaC_MaterialTable behaviorTable;
  bool behaviorFlag1 = true; ///< the response rows give thermal expansion
  bool behaviorFlag2 = true; ///< the response rows give temperature
  kmaC_MaterialTable sectionPoints;
  std::array<double, 2> centroid{0, 0};
  std::array<double, 2> shearCenter{0, 0};
};

template <> struct keydeck::EnumTable<kseC_BeamSection::IntegrationEnm> {
  static constexpr std::string_view Noun = "beam integration";
  static constexpr EnumEntry<kseC_BeamSection::IntegrationEnm> Entries[] = {
      {kseC_BeamSection::BeforeAnalysis, "", "beforeAnalysis"},
      {kseC_BeamSection::DuringAnalysis, "", "duringAnalysis"},
  };
};

template <> struct keydeck::EnumTable<kseC_BeamSection::TemperatureEnm> {
  static constexpr std::string_view Noun = "beam temperature variation";
  static constexpr EnumEntry<kseC_BeamSection::TemperatureEnm> Entries[] = {
      {kseC_BeamSection::Gradients, "GRADIENTS", "gradients"},
      {kseC_BeamSection::Values, "VALUES", "values"},
  };
};

/// A gasket section: its material (a "*Gasket behavior" when the material
/// has gasket options) and the four values of its data line.
class kseC_GasketSection : public keydeck::SectionKind<kseC_GasketSection, kseC_GasketType> {
public:
  static constexpr const char* Description =
      "a gasket section: its material and the values of its data line";
  void Materials(std::vector<std::pair<std::string, cow_String>>& out) const override;

  template <class V> void Fields(V& v) {
    kseC_Section::Fields(v);
    v({"material", "the name of the material of the gasket; none when left out"}, material,
      cow_String());
    v({"initialThickness", "the initial thickness; from the nodes when left out"}, gasketValue2,
      keydeck::NotGivenDouble);
    v({"initialGap", "the initial gap"}, gasketValue1, 0.0);
    v({"initialVoid", "the initial void"}, gasketValue3, 0.0);
    v({"crossSection", "the cross-sectional area of a link element"}, gasketValue0, 1.0);
    v({"stabilizationStiffness", "the stabilization stiffness; the solver's own when left out"},
      stabilizationStiffness, keydeck::NotGivenDouble);
  }

  keydeck::DeckName material; ///< empty when not set
  // The data line holds them in the order 2, 1, 3, 0.
  double gasketValue0 = 1;                       ///< cross-sectional area of a link element
  double gasketValue1 = 0;                       ///< initial gap
  double gasketValue2 = keydeck::NotGivenDouble; ///< initial thickness; not given: from the nodes
  double gasketValue3 = 0;                       ///< initial void
  double stabilizationStiffness = keydeck::NotGivenDouble;
};

/// The mass and rotary inertia of a point section. The inertia is the upper
/// triangle of the tensor by rows: r0 = I11, r1 = I12, r2 = I13, r3 = I22,
/// r4 = I23, r5 = I33.
class kseC_PointSection : public keydeck::SectionKind<kseC_PointSection, kseC_PointType> {
public:
  static constexpr const char* Description =
      "a point section: the mass and rotary inertia of a point";

  template <class V> void Fields(V& v) {
    kseC_Section::Fields(v);
    v({"mass", "the mass"}, mass, 0.0);
    v({"alpha", "the factor of mass-proportional damping"}, alpha, 0.0);
    v({"composite", "the fraction of critical damping for composite damping"}, composite, 0.0);
    v({"i11", "the rotary inertia I11 about the local axes"}, r0, 0.0);
    v({"i12", "the rotary inertia I12 about the local axes"}, r1, 0.0);
    v({"i13", "the rotary inertia I13 about the local axes"}, r2, 0.0);
    v({"i22", "the rotary inertia I22 about the local axes"}, r3, 0.0);
    v({"i23", "the rotary inertia I23 about the local axes"}, r4, 0.0);
    v({"i33", "the rotary inertia I33 about the local axes"}, r5, 0.0);
  }

  double mass = 0;
  double alpha = 0;     ///< mass-proportional damping
  double composite = 0; ///< composite damping
  double r0 = 0, r1 = 0, r2 = 0, r3 = 0, r4 = 0, r5 = 0;
};

/// A point mass and inertia of the engineering features: the mass and the
/// inertia in the deck's order i11, i22, i33, i12, i13, i23.
class kefC_PointMassInertia {
public:
  static constexpr const char* Description = "a point mass and its rotary inertia";
  template <class V> void Fields(V& v) {
    v({"mass", "the mass"}, mass, 0.0);
    v({"alpha", "the factor of mass-proportional damping"}, alpha, 0.0);
    v({"composite", "the fraction of critical damping for composite damping"}, composite, 0.0);
    v({"i11", "the rotary inertia I11 about the local axes"}, i11, 0.0);
    v({"i22", "the rotary inertia I22 about the local axes"}, i22, 0.0);
    v({"i33", "the rotary inertia I33 about the local axes"}, i33, 0.0);
    v({"i12", "the rotary inertia I12 about the local axes"}, i12, 0.0);
    v({"i13", "the rotary inertia I13 about the local axes"}, i13, 0.0);
    v({"i23", "the rotary inertia I23 about the local axes"}, i23, 0.0);
  }

  double mass = 0;
  double alpha = 0;
  double composite = 0;
  double i11 = 0, i22 = 0, i33 = 0, i12 = 0, i13 = 0, i23 = 0;
};

namespace keydeck {

/// The section classes a model file can use.
template <> struct RecordKinds<kseC_Section> {
  static constexpr std::string_view Field = "type";
  using Types =
      KindList<kseC_HomogenousSolidSection, kseC_CompositeSolidSection, kseC_HomogenousShellSection,
               kseC_CompositeShellSection, kseC_UserShellSection, kseC_MembraneSection,
               kseC_TrussSection, kseC_BeamSection, kseC_GasketSection, kseC_PointSection>;
};

} // namespace keydeck

/// The assignment of a section to an element set of a part, with the offset
/// of a shell's reference surface.
class ptoC_SectionAssignment {
public:
  static constexpr const char* Description = "the section of the elements of an element set";
  const rgnC_Region& region() const { return region_; }
  const cow_String& sectionName() const { return sectionName_; }
  double offset() const { return offset_; }

  template <class V> void Fields(V& v) {
    v({"region", "the name of an element set of the part"}, regionName_);
    v({"section", "the name of the section"}, sectionName_);
    v({"offset", "the offset of a shell's reference surface from its middle, as a fraction of "
                 "the thickness"},
      offset_, 0.0);
  }

  cow_String regionName_; ///< an element set of the part
  keydeck::DeckName sectionName_;
  double offset_ = 0;
  rgnC_Region region_; ///< derived after loading, in an instance's mesh
};

/// The section assignments of a part or of an instance, in the part's order.
using ptoC_PartAttributeList = cow_List<ptoC_SectionAssignment>;
