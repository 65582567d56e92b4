#include "model/json/region_names.h"

#include "model/json/json_text.h"

#include <algorithm>
#include <string>

namespace keydeck {

namespace {

// The place of the set named `name` in a list in ascending byte order of the
// names, or -1.
int FindSet(const ddb_SetList& sets, std::string_view name) {
  const auto at = std::lower_bound(
      sets.begin(), sets.end(), name,
      [](const ddb_Set& set, std::string_view wanted) { return set.setLabel().View() < wanted; });
  if (at == sets.end() || at->setLabel().View() != name)
    return -1;
  return static_cast<int>(at - sets.begin());
}

rgnC_Region RegionOf(const ddb_SetList& sets, int index, cow_String path) {
  rgnC_Region region;
  region.path = std::move(path);
  region.setIndex = index;
  region.set = sets.ConstGet(index).set();
  return region;
}

} // namespace

bool SplitScopedName(std::string_view scopedName, std::vector<std::string_view>& pieces,
                     std::string& why) {
  pieces.clear();
  std::size_t at = 0;
  while (true) {
    std::size_t end = 0;
    if (at < scopedName.size() && scopedName[at] == '"') {
      const std::size_t close = scopedName.find('"', at + 1);
      if (close == std::string_view::npos) {
        why = "a quote is not closed";
        return false;
      }
      pieces.push_back(scopedName.substr(at + 1, close - at - 1));
      end = close + 1;
      if (end < scopedName.size() && scopedName[end] != '.') {
        why = "quotes must enclose a whole name";
        return false;
      }
    } else {
      end = std::min(scopedName.find('.', at), scopedName.size());
      const std::string_view piece = scopedName.substr(at, end - at);
      if (piece.find('"') != std::string_view::npos) {
        why = "quotes must enclose a whole name";
        return false;
      }
      pieces.push_back(piece);
    }
    if (end >= scopedName.size())
      return true;
    at = end + 1; // past the dot
  }
}

rgnC_Region ResolveRegion(const ddb_Model& model, std::string_view scopedName,
                          std::string_view path, LoadErrors& errors) {
  std::vector<std::string_view> pieces;
  std::string why;
  if (!SplitScopedName(scopedName, pieces, why)) {
    errors.Add(path, "in region name " + QuotedJson(scopedName) + ": " + why);
    return {};
  }
  if (pieces.size() > 2) {
    errors.Add(path, "region name " + QuotedJson(scopedName) + " has " +
                         std::to_string(pieces.size()) +
                         " pieces; a region is \"set\" or \"instance.set\", and a name that "
                         "holds a dot is written in quotes");
    return {};
  }
  const ddb_Assembly& assembly = model.rootAssembly();
  if (pieces.size() == 1) {
    const int index = FindSet(assembly.set(), pieces[0]);
    if (index < 0) {
      errors.Add(path, "no set " + QuotedJson(pieces[0]) + " in the assembly");
      return {};
    }
    return RegionOf(assembly.set(), index, "rootAssembly.setData");
  }
  const cow_String instanceName(pieces[0]);
  if (!assembly.instance().IsMember(instanceName) ||
      !assembly.instance().ConstGet(instanceName).IsPartInstance()) {
    errors.Add(path, "no instance " + QuotedJson(pieces[0]));
    return {};
  }
  const ddb_PartInstance& instance =
      RecordCast<ddb_PartInstance>(assembly.instance().ConstGet(instanceName));
  const int index = FindSet(instance.set(), pieces[1]);
  if (index < 0) {
    errors.Add(path, "no set " + QuotedJson(pieces[1]) + " in instance " + QuotedJson(pieces[0]));
    return {};
  }
  return RegionOf(instance.set(), index,
                  "rootAssembly.mesh[" + cow_String(instance.mesh().meshIndex()) + "].setData");
}

namespace {

// The id of the datum in the assembly's frame whose shortcut is `shortcut`,
// or 0. The parts' datums come first, in their parts' frames, and are not
// among them.
int AssemblyDatumId(const ddb_Model& model, std::string_view shortcut) {
  int partDatums = 0;
  for (const auto& [name, part] : model.parts_.parts_)
    partDatums += part.datums_.Size();
  for (int i = partDatums; i < model.datums_.Size(); ++i)
    if (model.datums_.ConstGet(i).Shortcut().View() == shortcut)
      return i + 1;
  return 0;
}

} // namespace

dtmC_DatumRef ResolveDatum(const ddb_Model& model, std::string_view scopedName,
                           const std::string& path, LoadErrors& errors) {
  std::vector<std::string_view> pieces;
  std::string why;
  int id = 0;
  if (SplitScopedName(scopedName, pieces, why) && pieces.size() <= 2)
    id = AssemblyDatumId(model, pieces.size() == 1
                                    ? std::string(pieces[0])
                                    : std::string(pieces[0]) + "_" + std::string(pieces[1]));
  if (id == 0)
    errors.Add(path, "no datum " + QuotedJson(scopedName) + " in the assembly or its instances");
  return dtmC_DatumRef(id);
}

} // namespace keydeck
