#include "oif/oif_BaselineCorrection.h"

#include "base/utl_Stream.h"
#include "oif/oif_Amplitude.h"

qkw_Keyword* oif_BaselineCorrection::Copy() const { return new oif_BaselineCorrection(*this); }

void oif_BaselineCorrection::Write(utl_Stream& s) const {
  s << "*Baseline Correction" << endl;
  keydeck::WriteValueLines(s, record_.correctionIntervals, 8);
}
