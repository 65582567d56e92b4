#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/records.h"

#include <array>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

namespace keydeck {

/// A list of ints that costs no memory per value while the values step
/// evenly (first, first + step, ...): a `{"generate": ...}` range over labels
/// numbered in order stays three numbers from the file to the deck. Other
/// lists are held as a `cow_List`. Read-only; `IndexListBuilder` makes one.
class IndexList {
public:
  IndexList() = default;
  IndexList(const cow_List<int>& values) : list_(values), count_(values.Size()), stepped_(false) {}
  IndexList(std::initializer_list<int> values) : IndexList(cow_List<int>(values)) {}
  /// `count` values from `first` on, `step` apart.
  static IndexList Stepped(int first, int step, int count) {
    IndexList list;
    list.first_ = first;
    list.step_ = step;
    list.count_ = count;
    return list;
  }

  int Size() const { return count_; }
  bool Empty() const { return count_ == 0; }
  /// Whether the values step evenly; then `First` and `Step` describe them.
  bool IsStepped() const { return stepped_; }
  int First() const { return first_; }
  int Step() const { return step_; }

  int UncheckedConstGet(int i) const {
    return stepped_ ? static_cast<int>(first_ + static_cast<long long>(i) * step_)
                    : list_.UncheckedConstGet(i);
  }
  int ConstGet(int i) const {
    if (!stepped_)
      return list_.ConstGet(i);
    if (i < 0 || i >= count_)
      Raise("list index " + std::to_string(i) + " out of range [0, " + std::to_string(count_) +
            ")");
    return UncheckedConstGet(i);
  }
  int operator[](int i) const { return ConstGet(i); }
  /// The values as a list (allocated here for a stepped list).
  cow_List<int> List() const;
  /// True when the two hold their values in one payload, or are the same
  /// stepped list: a copy, not a rebuilt list.
  bool SharesWith(const IndexList& other) const {
    return stepped_ ? other.stepped_ && first_ == other.first_ && step_ == other.step_ &&
                          count_ == other.count_
                    : !other.stepped_ && list_.SharesWith(other.list_);
  }

  class Iterator {
  public:
    using iterator_category = std::forward_iterator_tag;
    using value_type = int;
    using difference_type = std::ptrdiff_t;
    using pointer = const int*;
    using reference = int;

    Iterator() = default;
    Iterator(const IndexList* list, int i) : list_(list), i_(i) {}
    int operator*() const { return list_->UncheckedConstGet(i_); }
    Iterator& operator++() {
      ++i_;
      return *this;
    }
    Iterator operator++(int) {
      Iterator before = *this;
      ++i_;
      return before;
    }
    friend bool operator==(const Iterator& a, const Iterator& b) { return a.i_ == b.i_; }

  private:
    const IndexList* list_ = nullptr;
    int i_ = 0;
  };
  Iterator begin() const { return {this, 0}; }
  Iterator end() const { return {this, count_}; }

private:
  cow_List<int> list_; ///< when not stepped
  int first_ = 0;
  int step_ = 0;
  int count_ = 0;
  bool stepped_ = true;
};

/// Makes an `IndexList` value by value: it keeps first, step and count as
/// long as the values step evenly, and spells them out from the first value
/// that does not.
class IndexListBuilder {
public:
  void Append(int value) {
    if (stepped_ && Continues(value)) [[likely]] {
      ++count_;
      return;
    }
    if (stepped_)
      SpellOut();
    values_.push_back(value);
    ++count_;
  }
  /// Appends `count` values from `first` on, `step` apart, at once where it can.
  void AppendStepped(int first, int step, int count) {
    if (count_ == 0 && stepped_) {
      first_ = first;
      step_ = step;
      count_ = count;
      return;
    }
    for (int i = 0; i < count; ++i)
      Append(static_cast<int>(first + static_cast<long long>(i) * step));
  }
  int Size() const { return count_; }
  /// The list; the builder is empty afterwards.
  IndexList Take();

private:
  bool Continues(int value) {
    if (count_ == 0)
      first_ = value;
    if (count_ == 1) {
      const long long step = static_cast<long long>(value) - first_;
      if (step != static_cast<int>(step))
        return false;
      step_ = static_cast<int>(step);
    }
    return count_ < 2 || first_ + static_cast<long long>(count_) * step_ == value;
  }
  void SpellOut();

