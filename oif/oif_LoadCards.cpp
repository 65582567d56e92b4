#include "oif/oif_LoadCards.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_Utils.h"
#include "qkw/qkw_QuorvexName.h"

#include <cassert>

namespace keydeck {

LoadCardState::LoadCardState(const LoadHandle& load_, const cow_String& step_, bool opMod,
                             const cow_String& setName_, double scale_)
    : load(load_), step(step_), setName(setName_), status(load_->Status(step_)), opNew(!opMod),
      scale(scale_), modifiedOnly(opMod) {
  oif_Utils::SetDeactivateOpFlags(status, deactivate, modifiedOnly);
  if (deactivate)
    return;
  const mdl_PropAttr<DeckName> amplitudeAttribute = AmplitudeOf(*load, step);
  amplitude = amplitudeAttribute.ConstGet();
  // A new amplitude applies to every value, so all are written again.
  if (oif_Utils::CheckDataState(amplitudeAttribute.State(), modifiedOnly) ||
      amplitudeAttribute.State() == mdl_AttributeModified)
    modifiedOnly = false;
}

bool LoadCardState::Writes(mdl_PropAttributeStateEnm state) const {
  return oif_Utils::CheckDataState(state, modifiedOnly);
}

void WriteOpNew(utl_Stream& s, const LoadCardState& card) { WriteFlag(s, "op=NEW", card.opNew); }

void WriteAmplitude(utl_Stream& s, const LoadCardState& card) {
  if (!card.amplitude.Empty())
    WriteParameter(s, "amplitude=", qkw_QuorvexName(card.amplitude, false));
}

void WriteLoadCase(utl_Stream& s, int loadCase) {
  if (loadCase == 1 || loadCase == 2)
    WriteParameter(s, "load case=", loadCase);
}

void WriteBaseData(utl_Stream& s, const LoadCardState& card, const cow_String& label, double value,
                   bool lineBreak, bool forceZero) {
  const double scaled = value * card.scale;
  if (scaled == 0 && !forceZero)
    return;
  s << card.setName << ", " << label << ", " << scaled;
  if (lineBreak)
    s.LineBreak();
}

namespace {

// Calls `use(state)` with the state of `load` in `step` when its kind keeps
// a state of class `State`.
template <class State, class F>
void WithStateOf(const kloC_Load& load, const cow_String& step, F&& use) {
  VisitTypeIdClass<kloC_Load>(load.DynTypeId(), [&](auto type) {
    using K = typename decltype(type)::type;
    const auto& state = RecordCast<K>(load).ConstGetState(step);
    if constexpr (std::is_base_of_v<State, std::remove_cvref_t<decltype(state)>>)
      use(static_cast<const State&>(state));
  });
}

} // namespace

const kloC_MagnitudeState& MagnitudeStateOf(const kloC_Load& load, const cow_String& step) {
  const kloC_MagnitudeState* found = nullptr;
  WithStateOf<kloC_MagnitudeState>(load, step, [&](const kloC_MagnitudeState& s) { found = &s; });
  assert(found != nullptr && "a card of one value on a load of another kind");
  return *found;
}

const kloC_VectorState& VectorStateOf(const kloC_Load& load, const cow_String& step) {
  const kloC_VectorState* found = nullptr;
  WithStateOf<kloC_VectorState>(load, step, [&](const kloC_VectorState& s) { found = &s; });
  assert(found != nullptr && "a card of three components on a load of another kind");
  return *found;
}

kloC_DistributionEnm DistributionOf(const kloC_Load& load) {
  kloC_DistributionEnm distribution = kloC_Uniform;
  VisitTypeIdClass<kloC_Load>(load.DynTypeId(), [&](auto type) {
    using K = typename decltype(type)::type;
    const K& record = RecordCast<K>(load);
    if constexpr (requires { record.distribution; })
      distribution = record.distribution;
  });
  return distribution;
}

void WriteFluxForm(utl_Stream& s, const char* keyword, const LoadCardState& card,
                   const cow_String& label) {
  s << keyword;
  WriteOpNew(s, card);
  if (card.deactivate) {
    s.LineBreak();
    return;
  }
  // The break point stands ahead of the amplitude's separator here.
  s.OptionalLineBreak();
  if (!card.amplitude.Empty())
    s << ", amplitude=" << qkw_QuorvexName(card.amplitude, false);
  s.LineBreak();
  const double value = MagnitudeStateOf(*card.load, card.step).magnitude.ConstGet();
  s << card.setName << label << value * card.scale;
  s.LineBreak();
}

namespace {

void WriteChargeCard(utl_Stream& s, const char* keyword, const LoadCardState& card, int loadCase,
                     bool complex) {
  s << keyword;
  WriteOpNew(s, card);
  if (!card.deactivate) {
    WriteAmplitude(s, card);
    if (loadCase == 2 || (loadCase == 1 && complex))
      WriteLoadCase(s, loadCase);
  }
  s.LineBreak();
}

} // namespace

void WriteChargeForm(utl_Stream& s, const char* keyword, const LoadCardState& card,
                     const char* label) {
  if (card.deactivate) {
    WriteChargeCard(s, keyword, card, 0, false);
    return;
  }
  const kloC_MagnitudeState& state = MagnitudeStateOf(*card.load, card.step);
  const bool complex = state.imaginary.IsActive();
  WriteChargeCard(s, keyword, card, 1, complex);
  const double value = state.magnitude.ConstGet() * card.scale;
  if ((complex || card.Writes(state.magnitude.State())) && value != 0) {
    s << card.setName << label << value;
    s.LineBreak();
  }
  if (!complex)
    return;
  WriteChargeCard(s, keyword, card, 2, complex);
  const double imaginary = state.imaginary.ConstGet() * card.scale;
  if (imaginary != 0) {
    s << card.setName << label << imaginary;
    s.LineBreak();
  }
}

} // namespace keydeck

