#include "model/json/derive.h"

#include "base/large_lists.h"
#include "model/json/derive_boundary_conditions.h"
#include "model/json/derive_constraints.h"
#include "model/json/derive_fields.h"
#include "model/json/derive_loads.h"
#include "model/json/derive_orientations.h"
#include "model/json/derive_output.h"
#include "model/json/derive_sections.h"
#include "model/json/json_text.h"
#include "model/json/region_names.h"
#include "model/propagation.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <map>
#include <numbers>
#include <optional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace keydeck {

namespace {

// Finds the position of a label among the labels of a mesh. Labels numbered
// in order (each one more than the one before, as usual) need no table at
// all; other labels that lie close together are found through a table over
// their range, scattered ones through an open-addressing hash table. Nothing
// allocates per label.
class LabelIndex {
public:
  // Indexes the labels of `lists`, one list after the other, positions
  // counting on from list to list. Calls `duplicate(list, item, label,
  // position)` for each label seen before, with the position it had first.
  template <class Duplicate>
  void Build(std::span<const cow_List<int>* const> lists, Duplicate&& duplicate);
  // The position of the first label of `range` when every label of it is
  // there and positions step as labels do (labels numbered in order);
  // otherwise -1.
  int SteppedStart(const LabelRange& range) const {
    const std::int64_t steps =
        (static_cast<std::int64_t>(range.Last()) - range.First()) / range.Step();
    const std::int64_t last = range.First() + steps * range.Step();
    const bool inside = range.First() >= lowest_ && last - lowest_ < count_;
    return layout_ == Layout::Ordered && inside ? static_cast<int>(range.First() - lowest_) : -1;
  }
  // The position of `label`, or -1.
  int Find(int label) const {
    const std::uint64_t offset = Offset(label);
    if (layout_ == Layout::Ordered)
      return offset < static_cast<std::uint64_t>(count_) ? static_cast<int>(offset) : -1;
    if (layout_ == Layout::Dense)
      return offset < slots_.size() ? slots_[offset] : -1;
    for (std::size_t at = Hash(label);; at = (at + 1) & mask_) {
      if (slots_[at] < 0 || labels_[at] == label)
        return slots_[at];
    }
  }
  // Writes the position of each of the `count` labels to `out`, -1 for a
  // label that is not there; returns how many are not.
  std::size_t FindAll(const int* labels, std::size_t count, int* out) const;

private:
  enum class Layout { Ordered, Dense, Hashed };

  std::uint64_t Offset(int label) const {
    return static_cast<std::uint64_t>(static_cast<std::int64_t>(label) - lowest_);
  }
  std::size_t Hash(int label) const {
    return static_cast<std::size_t>(
        (static_cast<std::uint64_t>(static_cast<std::uint32_t>(label)) * 0x9E3779B97F4A7C15u) >>
        shift_);
  }
  // Sizes the table for `count` labels between `lowest` and `highest`.
  void Reserve(std::int64_t count, int lowest, int highest);
  // Enters `label` at `position`; returns the position that already has it, or -1.
  int Insert(int label, int position);

  Layout layout_ = Layout::Ordered;
  std::int64_t count_ = 0;
  std::int64_t lowest_ = 0;
  std::vector<int> slots_;  // positions; -1 for none
  std::vector<int> labels_; // hash table only: the label in each slot
  std::size_t mask_ = 0;
  int shift_ = 64;
};

// What one pass over labels learns before they are indexed: their range and
// whether they run in order from the first.
struct LabelSurvey {
  std::int64_t count = 0;
  std::int64_t first = 0;
  int lowest = INT_MAX;
  int highest = INT_MIN;
  bool ordered = true;

