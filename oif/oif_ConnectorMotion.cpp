#include "oif/oif_ConnectorMotion.h"

#include "base/nex_Exception.h"
#include "base/utl_Stream.h"
#include "model/steps.h"
#include "oif/oif_BoundaryCards.h"

namespace {

constexpr const char* ComponentDofs[kbcC_DofState::Dofs] = {", 1", ", 2", ", 3",
                                                            ", 4", ", 5", ", 6"};

} // namespace

oif_ConnectorMotion::oif_ConnectorMotion(const kbcC_ConnectorBC& bc, const cow_String& name,
                                         const cow_String& step, bool opMod,
                                         const cow_String& setName, double factor)
    : bc_(bc), name_(name), step_(step), setName_(setName), opNew_(!opMod), modifiedOnly_(opMod),
      factor_(factor) {
  keydeck::TakeConditionState(bc, step, deactivate_, modifiedOnly_, amplitude_);
}

qkw_Keyword* oif_ConnectorMotion::Copy() const { return new oif_ConnectorMotion(*this); }

keydeck::BoundaryCardWriter oif_ConnectorMotion::CardWriter() const {
  return {"*Connector Motion", opNew_, amplitude_, cow_String(), setName_, factor_, modifiedOnly_};
}

unsigned oif_ConnectorMotion::Procedure() const { return bc_->StateProcedure(step_); }

void oif_ConnectorMotion::Write(utl_Stream& s) const {
  const keydeck::BoundaryCardWriter writer = CardWriter();
  const unsigned procedure = Procedure();
  if (deactivate_)
    return writer.WriteHead(s, kbcC_BC::Uniform, false, procedure == kprC_Buckle ? 1 : 0,
                            /*lineBreak=*/true);
  const bool complex = kbcC_BCState::UseComplex(procedure);
  switch (bc_->DynTypeId()) {
  case kbcC_ConnDisplacementType: {
    const kbcC_DisplacementState& state =
        keydeck::RecordCast<kbcC_ConnDisplacementBC>(*bc_).ConstGetState(step_);
    return writer.WriteDisplacement(
        s, state, keydeck::PlanCards(procedure, state.buckleLoadCase.ConstGet(), complex),
        ComponentDofs, kbcC_BC::Uniform, false);
  }
  case kbcC_ConnVelocityType:
  case kbcC_ConnAccelerationType:
    return writer.WriteMotion(s, keydeck::RecordCast<kbcC_ConnectorBC>(*bc_).Components(step_),
                              bc_->DynTypeId() == kbcC_ConnVelocityType ? "VELOCITY"
                                                                        : "ACCELERATION",
                              complex || procedure == kprC_Buckle, ComponentDofs);
  default:
    keydeck::Raise("Unimplemented ConnectorMotion condition in input file.");
  }
}
