// Mesh-sized lists ask for huge pages before they are first touched.

#include "base/large_lists.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <sstream>
#include <string>

namespace keydeck {
namespace {

// What the system does with huge pages: "always", "madvise", "never" or ""
// where it cannot say.
std::string HugePageMode() {
  std::ifstream in("/sys/kernel/mm/transparent_hugepage/enabled");
  std::string line;
  std::getline(in, line);
  const std::size_t open = line.find('[');
  const std::size_t close = line.find(']');
  return open < close && close != std::string::npos ? line.substr(open + 1, close - open - 1) : "";
}

// The kB of huge pages in the mapping of this process that holds `address`.
long HugePageKilobytesAt(const void* address) {
  const std::uintptr_t at = reinterpret_cast<std::uintptr_t>(address);
  std::ifstream smaps("/proc/self/smaps");
  bool inside = false;
  for (std::string line; std::getline(smaps, line);) {
    std::uintptr_t from = 0;
    std::uintptr_t to = 0;
    char dash = 0;
    std::istringstream words(line);
    if (words >> std::hex >> from >> dash >> to && dash == '-') {
      inside = from <= at && at < to;
    } else if (inside && line.starts_with("AnonHugePages:")) {
      return std::stol(line.substr(14));
    }
  }
  return -1;
}

TEST(LargeLists, HoldTheirItemsAndGetHugePagesWhereOffered) {
  constexpr int Count = 8 << 20; // 32 MB of ints, room for many huge pages
  cow_List<int> list = LargeList<int>(Count);
  ASSERT_EQ(list.Size(), Count);
  EXPECT_EQ(list.ConstGet(0), 0);
  EXPECT_EQ(list.ConstGet(Count - 1), 0);
  cow_List<int> room = LargeListCapacity<int>(Count);
  EXPECT_EQ(room.Size(), 0);
  room.Append(7);
  EXPECT_EQ(room.ConstGet(0), 7);

  const std::string mode = HugePageMode();
  if (mode != "madvise" && mode != "always")
    GTEST_SKIP() << "the system offers no huge pages here";
  // The list spans whole huge pages; without the advice none would be used.
  EXPECT_GT(HugePageKilobytesAt(list.GetCArray() + Count / 2), 0);
}

} // namespace
} // namespace keydeck
