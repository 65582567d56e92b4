#include "oif/oif_SetName.h"

#include "model/database.h"
#include "model/regions.h"
#include "oif/oif_Model.h"
#include "qkw/qkw_ModelInfo.h"
#include "qkw/qkw_QuorvexName.h"

#include <cstdlib>
#include <string>

oif_SetName::oif_SetName(const cow_String& scopedName, bool) {
  const cow_List<cow_String> pieces = SplitScopedSet(scopedName);
  if (pieces.Size() > 3)
    return;
  setName_ = pieces.ConstGet(pieces.Size() - 1);
  if (pieces.Size() >= 2)
    instanceName_ = pieces.ConstGet(pieces.Size() - 2);
}

namespace keydeck {

const ddb_Set* FindRegionSet(const ddb_Model& model, const rgnC_Region& region,
                             cow_String& instanceName) {
  if (!region.HasSet())
    return nullptr;
  const ddb_Assembly& assembly = model.rootAssembly();
  const cow_String& path = region.Path();
  const int meshAt = path.Find(".mesh[");
  const auto inList = [&](const ddb_SetList& sets) {
    return region.SetIndex() >= 0 && region.SetIndex() < sets.Size()
               ? &sets.UncheckedConstGet(region.SetIndex())
               : nullptr;
  };
  if (meshAt < 0)
    return inList(assembly.set());
  const int meshIndex = std::atoi(path.CStr() + meshAt + 6);
  for (const auto& [key, instance] : assembly.instance()) {
    if (!instance->IsPartInstance())
      continue;
    const ddb_PartInstance& partInstance = RecordCast<ddb_PartInstance>(*instance);
    if (partInstance.mesh().meshIndex() != meshIndex)
      continue;
    instanceName = partInstance.name();
    return inList(partInstance.set());
  }
  return nullptr;
}

} // namespace keydeck

oif_SetName::oif_SetName(const rgnC_Region& region, const qkw_ModelInfo& info) {
  cow_String instanceName;
  const ddb_Set* const set =
      keydeck::FindRegionSet(keydeck::FacadeOf(info.Model()).Model(), region, instanceName);
  if (set == nullptr)
    return;
  setName_ = set->setLabel();
  instanceName_ = instanceName;
  nodeSet_ = set->setType() == res_NodeSet;
}

cow_String oif_SetName::ScopedText(regionContext context) const {
  cow_String text;
  if (context == AssemblyScope && !instanceName_.Empty())
    text = instanceName_ + ".";
  return text + setName_;
}

cow_String oif_SetName::UniqueSetName(regionContext context) const {
  return QuoteIfNeeded(ScopedText(context));
}

cow_String oif_SetName::UniqueSetName(cow_String name, regionContext context) const {
  setName_ = name;
  return UniqueSetName(context);
}

cow_String oif_SetName::UniqueSurfaceName(regionContext context) const {
  cow_String text = ScopedText(context);
  if (nodeSet_) {
    text.Substitute(".", "_");
    text += "_CNS_";
  }
  return QuoteIfNeeded(text);
}

bool oif_SetName::IsQuoted(cow_String name) {
  return name.Length() > 2 && name[0] == '"' && name[name.Length() - 1] == '"';
}

cow_String oif_SetName::Unquote(cow_String name) {
  return IsQuoted(name) ? name.Substr(1, name.Length() - 2) : name;
}

cow_List<cow_String> oif_SetName::SplitOnDots(const cow_String& name) {
  cow_List<cow_String> pieces;
  int start = 0;
  for (int at = name.Find("."); at >= 0; at = name.Find(".", start)) {
    pieces.Append(name.Substr(start, at - start));
    start = at + 1;
  }
  pieces.Append(name.Substr(start, name.Length() - start));
  return pieces;
}

void oif_SetName::SplitName(const cow_String& name, cow_String& prefix, cow_String& last) {
  if (name.Empty())
    return;
  const cow_List<cow_String> pieces = SplitOnDots(name);
  last = pieces.ConstGet(pieces.Size() - 1);
  prefix = cow_String();
  for (int i = 0; i + 1 < pieces.Size(); ++i)
    prefix += pieces.ConstGet(i) + ".";
}

cow_String oif_SetName::QuoteIfNeeded(cow_String name) {
  const auto quoted = [](const cow_String& piece) {
    return IsQuoted(piece) ? piece : qkw_QuorvexName(piece, false).Printable();
  };
  cow_String prefix;
  cow_String last;
  SplitName(name, prefix, last);
  const cow_List<cow_String> pieces = SplitOnDots(name);
  cow_String result;
  for (int i = 0; i + 1 < pieces.Size(); ++i)
    result += quoted(pieces.ConstGet(i)) + ".";
  return result + quoted(last);
}

cow_List<cow_String> oif_SetName::SplitScopedSet(const cow_String& text) {
  cow_List<cow_String> pieces;
  bool inQuotes = false;
  int start = 0;
  for (int i = 0; i < text.Length(); ++i) {
    if (text[i] == '"')
      inQuotes = !inQuotes;
    else if (text[i] == '.' && !inQuotes) {
      pieces.Append(text.Substr(start, i - start));
      start = i + 1;
    }
  }
  pieces.Append(text.Substr(start, text.Length() - start));
  return pieces;
}

cow_String oif_getLabel(int face) {
  if (face > 1000)
    return "S" + cow_String(face % 1000);
  if (face > 100)
    return "E" + cow_String(face % 100);
  if (face > 10)
    return "S" + cow_String(face % 10);
  if (face >= 1)
    return "END" + cow_String(face);
  return cow_String();
}
