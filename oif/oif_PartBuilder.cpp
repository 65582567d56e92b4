#include "oif/oif_PartBuilder.h"

#include "model/database.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_Part.h"

oif_PartBuilder::oif_PartBuilder(oif_ModelInfo& info) : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_PartBuilder::Copy() const { return new oif_PartBuilder(*this); }

void oif_PartBuilder::Build() {
  if (!modelInfo->V6Format())
    return;
  for (const auto& [key, instance] : keydeck::FacadeOf(*model).Instances()) {
    if (!instance->IsPartInstance())
      continue;
    const cow_String& partName = keydeck::RecordCast<ddb_PartInstance>(*instance).partName();
    if (partsOpened_.AppendUnlessMember(partName))
      AddPartDefinition(partName, oif_Part(partName));
  }
}
