// clang 14 with the C++ library of g++ 12 has no std::source_location: the
// library builds it on a compiler builtin that clang gained in version 15.
// The fuzz build force-includes this header (-include) to supply one; where
// the library has its own, it does nothing.
#pragma once

#include <version>

#if !defined(__cpp_lib_source_location)
#include <cstdint>

namespace std {

struct source_location {
  static constexpr source_location current(const char* file = __builtin_FILE(),
                                           const char* function = __builtin_FUNCTION(),
                                           uint_least32_t line = __builtin_LINE(),
                                           uint_least32_t column = __builtin_COLUMN()) noexcept {
    source_location location;
    location.file_ = file;
    location.function_ = function;
    location.line_ = line;
    location.column_ = column;
    return location;
  }
  constexpr const char* file_name() const noexcept { return file_; }
  constexpr const char* function_name() const noexcept { return function_; }
  constexpr uint_least32_t line() const noexcept { return line_; }
  constexpr uint_least32_t column() const noexcept { return column_; }

private:
  const char* file_ = "";
  const char* function_ = "";
  uint_least32_t line_ = 0;
  uint_least32_t column_ = 0;
};

} // namespace std
#endif
