#pragma once

#include "qkw/qkw_BuilderComponent.h"

class ddb_Assembly;
class ddb_PartInstance;
class oif_ModelInfo;
class rgnC_SetData;

/// Files the model's sets as deck cards: the sets of each instance's mesh in
/// the instance's block, the sets of the assembly in the assembly section,
/// one card per instance they touch, node and element sets ahead of all
/// surfaces, and then the node-based surfaces that constraints name.
class oif_RegionBuilder : public qkw_BuilderComponent {
public:
  explicit oif_RegionBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;

private:
  void CreateInstanceRegions(const ddb_PartInstance& instance);
  void CreateAssemblyRegions();
  /// One "*Surface, type=NODE" card for each node set that a constraint
  /// names where its card asks for a surface, each name once.
  void CreateContactNodeSets();
  void CreateAssemblySet(const ddb_Assembly& assembly, const rgnC_SetData& data);
  /// The "*Nset" or "*Elset" card of a node or element set in one scope.
  template <class... Scope>
  void AddAssemblySetCard(const rgnC_SetData& data, const Scope&... scope);
};
