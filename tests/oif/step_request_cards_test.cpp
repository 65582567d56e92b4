#include "oif/oif_DiagnosticPrint.h"
#include "oif/oif_Monitor.h"
#include "oif/oif_Restart.h"
#include "oif/oif_SolverControls.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

namespace {

using keydeck::test::DeckText;

TEST(StepRequestCards, StandardRestartByIncrementsOrIntervals) {
  kprC_StandardRestart restart;
  restart.frequency = 5;
  EXPECT_EQ(DeckText(oif_Restart(restart)), "*Restart, write, frequency=5\n");
  // Intervals win over the increments, and bring the time marks along.
  restart.numberInterval = 4;
  restart.timeMarks = true;
  restart.overlay = true;
  EXPECT_EQ(DeckText(oif_Restart(restart)),
            "*Restart, write, overlay, number interval=4, time marks=YES\n");
  restart.numberInterval = 0;
  EXPECT_EQ(DeckText(oif_Restart(restart)), "*Restart, write, overlay, frequency=5\n");
}

TEST(StepRequestCards, ExplicitRestartAlwaysByIntervals) {
  kprC_ExplicitRestart restart;
  EXPECT_EQ(DeckText(oif_Restart(restart)), "*Restart, write, number interval=1, time marks=NO\n");
  restart.numberInterval = 20;
  restart.overlay = true;
  EXPECT_EQ(DeckText(oif_Restart(restart)),
            "*Restart, write, overlay, number interval=20, time marks=NO\n");
}

TEST(StepRequestCards, MonitorFrequencyOnlyForTheImplicitSolver) {
  kprC_StandardMonitor standard;
  standard.dof = 2;
  standard.frequency = 3;
  EXPECT_EQ(DeckText(oif_Monitor(standard, "Beam-1.Tip")),
            "*Monitor, dof=2, node=Beam-1.Tip, frequency=3\n");
  kprC_ExplicitMonitor explicitMonitor;
  explicitMonitor.dof = 6;
  EXPECT_EQ(DeckText(oif_Monitor(explicitMonitor, "Tip")), "*Monitor, dof=6, node=Tip\n");
  // A region that names no set gives no card rather than a broken line.
  EXPECT_EQ(DeckText(oif_Monitor(standard, "")), "");
}

TEST(StepRequestCards, PrintWritesWhatDiffersFromTheSolverDefaults) {
  kprC_StandardDiagnosticPrint print;
  EXPECT_EQ(DeckText(oif_DiagnosticPrint(print, std::nullopt)), "*Print\n");
  print.contact = true;
  print.frequency = 0;
  print.modelChange = true;
  print.plasticity = true;
  print.residual = false;
  print.solve = true;
  EXPECT_EQ(DeckText(oif_DiagnosticPrint(print, std::nullopt)),
            "*Print, contact=YES, frequency=0, model change=YES, plasticity=YES, residual=NO, "
            "solve=YES\n");
  kprC_ExplicitDiagnosticPrint explicitPrint;
  explicitPrint.allke = false;
  explicitPrint.criticalElement = true;
  explicitPrint.etotal = true;
  explicitPrint.dmass = true;
  EXPECT_EQ(DeckText(oif_DiagnosticPrint(explicitPrint, std::nullopt)),
            "*Print, allke=NO, critical element=YES, etotal=YES, dmass=YES\n");
}

// The solver keeps a print for later steps: a step states only its changes
// to the print before, and goes back to the defaults after one of the other
// solver.
TEST(StepRequestCards, PrintComparesWithThePreviousOfItsClass) {
  kprC_StandardDiagnosticPrint before;
  before.contact = true;
  before.frequency = 4;
  kprC_StandardDiagnosticPrint now = before;
  now.residual = false;
  EXPECT_EQ(DeckText(oif_DiagnosticPrint(now, kprC_DiagnosticPrint(before))),
            "*Print, residual=NO\n");
  now.contact = false;
  EXPECT_EQ(DeckText(oif_DiagnosticPrint(now, kprC_DiagnosticPrint(before))),
            "*Print, contact=NO, residual=NO\n");
  kprC_ExplicitDiagnosticPrint otherSolver;
  otherSolver.allke = false;
  EXPECT_EQ(DeckText(oif_DiagnosticPrint(now, kprC_DiagnosticPrint(otherSolver))),
            "*Print, frequency=4, residual=NO\n");
}

// Each step's controls start again from the defaults; a value left at 0 is
// the solver's own and stays blank.
TEST(StepRequestCards, SolverControlsStartFromTheDefaults) {
  kprC_SolverControls controls;
  controls.reset = true;
  EXPECT_EQ(DeckText(oif_SolverControls(controls)), "*Solver Controls, reset\n");
  controls.reset = false;
  controls.maxIterations = 200;
  EXPECT_EQ(DeckText(oif_SolverControls(controls)),
            "*Solver Controls, reset\n*Solver Controls\n, 200\n");
  controls.tolerance = 1e-6;
  controls.maxIterations = 0;
  EXPECT_EQ(DeckText(oif_SolverControls(controls)),
            "*Solver Controls, reset\n*Solver Controls\n1e-06, \n");
}

} // namespace
