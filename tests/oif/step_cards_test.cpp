#include "base/nex_Exception.h"
#include "model/json/loader.h"
#include "oif/oif_Anneal.h"
#include "oif/oif_BulkViscosity.h"
#include "oif/oif_CoupledTempDisplacement.h"
#include "oif/oif_DynamicTempDisplacement.h"
#include "oif/oif_ExplicitDynamics.h"
#include "oif/oif_HeatTransfer.h"
#include "oif/oif_ImplicitDynamics.h"
#include "oif/oif_MassDiffusion.h"
#include "oif/oif_SolutionTechnique.h"
#include "oif/oif_Static.h"
#include "oif/oif_StaticRiks.h"
#include "oif/oif_Step.h"
#include "oif/oif_Visco.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace keydeck;
using keydeck::test::DeckText;

namespace {

// A static step with its increments derived as the loader derives them.
kprC_StaticStep StaticStep() {
  kprC_StaticStep step;
  step.initialInc = 0.1;
  step.minInc = 1e-5;
  step.maxInc = 1;
  return step;
}

// The step block heads of a model whose steps are `steps` (JSON) after an
// initial step: the deck from the first "*Step" on.
std::string StepBlocks(const std::string& steps) {
  std::vector<std::string> warnings;
  const odb_Odb odb = LoadModelText(R"({"format": "keydeck-model", "version": 1, "models": {
      "Default Model": {"steps": [{"name": "Initial"})" +
                                        steps + "]}}}",
                                    warnings);
  const std::string deck = test::DeckOfModel(odb);
  const std::size_t first = deck.find("** ---");
  return first == std::string::npos ? std::string() : deck.substr(first);
}

} // namespace

TEST(StepCards, StepLineOfStaticStep) {
  kprC_StaticStep step = StaticStep();
  EXPECT_EQ(DeckText(oif_Step(step, false, "S")), "*Step, name=S\n");
  step.amplitude = kprC_StepAmplitude;
  step.extrapolation = kprC_ParabolicExtrapolation;
  step.maxNumInc = 1;
  step.matrixStorage = kprC_UnsymmetricStorage;
  step.description = "Two words";
  EXPECT_EQ(DeckText(oif_Step(step, false, "Step 1")),
            "*Step, name=\"Step 1\", extrapolation=PARABOLIC, amplitude=STEP, inc=1, unsymm=YES\n"
            "Two words\n");
  step.extrapolation = kprC_NoExtrapolation;
  step.maxNumInc = 0;
  step.matrixStorage = kprC_SymmetricStorage;
  step.description = "";
  EXPECT_EQ(DeckText(oif_Step(step, false, "S")),
            "*Step, name=S, extrapolation=NO, amplitude=STEP, inc=0, unsymm=NO\n");
}

// Once on, geometric nonlinearity stays on: the sticky procedures say YES
// again and never NO; the difference procedures say what changes.
TEST(StepCards, NlgeomForms) {
  kprC_StaticStep statik = StaticStep();
  kprC_AnnealStep anneal;
  kprC_ExplicitDynamicsStep explicitStep;
  explicitStep.nlgeom = false;
  EXPECT_EQ(DeckText(oif_Step(statik, true, "S")), "*Step, name=S, nlgeom=YES\n");
  EXPECT_EQ(DeckText(oif_Step(statik, false, "S")), "*Step, name=S\n");
  statik.nlgeom = true;
  EXPECT_EQ(DeckText(oif_Step(statik, false, "S")), "*Step, name=S, nlgeom=YES\n");
  EXPECT_EQ(DeckText(oif_Step(anneal, true, "A")), "*Step, name=A, nlgeom=NO\n");
  EXPECT_EQ(DeckText(oif_Step(anneal, false, "A")), "*Step, name=A\n");
  EXPECT_EQ(DeckText(oif_Step(explicitStep, true, "E")), "*Step, name=E, nlgeom=NO\n");
  explicitStep.nlgeom = true;
  EXPECT_EQ(DeckText(oif_Step(explicitStep, false, "E")), "*Step, name=E, nlgeom=YES\n");
  EXPECT_EQ(DeckText(oif_Step(explicitStep, true, "E")), "*Step, name=E\n");
}

TEST(StepCards, ImplicitDynamicsDefaultsAndSeparators) {
  kprC_ImplicitDynamicsStep step;
  step.initialInc = 0.1;
  step.minInc = 1e-6;
  step.maxInc = 0.5;
  step.haftol = 10;
  EXPECT_EQ(DeckText(oif_Step(step, false, "D")), "*Step, name=D\n");
  EXPECT_EQ(DeckText(oif_ImplicitDynamics(step)), "*Dynamic,haftol=10.\n0.1,1.,1e-06,0.5\n");
  step.extrapolation = kprC_LinearExtrapolation;
  EXPECT_EQ(DeckText(oif_Step(step, false, "D")), "*Step, name=D, extrapolation=NO\n");
  step.extrapolation = kprC_ParabolicExtrapolation;
  EXPECT_EQ(DeckText(oif_Step(step, false, "D")), "*Step, name=D, extrapolation=PARABOLIC\n");
  step.timeIncrementationMethod = kprC_FixedIncrements;
  step.noStop = true;
  EXPECT_EQ(DeckText(oif_ImplicitDynamics(step)), "*Dynamic,direct=NO STOP\n0.1,1.,\n");
}

TEST(StepCards, StaticAndRiksDataLines) {
  kprC_StaticStep statik = StaticStep();
  EXPECT_EQ(DeckText(oif_Static(statik)), "*Static\n0.1, 1., 1e-05, 1.\n");
  statik.timeIncrementationMethod = kprC_FixedIncrements;
  statik.stabilizationMethod = kprC_EnergyFractionStabilization;
  EXPECT_EQ(DeckText(oif_Static(statik)), "*Static, direct, stabilize=0.0002\n0.1, 1., \n");

  kprC_StaticRiksStep riks;
  EXPECT_EQ(DeckText(oif_StaticRiks(riks, "")), "*Static, riks\n1., 1., 1e-05, , , \n");
  riks.maxArcInc = 0.5;
  riks.maxLPF = 3;
  riks.limitNode = "Tip";
  riks.limitDof = 2;
  riks.limitValue = 0.25;
  EXPECT_EQ(DeckText(oif_StaticRiks(riks, "\"Beam 1\".Tip")),
            "*Static, riks\n1., 1., 1e-05, 0.5, 3., \"Beam 1\".Tip, 2, 0.25\n");
  riks.timeIncrementationMethod = kprC_FixedIncrements;
  riks.limitNode = "";
  EXPECT_EQ(DeckText(oif_StaticRiks(riks, "")), "*Static, direct, riks\n1., 1., , , 3., \n");
}

TEST(StepCards, ThermalDataLines) {
  kprC_HeatTransferStep heat;
  heat.initialInc = 0.5;
  heat.minInc = 0.01;
  heat.maxInc = 1;
  EXPECT_EQ(DeckText(oif_HeatTransfer(heat)),
            "*Heat Transfer, end=PERIOD, deltmx=0.\n0.5, 1., 0.01, 1., \n");
  heat.timeIncrementationMethod = kprC_FixedIncrements;
  heat.response = kprC_SteadyState;
  heat.mxdem = 0.3;
  EXPECT_EQ(DeckText(oif_HeatTransfer(heat)),
            "*Heat Transfer, steady state, mxdem=0.3\n0.5, 1., 0.5, 0.5, \n");
  heat.response = kprC_Transient;
  heat.endValue = 0.1;
  EXPECT_EQ(DeckText(oif_HeatTransfer(heat)),
            "*Heat Transfer, end=SS, mxdem=0.3\n0.5, 1., , ,0.1\n");

  // The mass diffusion card takes an end value of 0 for "not given".
  kprC_MassDiffusionStep diffusion;
  diffusion.initialInc = 1;
  diffusion.minInc = 0.1;
  diffusion.maxInc = 1;
  diffusion.dcmax = 0.5;
  EXPECT_EQ(DeckText(oif_MassDiffusion(diffusion)),
            "*Mass Diffusion, end=PERIOD, dcmax=0.5\n1., 1., 0.1, 1., \n");
}

TEST(StepCards, CoupledAndViscoCreepSpellings) {
  kprC_CoupledTempDisplacementStep coupled;
  coupled.initialInc = 1;
  coupled.minInc = 0.5;
  coupled.maxInc = 1;
  coupled.creep = kprC_ExplicitCreep;
  coupled.cetol = 0.01;
  coupled.deltmx = 2;
  EXPECT_EQ(DeckText(oif_CoupledTempDisplacement(coupled, true)),
            "*Coupled Temperature-Displacement, creep=explicit, deltmx=2., cetol=0.01\n"
            "1., 1., 0.5, 1.\n");
  coupled.creep = kprC_NoCreep;
  EXPECT_EQ(DeckText(oif_CoupledTempDisplacement(coupled, false)),
            "*Coupled Temperature-Displacement, no creep, deltmx=2.\n1., 1., 0.5, 1.\n");
  EXPECT_EQ(DeckText(oif_SolutionTechnique(coupled)), "");
  coupled.solutionTechnique = kprC_Separated;
  EXPECT_EQ(DeckText(oif_SolutionTechnique(coupled)), "*Solution Technique, type=SEPARATED\n");
  // Only a coupled step writes the technique.
  EXPECT_EQ(DeckText(oif_SolutionTechnique(StaticStep())), "");

  kprC_ViscoStep visco;
  visco.initialInc = 1;
  visco.minInc = 0.5;
  visco.maxInc = 1;
  visco.cetol = 0.001;
  visco.creep = kprC_ExplicitCreep;
  EXPECT_EQ(DeckText(oif_Visco(visco, false)), "*Visco, cetol=0.001, explicit\n1., 1., 0.5, 1.\n");
}

TEST(StepCards, ExplicitIncrementation) {
  kprC_ExplicitDynamicsStep step;
  EXPECT_EQ(DeckText(oif_ExplicitDynamics(step)), "*Dynamic, Explicit\n, 1.\n");
  step.maxInc = 1e-4;
  step.scaleFactor = 0.5;
  EXPECT_EQ(DeckText(oif_ExplicitDynamics(step)),
            "*Dynamic, Explicit, scale factor=0.5\n, 1.,, 0.0001\n");
  step.timeIncrementationMethod = kprC_ExplicitFixed;
  EXPECT_EQ(DeckText(oif_ExplicitDynamics(step)),
            "*Dynamic, Explicit, fixed time incrementation, scale factor=0.5\n, 1.\n");
  step.timeIncrementationMethod = static_cast<kprC_ExplicitIncrementationEnm>(7);
  EXPECT_THROW(DeckText(oif_ExplicitDynamics(step)), nex_PrimException);

  kprC_TempDisplacementDynamicsStep coupled;
  coupled.timeIncrementationMethod = kprC_ExplicitUserFixed;
  coupled.initialInc = 1e-3;
  EXPECT_EQ(DeckText(oif_DynamicTempDisplacement(coupled)),
            "*Dynamic Temperature-displacement, Explicit, direct user control\n0.001, 1.\n");
  EXPECT_EQ(DeckText(oif_BulkViscosity(coupled)), "*Bulk Viscosity\n0.06, 1.2\n");
  EXPECT_EQ(DeckText(oif_BulkViscosity(StaticStep())), "");
  EXPECT_EQ(DeckText(oif_Anneal(kprC_AnnealStep())), "*Anneal\n");
}

// A record whose procedure disagrees with its class is refused when its
// cards are made or written, never written as something else.
TEST(StepCards, ProcedureDisagreeingWithClassRaises) {
  kprC_StaticStep step = StaticStep();
  step.procedure = kprC_Visco;
  EXPECT_THROW(DeckText(oif_Step(step, false, "S")), nex_PrimException);
  EXPECT_THROW(oif_Visco(step, true), nex_PrimException);
}

TEST(StepBuilder, OnlyTheInitialStepGivesNoStepBlock) { EXPECT_EQ(StepBlocks(""), ""); }

// An explicit job starts with geometric nonlinearity on.
TEST(StepBuilder, ExplicitJobStartsWithNlgeomOn) {
  EXPECT_EQ(StepBlocks(R"(, {"name": "E", "procedure": "explicitDynamics", "nlgeom": false})"),
            R"(** ----------------------------------------------------------------
** 
** STEP: E
** 
*Step, name=E, nlgeom=NO
*Dynamic, Explicit
, 1.
*Bulk Viscosity
0.06, 1.2
*Output, field, variable=PRESELECT, number interval=0
*Output, history, frequency=0
*End Step
)");
}

TEST(StepBuilder, NlgeomStaysOnAndLoadCasesGetHeads) {
  const std::string deck = StepBlocks(R"(, {"name": "A", "procedure": "static", "nlgeom": true},
      {"name": "B", "procedure": "static", "loadCases": {"C": {}}},
      {"name": "C", "procedure": "anneal"})");
  // Each step without output requests says so (Output lines) before its load cases.
  EXPECT_NE(deck.find("*Step, name=B, nlgeom=YES\n*Static\n1., 1., 1e-05, 1.\n"
                      "*Output, field, frequency=0\n*Output, history, frequency=0\n"
                      "** \n** LOAD CASES\n** \n*Load Case, name=C\n*Boundary, op=NEW\n*End Load Case\n*End Step\n"),
            std::string::npos)
      << deck;
  EXPECT_NE(deck.find("*Step, name=C, nlgeom=NO\n*Anneal\n*Output, field, frequency=0\n"
                      "*Output, history, frequency=0\n*End Step\n"),
            std::string::npos)
      << deck;
}
