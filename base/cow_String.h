#pragma once

#include <compare>
#include <cstddef>
#include <string_view>

/// A reference-counted byte string. Copies share the bytes until one side
/// writes. An empty string holds no buffer and `CStr()` then points at a
/// static empty text, so `CStr()` is never null. Lengths are 32-bit signed.
///
/// Comparison is byte by byte on unsigned bytes, so "Z" < "a" and bytes above
/// 127 sort after ASCII; the model's named collections rely on that order.
class cow_String {
public:
  cow_String() = default;
  cow_String(const char* text); // NOLINT: implicit, like a string literal
  cow_String(const char* text, int length);
  explicit cow_String(std::string_view text);
  /// The decimal text of the number: "-12"; reals in their shortest exact
  /// form ("0.1", "1e-10", "1.7976931348623157e+308").
  explicit cow_String(int value);
  explicit cow_String(double value);
  explicit cow_String(float value);

  cow_String(const cow_String& other) noexcept;
  cow_String(cow_String&& other) noexcept;
  cow_String& operator=(const cow_String& other) noexcept;
  cow_String& operator=(cow_String&& other) noexcept;
  ~cow_String();

  const char* CStr() const;
  int Length() const { return rep_ == nullptr ? 0 : rep_->length; }
  bool Empty() const { return Length() == 0; }
  std::string_view View() const { return {CStr(), static_cast<std::size_t>(Length())}; }
  /// Byte at `i`; `i` must lie in [0, Length()).
  char operator[](int i) const { return CStr()[i]; }

  cow_String& operator+=(const cow_String& tail);
  cow_String& operator+=(const char* tail);
  cow_String& Append(const char* tail);
  cow_String& Append(std::string_view tail);

  /// -1, 0 or 1, comparing unsigned bytes; a proper prefix sorts first.
  int Compare(const cow_String& other) const;
  int Compare(const char* other) const;

  /// Index of the first occurrence of `text` at or after `from`, or -1.
  int Find(const char* text, int from = 0) const;
  /// Up to `length` bytes from `pos`; both are clamped to the string.
  cow_String Substr(int pos, int length) const;
  /// Removes up to `length` bytes from `pos`; both are clamped to the string.
  cow_String& Erase(int pos, int length);
  /// Replaces occurrences of `from` by `to`, left to right and at most
  /// `count` of them (all when `count` is negative). Returns how many.
  int Substitute(const char* from, const char* to, int count = -1);
  /// A copy with ASCII capitals made small; other bytes unchanged.
  cow_String ToLower() const;

  friend bool operator==(const cow_String& a, const cow_String& b) { return a.View() == b.View(); }
  friend bool operator==(const cow_String& a, const char* b) { return a.View() == b; }
  friend std::strong_ordering operator<=>(const cow_String& a, const cow_String& b) {
    return a.Compare(b) <=> 0;
  }

private:
  struct Rep {
    int refs;
    int length;
    char bytes[1]; // the text and its terminating zero
  };
  static Rep* Allocate(int length);
  void Assign(std::string_view text);
  void Release() noexcept;

  Rep* rep_ = nullptr;
};

cow_String operator+(const cow_String& a, const cow_String& b);
cow_String operator+(const cow_String& a, const char* b);
cow_String operator+(const char* a, const cow_String& b);
