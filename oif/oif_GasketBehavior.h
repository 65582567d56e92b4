#pragma once

#include "base/cow_String.h"
#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

/// "*Gasket behavior, name=" and the name as it stands, for a material that a
/// gasket section uses: only the behaviours a gasket has, in the deck's
/// order ("*Creep", the membrane "*Gasket elasticity",
/// "*Gasket Thickness Behavior", the transverse shear "*Gasket elasticity").
/// Everything else of the material, density and elasticity included, is left
/// out.
class oif_GasketBehavior : public qkw_Keyword {
public:
  oif_GasketBehavior(const cow_String& name, const kmaC_Material& material)
      : name_(name), material_(material) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String name_;
  kmaC_Material material_;
};