namespace keydeck {

void WriteConcentratedCard(utl_Stream& s, const char* keyword, const LoadCardState& card,
                           int loadCase, bool follower) {
  s << keyword;
  WriteOpNew(s, card);
  WriteFlag(s, "follower", follower);
  WriteAmplitude(s, card);
  WriteLoadCase(s, loadCase);
  s.LineBreak();
}

std::array<ComplexValue, 3> ComplexValues(const kloC_VectorState& state) {
  return {ComplexValue{state.component1.ConstGet(), state.imaginary1.ConstGet()},
          ComplexValue{state.component2.ConstGet(), state.imaginary2.ConstGet()},
          ComplexValue{state.component3.ConstGet(), state.imaginary3.ConstGet()}};
}

void WriteVectorLoad(utl_Stream& s, const char* keyword, const LoadCardState& card, bool follower,
                     const std::array<const char*, 3>& dofs) {
  const kloC_VectorState& state = VectorStateOf(*card.load, card.step);
  if (state.Complex()) {
    ForEachComplexPass(ComplexValues(state), [&](int pass, const std::array<double, 3>& values) {
      WriteConcentratedCard(s, keyword, card, pass, follower);
      for (std::size_t i = 0; i < 3; ++i)
        WriteBaseData(s, card, dofs[i], values[i], /*lineBreak=*/true, /*forceZero=*/false);
    });
    return;
  }
  WriteConcentratedCard(s, keyword, card, 0, follower);
  const mdl_PropAttr<double>* components[] = {&state.component1, &state.component2,
                                              &state.component3};
  for (std::size_t i = 0; i < 3; ++i)
    if (card.Writes(components[i]->State()))
      WriteBaseData(s, card, dofs[i], components[i]->ConstGet(), /*lineBreak=*/true,
                    /*forceZero=*/true);
}

} // namespace keydeck
