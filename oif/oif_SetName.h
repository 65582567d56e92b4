#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"

class ddb_Model;
class ddb_Set;
class rgnC_Region;
class qkw_ModelInfo;

namespace keydeck {

/// The set that a region refers to, with the name of its instance ("" for a
/// set of the assembly); null when the region has no set or the set is gone.
const ddb_Set* FindRegionSet(const ddb_Model& model, const rgnC_Region& region,
                             cow_String& instanceName);

} // namespace keydeck

/// The name of a region's set together with its instance, and the tools for
/// scoped names ("instance.set") that every card shares.
class oif_SetName {
public:
  /// The scope in which a name is asked for: `AssemblyScope` means from
  /// outside the instance ("instance.set"); any other value, the instance's
  /// own scope.
  enum regionContext : int { InstanceScope = 1, AssemblyScope = 2 };

  /// From text that may hold an instance scope: "set", "instance.set" or
  /// "x.instance.set"; with four or more pieces both names stay empty.
  oif_SetName(const cow_String& scopedName, bool unused);
  /// From a region of the model; empty names when the region has no set or
  /// the set cannot be found.
  oif_SetName(const rgnC_Region& region, const qkw_ModelInfo& info);

  /// "instance.set" in the assembly scope when the set lies in an instance,
  /// else "set"; each piece quoted as needed.
  cow_String UniqueSetName(regionContext context) const;
  /// As above after replacing the stored set name by `name`; the change stays.
  cow_String UniqueSetName(cow_String name, regionContext context) const;
  /// As `UniqueSetName`, but for a node set the dots become "_" and "_CNS_"
  /// is appended: a node-based surface needs a name beside its node set.
  cow_String UniqueSurfaceName(regionContext context) const;
  const cow_String& InstanceName() const { return instanceName_; }

  /// Each dot-separated piece of the name quoted by itself, unless quoted.
  static cow_String QuoteIfNeeded(cow_String name);
  /// True for a name of more than two characters in double quotes.
  static bool IsQuoted(cow_String name);
  static cow_String Unquote(cow_String name);

private:
  cow_String ScopedText(regionContext context) const;
  static cow_List<cow_String> SplitScopedSet(const cow_String& text);
  static cow_List<cow_String> SplitOnDots(const cow_String& name);
  static void SplitName(const cow_String& name, cow_String& prefix, cow_String& last);

  // Mutable: `UniqueSetName(name, context)` renames the set although it is const.
  mutable cow_String setName_;
  cow_String instanceName_;
  bool nodeSet_ = false;
};

/// The label of a face number, from its trailing digits: above 1000 "S" and
/// n mod 1000, 101 to 1000 "E" and n mod 100, 11 to 100 "S" and n mod 10,
/// 1 to 10 "END" and n; below 1 the empty string.
cow_String oif_getLabel(int face);
