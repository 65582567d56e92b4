#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/regions.h"
#include "qkw/qkw_Keyword.h"

class ddb_Assembly;
class ddb_PartInstance;

/// "*Nset": a node set by its labels (sorted, in generate form where it
/// can be), or a set of sets. An empty set writes no card.
class oif_Nset : public qkw_Keyword {
public:
  /// The set's nodes in the assembly's own mesh.
  oif_Nset(const rgnC_SetData& setData, const ddb_Assembly& assembly);
  /// The set's nodes in an instance, written inside the instance's block.
  oif_Nset(const rgnC_SetData& setData, const ddb_PartInstance& instance);
  /// The set's nodes in an instance, written at assembly level with
  /// ", instance=".
  oif_Nset(const rgnC_SetData& setData, const ddb_PartInstance& instance,
           const cow_String& instanceName);
  /// A set made of other sets; it lists their names.
  oif_Nset(const cow_String& name, const cow_List<cow_String>& memberSets);

  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  void WriteMap(utl_Stream& s) const;
  void WriteList(utl_Stream& s) const;

  cow_String setName_;
  cow_String instanceName_;
  keydeck::IndexList labels_;
  cow_List<cow_String> memberSets_;
  bool internal_ = false;
};
