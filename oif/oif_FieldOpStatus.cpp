#include "oif/oif_FieldOpStatus.h"

#include <utility>

namespace {

constexpr std::pair<unsigned, int> FieldKeys[] = {
    {0x2EC0008, 0}, {0x2EC000A, 1}, {0x2EC0013, 2}, {0x2EC0015, 3},
    {0x2EC0016, 4}, {0x2EC001A, 5}, {0x2EC001F, 6},
};

} // namespace

int oif_FieldOpStatus::Key(unsigned typeId) const {
  for (const auto& [type, key] : FieldKeys)
    if (type == typeId)
      return key;
  keydeck::Raise("Unimplemented field->statusKey conversion");
}