  void Add(const cow_List<int>& list) {
    if (list.Empty())
      return;
    if (count == 0)
      first = list.UncheckedConstGet(0);
    const int* const labels = list.GetCArray();
    const std::int64_t next = first + count; // the label that would continue the order
    bool inOrder = true;
    int low = lowest;
    int high = highest;
    for (int i = 0; i < list.Size(); ++i) {
      low = std::min(low, labels[i]);
      high = std::max(high, labels[i]);
      inOrder &= labels[i] == next + i;
    }
    lowest = low;
    highest = high;
    ordered = ordered && inOrder;
    count += list.Size();
  }
};

template <class Duplicate>
void LabelIndex::Build(std::span<const cow_List<int>* const> lists, Duplicate&& duplicate) {
  LabelSurvey survey;
  for (const cow_List<int>* list : lists)
    survey.Add(*list);
  count_ = survey.count;
  if (survey.ordered) { // no label can repeat
    layout_ = Layout::Ordered;
    lowest_ = survey.first;
    return;
  }
  Reserve(survey.count, survey.lowest, survey.highest);
  int position = 0;
  for (std::size_t k = 0; k < lists.size(); ++k) {
    const cow_List<int>& list = *lists[k];
    for (int i = 0; i < list.Size(); ++i, ++position) {
      const int label = list.UncheckedConstGet(i);
      if (const int first = Insert(label, position); first >= 0) [[unlikely]]
        duplicate(k, i, label, first);
    }
  }
}

void LabelIndex::Reserve(std::int64_t count, int lowest, int highest) {
  const std::int64_t range = static_cast<std::int64_t>(highest) - lowest + 1;
  if (range <= 2 * count + 1024) {
    layout_ = Layout::Dense;
    lowest_ = lowest;
    slots_.assign(static_cast<std::size_t>(range), -1);
    return;
  }
  layout_ = Layout::Hashed;
  int bits = 4;
  while ((std::size_t{1} << bits) < 2 * static_cast<std::size_t>(count))
    ++bits;
  shift_ = 64 - bits;
  mask_ = (std::size_t{1} << bits) - 1;
  slots_.assign(mask_ + 1, -1);
  labels_.assign(mask_ + 1, 0);
}

int LabelIndex::Insert(int label, int position) {
  if (layout_ == Layout::Dense) {
    int& slot = slots_[Offset(label)];
    if (slot >= 0)
      return slot;
    slot = position;
    return -1;
  }
  for (std::size_t at = Hash(label);; at = (at + 1) & mask_) {
    if (slots_[at] < 0) {
      slots_[at] = position;
      labels_[at] = label;
      return -1;
    }
    if (labels_[at] == label)
      return slots_[at];
  }
}

std::size_t LabelIndex::FindAll(const int* labels, std::size_t count, int* out) const {
  std::size_t missing = 0;
  if (layout_ == Layout::Ordered) { // a loop without a table, which the compiler vectorises
    for (std::size_t i = 0; i < count; ++i) {
      const std::uint64_t offset = Offset(labels[i]);
      const bool inside = offset < static_cast<std::uint64_t>(count_);
      out[i] = inside ? static_cast<int>(offset) : -1;
      missing += inside ? 0 : 1;
    }
    return missing;
  }
  for (std::size_t i = 0; i < count; ++i) {
    out[i] = Find(labels[i]);
    missing += out[i] < 0 ? 1 : 0;
  }
  return missing;
}

std::string Count(int count, std::string_view thing) {
  return std::to_string(count) + " " + std::string(thing) + (count == 1 ? "" : "s");
}

std::string ElementLabelPath(const std::vector<int>& classStarts, int position) {
  int k = 0;
  while (k + 1 < static_cast<int>(classStarts.size()) && classStarts[k + 1] <= position)
    ++k;
  return "elements/" + std::to_string(k) + "/labels/" + std::to_string(position - classStarts[k]);
}

// "8", "2 or 3", "21 to 27": the node counts of a type, for messages.
std::string NodeCounts(const shp_Shape& shape) {
  const std::string fewest = std::to_string(shape.fewestNodes);
  if (shape.mostNodes == shape.fewestNodes)
    return fewest;
  return fewest + (shape.mostNodes == shape.fewestNodes + 1 ? " or " : " to ") +
         std::to_string(shape.mostNodes);
}

// The label indices of a part, built once and shared by its connectivity, its
// sets and surfaces, and the assembly's sets and surfaces on its instances.
struct PartLabels {
  LabelIndex nodes;
  LabelIndex elements;          // positions over all classes of the part, in class order
  std::vector<int> classStarts; // the position of each class's first element
  std::vector<shp_Shape> shapes;
  std::vector<cow_String> types;

  // The class of the element at `position`. Empty classes share their start
  // with the next class, so the last class that starts at or before the
  // position is the one.
  int ClassOf(int position) const {
    return static_cast<int>(std::upper_bound(classStarts.begin(), classStarts.end(), position) -
                            classStarts.begin()) -
           1;
  }
};

class MeshDeriver {
public:
  MeshDeriver(std::string_view partPath, ddb_Mesh& mesh, PartLabels& labels, LoadErrors& errors)
      : path_(partPath), mesh_(mesh), labels_(labels), errors_(errors) {}

  void Run() {
    CheckNodeCounts();
    IndexNodes();
    IndexElementLabels();
    for (int k = 0; k < mesh_.elements.classes.Size(); ++k)
      DeriveClass(k, mesh_.elements.classes.Get(k));
  }

private:
  void Error(const std::string& where, std::string_view what) {
    if (!errors_.Keeping()) {
      errors_.Add({}, {});
      return;
    }
    errors_.Add(path_ + "/" + where, what);
  }

  void CheckNodeCounts() {
    const int labels = mesh_.nodes.labels.Size();
    const int coordinates = mesh_.nodes.coordinates.Size();
    if (labels != coordinates)
      Error("nodes", Count(labels, "node label") + " but " + Count(coordinates, "coordinate row"));
  }

  void IndexNodes() {
    const cow_List<int>* const labels[] = {&mesh_.nodes.labels};
    labels_.nodes.Build(labels, [&](std::size_t, int i, int label, int first) {
      Error("nodes/labels/" + std::to_string(i), "duplicate node label " + std::to_string(label) +
                                                     ", also at index " + std::to_string(first));
    });
  }

  void IndexElementLabels() {
    const cow_List<ddb_ElementClass>& classes = mesh_.elements.classes;
    std::vector<int>& classStarts = labels_.classStarts;
    std::vector<const cow_List<int>*> labels;
    int count = 0;
    for (const ddb_ElementClass& elementClass : classes) {
      classStarts.push_back(count);
      count += elementClass.labels.Size();
      labels.push_back(&elementClass.labels);
      labels_.shapes.push_back(elementClass.shape());
      labels_.types.push_back(elementClass.type);
    }
    labels_.elements.Build(labels, [&](std::size_t k, int i, int label, int first) {
      Error("elements/" + std::to_string(k) + "/labels/" + std::to_string(i),
            "duplicate element label " + std::to_string(label) + ", also at " +
                ElementLabelPath(classStarts, first));
    });
  }

