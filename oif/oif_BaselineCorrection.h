#pragma once

#include "model/amplitudes.h"
#include "qkw/qkw_Keyword.h"

/// "*Baseline Correction" behind the amplitude it corrects, then the times
/// that bound the correction intervals, eight to a line; with no times, the
/// keyword line alone.
class oif_BaselineCorrection : public qkw_Keyword {
public:
  explicit oif_BaselineCorrection(const kamC_BaselineCorrection& record) : record_(record) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kamC_BaselineCorrection record_;
};
