#pragma once

#include "model/records.h"

/// The element controls of an element class: hourglass control and
/// stiffness, kinematic split, distortion control and the scale factors of a
/// "*Section Controls" and a "*Hourglass Stiffness" card. Every setting has
/// the solver's default as its own default, and the file leaves a setting
/// out when it is at its default.
///
/// Which settings count for a solver library, decided here: the implicit
/// solver's library (1) reads the hourglass control, the three hourglass
/// scale factors and the hourglass stiffness; the explicit solver's library
/// (2) reads every setting but the hourglass stiffness, whose card only an
/// implicit job gets; library 0 (a job for both solvers) reads them all.
/// `HasDefaultSectionControls` and `IsDefault` ask only about the settings
/// that the library reads, so settings that a solver ignores make no card
/// and no controls name.
class bme_ElemCtrlParams {
public:
  static constexpr const char* Description =
      "the element controls of an element class; each setting defaults to the solver's own";
  enum KinematicSplitEnm : int { AverageStrain = 1, Orthogonal = 2, Centroid = 3 };
  enum HourglassEnm : int {
    DefaultHourglass = 0,
    RelaxStiffness = 1,
    Stiffness = 2,
    Viscous = 3,
    Combined = 4,
    Enhanced = 5,
  };
  enum StressRateEnm : int { Jaumann = 1, Spin = 2 };
  enum SwitchEnm : int { DefaultSwitch = 0, Yes = 1, No = 2 };

  /// Two values of a real setting that differ by no more than this count as
  /// equal where the cards leave a setting at its default out.
  static constexpr double Tolerance = 1e-6;
  static constexpr double DefaultWeightFactor = 0.5;
  static constexpr double DefaultLengthRatio = 0.1;

  /// True when every "*Section Controls" setting that `library` reads is at
  /// its default.
  bool HasDefaultSectionControls(int library) const;
  /// True when, besides, the hourglass stiffness is at its default where
  /// `library` reads it: these controls need neither card nor name.
  bool IsDefault(int library) const;
  friend bool operator==(const bme_ElemCtrlParams&, const bme_ElemCtrlParams&) = default;

  template <class V> void Fields(V& v) {
    v({"hourglassStiffness1",
       "the hourglass stiffness of the displacement degrees of freedom; 0: the solver computes it"},
      hourglassStiffness1, 0.0);
    v({"hourglassStiffness2",
       "the hourglass stiffness of the rotational degrees of freedom; 0: the solver computes it"},
      hourglassStiffness2, 0.0);
    v({"hourglassStiffness3",
       "the hourglass stiffness of out-of-plane displacement; 0: the solver computes it"},
      hourglassStiffness3, 0.0);
    v({"kinematicSplit", "the kinematic split of the element formulation"}, kinematicSplit,
      AverageStrain);
    v({"hourglass", "the method of hourglass control"}, hourglass, DefaultHourglass);
    v({"weightFactor", "the weight factor of combined hourglass control"}, weightFactor,
      DefaultWeightFactor);
    v({"stressRate", "the objective stress rate"}, stressRate, Jaumann);
    v({"secondOrderAccuracy", "second-order accuracy of the element formulation"},
      secondOrderAccuracy, DefaultSwitch);
    v({"displacementHourglassScale",
       "the scale factor of the hourglass stiffness of the displacement degrees of freedom"},
      scale1, 1.0);
    v({"rotationalHourglassScale",
       "the scale factor of the hourglass stiffness of the rotational degrees of freedom"},
      scale2, 1.0);
    v({"outOfPlaneHourglassScale",
       "the scale factor of the hourglass stiffness of out-of-plane displacement"},
      scale3, 1.0);
    v({"distortionControl", "distortion control, which keeps elements from inverting"},
      distortionControl, DefaultSwitch);
    v({"lengthRatio", "the length ratio of distortion control"}, lengthRatio, DefaultLengthRatio);
    v({"linearBulkViscosityScale", "the scale factor of the linear bulk viscosity"}, scale4, 1.0);
    v({"quadraticBulkViscosityScale", "the scale factor of the quadratic bulk viscosity"}, scale5,
      1.0);
  }

  /// The library whose settings these are: 1 the implicit solver's, 2 the
  /// explicit solver's. Not in the file: it follows from the job.
  int library = 1;
  double hourglassStiffness1 = 0; ///< 0: the solver computes it
  double hourglassStiffness2 = 0;
  double hourglassStiffness3 = 0;
  KinematicSplitEnm kinematicSplit = AverageStrain;
  HourglassEnm hourglass = DefaultHourglass;
  double weightFactor = DefaultWeightFactor; ///< of the combined hourglass control
  StressRateEnm stressRate = Jaumann;
  SwitchEnm secondOrderAccuracy = DefaultSwitch;
  double scale1 = 1; ///< hourglass scale factors: displacement, rotation, out of plane
  double scale2 = 1;
  double scale3 = 1;
  SwitchEnm distortionControl = DefaultSwitch;
  double lengthRatio = DefaultLengthRatio;
  double scale4 = 1; ///< bulk viscosity scale factors: linear, quadratic
  double scale5 = 1;
};

/// `operator!=` of the element-control search: any setting differs.
inline bool operator!=(const bme_ElemCtrlParams& a, const bme_ElemCtrlParams& b) {
  return !(a == b);
}

template <> struct keydeck::EnumTable<bme_ElemCtrlParams::KinematicSplitEnm> {
  static constexpr std::string_view Noun = "kinematic split";
  static constexpr EnumEntry<bme_ElemCtrlParams::KinematicSplitEnm> Entries[] = {
      {bme_ElemCtrlParams::AverageStrain, "AVERAGE STRAIN", "averageStrain"},
      {bme_ElemCtrlParams::Orthogonal, "ORTHOGONAL", "orthogonal"},
      {bme_ElemCtrlParams::Centroid, "CENTROID", "centroid"},
  };
};

template <> struct keydeck::EnumTable<bme_ElemCtrlParams::HourglassEnm> {
  static constexpr std::string_view Noun = "hourglass control";
  static constexpr EnumEntry<bme_ElemCtrlParams::HourglassEnm> Entries[] = {
      {bme_ElemCtrlParams::DefaultHourglass, "", "default"},
      {bme_ElemCtrlParams::RelaxStiffness, "RELAX STIFFNESS", "relaxStiffness"},
      {bme_ElemCtrlParams::Stiffness, "STIFFNESS", "stiffness"},
      {bme_ElemCtrlParams::Viscous, "VISCOUS", "viscous"},
      {bme_ElemCtrlParams::Combined, "COMBINED", "combined"},
      {bme_ElemCtrlParams::Enhanced, "ENHANCED", "enhanced"},
  };
};

template <> struct keydeck::EnumTable<bme_ElemCtrlParams::StressRateEnm> {
  static constexpr std::string_view Noun = "stress rate";
  static constexpr EnumEntry<bme_ElemCtrlParams::StressRateEnm> Entries[] = {
      {bme_ElemCtrlParams::Jaumann, "JAUMANN", "jaumann"},
      {bme_ElemCtrlParams::Spin, "SPIN", "spin"},
  };
};

template <> struct keydeck::EnumTable<bme_ElemCtrlParams::SwitchEnm> {
  static constexpr std::string_view Noun = "switch";
  static constexpr EnumEntry<bme_ElemCtrlParams::SwitchEnm> Entries[] = {
      {bme_ElemCtrlParams::DefaultSwitch, "", "default"},
      {bme_ElemCtrlParams::Yes, "YES", "yes"},
      {bme_ElemCtrlParams::No, "NO", "no"},
  };
};
