#pragma once

#include "oif/oif_OpStatus.h"

/// The restarts of the boundary-condition cards: key 0 for the "*Boundary"
/// class, key 1 for the "*Connector Motion" class. Bolt loads belong to the
/// first, since the solver expresses them as boundary conditions.
class oif_BCOpStatus : public oif_OpStatus {
public:
  static constexpr int NumKeys = 2;

  /// Fills the flags from the boundary conditions and the bolt loads, for
  /// `steps` (all the model's steps, the initial step first). `BoltLoad` is
  /// the record class of a bolt load, whose state has the `method` attribute.
  template <class BoltLoad, class BC, class Load>
  void Configure(const kprC_PropagatingContainer<BC>& bcs,
                 const kprC_PropagatingContainer<Load>& loads, const kprC_StepContainer& steps) {
    InitializeMembers(steps, NumKeys);
    PopulateMembers<BoltLoad>(bcs, loads);
  }
  int Key(unsigned typeId) const override;

private:
  template <class BoltLoad, class BC, class Load>
  void PopulateMembers(const kprC_PropagatingContainer<BC>& bcs,
                       const kprC_PropagatingContainer<Load>& loads);
  template <class BC> void FlagConditions(const kprC_PropagatingContainer<BC>& bcs);
  /// True when a bolt load forces the restart in `step`: its method changes
  /// there (but for the step that creates it), or it is deactivated while its
  /// method is not the first one.
  template <class BoltLoad>
  static bool BoltLoadRestarts(const BoltLoad& load, const cow_String& step);
};

template <class BoltLoad, class BC, class Load>
void oif_BCOpStatus::PopulateMembers(const kprC_PropagatingContainer<BC>& bcs,
                                     const kprC_PropagatingContainer<Load>& loads) {
  FlagConditions(bcs);
  // The initial step never restarts a class.
  for (int i = 1; i < StepCount(); ++i) {
    const cow_String& step = StepName(i);
    for (const auto& [name, load] : loads) {
      if (load->IsSuppressed() || load->DynTypeId() != keydeck::TypeIds::BoltLoad)
        continue;
      if (BoltLoadRestarts(keydeck::RecordCast<BoltLoad>(*load), step))
        Flag(Key(keydeck::TypeIds::BoltLoad), i);
    }
  }
}

template <class BC> void oif_BCOpStatus::FlagConditions(const kprC_PropagatingContainer<BC>& bcs) {
  // The initial step never restarts a class.
  for (int i = 1; i < StepCount(); ++i) {
    const cow_String& step = StepName(i);
    for (const auto& [name, bc] : bcs) {
      if (bc->IsSuppressed())
        continue;
      const mdl_PropagationStatusEnm status = bc->Status(step);
      const bool deactivated = status == PropDeactivated || status == PropDeactivatedBase;
      const bool modified = status == PropModified || status == PropModifiedBase;
      if (deactivated || (modified && bc->RequiresOpNew(step)))
        Flag(Key(bc->DynTypeId()), i);
    }
  }
}

template <class BoltLoad>
bool oif_BCOpStatus::BoltLoadRestarts(const BoltLoad& load, const cow_String& step) {
  const mdl_PropagationStatusEnm status = load.Status(step);
  if (status == PropBuiltIn)
    return false;
  const auto& method = load.ConstGetState(step).method;
  return (status != PropCreated && method.IsModified()) ||
         (status == PropDeactivated && method.ConstGet() != 0);
}
