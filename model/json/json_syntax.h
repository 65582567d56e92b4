#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace keydeck {

/// The first place where a text breaks the JSON grammar: its byte offset, its
/// line and column (both from 1; the column counts bytes) and what was wrong.
struct JsonSyntaxError {
  std::size_t offset;
  int line;
  int column;
  std::string what;
};

/// The greatest nesting of arrays and objects that a model file may use.
inline constexpr int MaxJsonDepth = 1024;

/// Checks `text` against the JSON grammar (one value, UTF-8, nesting at most
/// `MaxJsonDepth`) and returns its first fault, or nothing for a valid text.
/// The loader runs it only once something has gone wrong, to say exactly where
/// a broken text breaks.
std::optional<JsonSyntaxError> FindJsonSyntaxError(std::string_view text);

/// The line and column (from 1, counting bytes) of byte `offset` in `text`.
void LineAndColumn(std::string_view text, std::size_t offset, int& line, int& column);

} // namespace keydeck
