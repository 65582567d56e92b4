#pragma once

#include "base/cow_List.h"
#include "base/cow_Map.h"

/// The attributes of one element of an instance: its user label and the
/// indices of its section assignment, element controls, beam orientation
/// and material orientation, each -1 when unset. Two properties are equal
/// when their four indices are; the label does not count.
class bme_Property {
public:
  static constexpr int Unset = -1;

  friend bool operator==(const bme_Property& a, const bme_Property& b) {
    return a.sectionIndex == b.sectionIndex && a.elemCtrlIndex == b.elemCtrlIndex &&
           a.beamOriIndex == b.beamOriIndex && a.matOriIndex == b.matOriIndex;
  }

  int label = 0;
  int sectionIndex = Unset;
  int elemCtrlIndex = Unset;
  int beamOriIndex = Unset;
  int matOriIndex = Unset;
};

/// Elements of equal properties, by class number: each class lists its
/// members, whose four indices are those of its first member.
class bme_MapPropertyArray : public cow_Map<int, cow_List<bme_Property>> {
public:
  /// The user labels of the class's elements, in order.
  cow_List<int> ElementIds(int classKey) const;
  int SectionIndex(int classKey) const { return First(classKey).sectionIndex; }
  int ElemCtrlIndex(int classKey) const { return First(classKey).elemCtrlIndex; }
  int BeamOriIndex(int classKey) const { return First(classKey).beamOriIndex; }
  int MatOriIndex(int classKey) const { return First(classKey).matOriIndex; }

private:
  const bme_Property& First(int classKey) const { return ConstGet(classKey).ConstGet(0); }
};
