#include "oif/oif_InstanceBuilder.h"

#include "model/database.h"
#include "oif/oif_ElementFromMesh.h"
#include "oif/oif_Instance.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_Node.h"

oif_InstanceBuilder::oif_InstanceBuilder(oif_ModelInfo& info) : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_InstanceBuilder::Copy() const { return new oif_InstanceBuilder(*this); }

void oif_InstanceBuilder::Build() {
  CreateInstances();
  CreateMesh();
}

void oif_InstanceBuilder::CreateInstances() {
  if (!modelInfo->V6Format())
    return;
  for (const auto& [key, instance] : keydeck::FacadeOf(*model).Instances()) {
    if (instance->IsPartInstance())
      AddInstanceDefinition(key, oif_Instance(keydeck::RecordCast<ddb_PartInstance>(*instance)));
  }
}

void oif_InstanceBuilder::CreateMesh() {
  for (const auto& [key, instance] : keydeck::FacadeOf(*model).Instances()) {
    if (!instance->IsPartInstance())
      continue;
    const ddb_PartInstance& partInstance = keydeck::RecordCast<ddb_PartInstance>(*instance);
    AddInstanceDefinition(key, oif_Node(partInstance, *modelInfo));
    AddInstanceDefinition(key, oif_ElementFromMesh(partInstance, *modelInfo));
  }
  // The connector sections of the assembly, with their wires and behaviours,
  // join here; until they do, the loader refuses a model that has them.
}
