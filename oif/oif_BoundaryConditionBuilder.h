#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "oif/oif_BCOpStatus.h"
#include "oif/oif_BlockHeader.h"
#include "oif/oif_BoundarySubmodelList.h"
#include "oif/oif_LoadCards.h"
#include "qkw/qkw_BuilderComponent.h"

class kbcC_BC;
class oif_ModelInfo;

/// Files the boundary conditions of every step (and load case) as
/// "*Boundary" and "*Connector Motion" cards under the block header
/// "BOUNDARY CONDITIONS", where their status and the restarts of their
/// class ask for them; the element sets of connector conditions and the
/// "*Submodel" cards in the assembly; and a "*Boundary, op=NEW" line in each
/// load case that has no boundary conditions of its own.
class oif_BoundaryConditionBuilder : public qkw_BuilderComponent {
public:
  explicit oif_BoundaryConditionBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;

private:
  void ConfigureOpStatus();
  void BuildElementSets();
  void CreateAllBCs(const cow_String& step);
  void AllBCDetails(const kbcC_BC& bc, const cow_String& name, const cow_String& step,
                    const cow_String& loadCase, double scale);
  void CreateBCCard(const kbcC_BC& bc, const cow_String& name, const cow_String& step,
                    const cow_String& loadCase, double scale, bool opMod);
  /// The "*Boundary" cards of the bolt loads that act on the bolt's length
  /// in `step`; gives the load cases that such a card serves (an empty key
  /// for a step without load cases).
  cow_List<cow_String> CreateBoltLoadBCs(const cow_String& step);
  bool BoltLoadBCDetails(const keydeck::LoadHandle& load, const cow_String& name,
                         const cow_String& step, const cow_String& loadCase, double scale);
  /// In each load case of `step` not in `served` that has no boundary
  /// conditions (and takes none from the base state): "*Boundary, op=NEW",
  /// which wipes those inherited from the step.
  void CreateEmptyBCs(const cow_String& step, const cow_List<cow_String>& served);
  void CreateSubmodelKwds();
  /// "Name: ", the name, " Type: " and `label`; in a load case also
  /// "   Scale factor: " and the scale.
  static cow_String Comment(const cow_String& name, const cow_String& label,
                            const cow_String& loadCase, double scale);

  oif_BlockHeader header_;
  oif_BCOpStatus opStatus_;
  oif_BoundarySubmodelList submodels_;
};
