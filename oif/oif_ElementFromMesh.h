#pragma once

#include "base/cow_COW.h"
#include "base/cow_List.h"
#include "base/cow_Map.h"
#include "base/cow_String.h"
#include "model/database.h"
#include "qkw/qkw_Keyword.h"

class qkw_ModelInfo;

/// The elements of an instance: one "*Element, type=" line per element type
/// with the blocks of all classes of that type below it, types in the order
/// of the map that groups them. Classes of a "SURF" type are not written.
class oif_ElementFromMesh : public qkw_Keyword {
public:
  oif_ElementFromMesh(const ddb_PartInstance& instance, const qkw_ModelInfo& info);

  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  using CardsByType = cow_Map<cow_String, cow_List<cow_ArrayCOW<qkw_Keyword>>>;
  void AddKeyword(const cow_String& type, const qkw_Keyword& card, CardsByType& byType) const;

  const qkw_ModelInfo* info_;
  ddb_PartInstance instance_;
};
