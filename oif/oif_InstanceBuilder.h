#pragma once

#include "qkw/qkw_BuilderComponent.h"

class oif_ModelInfo;

/// Fills each "*Instance" block: the instance line with its placement, then
/// the nodes and the elements of the instance's mesh.
class oif_InstanceBuilder : public qkw_BuilderComponent {
public:
  explicit oif_InstanceBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;

private:
  void CreateInstances();
  void CreateMesh();
};
