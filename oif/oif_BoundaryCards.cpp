#include "oif/oif_BoundaryCards.h"

#include "base/utl_Stream.h"
#include "model/steps.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_Utils.h"
#include "qkw/qkw_QuorvexName.h"

namespace keydeck {

CardPlan PlanCards(unsigned procedure, int buckleLoadCase, bool complex) {
  if (complex)
    return {{1, 2}, 2, true};
  if (procedure != kprC_Buckle)
    return {{0, 0}, 1, false};
  switch (buckleLoadCase) {
  case 0:
  case 3:
    return {{1, 2}, 2, false};
  case 1:
  case 2:
    return {{buckleLoadCase, 0}, 1, false};
  default:
    return {};
  }
}

void TakeConditionState(const kbcC_BC& bc, const cow_String& step, bool& deactivate,
                        bool& modifiedOnly, cow_String& amplitude) {
  oif_Utils::SetDeactivateOpFlags(bc.Status(step), deactivate, modifiedOnly);
  if (deactivate)
    return;
  const mdl_PropAttr<DeckName>& given = bc.BCState(step).amplitude;
  amplitude = given.ConstGet();
  if (oif_Utils::CheckDataState(given.State(), modifiedOnly) ||
      given.State() == mdl_AttributeModified)
    modifiedOnly = false;
}

void BoundaryCardWriter::WriteHead(utl_Stream& s, int distribution, bool fixed, int loadCase,
                                   bool lineBreak) const {
  s << keyword;
  if (opNew)
    s << ", op=NEW";
  if (!amplitude.Empty())
    s << ", amplitude=" << qkw_QuorvexName(amplitude, false);
  if (loadCase == 1 || loadCase == 2)
    WriteParameter(s, "load case=", loadCase);
  WriteFlag(s, "fixed", fixed);
  WriteFlag(s, "user", distribution == kbcC_BC::UserDefined);
  if (!baseName.Empty())
    s << ", base name=" << qkw_QuorvexName(baseName, false);
  if (lineBreak)
    s.LineBreak();
}

void BoundaryCardWriter::WriteData(utl_Stream& s, const char* dofText, double value,
                                   bool fixed) const {
  s << setName << dofText;
  const double scaled = value * factor;
  if (!fixed && scaled != 0)
    s << ", " << scaled;
  s.LineBreak();
}

void BoundaryCardWriter::WriteDofLines(utl_Stream& s,
                                       const mdl_PropAttr<double> (&values)[kbcC_DofState::Dofs],
                                       const DofStates& states,
                                       const char* const (&dofTexts)[kbcC_DofState::Dofs],
                                       bool fixed) const {
  for (int i = 0; i < kbcC_DofState::Dofs; ++i)
    if (oif_Utils::CheckDataState(states[i], modifiedOnly))
      WriteData(s, dofTexts[i], values[i].ConstGet(), fixed);
}

void BoundaryCardWriter::WriteDisplacement(utl_Stream& s, const kbcC_DisplacementState& state,
                                           const CardPlan& plan,
                                           const char* const (&dofTexts)[kbcC_DofState::Dofs],
                                           int distribution, bool fixed) const {
  const DofStates states = StatesOf(state);
  for (int card = 0; card < plan.count; ++card) {
    WriteHead(s, distribution, fixed, plan.loadCases[card], /*lineBreak=*/true);
    const bool imaginary = plan.imaginarySecond && card == 1;
    WriteDofLines(s, imaginary ? state.imaginary : state.real, states, dofTexts, fixed);
  }
}

void BoundaryCardWriter::WriteMotion(utl_Stream& s, const kbcC_DofState& state,
                                     const char* typeWord, bool complexOrBuckle,
                                     const char* const (&dofTexts)[kbcC_DofState::Dofs]) const {
  WriteHead(s, kbcC_BC::Uniform, false, complexOrBuckle ? 1 : 0, /*lineBreak=*/false);
  WriteParameter(s, "type=", typeWord);
  s.LineBreak();
  WriteDofLines(s, state.real, StatesOf(state), dofTexts, false);
}

DofStates StatesOf(const kbcC_DofState& state) {
  DofStates states;
  for (int i = 0; i < kbcC_DofState::Dofs; ++i)
    states[i] = state.Real(i).State();
  return states;
}

DofStates StatesOf(const kbcC_ComplexDofState& state) {
  DofStates states;
  for (int i = 0; i < kbcC_DofState::Dofs; ++i) {
    const mdl_PropAttr<double>& real = state.Real(i);
    const mdl_PropAttr<double>& imaginary = state.Imag(i);
    if (real.IsModified() || imaginary.IsModified())
      states[i] = mdl_AttributeSet;
    else
      states[i] =
          real.IsActive() || imaginary.IsActive() ? mdl_AttributePropagated : mdl_AttributeUnset;
  }
  return states;
}

} // namespace keydeck
