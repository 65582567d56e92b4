#include "oif/oif_Nset.h"

#include "base/utl_Stream.h"
#include "model/database.h"
#include "model/regions.h"
#include "oif/oif_Set.h"
#include "qkw/qkw_QuorvexName.h"

oif_Nset::oif_Nset(const rgnC_SetData& setData, const ddb_Assembly& assembly)
    : setName_(setData.Name()), labels_(oif_Set(setData, assembly).Members()),
      internal_(setData.Internal()) {}

oif_Nset::oif_Nset(const rgnC_SetData& setData, const ddb_PartInstance& instance)
    : setName_(setData.Name()), labels_(oif_Set(setData, instance).Members()),
      internal_(setData.Internal()) {}

oif_Nset::oif_Nset(const rgnC_SetData& setData, const ddb_PartInstance& instance,
                   const cow_String& instanceName)
    : oif_Nset(setData, instance) {
  instanceName_ = instanceName;
}

oif_Nset::oif_Nset(const cow_String& name, const cow_List<cow_String>& memberSets)
    : setName_(name), memberSets_(memberSets) {}

qkw_Keyword* oif_Nset::Copy() const { return new oif_Nset(*this); }

void oif_Nset::Write(utl_Stream& s) const {
  if (!labels_.Empty())
    WriteMap(s);
  else if (!memberSets_.Empty())
    WriteList(s);
}

void oif_Nset::WriteMap(utl_Stream& s) const {
  oif_Set set(labels_); // sorted here, so the card itself stays as it was
  s << "*Nset, nset=" << qkw_QuorvexName(setName_, false);
  if (!instanceName_.Empty())
    s << ", instance=" << qkw_QuorvexName(instanceName_, false);
  if (internal_)
    s << ", internal";
  if (set.CanGenerate())
    s << ", generate";
  s << endl;
  set.WriteData(s);
}

void oif_Nset::WriteList(utl_Stream& s) const {
  s << "*Nset, nset=" << setName_ << endl;
  oif_Set::WriteMemberSets(s, memberSets_);
}