  void DeriveClass(int k, ddb_ElementClass& elementClass) {
    const cow_2DArray<int>& connectivity = elementClass.connectivity;
    const int rows = connectivity.Rows();
    const int cols = connectivity.Cols();
    if (elementClass.labels.Size() != rows)
      Error("elements/" + std::to_string(k), Count(elementClass.labels.Size(), "element label") +
                                                 " but " + Count(rows, "connectivity row"));
    const shp_Shape& shape = labels_.shapes[static_cast<std::size_t>(k)];
    if (shape.nodes > 0 && rows > 0 && (cols < shape.fewestNodes || cols > shape.mostNodes))
      Error("elements/" + std::to_string(k) + "/connectivity",
            "type " + std::string(elementClass.type.View()) + " has " + NodeCounts(shape) +
                " nodes, rows have " + std::to_string(cols));
    const std::size_t count = static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
    cow_List<int> indices = LargeList<int>(static_cast<int>(count));
    if (count > 0) {
      const int* const labels = &connectivity.ConstGet(0, 0);
      int* const out = &indices.Get(0);
      if (labels_.nodes.FindAll(labels, count, out) > 0) [[unlikely]]
        UnknownNodes(k, labels, out, count, cols);
    }
    elementClass.nodeIndices = std::move(indices);
  }

  // Reports each label of the connectivity that is no node; its index
  // becomes 0, so that the indices stay usable.
  [[gnu::cold]] void UnknownNodes(int k, const int* labels, int* indices, std::size_t count,
                                  int cols) {
    const std::size_t width = static_cast<std::size_t>(cols);
    for (std::size_t at = 0; at < count; ++at) {
      if (indices[at] >= 0)
        continue;
      indices[at] = 0;
      Error("elements/" + std::to_string(k) + "/connectivity/" + std::to_string(at / width) + "/" +
                std::to_string(at % width),
            "no node " + std::to_string(labels[at]) + " in the part");
    }
  }

  std::string path_;
  ddb_Mesh& mesh_;
  PartLabels& labels_;
  LoadErrors& errors_;
};

// The members of one set, gathered by mesh and element class: one subset per
// pair, in the order in which the pairs first appear (or in class order).
// Labels of one class tend to come together, so the pair of the last member
// is tried before the table.
class SubsetCollector {
public:
  // Makes the subset of the pair exist, so that a set whose list is empty
  // still has it.
  void Open(int meshIndex, int classIndex) { Find(meshIndex, classIndex); }
  void Add(int meshIndex, int classIndex, int index) {
    Find(meshIndex, classIndex).indices.Append(index);
  }
  // Adds `count` indices from `first` on, `step` apart.
  void AddStepped(int meshIndex, int classIndex, int first, int step, int count) {
    Find(meshIndex, classIndex).indices.AppendStepped(first, step, count);
  }
  void Add(int meshIndex, int classIndex, int index, int facetId) {
    Pending& pending = Find(meshIndex, classIndex);
    pending.indices.Append(index);
    pending.facetIds.Append(facetId);
  }
  // The subsets in the order in which their pairs first appeared or, with
  // `byClass`, in class order.
  cow_List<rgnC_SubsetData> Take(bool byClass);

private:
  struct Pending {
    int meshIndex;
    int classIndex;
    IndexListBuilder indices; // a range stays three numbers
    IndexListBuilder facetIds;
  };

  Pending& Find(int meshIndex, int classIndex) {
    if (last_ < pending_.size() && pending_[last_].meshIndex == meshIndex &&
        pending_[last_].classIndex == classIndex) [[likely]]
      return pending_[last_];
    const std::uint64_t mesh = static_cast<std::uint32_t>(meshIndex);
    const std::uint64_t key = mesh << 32 | static_cast<std::uint32_t>(classIndex);
    const auto [at, added] = places_.try_emplace(key, pending_.size());
    if (added)
      pending_.push_back({meshIndex, classIndex, {}, {}});
    last_ = at->second;
    return pending_[last_];
  }

  std::vector<Pending> pending_;
  std::unordered_map<std::uint64_t, std::size_t> places_;
  std::size_t last_ = 0;
};

cow_List<rgnC_SubsetData> SubsetCollector::Take(bool byClass) {
  if (byClass)
    std::stable_sort(pending_.begin(), pending_.end(), [](const Pending& a, const Pending& b) {
      return a.classIndex < b.classIndex;
    });
  cow_List<rgnC_SubsetData> subsets =
      cow_List<rgnC_SubsetData>::WithCapacity(static_cast<int>(pending_.size()));
  for (Pending& pending : pending_) {
    rgnC_SubsetData subset;
    subset.meshIndex = pending.meshIndex;
    subset.classIndex = pending.classIndex;
    subset.indices = pending.indices.Take();
    subset.facetIds = pending.facetIds.Take();
    subsets.Append(std::move(subset));
  }
  pending_.clear();
  places_.clear();
  return subsets;
}

// Where the labels of a set are looked up: the indices of a part, the mesh
// index its subsets get, and the words that name the place in messages ("the
// part", "instance "Link-1"").
struct LabelScope {
  const PartLabels* labels;
  int meshIndex;
  std::string where;
};

// Turns the sets and surfaces of a part or of the assembly, as the file gives
// them, into the set data that the writer reads.
class SetDeriver {
public:
  explicit SetDeriver(LoadErrors& errors) : errors_(errors) {}

  std::optional<ddb_Set> PartSetOf(const cow_String& name, const PartSet& set,
                                   const LabelScope& scope, const std::string& path) {
    if (!IsOneOf(set.nodes.has_value(), set.elements.has_value(), "a set", "nodes", "elements",
                 path))
      return std::nullopt;
    SubsetCollector members;
    ddb_Set out = Named(name, set.internal, set.nodes ? res_NodeSet : res_ElementSet);
    if (set.nodes) {
      AddNodes(*set.nodes, scope, path + "/nodes", members);
    } else {
      AddElements(*set.elements, scope, path + "/elements", members);
    }
    out.data.subsets = members.Take(/*byClass=*/true);
    return out;
  }

