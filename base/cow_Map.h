#pragma once

#include "base/cow_List.h"
#include "base/cow_Shared.h"
#include "base/cow_String.h"
#include "base/nex_Exception.h"

#include <cstdint>
#include <utility>
#include <vector>

namespace keydeck {

/// The bit that steers a key at one depth of a `cow_Map`'s digital tree.
/// At even depth d the character at index d/2 from the start is read, at odd
/// depth the character at index length - 1 - d/2 from the end; once d reaches
/// the key's length the bit is 0. The bit is the character's lowest bit.
inline int DigitalTreeBit(const unsigned char* key, int length, int depth) {
  if (depth >= length)
    return 0;
  const int index = depth % 2 == 0 ? depth / 2 : length - 1 - depth / 2;
  return key[index] & 1;
}

inline int DigitalTreeBit(const cow_String& key, int depth) {
  return DigitalTreeBit(reinterpret_cast<const unsigned char*>(key.CStr()), key.Length(), depth);
}

/// An integer key reads as its four bytes, least significant first.
inline int DigitalTreeBit(int key, int depth) {
  const auto value = static_cast<std::uint32_t>(key);
  const unsigned char bytes[4] = {
      static_cast<unsigned char>(value), static_cast<unsigned char>(value >> 8),
      static_cast<unsigned char>(value >> 16), static_cast<unsigned char>(value >> 24)};
  return DigitalTreeBit(bytes, 4, depth);
}

} // namespace keydeck

/// A map from `cow_String` or `int` keys, stored as a digital search tree with
/// two children to a node. Its iteration order shows in the deck, so it is
/// kept exactly: the root holds the first key inserted; a new key descends by
/// `keydeck::DigitalTreeBit` (0 to the first child, 1 to the second) into the
/// first empty slot; iteration is pre-order: node, first subtree, second
/// subtree. Inserting an existing key replaces its value and keeps the size.
template <class K, class V> class cow_Map {
  struct Node {
    K key;
    V value;
    int child[2] = {-1, -1};
  };

public:
  class const_iterator;

  int Size() const { return static_cast<int>(Nodes().size()); }
  bool Empty() const { return Nodes().empty(); }
  bool IsMember(const K& key) const { return Find(key) >= 0; }

  /// The value under `key`; raises when the key is absent.
  const V& ConstGet(const K& key) const { return Nodes()[static_cast<std::size_t>(At(key))].value; }
  /// The value under `key` for writing; raises when the key is absent.
  V& Get(const K& key) {
    const int at = At(key);
    return nodes_.Write()[static_cast<std::size_t>(at)].value;
  }

  /// Inserts or replaces; true when the key was new.
  bool Insert(const K& key, V value) {
    if (Empty()) {
      nodes_.Write().push_back(Node{key, std::move(value)});
      return true;
    }
    int at = 0;
    for (int depth = 0;; ++depth) {
      const Node& node = Nodes()[static_cast<std::size_t>(at)];
      if (node.key == key) {
        nodes_.Write()[static_cast<std::size_t>(at)].value = std::move(value);
        return false;
      }
      const int side = keydeck::DigitalTreeBit(key, depth);
      if (node.child[side] < 0) {
        auto& nodes = nodes_.Write();
        nodes[static_cast<std::size_t>(at)].child[side] = static_cast<int>(nodes.size());
        nodes.push_back(Node{key, std::move(value)});
        return true;
      }
      at = node.child[side];
    }
  }

  /// The keys in iteration order.
  cow_List<K> Keys() const {
    cow_List<K> keys = cow_List<K>::WithCapacity(Size());
    for (const auto& [key, value] : *this)
      keys.Append(key);
    return keys;
  }

  const_iterator begin() const { return const_iterator(&Nodes(), Empty() ? -1 : 0); }
  const_iterator end() const { return const_iterator(&Nodes(), -1); }

  /// Pre-order walk over the tree; dereferences to a (key, value) pair.
  class const_iterator {
  public:
    std::pair<const K&, const V&> operator*() const {
      const Node& node = (*nodes_)[static_cast<std::size_t>(at_)];
      return {node.key, node.value};
    }
    const_iterator& operator++() {
      const Node& node = (*nodes_)[static_cast<std::size_t>(at_)];
      if (node.child[1] >= 0)
        pending_.push_back(node.child[1]);
      if (node.child[0] >= 0) {
        at_ = node.child[0];
        return *this;
      }
      at_ = -1;
      if (!pending_.empty()) {
        at_ = pending_.back();
        pending_.pop_back();
      }
      return *this;
    }
    bool operator==(const const_iterator& other) const { return at_ == other.at_; }

  private:
    friend class cow_Map;
    const_iterator(const std::vector<Node>* nodes, int at) : nodes_(nodes), at_(at) {}
    const std::vector<Node>* nodes_;
    int at_;
    std::vector<int> pending_; // second subtrees still to visit
  };

private:
  const std::vector<Node>& Nodes() const { return nodes_.Read(); }
  int Find(const K& key) const {
    int at = Empty() ? -1 : 0;
    for (int depth = 0; at >= 0; ++depth) {
      const Node& node = Nodes()[static_cast<std::size_t>(at)];
      if (node.key == key)
        return at;
      at = node.child[keydeck::DigitalTreeBit(key, depth)];
    }
    return -1;
  }
  int At(const K& key) const {
    const int at = Find(key);
    if (at < 0)
      keydeck::Raise("no entry under the key asked for");
    return at;
  }

  keydeck::CowBox<std::vector<Node>> nodes_;
};

/// Iterator with named operations over a map that it holds a copy of:
/// `for (it.First(); !it.IsDone(); it.Next()) use(it.CurrentKey(), it.CurrentValue());`
template <class K, class V> class cow_ConstMapIterator {
public:
  explicit cow_ConstMapIterator(const cow_Map<K, V>& map) : map_(map), at_(map_.end()) {}
  void First() { at_ = map_.begin(); }
  void Next() { ++at_; }
  bool IsDone() const { return at_ == map_.end(); }
  const K& CurrentKey() const { return (*at_).first; }
  const V& CurrentValue() const { return (*at_).second; }

private:
  cow_Map<K, V> map_;
  typename cow_Map<K, V>::const_iterator at_;
};

/// The keys of a map as a list, in the map's iteration order.
template <class K, class V> cow_List<K> cow_Keys(const cow_Map<K, V>& map) { return map.Keys(); }
