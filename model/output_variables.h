#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"

#include <initializer_list>
#include <string_view>

// The output variables the solver knows, per procedure: the one table behind
// every output request of the model and of the deck. The rows themselves are
// in output_variables.cpp.

/// Which sub-card of an "*Output" group prints a variable.
enum korC_OutputKindEnm : int {
  korC_NodeKind = 0,
  korC_ElementKind = 1,
  korC_ModalKind = 2,
  korC_ContactKind = 4,
  korC_RadiationKind = 5,
  korC_IncrementationKind = 6,
  korC_EnergyKind = 7,
  korC_ContactOrElementKind = 8, ///< contact surfaces, and contact or gap elements
  korC_IntegratedKind = 9,
};

/// Where a variable lives.
enum korC_OutputPositionEnm : int {
  korC_AtNodes = 0,
  korC_AtIntegrationPoints = 1,
  korC_AtCentroid = 2,
  korC_AtElementNodes = 3,
  korC_WholeElement = 4,
  korC_WholeModel = 5,
  korC_RebarLayer = 6, ///< a rebar layer of a section: only a rebar request writes it
};

/// What the table says of one variable: its card, its position, and whether
/// the deck prints its components by their own names.
struct korC_OdbVariable {
  korC_OutputKindEnm kind = korC_NodeKind;
  korC_OutputPositionEnm position = korC_AtNodes;
  /// True for a group whose members the solver takes one by one ("MISES" of
  /// the stress invariants, "SENER" of the energy densities): each member is
  /// its own alias and prints as the request held it. Otherwise a component
  /// prints as its parent ("S11" as "S").
  bool aliases = false;

  /// The name a card prints for `heldName`, a member of the variable `parent`.
  cow_String PrintName(const cow_String& heldName, const cow_String& parent) const {
    return aliases ? heldName : parent;
  }
};

/// The output variables of every procedure. A variable is a parent (a name
/// the deck takes, such as "S" or "ALLIE") with components ("S11", "MISES");
/// each exists for the procedures of some kinds of analysis and in field
/// output, history output or both. "PRESELECT" stands for the defaults of a
/// channel, "ALL" for every variable of it.
class korC_OdbRequestTable {
public:
  /// What the table says of a parent variable of `procedure`; kind node and
  /// position nodes for a name that is none.
  static korC_OdbVariable Request(std::string_view name, unsigned procedure);
  /// True for a parent variable that exists in `procedure`.
  static bool IsParentRequest(std::string_view name, unsigned procedure);
  /// True for a component of a parent variable of `procedure`.
  static bool IsComponentRequest(std::string_view name, unsigned procedure);
  /// The parent of a component; empty for a name that is none.
  static cow_String RequestFromComponent(std::string_view name, unsigned procedure);
  /// True when a request of that channel may name `name` in `procedure`:
  /// a parent or a component of a variable of the channel.
  static bool IsKnown(std::string_view name, unsigned procedure, bool isField);
  /// Every parent variable of the channel in `procedure`, in table order.
  static cow_List<cow_String> All(bool isField, unsigned procedure);
  /// The variables "PRESELECT" stands for in the channel and procedure.
  static cow_List<cow_String> Defaults(bool isField, unsigned procedure);
  /// The names of `variables` (parents or components) whose kind is none of
  /// `kinds`: what a request could still print where only those kinds fail.
  static cow_List<cow_String>
  GetInvalidPrintIdentifiers(const cow_List<cow_String>& variables, unsigned procedure,
                             std::initializer_list<korC_OutputKindEnm> kinds);
};
