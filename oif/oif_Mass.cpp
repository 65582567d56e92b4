#include "oif/oif_Mass.h"

#include "base/utl_Stream.h"
#include "model/sections.h"

oif_Mass::oif_Mass(const cow_String& elsetName, const kseC_PointSection& section)
    : elsetName_(elsetName), mass_(section.mass), alpha_(section.alpha),
      composite_(section.composite) {}

oif_Mass::oif_Mass(const cow_String& elsetName, const kefC_PointMassInertia& inertia)
    : elsetName_(elsetName), mass_(inertia.mass), alpha_(inertia.alpha),
      composite_(inertia.composite) {}

qkw_Keyword* oif_Mass::Copy() const { return new oif_Mass(*this); }

void oif_Mass::Write(utl_Stream& s) const {
  if (IsEmpty())
    return;
  s << "*Mass"
    << ", elset=" << elsetName_;
  keydeck::WritePointDamping(s, alpha_, composite_);
  s.LineBreak();
  s << mass_ << ", " << endl; // the line keeps its trailing separator
}

void keydeck::WritePointDamping(utl_Stream& s, double alpha, double composite) {
  if (alpha != 0.0) {
    s.OptionalLineBreak();
    s << ", alpha=" << alpha;
  }
  if (composite != 0.0) {
    s.OptionalLineBreak();
    s << ", composite=" << composite;
  }
}
