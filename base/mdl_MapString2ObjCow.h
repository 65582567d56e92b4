#pragma once

#include "base/cow_Btree.h"
#include "base/cow_COW.h"
#include "base/cow_String.h"
#include "base/nex_Exception.h"

#include <string>
#include <utility>

/// The model's repository of named objects: name to a polymorphic handle, in
/// ascending byte order of the name ("Z" before "a", bytes above 127 after
/// ASCII). Every table of named records is visited in that order.
template <class T> class mdl_MapString2ObjCow {
public:
  using Handle = cow_ArrayCOW<T, cow_Virtual<T>>;
  using Map = cow_Btree<cow_String, Handle>;
  using const_iterator = typename Map::const_iterator;

  int Size() const { return map_.Size(); }
  bool Empty() const { return map_.Empty(); }
  cow_List<cow_String> Keys() const { return map_.Keys(); }
  bool IsMember(const cow_String& name) const { return map_.IsMember(name); }

  /// The object of that name; raises when there is none.
  const T& ConstGet(const cow_String& name) const {
    const Handle& handle = map_.ConstGet(name);
    if (handle.IsNull())
      keydeck::Raise("no object named \"" + std::string(name.View()) + "\"");
    return *handle;
  }
  /// Stores a clone of `object` under `name`, replacing any earlier one.
  void Insert(const cow_String& name, const T& object) { map_.Insert(name, Handle(object)); }
  /// Stores the handle itself, sharing its object.
  void Insert(const cow_String& name, Handle handle) { map_.Insert(name, std::move(handle)); }
  const Map& ConstGetMap() const { return map_; }

  const_iterator begin() const { return map_.begin(); }
  const_iterator end() const { return map_.end(); }

private:
  Map map_;
};

/// Iterator with named operations, in ascending name order.
template <class T> class mdl_MapString2ObjCowIT {
public:
  explicit mdl_MapString2ObjCowIT(const mdl_MapString2ObjCow<T>& map) : it_(map.ConstGetMap()) {}
  void First() { it_.First(); }
  void Next() { it_.Next(); }
  bool IsDone() const { return it_.IsDone(); }
  const cow_String& CurrentKey() const { return it_.CurrentKey(); }
  const T& CurrentValue() const { return *it_.CurrentValue(); }

private:
  cow_BtreeIterator<cow_String, typename mdl_MapString2ObjCow<T>::Handle> it_;
};
