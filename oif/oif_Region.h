#pragma once

#include "base/cow_String.h"

class qkw_Model;
class rgnC_Region;

/// The set name and instance name of a region: a small look-up for cards
/// that need the two apart. Both stay empty when the region has no set or
/// the set cannot be found.
class oif_Region {
public:
  oif_Region(const qkw_Model& model, const rgnC_Region& region);

  /// "instance.set" for a set of an instance, "set" for one of the assembly.
  cow_String FullName() const;
  const cow_String& SetName() const { return setName_; }
  const cow_String& InstanceName() const { return instanceName_; }

private:
  cow_String setName_;
  cow_String instanceName_;
};