  std::optional<ddb_Set> PartSurfaceOf(const cow_String& name, const PartSurface& surface,
                                       const LabelScope& scope, const std::string& path) {
    if (!IsOneOf(surface.faces.has_value(), surface.nodes.has_value(), "a surface", "faces",
                 "nodes", path))
      return std::nullopt;
    SubsetCollector members;
    ddb_Set out = Named(name, surface.internal, surface.faces ? res_FacetSet : res_NodeSet);
    if (surface.nodes) {
      AddNodes(*surface.nodes, scope, path + "/nodes", members);
    } else {
      for (int i = 0; i < surface.faces->Size(); ++i) {
        const FaceLabels& entry = surface.faces->UncheckedConstGet(i);
        AddFaces(entry.face, entry.elements, scope, path + "/faces/" + std::to_string(i), members);
      }
    }
    out.data.subsets = members.Take(/*byClass=*/false);
    return out;
  }

  // `scopeOf(instance, path)` gives the scope of an instance of the
  // assembly, or null (after reporting what is wrong, if anything).
  template <class ScopeOf>
  std::optional<ddb_Set> AssemblySetOf(const cow_String& name, const AssemblySet& set,
                                       ScopeOf&& scopeOf, const std::string& path) {
    if (!IsOneOf(set.nodes.has_value(), set.elements.has_value(), "a set", "nodes", "elements",
                 path))
      return std::nullopt;
    SubsetCollector members;
    ddb_Set out = Named(name, set.internal, set.nodes ? res_NodeSet : res_ElementSet);
    const std::string listPath = path + (set.nodes ? "/nodes/" : "/elements/");
    const cow_List<InstanceLabels>& entries = set.nodes ? *set.nodes : *set.elements;
    for (int i = 0; i < entries.Size(); ++i) {
      const InstanceLabels& entry = entries.UncheckedConstGet(i);
      const std::string entryPath = listPath + std::to_string(i);
      const LabelScope* const scope = scopeOf(entry.instance, entryPath + "/instance");
      if (scope == nullptr)
        continue;
      if (set.nodes) {
        AddNodes(entry.labels, *scope, entryPath + "/labels", members);
      } else {
        AddElements(entry.labels, *scope, entryPath + "/labels", members);
      }
    }
    out.data.subsets = members.Take(/*byClass=*/false);
    return out;
  }

  template <class ScopeOf>
  std::optional<ddb_Set> AssemblySurfaceOf(const cow_String& name, const AssemblySurface& surface,
                                           ScopeOf&& scopeOf, const std::string& path) {
    if (!IsOneOf(surface.faces.has_value(), surface.nodes.has_value(), "a surface", "faces",
                 "nodes", path))
      return std::nullopt;
    SubsetCollector members;
    ddb_Set out = Named(name, surface.internal, surface.faces ? res_FacetSet : res_NodeSet);
    if (surface.nodes) {
      for (int i = 0; i < surface.nodes->Size(); ++i) {
        const InstanceLabels& entry = surface.nodes->UncheckedConstGet(i);
        const std::string entryPath = path + "/nodes/" + std::to_string(i);
        if (const LabelScope* const scope = scopeOf(entry.instance, entryPath + "/instance")) {
          AddNodes(entry.labels, *scope, entryPath + "/labels", members);
        }
      }
    } else {
      for (int i = 0; i < surface.faces->Size(); ++i) {
        const InstanceFaceLabels& entry = surface.faces->UncheckedConstGet(i);
        const std::string entryPath = path + "/faces/" + std::to_string(i);
        if (const LabelScope* const scope = scopeOf(entry.instance, entryPath + "/instance"))
          AddFaces(entry.face, entry.elements, *scope, entryPath, members);
      }
    }
    out.data.subsets = members.Take(/*byClass=*/false);
    return out;
  }

private:
  static ddb_Set Named(const cow_String& name, bool internal, res_SetTypeEnm type) {
    ddb_Set set;
    set.data.name = name;
    set.data.internal = internal;
    set.data.type = type;
    return set;
  }

  void Error(const std::string& path, std::string_view what) {
    if (!errors_.Keeping()) {
      errors_.Add({}, {});
      return;
    }
    errors_.Add(path, what);
  }

  // True when exactly one of the two kinds is given.
  bool IsOneOf(bool first, bool second, std::string_view thing, std::string_view firstKey,
               std::string_view secondKey, const std::string& path) {
    if (first != second)
      return true;
    const std::string keys = QuotedJson(firstKey) + " or " + QuotedJson(secondKey);
    Error(path, first ? std::string(thing) + " has " + keys + ", not both"
                      : std::string(thing) + " needs " + keys);
    return false;
  }

  // Calls `found(position, label)` with the position in `index` of each label
  // of `list`. A label that is not there is reported at its place in the list;
  // for a range, only the first such label is, at "generate" (a range over
  // labels that do not exist could be long).
  template <class F>
  void Lookup(const LabelList& list, const LabelIndex& index, std::string_view kind,
              const LabelScope& scope, const std::string& path, F&& found) {
    int item = 0;
    list.ForEach([&](int label) {
      const int position = index.Find(label);
      if (position >= 0) [[likely]] {
        found(position, label);
        ++item;
        return true;
      }
      Missing(list.isRange ? path + "/generate" : path + "/" + std::to_string(item), kind, label,
              scope);
      ++item;
      return !list.isRange;
    });
  }

  [[gnu::cold]] void Missing(const std::string& path, std::string_view kind, int label,
                             const LabelScope& scope) {
    Error(path, "no " + std::string(kind) + " " + std::to_string(label) + " in " + scope.where);
  }

