#include "base/cow_String.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <new>
#include <string>

namespace {

std::string_view Clamp(std::string_view text, int pos, int length) {
  const int size = static_cast<int>(text.size());
  pos = std::clamp(pos, 0, size);
  length = std::clamp(length, 0, size - pos);
  return text.substr(static_cast<std::size_t>(pos), static_cast<std::size_t>(length));
}

template <class Number> std::string_view NumberText(char (&buffer)[32], Number value) {
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  return {buffer, static_cast<std::size_t>(result.ptr - buffer)};
}

} // namespace

cow_String::cow_String(const char* text) { Assign(text == nullptr ? "" : text); }
cow_String::cow_String(const char* text, int length)
    : cow_String(std::string_view(text, static_cast<std::size_t>(length))) {}
cow_String::cow_String(std::string_view text) { Assign(text); }

cow_String::cow_String(int value) {
  char buffer[32];
  Assign(NumberText(buffer, value));
}
cow_String::cow_String(double value) {
  char buffer[32];
  Assign(NumberText(buffer, value));
}
cow_String::cow_String(float value) {
  char buffer[32];
  Assign(NumberText(buffer, value));
}

cow_String::cow_String(const cow_String& other) noexcept : rep_(other.rep_) {
  if (rep_ != nullptr)
    ++rep_->refs;
}
cow_String::cow_String(cow_String&& other) noexcept : rep_(other.rep_) { other.rep_ = nullptr; }

cow_String& cow_String::operator=(const cow_String& other) noexcept {
  // Read other's bytes before Release(): on self-assignment it clears other.rep_ too.
  Rep* const rep = other.rep_;
  if (rep != nullptr)
    ++rep->refs;
  Release();
  rep_ = rep;
  return *this;
}
cow_String& cow_String::operator=(cow_String&& other) noexcept {
  if (this != &other) {
    Release();
    rep_ = other.rep_;
    other.rep_ = nullptr;
  }
  return *this;
}
cow_String::~cow_String() { Release(); }

const char* cow_String::CStr() const { return rep_ == nullptr ? "" : rep_->bytes; }

cow_String::Rep* cow_String::Allocate(int length) {
  void* const memory = std::malloc(offsetof(Rep, bytes) + static_cast<std::size_t>(length) + 1);
  if (memory == nullptr)
    throw std::bad_alloc();
  Rep* const rep = static_cast<Rep*>(memory);
  rep->refs = 1;
  rep->length = length;
  rep->bytes[length] = '\0';
  return rep;
}

void cow_String::Assign(std::string_view text) {
  Rep* rep = nullptr;
  if (!text.empty()) {
    rep = Allocate(static_cast<int>(text.size()));
    std::memcpy(rep->bytes, text.data(), text.size());
  }
  Release();
  rep_ = rep;
}

void cow_String::Release() noexcept {
  if (rep_ != nullptr && --rep_->refs == 0)
    std::free(rep_);
  rep_ = nullptr;
}

cow_String& cow_String::operator+=(const cow_String& tail) { return Append(tail.View()); }
cow_String& cow_String::operator+=(const char* tail) { return Append(tail); }
cow_String& cow_String::Append(const char* tail) {
  return Append(std::string_view(tail == nullptr ? "" : tail));
}

cow_String& cow_String::Append(std::string_view tail) {
  if (tail.empty())
    return *this;
  const int oldLength = Length();
  Rep* const rep = Allocate(oldLength + static_cast<int>(tail.size()));
  std::memcpy(rep->bytes, CStr(), static_cast<std::size_t>(oldLength));
  std::memcpy(rep->bytes + oldLength, tail.data(), tail.size());
  Release();
  rep_ = rep;
  return *this;
}

// By the other string's length, not its CStr(): a zero byte inside a string
// must count like any other byte, or Compare would disagree with operator==.
int cow_String::Compare(const cow_String& other) const {
  // string_view compares through char_traits<char>, which orders as unsigned bytes.
  const int order = View().compare(other.View());
  return (order > 0) - (order < 0);
}

int cow_String::Compare(const char* other) const {
  const int order = View().compare(other == nullptr ? "" : other);
  return (order > 0) - (order < 0);
}

int cow_String::Find(const char* text, int from) const {
  from = std::max(from, 0);
  if (from > Length())
    return -1;
  const std::size_t at = View().find(text, static_cast<std::size_t>(from));
  return at == std::string_view::npos ? -1 : static_cast<int>(at);
}

cow_String cow_String::Substr(int pos, int length) const {
  return cow_String(Clamp(View(), pos, length));
}

cow_String& cow_String::Erase(int pos, int length) {
  const std::string_view cut = Clamp(View(), pos, length);
  if (cut.empty())
    return *this;
  std::string text(View());
  text.erase(static_cast<std::size_t>(cut.data() - CStr()), cut.size());
  Assign(text);
  return *this;
}

int cow_String::Substitute(const char* from, const char* to, int count) {
  const std::string_view pattern(from);
  if (pattern.empty())
    return 0;
  std::string text;
  int replaced = 0;
  std::size_t start = 0;
  const std::string_view source = View();
  while (count < 0 || replaced < count) {
    const std::size_t at = source.find(pattern, start);
    if (at == std::string_view::npos)
      break;
    text.append(source.substr(start, at - start)).append(to);
    start = at + pattern.size();
    ++replaced;
  }
  if (replaced == 0)
    return 0;
  text.append(source.substr(start));
  Assign(text);
  return replaced;
}

cow_String cow_String::ToLower() const {
  std::string text(View());
  for (char& c : text)
    if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c - 'A' + 'a');
  return cow_String(std::string_view(text));
}

cow_String operator+(const cow_String& a, const cow_String& b) { return cow_String(a) += b; }
cow_String operator+(const cow_String& a, const char* b) { return cow_String(a) += b; }
cow_String operator+(const char* a, const cow_String& b) { return cow_String(a) += b; }
