#pragma once

#include "base/cow_List.h"
#include "base/cow_Shared.h"

#include <map>
#include <utility>

/// A map in ascending key order (`cow_String` by unsigned bytes, `int`
/// numerically); copies share their entries until one side writes.
/// On a missing key neither `ConstGet` nor `Get` adds anything: `ConstGet`
/// gives a default value, `Get` the tree's own default value slot, reset to the
/// default at each miss, so a write through it stores nothing.
template <class K, class V> class cow_Btree {
  using Entries = std::map<K, V>;

public:
  using const_iterator = typename Entries::const_iterator;

  int Size() const { return static_cast<int>(Entries_().size()); }
  bool Empty() const { return Entries_().empty(); }
  bool IsMember(const K& key) const { return Entries_().count(key) != 0; }

  const V& ConstGet(const K& key) const {
    const auto at = Entries_().find(key);
    return at == Entries_().end() ? Default() : at->second;
  }
  V& Get(const K& key) {
    if (!IsMember(key))
      return missing_ = V();
    return entries_.Write().find(key)->second;
  }
  /// Inserts or replaces; true when the key was new.
  bool Insert(const K& key, V value) {
    return entries_.Write().insert_or_assign(key, std::move(value)).second;
  }
  /// Removes the key; true when it was there.
  bool Remove(const K& key) { return IsMember(key) && entries_.Write().erase(key) != 0; }

  cow_List<K> Keys() const {
    cow_List<K> keys = cow_List<K>::WithCapacity(Size());
    for (const auto& entry : Entries_())
      keys.Append(entry.first);
    return keys;
  }

  const_iterator begin() const { return Entries_().begin(); }
  const_iterator end() const { return Entries_().end(); }

private:
  const Entries& Entries_() const { return entries_.Read(); }
  static const V& Default() {
    static const V value{};
    return value;
  }

  keydeck::CowBox<Entries> entries_;
  V missing_{};
};

/// Iterator with named operations over a tree that it holds a copy of, in
/// ascending key order.
template <class K, class V> class cow_BtreeIterator {
public:
  explicit cow_BtreeIterator(const cow_Btree<K, V>& tree) : tree_(tree), at_(tree_.end()) {}
  void First() { at_ = tree_.begin(); }
  void Next() { ++at_; }
  bool IsDone() const { return at_ == tree_.end(); }
  const K& CurrentKey() const { return at_->first; }
  const V& CurrentValue() const { return at_->second; }

private:
  cow_Btree<K, V> tree_;
  typename cow_Btree<K, V>::const_iterator at_;
};
