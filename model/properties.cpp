#include "model/properties.h"

cow_List<int> bme_MapPropertyArray::ElementIds(int classKey) const {
  const cow_List<bme_Property>& members = ConstGet(classKey);
  cow_List<int> labels = cow_List<int>::WithCapacity(members.Size());
  for (const bme_Property& member : members)
    labels.Append(member.label);
  return labels;
}
