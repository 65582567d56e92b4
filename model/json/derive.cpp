#include "model/json/derive.h"

#include "model/json/json_text.h"

#include <cstdint>
#include <string>
#include <vector>

namespace keydeck {

namespace {

// Finds the position of a label among the labels of a mesh. Labels that lie
// close together (the usual numbering 1..n) are found through a table over
// their range; scattered ones through an open-addressing hash table. Neither
// allocates per label.
class LabelIndex {
public:
  // Prepares for `count` labels between `lowest` and `highest`.
  void Reserve(int count, int lowest, int highest);
  // Enters `label` at `position`; returns the position that already has it, or -1.
  int Insert(int label, int position);
  // The position of `label`, or -1.
  int Find(int label) const {
    if (dense_) {
      const std::uint64_t offset =
          static_cast<std::uint64_t>(static_cast<std::int64_t>(label) - lowest_);
      return offset < slots_.size() ? slots_[offset] : -1;
    }
    for (std::size_t at = Hash(label);; at = (at + 1) & mask_) {
      if (slots_[at] < 0 || labels_[at] == label)
        return slots_[at];
    }
  }

private:
  std::size_t Hash(int label) const {
    return static_cast<std::size_t>(
        (static_cast<std::uint64_t>(static_cast<std::uint32_t>(label)) * 0x9E3779B97F4A7C15u) >>
        shift_);
  }

  bool dense_ = true;
  std::int64_t lowest_ = 0;
  std::vector<int> slots_;  // positions; -1 for none
  std::vector<int> labels_; // hash table only: the label in each slot
  std::size_t mask_ = 0;
  int shift_ = 64;
};

void LabelIndex::Reserve(int count, int lowest, int highest) {
  const std::int64_t range = static_cast<std::int64_t>(highest) - lowest + 1;
  dense_ = count == 0 || range <= 2 * static_cast<std::int64_t>(count) + 1024;
  if (dense_) {
    lowest_ = lowest;
    slots_.assign(count == 0 ? 0 : static_cast<std::size_t>(range), -1);
    return;
  }
  int bits = 4;
  while ((std::size_t{1} << bits) < 2 * static_cast<std::size_t>(count))
    ++bits;
  shift_ = 64 - bits;
  mask_ = (std::size_t{1} << bits) - 1;
  slots_.assign(mask_ + 1, -1);
  labels_.assign(mask_ + 1, 0);
}

int LabelIndex::Insert(int label, int position) {
  if (dense_) {
    int& slot = slots_[static_cast<std::size_t>(static_cast<std::int64_t>(label) - lowest_)];
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

std::string Count(int count, std::string_view thing) {
  return std::to_string(count) + " " + std::string(thing) + (count == 1 ? "" : "s");
}

void WidenRange(const cow_List<int>& labels, int& lowest, int& highest) {
  for (const int label : labels) {
    lowest = label < lowest ? label : lowest;
    highest = label > highest ? label : highest;
  }
}

std::string ElementLabelPath(const std::vector<int>& classStarts, int position) {
  int k = 0;
  while (k + 1 < static_cast<int>(classStarts.size()) && classStarts[k + 1] <= position)
    ++k;
  return "elements/" + std::to_string(k) + "/labels/" + std::to_string(position - classStarts[k]);
}

class MeshDeriver {
public:
  MeshDeriver(std::string_view partPath, ddb_Mesh& mesh, LoadErrors& errors)
      : path_(partPath), mesh_(mesh), errors_(errors) {}

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
    const cow_List<int>& labels = mesh_.nodes.labels;
    int lowest = labels.Empty() ? 0 : labels.UncheckedConstGet(0);
    int highest = lowest;
    WidenRange(labels, lowest, highest);
    nodes_.Reserve(labels.Size(), lowest, highest);
    for (int i = 0; i < labels.Size(); ++i) {
      const int label = labels.UncheckedConstGet(i);
      const int first = nodes_.Insert(label, i);
      if (first >= 0) [[unlikely]]
        Error("nodes/labels/" + std::to_string(i), "duplicate node label " + std::to_string(label) +
                                                       ", also at index " + std::to_string(first));
    }
  }

  void IndexElementLabels() {
    const cow_List<ddb_ElementClass>& classes = mesh_.elements.classes;
    int count = 0;
    int lowest = 0;
    int highest = 0;
    std::vector<int> classStarts;
    for (const ddb_ElementClass& elementClass : classes) {
      if (count == 0 && !elementClass.labels.Empty())
        lowest = highest = elementClass.labels.UncheckedConstGet(0);
      classStarts.push_back(count);
      count += elementClass.labels.Size();
      WidenRange(elementClass.labels, lowest, highest);
    }
    LabelIndex elements;
    elements.Reserve(count, lowest, highest);
    for (int k = 0; k < classes.Size(); ++k) {
      const cow_List<int>& labels = classes.UncheckedConstGet(k).labels;
      for (int i = 0; i < labels.Size(); ++i) {
        const int label = labels.UncheckedConstGet(i);
        const int first = elements.Insert(label, classStarts[k] + i);
        if (first >= 0) [[unlikely]]
          Error("elements/" + std::to_string(k) + "/labels/" + std::to_string(i),
                "duplicate element label " + std::to_string(label) + ", also at " +
                    ElementLabelPath(classStarts, first));
      }
    }
  }

  void DeriveClass(int k, ddb_ElementClass& elementClass) {
    const cow_2DArray<int>& connectivity = elementClass.connectivity;
    const int rows = connectivity.Rows();
    const int cols = connectivity.Cols();
    if (elementClass.labels.Size() != rows)
      Error("elements/" + std::to_string(k), Count(elementClass.labels.Size(), "element label") +
                                                 " but " + Count(rows, "connectivity row"));
    const std::size_t count = static_cast<std::size_t>(rows) * static_cast<std::size_t>(cols);
    cow_List<int> indices = cow_List<int>::WithCapacity(static_cast<int>(count));
    const int* const labels = count == 0 ? nullptr : &connectivity.ConstGet(0, 0);
    for (std::size_t i = 0; i < count; ++i) {
      int index = nodes_.Find(labels[i]);
      if (index < 0) [[unlikely]] {
        UnknownNode(k, i, cols, labels[i]);
        index = 0;
      }
      indices.Append(index);
    }
    elementClass.nodeIndices = std::move(indices);
  }

  [[gnu::cold]] void UnknownNode(int k, std::size_t at, int cols, int label) {
    const std::size_t width = static_cast<std::size_t>(cols);
    Error("elements/" + std::to_string(k) + "/connectivity/" + std::to_string(at / width) + "/" +
              std::to_string(at % width),
          "no node " + std::to_string(label) + " in the part");
  }

  std::string path_;
  ddb_Mesh& mesh_;
  LoadErrors& errors_;
  LabelIndex nodes_;
};

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
    instances.Insert(name, instance);
  }
  model.assembly_.mesh_.index = 0;
}

} // namespace

void DeriveModel(std::string_view modelPath, ddb_Model& model, LoadErrors& errors) {
  cow_Btree<cow_String, ddb_Part>& parts = model.parts_.parts_;
  for (const cow_String& name : parts.Keys()) {
    const std::string partPath = std::string(modelPath) + "/parts/" + std::string(name.View());
    if (errors.AnyAtOrUnder(partPath))
      continue;
    MeshDeriver(partPath, parts.Get(name).mesh_, errors).Run();
  }
  DeriveInstances(modelPath, model, errors);
}

} // namespace keydeck
