#include "oif/oif_LoadOpStatus.h"

#include <utility>

namespace {

// Load type to the key of its card class.
constexpr std::pair<unsigned, int> LoadKeys[] = {
    // "*Cload"
    {0x2880018, 0},
    {0x2880022, 0},
    {keydeck::TypeIds::BoltLoad, 0},
    {0x288002A, 0},
    {0x2880042, 0},
    {0x2880047, 0},
    // "*Dload"
    {0x2880014, 1},
    {0x288001A, 1},
    {0x288001C, 1},
    {0x288001E, 1},
    {0x2880020, 1},
    // "*Dsload"
    {0x2880008, 2},
    {0x2880055, 2},
    {0x2880057, 2},
    // "*Cflux", "*Dflux", "*Dsflux", "*Dsflow", "*Fluid Flux"
    {0x2880026, 3},
    {0x288003C, 3},
    {0x2880028, 4},
    {0x2880040, 4},
    {0x288003E, 5},
    {0x2880045, 5},
    {0x288002C, 6},
    {0x288002E, 7},
    // a type without a card of its own
    {0x2880012, 8},
    // "*Cecharge", "*Decharge", "*Dsecharge", "*Cecurrent", "*Decurrent", "*Dsecurrent"
    {0x2880030, 9},
    {0x2880038, 10},
    {0x2880034, 11},
    {0x2880032, 12},
    {0x288003A, 13},
    {0x2880036, 14},
    // "*Connector Load"
    {0x288000E, 15},
    {0x2880049, 15},
    // inertia relief
    {0x288004B, 16},
};

} // namespace

int oif_LoadOpStatus::Key(unsigned typeId) const {
  for (const auto& [type, key] : LoadKeys)
    if (type == typeId)
      return key;
  keydeck::Raise("Unimplemented load->statusKey conversion");
}

void oif_LoadOpStatus::FlagAllSteps(int key) {
  for (int i = 1; i < StepCount(); ++i)
    Flag(key, i);
}
