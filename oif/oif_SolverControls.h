#pragma once

#include "model/step_requests.h"
#include "qkw/qkw_Keyword.h"

/// "*Solver Controls" of a step: the controls set back to the defaults, and
/// unless that is all, the tolerance and iteration limit, blank where the
/// solver's own hold.
class oif_SolverControls : public qkw_Keyword {
public:
  explicit oif_SolverControls(const kprC_SolverControls& record) : record_(record) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_SolverControls record_;
};
