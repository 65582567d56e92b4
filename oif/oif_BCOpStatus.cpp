#include "oif/oif_BCOpStatus.h"

#include <utility>

namespace {

// Mechanical and other "*Boundary" cards form one class, "*Connector Motion"
// cards the other.
constexpr std::pair<unsigned, int> BCKeys[] = {
    {0x2980005, 0}, {keydeck::TypeIds::BoltLoad, 0},
    {0x2980024, 1}, {0x2980026, 1},
    {0x2980028, 1}, {0x2980007, 0},
    {0x2980009, 0}, {0x298000C, 0},
    {0x298000E, 0}, {0x2980010, 0},
    {0x2980014, 0}, {0x2980016, 0},
    {0x2980018, 0}, {0x298001A, 0},
    {0x298001C, 0}, {0x2980022, 0},
    {0x2980031, 0},
};

} // namespace

int oif_BCOpStatus::Key(unsigned typeId) const {
  for (const auto& [type, key] : BCKeys)
    if (type == typeId)
      return key;
  keydeck::Raise("Unimplemented bc->statusKey conversion");
}