  std::vector<int> values_;
  int first_ = 0;
  int step_ = 0;
  int count_ = 0;
  bool stepped_ = true;
};

inline cow_List<int> IndexList::List() const {
  if (!stepped_)
    return list_;
  cow_List<int> values = cow_List<int>::WithCapacity(count_);
  for (const int value : *this)
    values.Append(value);
  return values;
}

inline void IndexListBuilder::SpellOut() {
  values_.reserve(static_cast<std::size_t>(count_) + 1);
  for (int i = 0; i < count_; ++i)
    values_.push_back(static_cast<int>(first_ + static_cast<long long>(i) * step_));
  stepped_ = false;
}

inline IndexList IndexListBuilder::Take() {
  IndexList list = IndexList::Stepped(first_, step_, count_);
  if (!stepped_) {
    cow_List<int> values;
    values.SetFromArray(values_.data(), static_cast<int>(values_.size()));
    list = IndexList(values);
  }
  *this = IndexListBuilder();
  return list;
}

} // namespace keydeck

/// What a set selects.
enum res_SetTypeEnm : int {
  res_NodeSet = 0,
  res_ElementSet = 1,
  res_FacetSet = 2,
};

/// The members of a set in one element class of one mesh (or, for a node
/// set, in one mesh): indices into the mesh's node or element lists, and for
/// a facet set the facet id of each entry (0-based face number; for a shell
/// 0 is the positive side, 1 the negative side). Both lists stay small while
/// they step evenly, as those of a range usually do.
class rgnC_SubsetData {
public:
  int MeshIndex() const { return meshIndex; }
  int ClassIndex() const { return classIndex; }
  int Size() const { return indices.Size(); }
  void Subset(cow_List<int>& out) const { out = indices.List(); }
  void FacetIds(cow_List<int>& out) const { out = facetIds.List(); }

  int meshIndex = 0;
  int classIndex = -1; ///< -1 for a node subset
  keydeck::IndexList indices;
  keydeck::IndexList facetIds;
};

/// A set as the database stores it: its name, what it selects, and its
/// members by mesh and element class.
class rgnC_SetData {
public:
  const cow_String& Name() const { return name; }
  res_SetTypeEnm SetType() const { return type; }
  bool Internal() const { return internal; }
  int NumSubsets() const { return subsets.Size(); }
  const rgnC_SubsetData& SubSet(int i) const { return subsets.ConstGet(i); }

  cow_String name;
  res_SetTypeEnm type = res_NodeSet;
  bool internal = false;
  cow_List<rgnC_SubsetData> subsets;
};

/// A named set of a mesh or of the assembly.
class ddb_Set {
public:
  const cow_String& setLabel() const { return data.name; }
  res_SetTypeEnm setType() const { return data.type; }
  const rgnC_SetData& set() const { return data; }

  rgnC_SetData data;
};

using ddb_SetList = cow_List<ddb_Set>;

/// A reference from a record to a set: the set's place in the database as a
/// path ("rootAssembly.setData" for a set of the assembly,
/// "rootAssembly.mesh[N].setData" for a set of the mesh of index N), its
/// index in that set list, and a copy of its data (cow lists: cheap). A
/// region without a set has an empty path.
class rgnC_Region {
public:
  bool HasSet() const { return !path.Empty(); }
  const cow_String& Path() const { return path; }
  int SetIndex() const { return setIndex; }
  const rgnC_SetData& ConstSet() const { return set; }
  friend bool operator==(const rgnC_Region& a, const rgnC_Region& b) {
    return a.path == b.path && a.setIndex == b.setIndex;
  }

  cow_String path;
  int setIndex = -1;
  rgnC_SetData set;
};

namespace keydeck {

/// The range form of a list of labels: {"generate": [first, last, step]}.
struct LabelRange {
  static constexpr const char* Description =
      "a range of labels: first, first + step, ... as far as they do not pass last";
  std::array<int, 3> generate{0, 0, 1};

  int First() const { return generate[0]; }
  int Last() const { return generate[1]; }
  int Step() const { return generate[2]; }

  template <class V> void Fields(V& v) {
    v({"generate", "first label, last label and step (1 or more)"}, generate);
  }
};

/// A list of labels as the file gives it: the labels themselves, or a range
/// whose labels are first, first + step, ... as far as they do not pass last
/// (so last is a label only when the steps reach it). The loader checks that
/// a range has first <= last and step >= 1. Labels may repeat.
class LabelList {
public:
  /// Calls `use(label)` for each label in order until it returns false.
  template <class F> void ForEach(F&& use) const {
    if (!isRange) {
      for (const int label : labels)
        if (!use(label))
          return;
      return;
    }
    for (long long label = range.First(); label <= range.Last(); label += range.Step())
      if (!use(static_cast<int>(label)))
        return;
  }

