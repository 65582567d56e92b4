#pragma once

#include "model/records.h"
#include "model/regions.h"

/// How an explicit step scales mass: once at its start ("fixed"), through the
/// step ("variable"), back to the unscaled mass ("reinitialize"), or not at
/// all in this step ("disable").
enum kprC_MassScalingFormEnm : int {
  kprC_FixedSemiAutomatic = 0,
  kprC_VariableSemiAutomatic = 1,
  kprC_ReinitializeMass = 2,
  kprC_DisableMassScaling = 3,
};

namespace keydeck {

template <> struct EnumTable<kprC_MassScalingFormEnm> {
  static constexpr std::string_view Noun = "mass scaling";
  static constexpr EnumEntry<kprC_MassScalingFormEnm> Entries[] = {
      {kprC_FixedSemiAutomatic, "", "fixed"},
      {kprC_VariableSemiAutomatic, "", "variable"},
      {kprC_ReinitializeMass, "", "reinitialize"},
      {kprC_DisableMassScaling, "", "disable"}};
};

} // namespace keydeck

/// One mass scaling of an explicit step, over a region or the whole model.
struct kprC_MassScaling {
  static constexpr const char* Description = "a mass scaling of the step";
  /// Which elements a target increment scales: all of them to it, those
  /// below it, or those below it up to it.
  enum MassScalingTypeEnm : int { Uniform = 0, BelowMin = 1, SetEqualDt = 2 };

  kprC_MassScalingFormEnm form = kprC_FixedSemiAutomatic;
  keydeck::DeckName regionName; ///< empty for the whole model
  double targetTimeIncrement = 0;
  MassScalingTypeEnm scalingType = BelowMin;
  double factor = 0;
  int frequency = keydeck::NotGivenInt;
  int numberInterval = keydeck::NotGivenInt;
  rgnC_Region region; ///< derived after loading from `regionName`

  template <class V> void Fields(V& v) {
    v({"kind", "fixed (at the start of the step), variable (through the step), reinitialize "
               "or disable"},
      form, kprC_FixedSemiAutomatic);
    v({"region", "the element set scaled, by region name; the whole model when left out"},
      regionName, keydeck::DeckName());
    v({"targetTimeIncrement", "the stable time increment aimed at; 0 for none"},
      targetTimeIncrement, 0.0);
    v({"type", "which elements the target scales: uniform, belowMin or setEqualDt"}, scalingType,
      BelowMin);
    v({"factor", "the factor on the mass; 0 for none"}, factor, 0.0);
    v({"every", "the increments between scalings; none when left out"}, frequency,
      keydeck::NotGivenInt);
    v({"intervals", "the number of evenly spaced scalings (fixed only); none when left out"},
      numberInterval, keydeck::NotGivenInt);
  }

  /// True when the mass is scaled through the step, by "*Variable Mass Scaling".
  bool IsVariable() const {
    return form == kprC_VariableSemiAutomatic || form == kprC_DisableMassScaling;
  }
  /// True when the scaling is repeated by increments or intervals.
  bool Repeats() const {
    return frequency != keydeck::NotGivenInt || numberInterval != keydeck::NotGivenInt;
  }
};

namespace keydeck {

template <> struct EnumTable<kprC_MassScaling::MassScalingTypeEnm> {
  static constexpr std::string_view Noun = "mass scaling type";
  static constexpr EnumEntry<kprC_MassScaling::MassScalingTypeEnm> Entries[] = {
      {kprC_MassScaling::Uniform, "uniform", "uniform"},
      {kprC_MassScaling::BelowMin, "below min", "belowMin"},
      {kprC_MassScaling::SetEqualDt, "set equal dt", "setEqualDt"}};
};

} // namespace keydeck
