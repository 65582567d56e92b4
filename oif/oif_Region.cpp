#include "oif/oif_Region.h"

#include "model/database.h"
#include "oif/oif_Model.h"
#include "oif/oif_SetName.h"

oif_Region::oif_Region(const qkw_Model& model, const rgnC_Region& region) {
  cow_String instanceName;
  const ddb_Set* const set =
      keydeck::FindRegionSet(keydeck::FacadeOf(model).Model(), region, instanceName);
  if (set == nullptr)
    return;
  setName_ = set->setLabel();
  instanceName_ = instanceName;
}

cow_String oif_Region::FullName() const {
  return instanceName_.Empty() ? setName_ : instanceName_ + "." + setName_;
}
