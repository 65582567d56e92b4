#pragma once

#include "base/cow_COW.h"
#include "base/cow_List.h"
#include "base/cow_Map.h"
#include "base/cow_String.h"
#include "qkw/qkw_Keyword.h"

class oif_Boundary;

/// The submodel conditions of each step that are driven from a global step:
/// they share one keyword line, the first one's, and one comment that names
/// them all.
class oif_BoundarySubmodelList {
public:
  /// Adds `card` of the condition `name` to `step`; the step's first card
  /// also gives the shared keyword line.
  void Append(const cow_String& step, const cow_String& name, const oif_Boundary& card);
  /// The cards of `step`: the comment "Name: ..., ... Type: Submodel", the
  /// keyword line and the cards; none for a step without such conditions.
  cow_List<cow_ArrayCOW<qkw_Keyword>> Keywords(const cow_String& step) const;

private:
  cow_Map<cow_String, cow_List<cow_ArrayCOW<qkw_Keyword>>> cards_;
  cow_Map<cow_String, cow_List<cow_String>> names_;
};
