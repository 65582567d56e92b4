#pragma once

#include "base/cow_String.h"
#include "base/mdl_PropAttr.h"

/// State queries that the cards of step-dependent conditions share.
class oif_Utils {
public:
  oif_Utils() = delete;

  /// True when an attribute's data goes into the card: always when this
  /// step set it, and when it was inherited only if the card rewrites
  /// everything (`modifiedOnly` false).
  static bool CheckDataState(const mdl_PropAttributeStateEnm& state, const bool& modifiedOnly);
  /// For a deactivated status (4 or 11): `deactivated` true and
  /// `modifiedOnly` false. Otherwise `deactivated` false and `modifiedOnly`
  /// as it was.
  static void SetDeactivateOpFlags(const mdl_PropagationStatusEnm& status, bool& deactivated,
                                   bool& modifiedOnly);
  /// The name of a connector's set, quoted as needed.
  static cow_String GetConnectorSetName(cow_String name);
};
