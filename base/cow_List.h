#pragma once

#include "base/cow_Shared.h"
#include "base/nex_Exception.h"

#include <algorithm>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

/// An ordered sequence with constant-time indexing and append; copies share
/// their items until one side writes. Insertion order is kept; nothing sorts.
///
/// The checked accessors (`ConstGet`, `Get`, `operator[]`, `CheckIndex`) raise
/// on an index outside [0, Size()); `UncheckedConstGet` does not test and is
/// the one to use in mesh-sized loops.
template <class T> class cow_List {
public:
  using const_iterator = typename std::vector<T>::const_iterator;

  cow_List() = default;
  cow_List(std::initializer_list<T> items) : items_(std::vector<T>(items)) {}
  /// An empty list with room for `count` items.
  static cow_List WithCapacity(int count) {
    cow_List list;
    list.items_.Write().reserve(static_cast<std::size_t>(std::max(count, 0)));
    return list;
  }
  /// The list of `items`, taken over without a copy.
  static cow_List Adopt(std::vector<T>&& items) {
    cow_List list;
    list.items_ = keydeck::CowBox<std::vector<T>>(std::move(items));
    return list;
  }

  int Size() const { return static_cast<int>(Items().size()); }
  bool Empty() const { return Items().empty(); }

  const T& operator[](int i) const { return ConstGet(i); }
  const T& ConstGet(int i) const {
    CheckIndex(i);
    return Items()[static_cast<std::size_t>(i)];
  }
  const T& UncheckedConstGet(int i) const { return Items()[static_cast<std::size_t>(i)]; }
  T& Get(int i) {
    CheckIndex(i);
    return items_.Write()[static_cast<std::size_t>(i)];
  }
  void CheckIndex(int i) const {
    if (i < 0 || i >= Size())
      RaiseOutOfRange(i);
  }

  void Append(T item) { items_.Write().push_back(std::move(item)); }
  void Prepend(T item) { InsertIndex(0, std::move(item)); }
  /// Inserts before position `i`; `i` may equal Size() to append.
  void InsertIndex(int i, T item) {
    if (i != Size())
      CheckIndex(i);
    auto& items = items_.Write();
    items.insert(items.begin() + i, std::move(item));
  }
  void RemoveIndex(int i) {
    CheckIndex(i);
    auto& items = items_.Write();
    items.erase(items.begin() + i);
  }
  void RemoveLast() { RemoveIndex(Size() - 1); }
  /// Removes the last item and returns it.
  T Pop() {
    T last = ConstGet(Size() - 1);
    RemoveLast();
    return last;
  }
  /// Grows with default items or shrinks to `count` items.
  void Resize(int count) { items_.Write().resize(static_cast<std::size_t>(std::max(count, 0))); }
  /// Makes the list `count` copies of `item`.
  void Fill(int count, T item) { // by value: the item may be one of the list's own
    items_.Write().assign(static_cast<std::size_t>(std::max(count, 0)), item);
  }
  /// The items from index `from` up to, not including, `to`; clamped to the list.
  cow_List Slice(int from, int to) const {
    from = std::clamp(from, 0, Size());
    to = std::clamp(to, from, Size());
    cow_List slice;
    if (from < to)
      slice.items_.Write().assign(Items().begin() + from, Items().begin() + to);
    return slice;
  }
  void Concatenate(const cow_List& other) {
    if (other.Empty())
      return;
    if (Empty()) {
      *this = other;
      return;
    }
    const std::vector<T> tail = other.Items(); // other may be this list
    auto& items = items_.Write();
    items.insert(items.end(), tail.begin(), tail.end());
  }
  void Clear() { items_ = keydeck::CowBox<std::vector<T>>(); }
  void SetFromArray(const T* items, int count) {
    if (count <= 0) {
      Clear();
      return;
    }
    items_.Write().assign(items, items + count);
  }
  /// The items as one contiguous array, valid until the list changes.
  const T* GetCArray() const { return Items().data(); }

  bool IsMember(const T& item) const {
    return std::find(Items().begin(), Items().end(), item) != Items().end();
  }
  /// Appends unless an equal item is present; true when it appended.
  bool AppendUnlessMember(const T& item) {
    if (IsMember(item))
      return false;
    Append(item);
    return true;
  }

  const_iterator begin() const { return Items().begin(); }
  const_iterator end() const { return Items().end(); }

  friend bool operator==(const cow_List& a, const cow_List& b) { return a.Items() == b.Items(); }
  /// True when both lists share one payload (copies share until written).
  bool SharesWith(const cow_List& other) const { return items_.Shares(other.items_); }

private:
  const std::vector<T>& Items() const { return items_.Read(); }
  [[noreturn]] void RaiseOutOfRange(int i) const {
    keydeck::Raise("list index " + std::to_string(i) + " out of range [0, " +
                   std::to_string(Size()) + ")");
  }

  keydeck::CowBox<std::vector<T>> items_;
};

/// A forward iterator over its own copy of a list, so the list may change
/// under it: `for (it.First(); !it.IsDone(); it.Next()) use(it.CurrentItem());`
template <class T> class cow_ListIter {
public:
  explicit cow_ListIter(const cow_List<T>& list) : list_(list) {}
  void First() { position_ = 0; }
  void Next() { ++position_; }
  bool IsDone() const { return position_ >= list_.Size(); }
  int Position() const { return position_; }
  const T& CurrentItem() const { return list_.ConstGet(position_); }

private:
  cow_List<T> list_;
  int position_ = 0;
};
