#include "model/database.h"

#include <string>

const ddb_Part& ddb_PartContainer::get(const cow_String& name) const {
  if (!parts_.IsMember(name))
    keydeck::Raise("no part named \"" + std::string(name.View()) + "\"");
  return parts_.ConstGet(name);
}

const ddb_Mesh& ddb_Model::mesh(int index) const {
  for (const auto& [name, instance] : assembly_.instance()) {
    if (!instance->IsPartInstance())
      continue;
    const ddb_PartInstance& partInstance = keydeck::RecordCast<ddb_PartInstance>(*instance);
    if (partInstance.mesh().meshIndex() == index)
      return partInstance.mesh();
  }
  if (index != assembly_.mesh().meshIndex())
    keydeck::Raise("no mesh of index " + std::to_string(index));
  return assembly_.mesh();
}

const ddb_Model& ddb_Ddb::model(const cow_String& name) const {
  if (!models_.IsMember(name))
    keydeck::Raise("no model named \"" + std::string(name.View()) + "\"");
  return models_.ConstGet(name);
}
