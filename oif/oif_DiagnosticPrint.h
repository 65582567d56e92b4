#pragma once

#include "model/step_requests.h"
#include "qkw/qkw_Keyword.h"

#include <optional>

/// "*Print" of a step: the print parameters that differ from those in force.
/// The solver keeps a step's print for the steps after it, so the baseline is
/// the print of the step before when it is of the same class, else the
/// solver's defaults.
class oif_DiagnosticPrint : public qkw_Keyword {
public:
  oif_DiagnosticPrint(const kprC_DiagnosticPrint& print,
                      const std::optional<kprC_DiagnosticPrint>& previous)
      : print_(print), previous_(previous) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kprC_DiagnosticPrint print_;
  std::optional<kprC_DiagnosticPrint> previous_;
};