  // A node subset is made even when its list turns out empty, so that the
  // set still names the mesh.
  void AddNodes(const LabelList& list, const LabelScope& scope, const std::string& path,
                SubsetCollector& members) {
    members.Open(scope.meshIndex, -1);
    const int start = list.isRange ? scope.labels->nodes.SteppedStart(list.range) : -1;
    if (start >= 0)
      return members.AddStepped(scope.meshIndex, -1, start, list.range.Step(), list.Size());
    Lookup(list, scope.labels->nodes, "node", scope, path,
           [&](int position, int) { members.Add(scope.meshIndex, -1, position); });
  }

  void AddElements(const LabelList& list, const LabelScope& scope, const std::string& path,
                   SubsetCollector& members) {
    const PartLabels& labels = *scope.labels;
    const int start = list.isRange ? labels.elements.SteppedStart(list.range) : -1;
    if (start >= 0)
      return AddSteppedElements(start, list.range.Step(), list.Size(), scope, members);
    Lookup(list, labels.elements, "element", scope, path, [&](int position, int) {
      const int k = labels.ClassOf(position);
      members.Add(scope.meshIndex, k, position - labels.classStarts[static_cast<std::size_t>(k)]);
    });
  }

  // The elements at positions start, start + step, ... (`count` of them),
  // class by class.
  void AddSteppedElements(int start, int step, int count, const LabelScope& scope,
                          SubsetCollector& members) {
    const std::vector<int>& starts = scope.labels->classStarts;
    const std::int64_t end = start + static_cast<std::int64_t>(count - 1) * step + 1;
    for (std::size_t k = 0; k < starts.size(); ++k) {
      const std::int64_t classEnd = k + 1 < starts.size() ? starts[k + 1] : end;
      const std::int64_t from = std::max<std::int64_t>(start, starts[k]);
      const std::int64_t first = start + (from - start + step - 1) / step * step;
      const std::int64_t last = std::min(classEnd, end) - 1;
      if (first <= last)
        members.AddStepped(scope.meshIndex, static_cast<int>(k),
                           static_cast<int>(first - starts[k]), step,
                           static_cast<int>((last - first) / step + 1));
    }
  }

  // The elements of one face label; a face that does not fit an element's
  // type is reported once for the entry, at its first such element.
  void AddFaces(const cow_String& face, const LabelList& list, const LabelScope& scope,
                const std::string& entryPath, SubsetCollector& members) {
    const PartLabels& labels = *scope.labels;
    int lastClass = -1;
    int facetId = -1;
    bool reported = false;
    Lookup(list, labels.elements, "element", scope, entryPath + "/elements",
           [&](int position, int label) {
             const int k = labels.ClassOf(position);
             const std::size_t at = static_cast<std::size_t>(k);
             if (k != lastClass) {
               lastClass = k;
               facetId = FacetIdOfFaceLabel(labels.shapes[at], face);
             }
             if (facetId >= 0) [[likely]] {
               members.Add(scope.meshIndex, k, position - labels.classStarts[at], facetId);
               return;
             }
             if (!reported)
               Misfit(entryPath + "/face", face, label, labels.types[at], labels.shapes[at]);
             reported = true;
           });
  }

  [[gnu::cold]] void Misfit(const std::string& path, const cow_String& face, int label,
                            const cow_String& type, const shp_Shape& shape) {
    const std::string faces = FaceLabelsOf(shape);
    Error(path, "face " + QuotedJson(face.View()) + " does not fit element " +
                    std::to_string(label) + " of type " + std::string(type.View()) +
                    (faces.empty() ? ", whose faces are not known" : " (faces " + faces + ")"));
  }

