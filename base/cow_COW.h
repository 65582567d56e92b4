#pragma once

#include <cassert>
#include <utility>

/// Copy policy that clones through the object's virtual `Copy()`, so a handle
/// to a base class clones the most derived class.
template <class T> struct cow_Virtual {
  static T* Clone(const T& object) { return static_cast<T*>(object.Copy()); }
};

/// Copy policy that clones through the copy constructor.
template <class T> struct cow_Direct {
  static T* Clone(const T& object) { return new T(object); }
};

/// The count and pointer that a copy-on-write handle stands on. Only
/// `cow_COW` uses it; the count is plain since the program has one thread.
template <class T> struct cow_CountedHld {
  int refs;
  T* object;
};

/// A counted handle to one object, possibly of a class derived from `T`.
/// From a `T*` it takes ownership; from a `const T&` it clones through the
/// policy. Copies share the object; `Get()` first clones it when it is shared,
/// so the writer owns a private copy. A default handle is empty (`IsNull`).
template <class T, class Policy = cow_Direct<T>> class cow_COW {
public:
  cow_COW() = default;
  explicit cow_COW(T* owned) : hold_(owned == nullptr ? nullptr : new Hold{1, owned}) {}
  explicit cow_COW(const T& object) : cow_COW(Policy::Clone(object)) {}
  cow_COW(const cow_COW& other) noexcept : hold_(other.hold_) {
    if (hold_ != nullptr)
      ++hold_->refs;
  }
  cow_COW(cow_COW&& other) noexcept : hold_(std::exchange(other.hold_, nullptr)) {}
  cow_COW& operator=(cow_COW other) noexcept {
    std::swap(hold_, other.hold_);
    return *this;
  }
  ~cow_COW() { DropReference(); }

  bool IsNull() const { return hold_ == nullptr; }
  const T& ConstGet() const {
    assert(hold_ != nullptr && "read through an empty handle");
    return *hold_->object;
  }
  const T& operator*() const { return ConstGet(); }
  const T* operator->() const { return &ConstGet(); }
  /// The object for writing: a private clone when another holder shares it.
  T& Get() {
    assert(hold_ != nullptr && "write through an empty handle");
    if (hold_->refs > 1) {
      T* const clone = Policy::Clone(*hold_->object);
      --hold_->refs;
      hold_ = new Hold{1, clone};
    }
    return *hold_->object;
  }
  /// True when both handles share one object.
  bool SharesWith(const cow_COW& other) const { return hold_ == other.hold_; }

private:
  using Hold = cow_CountedHld<T>;
  void DropReference() noexcept {
    if (hold_ != nullptr && --hold_->refs == 0) {
      delete hold_->object;
      delete hold_;
    }
    hold_ = nullptr;
  }

  Hold* hold_ = nullptr;
};

/// The handle in which cards, builders and model records travel in lists;
/// it clones through the virtual `Copy()` by default.
template <class T, class Policy = cow_Virtual<T>> class cow_ArrayCOW : public cow_COW<T, Policy> {
public:
  using cow_COW<T, Policy>::cow_COW;
};
