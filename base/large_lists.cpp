#include "base/large_lists.h"

#include <cstdint>
#include <sys/mman.h>

namespace keydeck {

void AdviseHugePages(const void* data, std::size_t bytes) {
  constexpr std::uintptr_t HugePage = std::uintptr_t{1} << 21; // 2 MB, the x86-64 size
  const std::uintptr_t start = reinterpret_cast<std::uintptr_t>(data);
  const std::uintptr_t first = (start + HugePage - 1) & ~(HugePage - 1);
  const std::uintptr_t end = (start + bytes) & ~(HugePage - 1);
  if (first >= end)
    return;
#ifdef MADV_HUGEPAGE
  // Advice only: a refusal leaves the memory as it was, in small pages.
  madvise(reinterpret_cast<void*>(first), end - first, MADV_HUGEPAGE);
#endif
}

} // namespace keydeck