  LoadErrors& errors_;
};

// The set data of a part's or the assembly's sets and surfaces, in one list in
// ascending byte order of their names. `derive(name, definition, path)` gives
// the set data of one definition. A surface may not take a set's name (the
// loader has refused empty names already).
template <class Set, class Surface, class DeriveSet, class DeriveSurface>
ddb_SetList SetListOf(const cow_Btree<cow_String, Set>& sets,
                      const cow_Btree<cow_String, Surface>& surfaces, const std::string& ownerPath,
                      std::string_view owner, DeriveSet&& deriveSet, DeriveSurface&& deriveSurface,
                      LoadErrors& errors) {
  std::vector<ddb_Set> list;
  const auto add = [&](const cow_String& name, const auto& definition, const char* kind,
                       auto&& derive) {
    const std::string path = ownerPath + "/" + kind + "s/" + std::string(name.View());
    if (errors.AnyAtOrUnder(path))
      return;
    if (std::string_view(kind) == "surface" && sets.IsMember(name)) {
      errors.Add(path, "a set of the same name exists in " + std::string(owner));
      return;
    }
    if (std::optional<ddb_Set> set = derive(name, definition, path))
      list.push_back(std::move(*set));
  };
  for (const auto& [name, set] : sets)
    add(name, set, "set", deriveSet);
  for (const auto& [name, surface] : surfaces)
    add(name, surface, "surface", deriveSurface);
  std::sort(list.begin(), list.end(),
            [](const ddb_Set& a, const ddb_Set& b) { return a.data.name < b.data.name; });
  ddb_SetList out = ddb_SetList::WithCapacity(static_cast<int>(list.size()));
  for (ddb_Set& set : list)
    out.Append(std::move(set));
  return out;
}

// The part's set list with `meshIndex` on every subset: the set list of one
// instance of the part. The index lists are shared, not copied.
ddb_SetList WithMeshIndex(const ddb_SetList& sets, int meshIndex) {
  ddb_SetList out = ddb_SetList::WithCapacity(sets.Size());
  for (ddb_Set set : sets) {
    cow_List<rgnC_SubsetData> subsets =
        cow_List<rgnC_SubsetData>::WithCapacity(set.data.subsets.Size());
    for (rgnC_SubsetData subset : set.data.subsets) {
      subset.meshIndex = meshIndex;
      subsets.Append(std::move(subset));
    }
    set.data.subsets = std::move(subsets);
    out.Append(std::move(set));
  }
  return out;
}

// Translation, then the rotation vector: the unit axis times the angle in
// radians. The axis is scaled by its largest component first, so that no
// length overflows or vanishes on the way.
void DerivePlacement(ddb_PartInstance& instance, const std::string& path, LoadErrors& errors) {
  const std::array<double, 3>& t = instance.translation_;
  std::array<double, 3> r{0, 0, 0};
  if (instance.rotation_) {
    const InstanceRotation& rotation = *instance.rotation_;
    const double scale = std::max(
        {std::abs(rotation.axis[0]), std::abs(rotation.axis[1]), std::abs(rotation.axis[2])});
    if (scale > 0) {
      const double x = rotation.axis[0] / scale;
      const double y = rotation.axis[1] / scale;
      const double z = rotation.axis[2] / scale;
      const double radians = rotation.angle * (std::numbers::pi / 180);
      const double factor = radians / std::sqrt(x * x + y * y + z * z);
      r = {x * factor, y * factor, z * factor};
    } else if (rotation.angle != 0) {
      errors.Add(path + "/rotation/axis", "a rotation needs an axis of non-zero length");
    }
  }
  instance.transform_ = cow_List<double>{t[0], t[1], t[2], r[0], r[1], r[2]};
}

using PartLabelMap = std::map<cow_String, PartLabels>;

void DeriveInstances(std::string_view modelPath, ddb_Model& model, LoadErrors& errors) {
  ddb_InstanceContainer& instances = model.assembly_.instances_;
  int meshIndex = 0;
  for (const cow_String& name : instances.Keys()) {
    ddb_PartInstance instance = RecordCast<ddb_PartInstance>(instances.ConstGet(name));
    instance.name_ = name;
    instance.mesh_ = ddb_Mesh();
    const std::string path =
        std::string(modelPath) + "/assembly/instances/" + std::string(name.View());
    if (model.parts_.isMember(instance.partName_))
      instance.mesh_ = model.parts_.get(instance.partName_).mesh_;
    else if (!errors.AnyAtOrUnder(path))
      errors.Add(path + "/part",
                 "no part " + QuotedJson(instance.partName_.View()) + " in the model");
    instance.mesh_.index = ++meshIndex;
    instance.mesh_.sets = WithMeshIndex(instance.mesh_.sets, meshIndex);
    DerivePlacement(instance, path, errors);
    instances.Insert(name, instance);
  }
  model.assembly_.mesh_.index = 0;
}

void DeriveAssemblySets(std::string_view modelPath, ddb_Model& model,
                        const PartLabelMap& partLabels, LoadErrors& errors) {
  ddb_Assembly& assembly = model.assembly_;
  // The scope of each instance whose part was indexed; an instance of a part
  // with faults of its own gets none, and its labels go unchecked.
  std::map<cow_String, LabelScope> scopes;
  for (const auto& [name, handle] : assembly.instances_) {
    const ddb_PartInstance& instance = RecordCast<ddb_PartInstance>(*handle);
    const auto part = partLabels.find(instance.partName_);
    if (part != partLabels.end())
      scopes.emplace(name, LabelScope{&part->second, instance.mesh_.index,
                                      "instance " + QuotedJson(name.View())});
  }
  const auto scopeOf = [&](const cow_String& instance,
                           const std::string& path) -> const LabelScope* {
    const auto at = scopes.find(instance);
    if (at != scopes.end())
      return &at->second;
    if (!assembly.instances_.IsMember(instance))
      errors.Add(path, "no instance " + QuotedJson(instance.View()));
    return nullptr;
  };
  SetDeriver deriver(errors);
  assembly.sets_ = SetListOf(
      assembly.setDefinitions_, assembly.surfaceDefinitions_, std::string(modelPath) + "/assembly",
      "the assembly",
      [&](const cow_String& name, const AssemblySet& set, const std::string& path) {
        return deriver.AssemblySetOf(name, set, scopeOf, path);
      },
      [&](const cow_String& name, const AssemblySurface& surface, const std::string& path) {
        return deriver.AssemblySurfaceOf(name, surface, scopeOf, path);
      },
      errors);
}

// The limit node of each Riks step, found by its region name like any other
// region; the assembly's sets must be derived first.
void DeriveStepRegions(std::string_view modelPath, ddb_Model& model, LoadErrors& errors) {
  kprC_StepContainer& steps = model.steps_.steps;
  for (int i = 1; i < steps.Size(); ++i) {
    if (steps.StepAt(i).DynTypeId() != kprC_StaticRiksStep::TypeId())
      continue;
    kprC_StaticRiksStep& riks = RecordCast<kprC_StaticRiksStep>(steps.GetStep(i));
    if (!riks.HasLimit())
      continue;
    const std::string path = std::string(modelPath) + "/steps/" + std::to_string(i) + "/limitNode";
    riks.nodeRegion = ResolveRegion(model, riks.limitNode.View(), path, errors);
  }
}

// A count of a step's request that the solver takes only from `lowest` up.
void CheckAtLeast(int value, int lowest, const std::string& path, const char* what,
                  LoadErrors& errors) {
  if (value < lowest)
    errors.Add(path, std::string(what) + " must be " + std::to_string(lowest) + " or more, found " +
                         std::to_string(value));
}

// The solver monitors a single node.
bool IsOneNode(const rgnC_SetData& set) {
  int nodes = 0;
  for (int i = 0; i < set.NumSubsets(); ++i)
    nodes += set.SubSet(i).indices.Size();
  return set.SetType() == res_NodeSet && nodes == 1;
}

// The options of an explicit step; null for a step of the implicit solver.
kprC_ExplicitOptions* ExplicitOptionsOf(kprC_Step& step) {
  if (step.DynTypeId() == kprC_ExplicitDynamicsStep::TypeId())
    return &RecordCast<kprC_ExplicitDynamicsStep>(step);
  if (step.DynTypeId() == kprC_TempDisplacementDynamicsStep::TypeId())
    return &RecordCast<kprC_TempDisplacementDynamicsStep>(step);
  return nullptr;
}

void CheckNotNegative(double value, const std::string& path, const char* what, LoadErrors& errors) {
  if (value < 0)
    errors.Add(path, std::string(what) + " must not be negative");
}

// A mass scaling repeats by increments or by intervals, the latter only at
// the start of the step; its region is found by name like any other.
void DeriveMassScaling(const ddb_Model& model, kprC_MassScaling& scaling, const std::string& path,
                       LoadErrors& errors) {
  CheckNotNegative(scaling.targetTimeIncrement, path + "/targetTimeIncrement",
                   "the target time increment", errors);
  CheckNotNegative(scaling.factor, path + "/factor", "the factor", errors);
  if (scaling.frequency != NotGivenInt)
    CheckAtLeast(scaling.frequency, 1, path + "/every", "the increments between scalings", errors);
  if (scaling.numberInterval != NotGivenInt) {
    CheckAtLeast(scaling.numberInterval, 1, path + "/intervals", "the intervals", errors);
    if (scaling.frequency != NotGivenInt)
      errors.Add(path, "give at most one of \"every\" and \"intervals\"");
    else if (scaling.form != kprC_FixedSemiAutomatic)
      errors.Add(path + "/intervals", "only a fixed mass scaling repeats by intervals");
  }
  // What a form does not write is refused, so that no value vanishes unnoticed.
  const bool bare =
      scaling.form == kprC_ReinitializeMass || scaling.form == kprC_DisableMassScaling;
  if (bare && (scaling.targetTimeIncrement != 0 || scaling.factor != 0 || scaling.Repeats()))
    errors.Add(path, "a mass scaling that reinitializes or disables takes no target, factor or "
                     "repeats");
  else if (scaling.form == kprC_VariableSemiAutomatic && scaling.factor != 0)
    errors.Add(path + "/factor", "only a fixed mass scaling takes a factor");
  if (scaling.form == kprC_DisableMassScaling && !scaling.regionName.Empty())
    errors.Add(path + "/region", "disabling mass scaling holds for the whole model");
  if (scaling.regionName.Empty())
    return;
  scaling.region = ResolveRegion(model, scaling.regionName.View(), path + "/region", errors);
  if (scaling.region.HasSet() && scaling.region.ConstSet().SetType() != res_ElementSet)
    errors.Add(path + "/region", QuotedJson(scaling.regionName.View()) +
                                     " is not an element set; mass scaling acts on elements");
}

// The mass scaling, restart, monitor and print of each analysis step: their
// counts, and the regions found by name.
void DeriveStepRequests(std::string_view modelPath, ddb_Model& model, LoadErrors& errors) {
  kprC_StepContainer& steps = model.steps_.steps;
  for (int i = 1; i < steps.Size(); ++i) {
    kprC_AnalysisStep& step = RecordCast<kprC_AnalysisStep>(steps.GetStep(i));
    const std::string path = std::string(modelPath) + "/steps/" + std::to_string(i);
    if (kprC_ExplicitOptions* options = ExplicitOptionsOf(step))
      for (int k = 0; k < options->massScaling.Size(); ++k)
        DeriveMassScaling(model, options->massScaling.Get(k),
                          path + "/massScaling/" + std::to_string(k), errors);
    if (step.restart) {
      CheckAtLeast(step.restart->frequency, 0, path + "/restart/every",
                   "the increments between writes", errors);
      CheckAtLeast(step.restart->numberInterval, 0, path + "/restart/intervals", "the intervals",
                   errors);
    }
    if (step.explicitRestart)
      CheckAtLeast(step.explicitRestart->numberInterval, 1, path + "/restart/intervals",
                   "the intervals", errors);
    if (step.solverControls) {
      const kprC_SolverControls& controls = *step.solverControls;
      CheckNotNegative(controls.tolerance, path + "/solverControls/tolerance", "the tolerance",
                       errors);
      CheckAtLeast(controls.maxIterations, 0, path + "/solverControls/maxIterations",
                   "the most iterations", errors);
      if (controls.reset && (controls.tolerance != 0 || controls.maxIterations != 0))
        errors.Add(path + "/solverControls", "controls set back to the defaults take no values");
    }
    if (step.print)
      CheckAtLeast(step.print->frequency, 0, path + "/diagnosticPrint/every",
                   "the increments between prints", errors);
    if (step.monitor)
      CheckAtLeast(step.monitor->frequency, 1, path + "/monitor/every",
                   "the increments between reports", errors);
    // The record's own accessor picks the solver's class; the region is derived here.
    auto* monitor = const_cast<kprC_MonitorBase*>(step.Monitor());
    if (monitor == nullptr)
      continue;
    if (monitor->dof < 1 || monitor->dof > 30)
      errors.Add(path + "/monitor/dof",
                 "degree of freedom " + std::to_string(monitor->dof) + " is outside 1 to 30");
    monitor->region = ResolveRegion(model, monitor->node.View(), path + "/monitor/node", errors);
    if (monitor->region.HasSet() && !IsOneNode(monitor->region.ConstSet()))
      errors.Add(path + "/monitor/node",
                 QuotedJson(monitor->node.View()) + " is not a node set of one node");
  }
}

// The deck joins an instance and its set with a dot and quotes each piece by
// itself, so a dot inside a name would read as that join: a set "x.y" of the
// assembly would be set "y" of instance "x". Such names are refused.
template <class Map>
void RefuseDots(const Map& names, const std::string& path, const char* what, LoadErrors& errors) {
  for (const cow_String& name : names.Keys())
    if (name.View().find('.') != std::string_view::npos)
      errors.Add(path + "/" + std::string(name.View()),
                 std::string(what) + " name must not hold a dot: the deck would read " +
                     QuotedJson(name.View()) + " as an instance and one of its sets");
}

void RefuseDottedNames(std::string_view modelPath, const ddb_Model& model, LoadErrors& errors) {
  for (const auto& [name, part] : model.parts_.parts_) {
    const std::string partPath = std::string(modelPath) + "/parts/" + std::string(name.View());
    RefuseDots(part.setDefinitions_, partPath + "/sets", "a set", errors);
    RefuseDots(part.surfaceDefinitions_, partPath + "/surfaces", "a surface", errors);
  }
  const std::string assemblyPath = std::string(modelPath) + "/assembly";
  RefuseDots(model.assembly_.instances_, assemblyPath + "/instances", "an instance", errors);
  RefuseDots(model.assembly_.setDefinitions_, assemblyPath + "/sets", "a set", errors);
  RefuseDots(model.assembly_.surfaceDefinitions_, assemblyPath + "/surfaces", "a surface", errors);
}

template <class M> constexpr bool IsPropagatingMap = false;
template <std::derived_from<kprC_PropagatingRecord> R>
constexpr bool IsPropagatingMap<mdl_MapString2ObjCow<R>> = true;

// Finds the model's maps of step-dependent records and derives the status and
// state of each record in every step of the model.
class StepStateDeriver {
public:
  StepStateDeriver(std::string_view modelPath, const kprC_StepContainer& steps, LoadErrors& errors)
      : modelPath_(modelPath), steps_(steps), errors_(errors) {}
  template <class M> void operator()(FieldName name, M& member) { Visit(name, member); }
  template <class M, class D> void operator()(FieldName name, M& member, const D&) {
    Visit(name, member);
  }

private:
  template <class M> void Visit(std::string_view name, M& member) {
    if constexpr (IsPropagatingMap<M>)
      DeriveAll(name, member);
  }
  template <class R> void DeriveAll(std::string_view mapName, mdl_MapString2ObjCow<R>& records) {
    for (const cow_String& name : records.Keys()) {
      typename mdl_MapString2ObjCow<R>::Handle handle = records.ConstGetMap().ConstGet(name);
      std::vector<RecordFault> faults;
      handle.Get().DeriveStates(steps_, faults);
      for (const RecordFault& fault : faults)
        errors_.Add(std::string(modelPath_) + "/" + std::string(mapName) + "/" +
                        std::string(name.View()) + "/" + fault.where,
                    fault.what);
      records.Insert(name, std::move(handle));
    }
  }

