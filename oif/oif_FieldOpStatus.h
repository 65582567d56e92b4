#pragma once

#include "oif/oif_OpStatus.h"

/// The restarts of the predefined-field cards: one key per class of field
/// card (7 in all). A class restarts where one of its fields is reset.
class oif_FieldOpStatus : public oif_OpStatus {
public:
  static constexpr int NumKeys = 7;

  /// Fills the flags from the fields, for `steps` (all the model's steps, the
  /// initial step first).
  template <class Field>
  void Configure(const kprC_PropagatingContainer<Field>& fields, const kprC_StepContainer& steps) {
    InitializeMembers(steps, NumKeys);
    PopulateMembers(fields);
  }
  int Key(unsigned typeId) const override;

private:
  template <class Field> void PopulateMembers(const kprC_PropagatingContainer<Field>& fields) {
    // The initial step never restarts a class.
    for (int i = 1; i < StepCount(); ++i)
      for (const auto& [name, field] : fields)
        if (field->Status(StepName(i)) == PropFieldReset)
          Flag(Key(field->DynTypeId()), i);
  }
};
