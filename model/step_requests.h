#pragma once

#include "base/cow_String.h"
#include "model/records.h"
#include "model/regions.h"

#include <variant>

// What an analysis step asks of the solver besides its output requests: the
// restart data it writes, the degree of freedom it monitors and the messages
// it prints. The explicit and the implicit solver take different options, so
// each comes in two classes and a step holds the one of its solver.

/// Restart data written by an implicit step: every `frequency` increments, or
/// at `numberInterval` evenly spaced times when that is 1 or more.
struct kprC_StandardRestart {
  static constexpr const char* Description = "restart data the step writes";
  bool overlay = false;
  int frequency = 1;
  int numberInterval = 0;
  bool timeMarks = false;
  template <class V> void Fields(V& v) {
    v({"overlay", "true to keep only the data of the last increment written"}, overlay, false);
    v({"every", "the increments between writes; unused when intervals is given"}, frequency, 1);
    v({"intervals", "the number of evenly spaced times to write at; 0 to write by increments"},
      numberInterval, 0);
    v({"timeMarks", "true to write at the exact interval times"}, timeMarks, false);
  }
};

/// Restart data written by an explicit step, at `numberInterval` evenly spaced
/// times.
struct kprC_ExplicitRestart {
  static constexpr const char* Description = "restart data the step writes";
  bool overlay = false;
  int numberInterval = 1;
  bool timeMarks = false;
  template <class V> void Fields(V& v) {
    v({"overlay", "true to keep only the data of the last interval written"}, overlay, false);
    v({"intervals", "the number of evenly spaced times to write at"}, numberInterval, 1);
    v({"timeMarks", "true to write at the exact interval times"}, timeMarks, false);
  }
};

/// The degree of freedom of one node that the solver reports as the step
/// goes; the node set is named like any other region.
struct kprC_MonitorBase {
  keydeck::DeckName node;
  int dof = 1;
  rgnC_Region region; ///< derived after loading from `node`
  template <class V> void MonitorFields(V& v) {
    v({"node", "the node set of the monitored node, by region name such as \"Tip\" or "
               "\"Beam-1.Tip\""},
      node);
    v({"dof", "the monitored degree of freedom, 1 to 30"}, dof, 1);
  }
};

struct kprC_StandardMonitor : kprC_MonitorBase {
  static constexpr const char* Description = "the degree of freedom the step monitors";
  int frequency = 1;
  template <class V> void Fields(V& v) {
    MonitorFields(v);
    v({"every", "the increments between reports"}, frequency, 1);
  }
};

struct kprC_ExplicitMonitor : kprC_MonitorBase {
  static constexpr const char* Description = "the degree of freedom the step monitors";
  template <class V> void Fields(V& v) { MonitorFields(v); }
};

/// What an explicit step prints to its status file. The defaults are the
/// solver's, so that only a change reaches the deck.
struct kprC_ExplicitDiagnosticPrint {
  static constexpr const char* Description = "what the step prints to its status file";
  bool allke = true;
  bool criticalElement = false;
  bool etotal = false;
  bool dmass = false;
  bool operator==(const kprC_ExplicitDiagnosticPrint&) const = default;
  template <class V> void Fields(V& v) {
    v({"kineticEnergy", "true to print the whole model's kinetic energy"}, allke, true);
    v({"criticalElement", "true to print the element with the smallest stable increment"},
      criticalElement, false);
    v({"totalEnergy", "true to print the total energy balance"}, etotal, false);
    v({"massChange", "true to print the change of mass from mass scaling"}, dmass, false);
  }
};

/// What an implicit step prints to its message file; the defaults are the
/// solver's.
struct kprC_StandardDiagnosticPrint {
  static constexpr const char* Description = "what the step prints to its message file";
  bool contact = false;
  int frequency = 1;
  bool modelChange = false;
  bool plasticity = false;
  bool residual = true;
  bool solve = false;
  bool operator==(const kprC_StandardDiagnosticPrint&) const = default;
  template <class V> void Fields(V& v) {
    v({"contact", "true to print contact constraint details"}, contact, false);
    v({"every", "the increments between prints"}, frequency, 1);
    v({"modelChange", "true to print elements removed or added"}, modelChange, false);
    v({"plasticity", "true to print points that yield"}, plasticity, false);
    v({"residual", "true to print the largest residuals"}, residual, true);
    v({"solve", "true to print the equation solver's details"}, solve, false);
  }
};

/// The iterative equation solver's controls of an implicit step: back to the
/// defaults (`reset`), or a tolerance and an iteration limit, 0 for the
/// solver's own.
struct kprC_SolverControls {
  static constexpr const char* Description = "the iterative equation solver's controls";
  bool reset = false;
  double tolerance = 0;
  int maxIterations = 0;
  template <class V> void Fields(V& v) {
    v({"reset", "true to set the controls back to the solver's defaults"}, reset, false);
    v({"tolerance", "the convergence tolerance; 0 for the solver's"}, tolerance, 0.0);
    v({"maxIterations", "the most iterations; 0 for the solver's"}, maxIterations, 0);
  }
};

/// The print of one step, of its solver's class.
using kprC_DiagnosticPrint =
    std::variant<kprC_ExplicitDiagnosticPrint, kprC_StandardDiagnosticPrint>;
