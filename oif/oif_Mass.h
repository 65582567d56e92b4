#pragma once

#include "base/cow_String.h"
#include "qkw/qkw_Keyword.h"

class kefC_PointMassInertia;
class kseC_PointSection;

/// "*Mass" of an element set of point elements. A mass of 0 writes nothing.
class oif_Mass : public qkw_Keyword {
public:
  oif_Mass(const cow_String& elsetName, const kseC_PointSection& section);
  oif_Mass(const cow_String& elsetName, const kefC_PointMassInertia& inertia);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;
  bool IsEmpty() const override { return mass_ == 0.0; }

private:
  cow_String elsetName_;
  double mass_;
  double alpha_;
  double composite_;
};

namespace keydeck {

/// ", alpha=" and ", composite=" of a point mass or inertia, each left out
/// at 0. The line may break ahead of each comma, not after it.
void WritePointDamping(utl_Stream& s, double alpha, double composite);

} // namespace keydeck
