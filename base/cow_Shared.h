#pragma once

#include <utility>

namespace keydeck {

/// The payload box behind every copy-on-write container: one value with a
/// plain (non-atomic) reference count. The whole program runs on one thread,
/// so the count needs no synchronisation.
///
/// A box starts without a payload and reads as an empty `T` until it is first
/// written, so empty containers cost no allocation. Copying a box shares the
/// payload; `Write()` makes the payload private first when it is shared, so a
/// write never reaches another holder.
template <class T> class CowBox {
public:
  CowBox() = default;
  explicit CowBox(T value) : node_(new Node{1, std::move(value)}) {}
  CowBox(const CowBox& other) noexcept : node_(other.node_) {
    if (node_ != nullptr)
      ++node_->refs;
  }
  CowBox(CowBox&& other) noexcept : node_(std::exchange(other.node_, nullptr)) {}
  CowBox& operator=(CowBox other) noexcept {
    std::swap(node_, other.node_);
    return *this;
  }
  ~CowBox() {
    if (node_ != nullptr && --node_->refs == 0)
      delete node_;
  }

  const T& Read() const { return node_ != nullptr ? node_->value : Empty(); }
  T& Write() {
    if (node_ == nullptr)
      node_ = new Node{1, T()};
    else if (node_->refs > 1)
      Detach();
    return node_->value;
  }
  /// True when two boxes share one payload (sharing is what makes copies cheap).
  bool Shares(const CowBox& other) const { return node_ == other.node_; }

private:
  struct Node {
    int refs;
    T value;
  };

  static const T& Empty() {
    static const T empty{};
    return empty;
  }
  void Detach() {
    Node* const copy = new Node{1, node_->value};
    --node_->refs;
    node_ = copy;
  }

  Node* node_ = nullptr;
};

} // namespace keydeck
