#pragma once

#include "base/cow_List.h"

#include <cstddef>

namespace keydeck {

/// Asks the kernel to back the memory of [data, data + bytes) with huge pages
/// where it can. Touching fresh memory costs a page fault per page, and on a
/// virtual machine these faults take about half the time of filling a
/// mesh-sized list; a huge page takes one fault for 2 MB instead of 512.
/// Nothing happens for blocks too small to hold a huge page or where the
/// system does not offer them.
void AdviseHugePages(const void* data, std::size_t bytes);

/// An empty list with room for `count` items, its memory advised as above
/// before any item touches it: for the mesh-sized lists that loading fills.
template <class T> cow_List<T> LargeListCapacity(int count) {
  cow_List<T> list = cow_List<T>::WithCapacity(count);
  AdviseHugePages(list.GetCArray(), static_cast<std::size_t>(count) * sizeof(T));
  return list;
}

/// The same list holding `count` default items.
template <class T> cow_List<T> LargeList(int count) {
  cow_List<T> list = LargeListCapacity<T>(count);
  list.Resize(count);
  return list;
}

} // namespace keydeck
