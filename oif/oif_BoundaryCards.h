#pragma once

#include "base/cow_String.h"
#include "model/boundary_conditions.h"

#include <array>

class utl_Stream;

// What the "*Boundary" and "*Connector Motion" cards share: the keyword line
// and its parameters, the rule of a data line, and which cards a condition
// writes in a step (one, one per load case of a buckle step, or a real and
// an imaginary card).
namespace keydeck {

/// The load cases of the cards of a condition in one step, in order; load
/// case 0 is a plain card. With `imaginarySecond`, the second card holds
/// the imaginary parts.
struct CardPlan {
  int loadCases[2] = {0, 0};
  int count = 0;
  bool imaginarySecond = false;
};

/// The cards of a condition set in a step of `procedure`: a real and an
/// imaginary card where `complex` holds; one plain card outside a buckle
/// step; in a buckle step, by `buckleLoadCase`: 0 or 3 a card for each of
/// the two load cases, 1 or 2 the card of that one, anything else none.
CardPlan PlanCards(unsigned procedure, int buckleLoadCase, bool complex);

/// The state of each degree of freedom in a step.
using DofStates = std::array<mdl_PropAttributeStateEnm, kbcC_DofState::Dofs>;
DofStates StatesOf(const kbcC_DofState& state);
/// With an imaginary part, a degree of freedom counts as set when either
/// part is set in the step, as inherited when either is inherited.
DofStates StatesOf(const kbcC_ComplexDofState& state);

/// What a condition's card takes from its state in `step`: whether it is
/// deactivated there, its amplitude, and whether the card writes only what
/// the step sets (`modifiedOnly`, which starts as the card's in-place flag).
/// A changed amplitude applies to every value, so all are written again.
void TakeConditionState(const kbcC_BC& bc, const cow_String& step, bool& deactivate,
                        bool& modifiedOnly, cow_String& amplitude);

/// The writer of one condition's cards in one step.
struct BoundaryCardWriter {
  const char* keyword;  ///< "*Boundary" or "*Connector Motion"
  bool opNew;           ///< the card restarts its class
  cow_String amplitude; ///< empty for none
  cow_String baseName;  ///< the "base name=" of a renamed condition; empty for none
  cow_String setName;
  double factor;     ///< the load case's scale on every value
  bool modifiedOnly; ///< write only what this step sets

  /// The keyword line: op=NEW, amplitude, load case (1 or 2), fixed, user
  /// distribution and base name as given; the line stays open unless
  /// `lineBreak`.
  void WriteHead(utl_Stream& s, int distribution, bool fixed, int loadCase, bool lineBreak) const;
  /// One data line: the set name, `dofText`, and the value times the factor
  /// unless `fixed` or zero.
  void WriteData(utl_Stream& s, const char* dofText, double value, bool fixed) const;
  /// The lines of the degrees of freedom whose state passes, from `values`.
  void WriteDofLines(utl_Stream& s, const mdl_PropAttr<double> (&values)[kbcC_DofState::Dofs],
                     const DofStates& states, const char* const (&dofTexts)[kbcC_DofState::Dofs],
                     bool fixed) const;
  /// The cards of a displacement: one card per entry of `plan`, each with
  /// the lines of the degrees of freedom whose state passes.
  void WriteDisplacement(utl_Stream& s, const kbcC_DisplacementState& state, const CardPlan& plan,
                         const char* const (&dofTexts)[kbcC_DofState::Dofs], int distribution,
                         bool fixed) const;
  /// A velocity or acceleration card: "type=" and `typeWord` on the keyword
  /// line, load case 1 in a step of complex or buckle values.
  void WriteMotion(utl_Stream& s, const kbcC_DofState& state, const char* typeWord,
                   bool complexOrBuckle, const char* const (&dofTexts)[kbcC_DofState::Dofs]) const;
};

} // namespace keydeck
