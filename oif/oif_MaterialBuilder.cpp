#include "oif/oif_MaterialBuilder.h"

#include "model/database.h"
#include "oif/oif_Comment.h"
#include "oif/oif_GasketBehavior.h"
#include "oif/oif_Material.h"
#include "oif/oif_ModelInfo.h"

oif_MaterialBuilder::oif_MaterialBuilder(oif_ModelInfo& info) : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_MaterialBuilder::Copy() const { return new oif_MaterialBuilder(*this); }

void oif_MaterialBuilder::Build() {
  const mdl_MapString2ObjCow<kmaC_Material>& materials = keydeck::FacadeOf(*model).Materials();
  if (!materials.Empty())
    AddModelDefinition(oif_Comment("\nMATERIALS\n"));
  for (const auto& [name, material] : materials) { // name order is deck order
    // Gasket behaviours that no gasket section uses are dropped with the
    // gasket: the material is written as an ordinary one.
    if (material->HasGasketOption() && UsedByGasketSection(name))
      AddModelDefinition(oif_GasketBehavior(name, *material));
    else
      AddModelDefinition(oif_Material(name, *material));
  }
}

bool oif_MaterialBuilder::UsedByGasketSection(const cow_String& materialName) const {
  for (const auto& [sectionName, section] : keydeck::FacadeOf(*model).Sections()) {
    if (section->DynTypeId() != kseC_GasketSection::TypeId())
      continue;
    if (keydeck::RecordCast<kseC_GasketSection>(*section).material == materialName)
      return true;
  }
  return false;
}
