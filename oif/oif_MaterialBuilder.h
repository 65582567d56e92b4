#pragma once

#include "qkw/qkw_BuilderComponent.h"

class cow_String;
class oif_ModelInfo;

/// Files the model's materials in the model definitions, in ascending order
/// of name, under the comment "MATERIALS" (none without materials). Each
/// material is one card: a "*Gasket behavior" when it has a gasket behaviour
/// and a gasket section uses it, a "*Material" otherwise.
class oif_MaterialBuilder : public qkw_BuilderComponent {
public:
  explicit oif_MaterialBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;

private:
  bool UsedByGasketSection(const cow_String& materialName) const;
};
