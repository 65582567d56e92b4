#include "oif/oif_RegionBuilder.h"

#include "model/constraints.h"
#include "model/database.h"
#include "model/regions.h"
#include "oif/oif_Elset.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_Nset.h"
#include "oif/oif_SetName.h"
#include "oif/oif_Surface.h"

oif_RegionBuilder::oif_RegionBuilder(oif_ModelInfo& info) : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_RegionBuilder::Copy() const { return new oif_RegionBuilder(*this); }

void oif_RegionBuilder::Build() {
  for (const auto& [key, instance] : keydeck::FacadeOf(*model).Instances()) {
    if (instance->IsPartInstance())
      CreateInstanceRegions(keydeck::RecordCast<ddb_PartInstance>(*instance));
  }
  CreateAssemblyRegions();
  CreateContactNodeSets();
}

void oif_RegionBuilder::CreateInstanceRegions(const ddb_PartInstance& instance) {
  for (const ddb_Set& set : instance.mesh().set()) {
    switch (set.setType()) {
    case res_NodeSet:
      AddInstanceDefinition(instance.name(), oif_Nset(set.set(), instance));
      break;
    case res_ElementSet:
      AddInstanceDefinition(instance.name(), oif_Elset(set.set(), instance));
      break;
    case res_FacetSet:
      AddInstanceDefinition(instance.name(), oif_Surface(set.set(), instance));
      break;
    }
  }
}

void oif_RegionBuilder::CreateAssemblyRegions() {
  const ddb_Assembly& assembly = keydeck::FacadeOf(*model).Model().rootAssembly();
  for (const ddb_Set& set : assembly.set())
    if (set.setType() != res_FacetSet)
      CreateAssemblySet(assembly, set.set());
  // All node and element sets of the assembly stand ahead of its surfaces.
  for (const ddb_Set& set : assembly.set())
    if (set.setType() == res_FacetSet)
      AddAssemblyDefinition(oif_Surface(set.set(), assembly));
}

void oif_RegionBuilder::CreateContactNodeSets() {
  cow_List<cow_String> surfacesDone;
  for (const auto& [name, constraint] : keydeck::FacadeOf(*model).Constraints()) { // name order
    for (const rgnC_Region& region : constraint->NodeSurfaceRegions()) {
      const oif_SetName names(region, *modelInfo);
      const cow_String surfaceName = names.UniqueSurfaceName(oif_SetName::AssemblyScope);
      if (surfacesDone.AppendUnlessMember(surfaceName))
        AddAssemblyDefinition(
            oif_Surface(*modelInfo, surfaceName, names.UniqueSetName(oif_SetName::AssemblyScope)));
    }
  }
}

void oif_RegionBuilder::CreateAssemblySet(const ddb_Assembly& assembly, const rgnC_SetData& data) {
  // One card per instance (or the assembly's own mesh) that the set touches,
  // in the order of the set's subsets.
  cow_List<cow_String> scopesDone;
  for (int i = 0; i < data.NumSubsets(); ++i) {
    const int meshIndex = data.SubSet(i).MeshIndex();
    for (const auto& [key, instance] : assembly.instance()) {
      if (!instance->IsPartInstance())
        continue;
      const ddb_PartInstance& partInstance = keydeck::RecordCast<ddb_PartInstance>(*instance);
      if (partInstance.mesh().meshIndex() == meshIndex && scopesDone.AppendUnlessMember(key))
        AddAssemblySetCard(data, partInstance, key);
    }
    if (meshIndex == assembly.mesh().meshIndex() && scopesDone.AppendUnlessMember(""))
      AddAssemblySetCard(data, assembly);
  }
}

template <class... Scope>
void oif_RegionBuilder::AddAssemblySetCard(const rgnC_SetData& data, const Scope&... scope) {
  if (data.SetType() == res_NodeSet)
    AddAssemblyDefinition(oif_Nset(data, scope...));
  else
    AddAssemblyDefinition(oif_Elset(data, scope...));
}
