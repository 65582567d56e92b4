#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/regions.h"
#include "qkw/qkw_Keyword.h"

class ddb_Assembly;
class ddb_PartInstance;

/// "*Elset": an element set by its labels (sorted, in generate form where
/// it can be), or a set of sets, which is always internal. An empty set
/// writes no card.
class oif_Elset : public qkw_Keyword {
public:
  /// The set's elements in the assembly's own mesh.
  oif_Elset(const rgnC_SetData& setData, const ddb_Assembly& assembly);
  /// The set's elements in an instance, written inside the instance's block.
  oif_Elset(const rgnC_SetData& setData, const ddb_PartInstance& instance);
  /// The set's elements in an instance, written at assembly level with
  /// ", instance=".
  oif_Elset(const rgnC_SetData& setData, const ddb_PartInstance& instance,
            const cow_String& instanceName);
  /// Labels given directly.
  oif_Elset(const cow_List<int>& labels, cow_String name, cow_String instanceName, bool internal);
  /// A set made of other sets; it lists their names.
  oif_Elset(const cow_String& name, const cow_List<cow_String>& memberSets);

  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  void WriteHead(utl_Stream& s) const;

  cow_String setName_;
  cow_List<cow_String> memberSets_;
  cow_String instanceName_;
  keydeck::IndexList labels_;
  bool internal_ = false;
};
