#pragma once

#include "base/cow_Shared.h"
#include "base/nex_Exception.h"

#include <string>
#include <unordered_map>
#include <utility>

/// A sparse table from a signed integer to a value, with constant-time
/// lookup. It is never iterated, so its storage order cannot reach the deck.
template <class V> class cow_IntTable {
public:
  int Size() const { return static_cast<int>(entries_.Read().size()); }
  bool IsMember(int key) const { return entries_.Read().count(key) != 0; }
  /// Inserts or replaces; true when the key was new.
  bool Insert(int key, V value) {
    return entries_.Write().insert_or_assign(key, std::move(value)).second;
  }
  /// The value under `key`; raises when the key is absent.
  const V& ConstGet(int key) const {
    const auto at = entries_.Read().find(key);
    if (at == entries_.Read().end())
      keydeck::Raise("no entry under the integer key " + std::to_string(key));
    return at->second;
  }

private:
  keydeck::CowBox<std::unordered_map<int, V>> entries_;
};
