#pragma once

#include "base/cow_String.h"
#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

/// "*Material, name=" and the name, quoted where the solver needs it, with
/// the regularisation parameters when they differ from their defaults; then
/// the cards of the material's behaviours in the deck's fixed order, whatever
/// order the model gives them in. A material without behaviours is the one
/// line.
class oif_Material : public qkw_Keyword {
public:
  oif_Material(const cow_String& name, const kmaC_Material& material)
      : name_(name), material_(material) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  void WriteRegularization(utl_Stream& s) const;

  cow_String name_;
  kmaC_Material material_;
};
