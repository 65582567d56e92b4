// The "*Boundary", "*Connector Motion" and "*Submodel" cards of boundary
// conditions made in the tests, step by step.
#include "oif/oif_Boundary.h"
#include "oif/oif_BoundarySubmodelList.h"
#include "oif/oif_ConnectorMotion.h"
#include "oif/oif_Submodel.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

using namespace keydeck;
using keydeck::test::DeckText;

namespace {

// "Initial" and "Step-1" to "Step-3"; `procedure` is that of Step-1 and
// Step-2, Step-3 is static.
kprC_StepContainer Steps(kprC_ProcedureEnm procedure = kprC_Static) {
  kprC_StepContainer steps;
  steps.Append("Initial", kprC_StepContainer::Handle(kprC_InitialStep()));
  kprC_StaticStep step;
  step.procedure = procedure; // the cards read the procedure, not the class
  steps.Append("Step-1", kprC_StepContainer::Handle(step));
  steps.Append("Step-2", kprC_StepContainer::Handle(step));
  steps.Append("Step-3", kprC_StepContainer::Handle(kprC_StaticStep()));
  return steps;
}

template <class T> mdl_PropAttr<T> Given(T value) { return {value, mdl_AttributeSet}; }

// A displacement created in Step-1 with u1 = 0.5 and u3 = 0, whose Step-2
// sets u2 = -1 and, when given, `step2Status`.
kbcC_DisplacementBC Displacement(const kprC_StepContainer& steps,
                                 std::optional<mdl_PropagationStatusEnm> step2Status = {}) {
  kbcC_DisplacementBC bc;
  bc.createdIn = "Step-1";
  bc.created.real[0] = Given(0.5);
  bc.created.real[2] = Given(0.0);
  StepChange<kbcC_DisplacementState> change;
  change.status = step2Status;
  if (!step2Status)
    change.state.real[1] = Given(-1.0);
  bc.changes.Insert("Step-2", change);
  std::vector<RecordFault> faults;
  bc.DeriveStates(steps, faults);
  EXPECT_TRUE(faults.empty());
  return bc;
}

std::string BoundaryText(const kbcC_BC& bc, const char* step, bool opMod, double factor = 1.0,
                         const char* name = "BC") {
  return DeckText(oif_Boundary(bc, name, step, opMod, "Beam-1.Tip", false, "Initial", factor));
}

TEST(BoundaryCards, DisplacementValuesFixedZeroAndInPlace) {
  const kprC_StepContainer steps = Steps();
  kbcC_DisplacementBC bc = Displacement(steps);
  // A zero value ends the line with its degree of freedom; the factor scales.
  EXPECT_EQ(BoundaryText(bc, "Step-1", false, 2.0),
            "*Boundary, op=NEW\nBeam-1.Tip, 1, 1, 1.\nBeam-1.Tip, 3, 3\n");
  // In place, Step-2 writes only what it sets; restarted, everything.
  EXPECT_EQ(BoundaryText(bc, "Step-2", true), "*Boundary\nBeam-1.Tip, 2, 2, -1.\n");
  EXPECT_EQ(BoundaryText(bc, "Step-2", false),
            "*Boundary, op=NEW\nBeam-1.Tip, 1, 1, 0.5\nBeam-1.Tip, 2, 2, -1.\nBeam-1.Tip, 3, 3\n");
  bc.fixed = true;
  bc.distribution = kbcC_BC::UserDefined;
  EXPECT_EQ(BoundaryText(bc, "Step-1", true),
            "*Boundary, fixed, user\nBeam-1.Tip, 1, 1\nBeam-1.Tip, 3, 3\n");
}

TEST(BoundaryCards, DeactivatedBaseNameAndAmplitude) {
  const kprC_StepContainer steps = Steps();
  const kbcC_DisplacementBC off = Displacement(steps, PropDeactivated);
  EXPECT_EQ(BoundaryText(off, "Step-2", false, 1.0, "__basename__Rail"),
            "*Boundary, op=NEW, base name=Rail\n");
  EXPECT_EQ(oif_Boundary::FixBCNameHack("__basename__Rail"), "Rail");
  EXPECT_EQ(oif_Boundary::FixBCNameHack("Rail__basename__"), "Rail__basename__");

  kbcC_DisplacementBC ramped = Displacement(Steps());
  StepChange<kbcC_DisplacementState> change;
  change.state.amplitude = Given(DeckName("Ramp 1"));
  ramped.changes.Insert("Step-3", change);
  std::vector<RecordFault> faults;
  ramped.DeriveStates(steps, faults);
  // A new amplitude applies to every value: all lines, though in place.
  EXPECT_EQ(BoundaryText(ramped, "Step-3", true),
            "*Boundary, amplitude=\"Ramp 1\"\nBeam-1.Tip, 1, 1, 0.5\nBeam-1.Tip, 2, 2, -1.\n"
            "Beam-1.Tip, 3, 3\n");
}

TEST(BoundaryCards, ComplexAndBuckleSteps) {
  const kprC_StepContainer steady = Steps(kprC_SteadyStateDirect);
  kbcC_DisplacementBC bc;
  bc.createdIn = "Step-1";
  bc.created.real[0] = Given(1.0);
  bc.created.imaginary[0] = Given(0.25);
  bc.created.imaginary[4] = Given(2.0);
  std::vector<RecordFault> faults;
  bc.DeriveStates(steady, faults);
  EXPECT_EQ(BoundaryText(bc, "Step-1", false),
            "*Boundary, op=NEW, load case=1\nBeam-1.Tip, 1, 1, 1.\nBeam-1.Tip, 5, 5\n"
            "*Boundary, op=NEW, load case=2\nBeam-1.Tip, 1, 1, 0.25\nBeam-1.Tip, 5, 5, 2.\n");

  const kprC_StepContainer buckle = Steps(kprC_Buckle);
  const std::pair<int, const char*> cases[] = {
      {0, "*Boundary, op=NEW, load case=1\nBeam-1.Tip, 1, 1, 1.\n"
          "*Boundary, op=NEW, load case=2\nBeam-1.Tip, 1, 1, 1.\n"},
      {2, "*Boundary, op=NEW, load case=2\nBeam-1.Tip, 1, 1, 1.\n"},
      {4, ""},
  };
  for (const auto& [loadCase, deck] : cases) {
    SCOPED_TRACE(loadCase);
    kbcC_DisplacementBC inBuckle;
    inBuckle.createdIn = "Step-1";
    inBuckle.created.real[0] = Given(1.0);
    inBuckle.created.buckleLoadCase = Given(loadCase);
    inBuckle.DeriveStates(buckle, faults);
    EXPECT_EQ(BoundaryText(inBuckle, "Step-1", false), deck);
  }
}

TEST(BoundaryCards, OtherKinds) {
  const kprC_StepContainer steps = Steps();
  std::vector<RecordFault> faults;
  kbcC_TypeBC symmetry;
  symmetry.createdIn = "Step-1";
  symmetry.created.typeName = Given(kbcC_YAsymm);
  symmetry.DeriveStates(steps, faults);
  EXPECT_EQ(BoundaryText(symmetry, "Step-1", true), "*Boundary\nBeam-1.Tip, YASYMM\n");
  EXPECT_EQ(BoundaryText(symmetry, "Step-2", true), ""); // nothing set, nothing written

  kbcC_TemperatureBC temperature;
  temperature.createdIn = "Step-1";
  temperature.created.magnitude = Given(20.0);
  temperature.DeriveStates(steps, faults);
  EXPECT_EQ(BoundaryText(temperature, "Step-1", true), "*Boundary\nBeam-1.Tip, 11, 11, 20.\n");
  temperature.created.dofs = Given(cow_List<int>{11, 13});
  temperature.DeriveStates(steps, faults);
  EXPECT_EQ(BoundaryText(temperature, "Step-1", true),
            "*Boundary\nBeam-1.Tip, 11, 11, 20.\nBeam-1.Tip, 13, 13, 20.\n");

  kbcC_AccelerationBC acceleration;
  acceleration.createdIn = "Step-1";
  acceleration.created.real[3] = Given(3.0);
  acceleration.DeriveStates(steps, faults);
  EXPECT_EQ(BoundaryText(acceleration, "Step-1", false),
            "*Boundary, op=NEW, type=ACCELERATION\nBeam-1.Tip, 4, 4, 3.\n");

  // Electric potential is complex in steady-state dynamics, mass
  // concentration sits on degree of freedom 11.
  kbcC_ElectricPotentialBC potential;
  potential.createdIn = "Step-1";
  potential.created.magnitude = Given(5.0);
  potential.created.imaginary = Given(1.0);
  potential.DeriveStates(Steps(kprC_SteadyStateModal), faults);
  EXPECT_EQ(BoundaryText(potential, "Step-1", true),
            "*Boundary, load case=1\nBeam-1.Tip, 9, 9, 5.\n"
            "*Boundary, load case=2\nBeam-1.Tip, 9, 9, 1.\n");
  kbcC_MassConcentrationBC concentration;
  concentration.createdIn = "Step-1";
  concentration.created.magnitude = Given(0.5);
  concentration.DeriveStates(steps, faults);
  EXPECT_EQ(BoundaryText(concentration, "Step-1", true), "*Boundary\nBeam-1.Tip, 11, 11, 0.5\n");
  EXPECT_TRUE(faults.empty());
}

TEST(BoundaryCards, SubmodelConditionsShareTheirHead) {
  const kprC_StepContainer steps = Steps();
  kbcC_SubmodelBC bc;
  bc.createdIn = "Step-1";
  bc.globalElset = "Global";
  bc.exteriorTolerance = 0.05;
  bc.created.dofs = Given(cow_List<int>{1, 2});
  bc.created.globalStep = Given(DeckName("1"));
  bc.created.globalIncrement = Given(4);
  std::vector<RecordFault> faults;
  bc.DeriveStates(steps, faults);
  const oif_Boundary first(bc, "A", "Step-1", false, "Beam-1.Tip", false, "Initial", 1.0);
  const oif_Boundary second(bc, "B", "Step-1", false, "Ends", false, "Initial", 1.0);
  ASSERT_TRUE(first.IsBCSubmodel());
  EXPECT_EQ(first.BCSubmodelKwd(), "*Boundary, op=NEW, submodel, step=1, inc=4");
  oif_BoundarySubmodelList list;
  list.Append("Step-1", "A", first);
  list.Append("Step-1", "B", second);
  std::string text;
  for (const auto& card : list.Keywords("Step-1"))
    text += DeckText(*card);
  EXPECT_EQ(text, "** Name: A, B Type: Submodel\n*Boundary, op=NEW, submodel, step=1, inc=4\n"
                  "Beam-1.Tip, 1, 1\nBeam-1.Tip, 2, 2\nEnds, 1, 1\nEnds, 2, 2\n");
  EXPECT_TRUE(list.Keywords("Step-2").Empty());

  // Shell to solid: one line with the centre-zone size, a tenth of the shell
  // thickness unless given.
  bc.shellThickness = 2;
  EXPECT_EQ(DeckText(oif_Boundary(bc, "A", "Step-1", false, "Tip", true, "Initial", 1.0)),
            "Tip, 0.2\n");
  oif_Submodel card(true, bc, "Beam-1.Tip");
  card.AppendRegion("Ends");
  EXPECT_TRUE(card.IsEqual(bc));
  EXPECT_EQ(DeckText(card), "*Submodel, shell to solid, shell thickness=2., "
                            "exteriorTolerance=0.05, global elset=Global\nBeam-1.Tip, \nEnds, \n");
}

TEST(BoundaryCards, ConnectorMotion) {
  const kprC_StepContainer steps = Steps();
  kbcC_ConnVelocityBC bc;
  bc.createdIn = "Step-1";
  bc.created.real[0] = Given(2.0);
  bc.created.real[5] = Given(0.0);
  std::vector<RecordFault> faults;
  bc.DeriveStates(steps, faults);
  EXPECT_EQ(DeckText(oif_ConnectorMotion(bc, "Drive", "Step-1", true, "Drive", 1.5)),
            "*Connector Motion, type=VELOCITY\nDrive, 1, 3.\nDrive, 6\n");
  // "*Boundary" has no writer for a connector kind.
  EXPECT_THROW(BoundaryText(bc, "Step-1", true), std::exception);
}

} // namespace
