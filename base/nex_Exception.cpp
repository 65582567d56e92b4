#include "base/nex_Exception.h"

#include <string>
#include <utility>

nex_PrimException::nex_PrimException(std::string text, const char* file, int line)
    : text_(std::move(text)), file_(file), line_(line) {}

void nex_canDynamicCastRef(unsigned expected, unsigned actual, const char* file, int line) {
  if (expected == actual)
    return;
  throw nex_PrimException("record of type " + std::to_string(actual) + " where type " +
                              std::to_string(expected) + " was expected",
                          file, line);
}

namespace keydeck {

void Raise(std::string_view text, std::source_location where) {
  throw nex_PrimException(std::string(text), where.file_name(), static_cast<int>(where.line()));
}

} // namespace keydeck
