#include "oif/oif_Elset.h"

#include "base/utl_Stream.h"
#include "model/database.h"
#include "model/regions.h"
#include "oif/oif_Set.h"
#include "qkw/qkw_QuorvexName.h"

#include <utility>

oif_Elset::oif_Elset(const rgnC_SetData& setData, const ddb_Assembly& assembly)
    : setName_(setData.Name()), labels_(oif_Set(setData, assembly).Members()),
      internal_(setData.Internal()) {}

oif_Elset::oif_Elset(const rgnC_SetData& setData, const ddb_PartInstance& instance)
    : setName_(setData.Name()), labels_(oif_Set(setData, instance).Members()),
      internal_(setData.Internal()) {}

oif_Elset::oif_Elset(const rgnC_SetData& setData, const ddb_PartInstance& instance,
                     const cow_String& instanceName)
    : oif_Elset(setData, instance) {
  instanceName_ = instanceName;
}

oif_Elset::oif_Elset(const cow_List<int>& labels, cow_String name, cow_String instanceName,
                     bool internal)
    : setName_(std::move(name)), instanceName_(std::move(instanceName)), labels_(labels),
      internal_(internal) {}

oif_Elset::oif_Elset(const cow_String& name, const cow_List<cow_String>& memberSets)
    : setName_(name), memberSets_(memberSets), internal_(true) {}

qkw_Keyword* oif_Elset::Copy() const { return new oif_Elset(*this); }

void oif_Elset::WriteHead(utl_Stream& s) const {
  s << "*Elset, elset=" << qkw_QuorvexName(setName_, false);
  if (!instanceName_.Empty())
    s << ", instance=" << qkw_QuorvexName(instanceName_, false);
  if (internal_)
    s << ", internal";
}

void oif_Elset::Write(utl_Stream& s) const {
  if (!labels_.Empty()) {
    oif_Set set(labels_);
    WriteHead(s);
    if (set.CanGenerate())
      s << ", generate";
    s << endl;
    set.WriteData(s);
    return;
  }
  if (memberSets_.Empty())
    return;
  WriteHead(s);
  s << endl;
  oif_Set::WriteMemberSets(s, memberSets_);
}