  /// The number of labels, repeats included.
  int Size() const {
    return isRange ? static_cast<int>(
                         (static_cast<long long>(range.Last()) - range.First()) / range.Step() + 1)
                   : labels.Size();
  }

  cow_List<int> labels; ///< when the file gives a list
  bool isRange = false;
  LabelRange range; ///< when the file gives a range
};

/// A set of a part: `nodes` or `elements` (exactly one of them), and whether
/// the deck marks it internal.
struct PartSet {
  static constexpr const char* Description = "a set of a part: its nodes or its elements";
  std::optional<LabelList> nodes;
  std::optional<LabelList> elements;
  bool internal = false;

  template <class V> void Fields(V& v) {
    v({"nodes", "the labels of the nodes in the set (give this or elements)"}, nodes, std::nullopt);
    v({"elements", "the labels of the elements in the set (give this or nodes)"}, elements,
      std::nullopt);
    v({"internal", "true to mark the set internal in the deck"}, internal, false);
  }
};

/// One face label on some elements of a part: {"face": "S2", "elements": LABELS}.
struct FaceLabels {
  static constexpr const char* Description = "one face label on some elements";
  DeckName face;
  LabelList elements;

  template <class V> void Fields(V& v) {
    v({"face", "the face label of the deck: S1 to S6, SPOS, SNEG, END1, END2"}, face);
    v({"elements", "the labels of the elements whose face it is"}, elements);
  }
};

/// A surface of a part: element faces or nodes (exactly one of them).
struct PartSurface {
  static constexpr const char* Description = "a surface of a part: element faces or nodes";
  std::optional<cow_List<FaceLabels>> faces;
  std::optional<LabelList> nodes;
  bool internal = false;

  template <class V> void Fields(V& v) {
    v({"faces", "element faces, by face label (give this or nodes)"}, faces, std::nullopt);
    v({"nodes", "the labels of the nodes of the surface (give this or faces)"}, nodes,
      std::nullopt);
    v({"internal", "true to mark the surface internal in the deck"}, internal, false);
  }
};

/// Labels of one instance: {"instance": "Link-1", "labels": LABELS}.
struct InstanceLabels {
  static constexpr const char* Description = "labels of one instance";
  DeckName instance;
  LabelList labels;

  template <class V> void Fields(V& v) {
    v({"instance", "the name of the instance"}, instance);
    v({"labels", "labels of the part of that instance"}, labels);
  }
};

/// One face label on some elements of one instance.
struct InstanceFaceLabels {
  static constexpr const char* Description = "one face label on some elements of one instance";
  DeckName instance;
  DeckName face;
  LabelList elements;

  template <class V> void Fields(V& v) {
    v({"instance", "the name of the instance"}, instance);
    v({"face", "the face label of the deck: S1 to S6, SPOS, SNEG, END1, END2"}, face);
    v({"elements", "the labels of the elements whose face it is"}, elements);
  }
};

/// A set of the assembly over the nodes or the elements (exactly one of
/// them) of one or more instances.
struct AssemblySet {
  static constexpr const char* Description =
      "a set of the assembly: nodes or elements of instances";
  std::optional<cow_List<InstanceLabels>> nodes;
  std::optional<cow_List<InstanceLabels>> elements;
  bool internal = false;

  template <class V> void Fields(V& v) {
    v({"nodes", "nodes of instances (give this or elements)"}, nodes, std::nullopt);
    v({"elements", "elements of instances (give this or nodes)"}, elements, std::nullopt);
    v({"internal", "true to mark the set internal in the deck"}, internal, false);
  }
};

/// A surface of the assembly: element faces or nodes (exactly one of them)
/// of one or more instances.
struct AssemblySurface {
  static constexpr const char* Description =
      "a surface of the assembly: element faces or nodes of instances";
  std::optional<cow_List<InstanceFaceLabels>> faces;
  std::optional<cow_List<InstanceLabels>> nodes;
  bool internal = false;

  template <class V> void Fields(V& v) {
    v({"faces", "element faces of instances, by face label (give this or nodes)"}, faces,
      std::nullopt);
    v({"nodes", "nodes of instances (give this or faces)"}, nodes, std::nullopt);
    v({"internal", "true to mark the surface internal in the deck"}, internal, false);
  }
};

} // namespace keydeck
