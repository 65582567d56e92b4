#include "oif/oif_ConstraintBuilder.h"

#include "base/nex_Exception.h"
#include "model/constraints.h"
#include "oif/oif_Comment.h"
#include "oif/oif_Coupling.h"
#include "oif/oif_Distributing.h"
#include "oif/oif_EmbeddedRegion.h"
#include "oif/oif_Equation.h"
#include "oif/oif_Kinematic.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_RigidBody.h"
#include "oif/oif_SetName.h"
#include "oif/oif_Tie.h"

using keydeck::RecordCast;

oif_ConstraintBuilder::oif_ConstraintBuilder(oif_ModelInfo& info) : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_ConstraintBuilder::Copy() const {
  return new oif_ConstraintBuilder(*this);
}

cow_String oif_ConstraintBuilder::RegionName(const rgnC_Region& region) const {
  return oif_SetName(region, *modelInfo).UniqueSetName(oif_SetName::AssemblyScope);
}

void oif_ConstraintBuilder::Build() {
  for (const auto& [name, constraint] : keydeck::FacadeOf(*model).Constraints()) { // name order
    AddAssemblyDefinition(header_.AssyHeader());
    AddAssemblyDefinition(oif_Comment("Constraint: " + name));
    AddConstraintCards(name, *constraint);
  }
}

void oif_ConstraintBuilder::AddConstraintCards(const cow_String& name,
                                               const kcoC_Constraint& constraint) {
  switch (constraint.DynTypeId()) {
  case kcoC_EquationType:
    AddAssemblyDefinition(oif_Equation(RecordCast<kcoC_Equation>(constraint), *modelInfo));
    return;
  case kcoC_TieType:
    AddAssemblyDefinition(oif_Tie(name, RecordCast<kcoC_Tie>(constraint), *modelInfo));
    return;
  case kcoC_CouplingType: {
    const auto& coupling = RecordCast<kcoC_Coupling>(constraint);
    AddAssemblyDefinition(oif_Coupling(name, coupling, *modelInfo));
    if (coupling.couplingType != kcoC_Kinematic)
      AddAssemblyDefinition(oif_Distributing(coupling));
    else
      AddAssemblyDefinition(oif_Kinematic(coupling));
    return;
  }
  case kcoC_RigidBodyType: {
    const auto& body = RecordCast<kcoC_RigidBody>(constraint);
    AddAssemblyDefinition(
        oif_RigidBody(RegionName(body.refPoint.region), RegionName(body.elset.region),
                      RegionName(body.pinRegion.region), RegionName(body.tieRegion.region),
                      body.positionCenterOfMass, body.isothermal));
    return;
  }
  case kcoC_EmbeddedRegionType:
    AddAssemblyDefinition(
        oif_EmbeddedRegion(RecordCast<kcoC_EmbeddedRegion>(constraint), *modelInfo));
    return;
  }
  keydeck::Raise("Unimplemented constraint type.");
}
