#pragma once

#include "oif/oif_LoadCards.h"
#include "qkw/qkw_Keyword.h"

/// "*Boundary" of a bolt load that acts on the bolt's length: DOF 1 of its
/// reference node, adjusted by the load's magnitude or fixed. A bolt load
/// deactivated, or turned back into a force, writes the keyword line alone.
class oif_BoundaryForBoltLoad : public qkw_Keyword {
public:
  oif_BoundaryForBoltLoad(const keydeck::LoadHandle& load, const cow_String& step,
                          const cow_String& setName, bool opMod, double scale);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String setName_;
  bool opMod_ = false;
  bool deactivate_ = false;
  kloC_BoltLoadMethodEnm method_ = kloC_ApplyForce;
  double adjustment_ = 0; ///< the length adjustment times the scale
};
