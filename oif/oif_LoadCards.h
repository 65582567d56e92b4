#pragma once

#include "base/cow_String.h"
#include "model/loads.h"

#include <array>
#include <cstddef>

class utl_Stream;

// What the load cards share: the state of a load in a step as every card
// reads it, the parameters of their keyword lines, the data line of one
// labelled value, the two passes of a complex load, and the two forms of the
// flux, flow, charge and current cards.
namespace keydeck {

using LoadHandle = kprC_PropagatingContainer<kloC_Load>::Handle;

/// A load in one step as its card reads it.
struct LoadCardState {
  /// Reads the status of `load` in `step`: a deactivated load reads nothing
  /// more. Otherwise its amplitude; a step that sets the amplitude (or a card
  /// that rewrites everything, `opMod` false) writes every value, else only
  /// the values that the step sets.
  LoadCardState(const LoadHandle& load, const cow_String& step, bool opMod,
                const cow_String& setName, double scale);

  /// True when a value of attribute state `state` goes into the card.
  bool Writes(mdl_PropAttributeStateEnm state) const;

  LoadHandle load;
  cow_String step;
  cow_String setName;
  cow_String amplitude;
  mdl_PropagationStatusEnm status = PropNotInForce;
  bool opNew = false;
  double scale = 1.0;
  bool deactivate = false;
  bool modifiedOnly = false;
};

/// ", op=NEW" when the card restarts its class.
void WriteOpNew(utl_Stream& s, const LoadCardState& card);
/// ", amplitude=" and the name, quoted as needed; nothing without one.
void WriteAmplitude(utl_Stream& s, const LoadCardState& card);
/// ", load case=" and `loadCase` when it is 1 or 2.
void WriteLoadCase(utl_Stream& s, int loadCase);

/// The line "SET, LABEL, VALUE" with the value times the card's scale; none
/// when that is 0 unless `forceZero`. The line is left open unless
/// `lineBreak`.
void WriteBaseData(utl_Stream& s, const LoadCardState& card, const cow_String& label, double value,
                   bool lineBreak, bool forceZero);

/// A value of a complex load: its real and its imaginary part.
struct ComplexValue {
  double real = 0;
  double imag = 0;
};

/// The two passes of a complex load: `write(1, reals)` then
/// `write(2, imaginaries)`, each left out when all its values are 0.
template <std::size_t N, class F>
void ForEachComplexPass(const std::array<ComplexValue, N>& values, F&& write) {
  for (int pass = 1; pass <= 2; ++pass) {
    std::array<double, N> parts{};
    bool any = false;
    for (std::size_t i = 0; i < N; ++i) {
      parts[i] = pass == 1 ? values[i].real : values[i].imag;
      any = any || parts[i] != 0;
    }
    if (any)
      write(pass, parts);
  }
}

/// The two passes of a complex load of one value: `write(pass, part)`.
template <class F> void ForEachComplexPass(const kloC_MagnitudeState& state, F&& write) {
  const std::array<ComplexValue, 1> values{
      ComplexValue{state.magnitude.ConstGet(), state.imaginary.ConstGet()}};
  ForEachComplexPass(values,
                     [&](int pass, const std::array<double, 1>& parts) { write(pass, parts[0]); });
}

/// The state of a load of one value, whatever its kind.
const kloC_MagnitudeState& MagnitudeStateOf(const kloC_Load& load, const cow_String& step);
/// The state of a load of three components, whatever its kind.
const kloC_VectorState& VectorStateOf(const kloC_Load& load, const cow_String& step);
/// The distribution of a load; uniform for a kind without one.
kloC_DistributionEnm DistributionOf(const kloC_Load& load);

/// The flux and flow form: the keyword line (", op=NEW", then the amplitude
/// after a point where the line may break), and unless deactivated the line
/// "SET" + `label` + "VALUE", where the label holds its own separators.
void WriteFluxForm(utl_Stream& s, const char* keyword, const LoadCardState& card,
                   const cow_String& label);

/// The charge and current form: the card of load case 1, the value line
/// "SET" + `label` + "VALUE" when the value is to be written and is not 0,
/// then for a complex load the card of load case 2 with the imaginary part.
/// A deactivated load writes its keyword line alone.
void WriteChargeForm(utl_Stream& s, const char* keyword, const LoadCardState& card,
                     const char* label);

} // namespace keydeck

namespace keydeck {

/// The keyword line of a concentrated load card: `keyword`, ", op=NEW",
/// ", follower" when `follower`, the amplitude and the load case.
void WriteConcentratedCard(utl_Stream& s, const char* keyword, const LoadCardState& card,
                           int loadCase, bool follower);

/// A load of three components on DOF `dofs`: one card with a line for each
/// component that the step writes, or for a complex load one card per
/// non-zero pass with a line for each non-zero component.
void WriteVectorLoad(utl_Stream& s, const char* keyword, const LoadCardState& card, bool follower,
                     const std::array<const char*, 3>& dofs);

/// The values of a vector state as complex values.
std::array<ComplexValue, 3> ComplexValues(const kloC_VectorState& state);

} // namespace keydeck
