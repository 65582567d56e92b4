#include "oif/oif_SolverControls.h"

#include "base/utl_Stream.h"

qkw_Keyword* oif_SolverControls::Copy() const { return new oif_SolverControls(*this); }

// A step's controls replace those of the step before, so they start from the
// defaults.
void oif_SolverControls::Write(utl_Stream& s) const {
  s << "*Solver Controls, reset" << endl;
  if (record_.reset)
    return;
  s << "*Solver Controls" << endl;
  if (record_.tolerance != 0)
    s << record_.tolerance;
  s << ", ";
  if (record_.maxIterations != 0)
    s << record_.maxIterations;
  s << endl;
}
