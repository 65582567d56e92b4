#include "oif/oif_FixedMassScaling.h"
#include "oif/oif_VariableMassScaling.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

namespace {

using keydeck::test::DeckText;

kprC_MassScaling Scaling(kprC_MassScalingFormEnm form) {
  kprC_MassScaling scaling;
  scaling.form = form;
  return scaling;
}

TEST(MassScalingCards, FixedOnTheWholeModelHasNoElset) {
  kprC_MassScaling scaling = Scaling(kprC_FixedSemiAutomatic);
  scaling.factor = 2.5;
  EXPECT_EQ(DeckText(oif_FixedMassScaling(scaling, "")), "** Mass Scaling: Semi-Automatic\n"
                                                         "**               Whole Model\n"
                                                         "*Fixed Mass Scaling, factor=2.5\n");
}

TEST(MassScalingCards, FixedWithTargetAndRepeats) {
  kprC_MassScaling scaling = Scaling(kprC_FixedSemiAutomatic);
  scaling.targetTimeIncrement = 1e-6;
  scaling.scalingType = kprC_MassScaling::SetEqualDt;
  scaling.numberInterval = 5;
  EXPECT_EQ(DeckText(oif_FixedMassScaling(scaling, "Plate-1.Web")),
            "** Mass Scaling: Semi-Automatic\n"
            "**               Plate-1.Web\n"
            "*Fixed Mass Scaling, elset=Plate-1.Web, dt=1e-06, type=set equal dt, "
            "number interval=5\n");
  scaling.numberInterval = keydeck::NotGivenInt;
  scaling.frequency = 10;
  scaling.scalingType = kprC_MassScaling::Uniform;
  EXPECT_EQ(DeckText(oif_FixedMassScaling(scaling, "Web")),
            "** Mass Scaling: Semi-Automatic\n"
            "**               Web\n"
            "*Fixed Mass Scaling, elset=Web, dt=1e-06, type=uniform, frequency=10\n");
}

TEST(MassScalingCards, ReinitializeTakesNoValues) {
  kprC_MassScaling scaling = Scaling(kprC_ReinitializeMass);
  scaling.factor = 3;
  EXPECT_EQ(DeckText(oif_FixedMassScaling(scaling, "Web")), "** Mass Scaling: Reinitialize Mass\n"
                                                            "**               Web\n"
                                                            "*Fixed Mass Scaling, elset=Web\n");
}

TEST(MassScalingCards, VariableSemiAutomatic) {
  kprC_MassScaling scaling = Scaling(kprC_VariableSemiAutomatic);
  scaling.targetTimeIncrement = 2e-5;
  scaling.frequency = 4;
  EXPECT_EQ(DeckText(oif_VariableMassScaling(scaling, "")),
            "** Mass Scaling: Semi-Automatic\n"
            "**               Whole Model\n"
            "*Variable Mass Scaling, dt=2e-05, type=below min, frequency=4\n");
}

TEST(MassScalingCards, DisableHasNoLabelLine) {
  EXPECT_EQ(DeckText(oif_VariableMassScaling(Scaling(kprC_DisableMassScaling), "Web")),
            "** Mass Scaling: Disable Throughout Step\n*Variable Mass Scaling\n");
}

} // namespace
