#include "oif/oif_InteractionOpStatus.h"

#include <algorithm>
#include <iterator>

namespace {

// The position of a type in this list is its key.
constexpr unsigned KeyedTypes[] = {0x2A0001F, 0x2A00023, 0x2A00033, 0x2A00070};

} // namespace

bool oif_InteractionOpStatus::HasKey(unsigned typeId) {
  return std::find(std::begin(KeyedTypes), std::end(KeyedTypes), typeId) != std::end(KeyedTypes);
}

int oif_InteractionOpStatus::Key(unsigned typeId) const {
  const unsigned* const found = std::find(std::begin(KeyedTypes), std::end(KeyedTypes), typeId);
  if (found == std::end(KeyedTypes))
    keydeck::Raise("\"Unimplemented interaction->statusKey conversion\" == 0");
  return static_cast<int>(found - std::begin(KeyedTypes));
}
