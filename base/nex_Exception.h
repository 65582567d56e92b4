#pragma once

#include <exception>
#include <source_location>
#include <string>
#include <string_view>

/// The one failure type of keydeck: a text with the source file and line
/// that raised it. Everything the writer or the model layer cannot go on
/// with ends in one of these; nothing in the library catches it.
class nex_PrimException : public std::exception {
public:
  nex_PrimException(std::string text, const char* file, int line);

  const char* what() const noexcept override { return text_.c_str(); }
  const std::string& Text() const { return text_; }
  const char* File() const { return file_; }
  int Line() const { return line_; }

private:
  std::string text_;
  const char* file_;
  int line_;
};

/// Raises a type-check failure unless `actual` equals `expected`: the guard
/// in front of every narrowing of a model record.
void nex_canDynamicCastRef(unsigned expected, unsigned actual, const char* file, int line);

namespace keydeck {

/// Throws `nex_PrimException` with `text` and the caller's file and line.
[[noreturn]] void Raise(std::string_view text,
                        std::source_location where = std::source_location::current());

} // namespace keydeck
