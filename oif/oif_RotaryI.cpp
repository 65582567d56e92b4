#include "oif/oif_RotaryI.h"

#include "base/utl_Stream.h"
#include "model/sections.h"
#include "oif/oif_Mass.h"

#include <algorithm>

// The section holds the tensor's upper triangle by rows; the deck wants the
// diagonal first.
oif_RotaryI::oif_RotaryI(const cow_String& elsetName, const kseC_PointSection& section,
                         const cow_String& orientationName)
    : elsetName_(elsetName), inertia_{section.r0, section.r3, section.r5,
                                      section.r1, section.r2, section.r4},
      alpha_(section.alpha), composite_(section.composite), orientationName_(orientationName) {}

oif_RotaryI::oif_RotaryI(const cow_String& elsetName, const kefC_PointMassInertia& inertia,
                         const cow_String& orientationName)
    : elsetName_(elsetName), inertia_{inertia.i11, inertia.i22, inertia.i33,
                                      inertia.i12, inertia.i13, inertia.i23},
      alpha_(inertia.alpha), composite_(inertia.composite), orientationName_(orientationName) {}

qkw_Keyword* oif_RotaryI::Copy() const { return new oif_RotaryI(*this); }

bool oif_RotaryI::IsEmpty() const {
  return std::all_of(std::begin(inertia_), std::end(inertia_),
                     [](double value) { return value == 0.0; });
}

void oif_RotaryI::Write(utl_Stream& s) const {
  if (IsEmpty())
    return;
  s << "*RotaryI"
    << ", elset=" << elsetName_;
  keydeck::WritePointDamping(s, alpha_, composite_);
  if (!orientationName_.Empty()) {
    s.OptionalLineBreak();
    s << ", orientation=" << orientationName_;
  }
  s.LineBreak();
  for (int i = 0; i < 6; ++i)
    s << (i > 0 ? ", " : "") << inertia_[i];
  s << endl;
}
