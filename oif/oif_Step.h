#pragma once

#include "base/cow_COW.h"
#include "base/cow_String.h"
#include "model/steps.h"
#include "qkw/qkw_Keyword.h"

/// "*Step, name=" with the step's parameters (geometric nonlinearity, or
/// ", perturbation" for a perturbation procedure; extrapolation, amplitude,
/// the most increments, the matrix storage), then the description line when
/// the step has one. `previousNlgeom` says whether geometric nonlinearity is
/// in force from earlier steps. A procedure the card has no rule for raises
/// "Unimplemented function to write out *Step card" when written.
class oif_Step : public qkw_Keyword {
public:
  oif_Step(const kprC_AnalysisStep& step, bool previousNlgeom, const cow_String& name)
      : step_(step), previousNlgeom_(previousNlgeom), name_(name) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  template <class K> void WriteParameters(utl_Stream& s, const K& step) const;
  void WriteSticky(utl_Stream& s, bool nlgeom) const;
  void WriteDifference(utl_Stream& s, kprC_Step::NlgeomEnm nlgeom) const;

  cow_ArrayCOW<kprC_Step> step_;
  bool previousNlgeom_;
  cow_String name_;
};
