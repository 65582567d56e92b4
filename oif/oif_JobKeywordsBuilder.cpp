#include "oif/oif_JobKeywordsBuilder.h"

#include "oif/oif_FileHeader.h"
#include "oif/oif_ModelInfo.h"

oif_JobKeywordsBuilder::oif_JobKeywordsBuilder(oif_ModelInfo& info) : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_JobKeywordsBuilder::Copy() const {
  return new oif_JobKeywordsBuilder(*this);
}

void oif_JobKeywordsBuilder::Build() {
  const cow_String& text = keydeck::FacadeOf(*model).Model().topLevelSolverInput();
  if (text.Length() >= 1)
    AddModelDefinition(oif_FileHeader(text));
}
