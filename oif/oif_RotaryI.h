#pragma once

#include "base/cow_String.h"
#include "qkw/qkw_Keyword.h"

class kefC_PointMassInertia;
class kseC_PointSection;

/// "*RotaryI" of an element set of point elements: the six components of
/// the inertia tensor in the deck's order I11, I22, I33, I12, I13, I23. All
/// six 0 write nothing.
class oif_RotaryI : public qkw_Keyword {
public:
  oif_RotaryI(const cow_String& elsetName, const kseC_PointSection& section,
              const cow_String& orientationName);
  oif_RotaryI(const cow_String& elsetName, const kefC_PointMassInertia& inertia,
              const cow_String& orientationName);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;
  bool IsEmpty() const override;
  void SetMoName(const cow_String& orientationName) { orientationName_ = orientationName; }

private:
  cow_String elsetName_;
  double inertia_[6];
  double alpha_;
  double composite_;
  cow_String orientationName_; ///< empty for none
};
