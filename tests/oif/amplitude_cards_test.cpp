#include "oif/oif_Amplitude.h"
#include "oif/oif_AmplitudeBuilder.h"
#include "oif/oif_BaselineCorrection.h"
#include "oif/oif_ModelInfo.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <string>

using keydeck::test::DeckText;

namespace {

cow_List<double> Numbers(std::initializer_list<double> values) { return cow_List<double>(values); }

kamC_Tabular Tabular(std::initializer_list<double> data) {
  kamC_Tabular amplitude;
  amplitude.data = Numbers(data);
  return amplitude;
}

kamC_EquallySpaced EquallySpaced(double interval, std::initializer_list<double> data) {
  kamC_EquallySpaced amplitude;
  amplitude.fixedInterval = interval;
  amplitude.data = Numbers(data);
  return amplitude;
}

std::string AmplitudeText(const char* name, const kamC_Amplitude& record) {
  return DeckText(oif_Amplitude(name, record));
}

TEST(AmplitudeCards, TablesOfPairsStandFourToALine) {
  EXPECT_EQ(AmplitudeText("Ramp", Tabular({0, 0, 1, 1, 2, 4, 3, 9, 4, 16})),
            "*Amplitude, name=Ramp\n"
            "0., 0., 1., 1., 2., 4., 3., 9.\n"
            "4., 16.\n");
  EXPECT_EQ(AmplitudeText("Four", Tabular({0, 0, 0.5, 0.25, 1, 1, 2, 0.5})),
            "*Amplitude, name=Four\n0., 0., 0.5, 0.25, 1., 1., 2., 0.5\n");
  EXPECT_EQ(AmplitudeText("Empty", Tabular({})), "*Amplitude, name=Empty\n");
  kamC_Tabular smooth = Tabular({0, 0, 1e-3, 1});
  smooth.smooth = 0.05;
  smooth.timeSpan = kamC_Amplitude::TotalTime;
  EXPECT_EQ(AmplitudeText("Amp 1", smooth),
            "*Amplitude, name=\"Amp 1\", time=TOTAL TIME, smooth=0.05\n0., 0., 0.001, 1.\n");
  kamC_SmoothStep step;
  step.data = Numbers({0, 0, 1, 1, 2, 1, 3, 0, 4, -1});
  EXPECT_EQ(AmplitudeText("Step", step), "*Amplitude, name=Step, definition=SMOOTH STEP\n"
                                         "0., 0., 1., 1., 2., 1., 3., 0.\n"
                                         "4., -1.\n");
}

TEST(AmplitudeCards, EquallySpacedValuesStandEightToALine) {
  EXPECT_EQ(AmplitudeText("E", EquallySpaced(0.1, {1, 2, 3, 4, 5, 6, 7, 8, 9})),
            "*Amplitude, name=E, definition=EQUALLY SPACED, fixed interval=0.1\n"
            "1., 2., 3., 4., 5., 6., 7., 8.\n"
            "9.\n");
  kamC_EquallySpaced begun = EquallySpaced(0.5, {1, 2});
  begun.begin = 2;
  begun.smooth = 0.1;
  EXPECT_EQ(AmplitudeText("E", begun), "*Amplitude, name=E, definition=EQUALLY SPACED, "
                                       "smooth=0.1, fixed interval=0.5, begin=2.\n1., 2.\n");
  EXPECT_EQ(AmplitudeText("E", EquallySpaced(1, {})),
            "*Amplitude, name=E, definition=EQUALLY SPACED, fixed interval=1.\n");
}

TEST(AmplitudeCards, DefinitionsOfOneLine) {
  kamC_Periodic periodic;
  periodic.frequency = 6.28;
  periodic.a0 = 1;
  EXPECT_EQ(AmplitudeText("P", periodic),
            "*Amplitude, name=P, definition=PERIODIC\n0, 6.28, 0., 1.\n");
  periodic.start = 0.5;
  periodic.data = Numbers({1, 0, 0.5, 0.25, 0, 1, 2, 2, 3, 3});
  EXPECT_EQ(AmplitudeText("P", periodic), "*Amplitude, name=P, definition=PERIODIC\n"
                                          "5, 6.28, 0.5, 1.\n"
                                          "1., 0., 0.5, 0.25, 0., 1., 2., 2.\n"
                                          "3., 3.\n");
  kamC_Modulated modulated;
  modulated.a0 = 1;
  modulated.a = 2;
  modulated.start = 0;
  modulated.frequency1 = 3;
  modulated.frequency2 = 40;
  EXPECT_EQ(AmplitudeText("M", modulated),
            "*Amplitude, name=M, definition=MODULATED\n1., 2., 0., 3., 40.\n");
  kamC_Decay decay;
  decay.a0 = 0;
  decay.a = 1;
  decay.start = 0.25;
  decay.decayTime = 1e6;
  EXPECT_EQ(AmplitudeText("D", decay),
            "*Amplitude, name=D, definition=DECAY\n0., 1., 0.25, 1e+06\n");
  kamC_SolutionDependent adaptive;
  adaptive.initialValue = 1;
  adaptive.minimum = 0.1;
  adaptive.maximum = 10;
  EXPECT_EQ(AmplitudeText("S", adaptive),
            "*Amplitude, name=S, definition=SOLUTION DEPENDENT\n1., 0.1, 10.\n");
}

// A record of a kind that has no definition of its own in the deck.
class UnwrittenAmplitude
    : public keydeck::AmplitudeKind<UnwrittenAmplitude, kamC_PsdDefinitionType> {
public:
  template <class V> void Fields(V& v) { kamC_Amplitude::Fields(v); }
};

TEST(AmplitudeCards, UnknownDefinitionRaises) {
  try {
    AmplitudeText("U", UnwrittenAmplitude());
    FAIL() << "nothing raised";
  } catch (const nex_PrimException& failure) {
    EXPECT_EQ(failure.Text(), "Unknown amplitude definition");
  }
}

TEST(AmplitudeCards, BaselineCorrection) {
  kamC_BaselineCorrection baseline;
  baseline.correctionIntervals = Numbers({1, 2, 3, 4, 5, 6, 7, 8, 9});
  EXPECT_EQ(DeckText(oif_BaselineCorrection(baseline)),
            "*Baseline Correction\n1., 2., 3., 4., 5., 6., 7., 8.\n9.\n");
  EXPECT_EQ(DeckText(oif_BaselineCorrection(kamC_BaselineCorrection())), "*Baseline Correction\n");
}

TEST(AmplitudeCards, BuilderFilesInNameOrderWithBaselinesBehind) {
  ddb_Model model;
  kamC_Tabular corrected = Tabular({0, 0, 1, 1});
  corrected.baseline = kamC_BaselineCorrection();
  corrected.baseline->correctionIntervals = Numbers({0.5});
  kamC_EquallySpaced spaced = EquallySpaced(1, {1});
  spaced.baseline = kamC_BaselineCorrection();
  model.amplitudes_.Insert("b", corrected);
  model.amplitudes_.Insert("B", spaced);
  model.amplitudes_.Insert("a", kamC_SmoothStep());
  oif_ModelInfo info(model);
  oif_AmplitudeBuilder builder(info);
  builder.Build();
  std::string deck;
  for (const auto& card : builder.ModelDefinition())
    deck += DeckText(*card);
  EXPECT_EQ(deck, "*Amplitude, name=B, definition=EQUALLY SPACED, fixed interval=1.\n"
                  "1.\n"
                  "*Baseline Correction\n"
                  "*Amplitude, name=a, definition=SMOOTH STEP\n"
                  "*Amplitude, name=b\n"
                  "0., 0., 1., 1.\n"
                  "*Baseline Correction\n"
                  "0.5\n");
}

} // namespace
