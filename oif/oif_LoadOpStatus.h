#pragma once

#include "oif/oif_OpStatus.h"
#include "oif/oif_SetName.h"

class qkw_ModelInfo;

/// The restarts of the load cards: one key per class of load card
/// ("*Cload", "*Dload", "*Dsload", ...; 17 in all).
class oif_LoadOpStatus : public oif_OpStatus {
public:
  static constexpr int NumKeys = 17;

  /// Fills the flags from the loads, for `steps` (all the model's steps, the
  /// initial step first). A class restarts where one of its loads is
  /// deactivated, where a bolt load changes its method, and in every step
  /// when two of its loads act on one region, which the solver would
  /// otherwise merge. `BoltLoad` is the record class of a bolt load; each
  /// load has a `region`.
  template <class BoltLoad, class Load>
  void Configure(const kprC_PropagatingContainer<Load>& loads, const kprC_StepContainer& steps,
                 const qkw_ModelInfo& info) {
    InitializeMembers(steps, NumKeys);
    PopulateMembers<BoltLoad>(loads);
    ResolveOverlapRegions(loads, info);
  }
  int Key(unsigned typeId) const override;

private:
  template <class BoltLoad, class Load>
  void PopulateMembers(const kprC_PropagatingContainer<Load>& loads);
  template <class Load>
  void ResolveOverlapRegions(const kprC_PropagatingContainer<Load>& loads,
                             const qkw_ModelInfo& info);
  /// Flags `key` in every step but the initial one.
  void FlagAllSteps(int key);
};

template <class BoltLoad, class Load>
void oif_LoadOpStatus::PopulateMembers(const kprC_PropagatingContainer<Load>& loads) {
  // The initial step never restarts a class.
  for (int i = 1; i < StepCount(); ++i) {
    const cow_String& step = StepName(i);
    for (const auto& [name, load] : loads) {
      if (load->IsSuppressed())
        continue;
      const mdl_PropagationStatusEnm status = load->Status(step);
      if (status == PropDeactivated)
        Flag(Key(load->DynTypeId()), i);
      else if (status == PropModified && load->DynTypeId() == keydeck::TypeIds::BoltLoad &&
               keydeck::RecordCast<BoltLoad>(*load).ConstGetState(step).method.IsModified())
        Flag(Key(keydeck::TypeIds::BoltLoad), i);
    }
  }
}

template <class Load>
void oif_LoadOpStatus::ResolveOverlapRegions(const kprC_PropagatingContainer<Load>& loads,
                                             const qkw_ModelInfo& info) {
  cow_Map<int, cow_List<cow_String>> setsOfKey;
  cow_List<int> overlapping;
  for (const auto& [name, load] : loads) {
    if (load->IsSuppressed())
      continue;
    const int key = Key(load->DynTypeId());
    const cow_String setName =
        oif_SetName(load->region, info).UniqueSetName(oif_SetName::AssemblyScope);
    if (!setsOfKey.IsMember(key))
      setsOfKey.Insert(key, cow_List<cow_String>());
    if (!setsOfKey.Get(key).AppendUnlessMember(setName))
      overlapping.AppendUnlessMember(key);
  }
  for (const int key : overlapping)
    FlagAllSteps(key);
}