  std::string_view modelPath_;
  const kprC_StepContainer& steps_;
  LoadErrors& errors_;
};

// Tables of pairs hold pairs, and times do not run backwards.
void CheckAmplitudes(std::string_view modelPath, const ddb_Model& model, LoadErrors& errors) {
  for (const auto& [name, amplitude] : model.amplitudes())
    if (const std::optional<RecordFault> fault = amplitude->CheckData())
      errors.Add(std::string(modelPath) + "/amplitudes/" + std::string(name.View()) + "/" +
                     fault->where,
                 fault->what);
}

void DeriveStepStates(std::string_view modelPath, ddb_Model& model, LoadErrors& errors) {
  StepStateDeriver deriver(modelPath, model.step().container(), errors);
  model.Fields(deriver);
}

} // namespace

void DeriveModel(std::string_view modelPath, ddb_Model& model, LoadErrors& errors) {
  RefuseDottedNames(modelPath, model, errors);
  cow_Btree<cow_String, ddb_Part>& parts = model.parts_.parts_;
  PartLabelMap partLabels;
  SetDeriver deriver(errors);
  for (const cow_String& name : parts.Keys()) {
    const std::string partPath = std::string(modelPath) + "/parts/" + std::string(name.View());
    if (errors.AnyAtOrUnder(partPath + "/nodes") || errors.AnyAtOrUnder(partPath + "/elements"))
      continue;
    ddb_Part& part = parts.Get(name);
    PartLabels& labels = partLabels[name];
    MeshDeriver(partPath, part.mesh_, labels, errors).Run();
    const LabelScope scope{&labels, part.mesh_.index, "the part"};
    part.mesh_.sets = SetListOf(
        part.setDefinitions_, part.surfaceDefinitions_, partPath, "the part",
        [&](const cow_String& setName, const PartSet& set, const std::string& path) {
          return deriver.PartSetOf(setName, set, scope, path);
        },
        [&](const cow_String& surfaceName, const PartSurface& surface, const std::string& path) {
          return deriver.PartSurfaceOf(surfaceName, surface, scope, path);
        },
        errors);
  }
  DeriveInstances(modelPath, model, errors);
  DeriveAssemblySets(modelPath, model, partLabels, errors);
  DeriveDatumsAndOrientations(modelPath, model, errors);
  DeriveStepRegions(modelPath, model, errors);
  DeriveStepRequests(modelPath, model, errors);
  CheckSections(modelPath, model, errors);
  CheckAmplitudes(modelPath, model, errors);
  DeriveStepStates(modelPath, model, errors);
  DeriveBoundaryConditions(modelPath, model, errors);
  DeriveLoads(modelPath, model, errors);
  DeriveConstraints(modelPath, model, errors);
  DeriveFields(modelPath, model, errors);
  DeriveOutputRequests(modelPath, model, errors);
}

} // namespace keydeck
