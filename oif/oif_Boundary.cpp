#include "oif/oif_Boundary.h"

#include "base/nex_Exception.h"
#include "base/utl_Stream.h"
#include "model/steps.h"
#include "oif/oif_BoundaryCards.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_Utils.h"

namespace {

constexpr const char* BoundaryDofs[kbcC_DofState::Dofs] = {", 1, 1", ", 2, 2", ", 3, 3",
                                                           ", 4, 4", ", 5, 5", ", 6, 6"};
constexpr std::string_view BaseNamePrefix = "__basename__";

// The degree-of-freedom text of a distributed kind.
const char* DistributedDof(unsigned typeId) {
  switch (typeId) {
  case kbcC_ElectricPotentialType:
    return ", 9, 9";
  case kbcC_MassConcentrationType:
    return ", 11, 11";
  default:
    return ", 8, 8";
  }
}

// ", d, d" for one degree of freedom of a list.
cow_String ListedDof(int dof) {
  const cow_String text(dof);
  return ", " + text + ", " + text;
}

} // namespace

oif_Boundary::oif_Boundary(const kbcC_BC& bc, const cow_String& name, const cow_String& step,
                           bool opMod, const cow_String& setName, bool shellToSolid,
                           const cow_String& initialStepName, double factor)
    : bc_(bc), step_(step), setName_(setName), opNew_(!opMod), modifiedOnly_(opMod), name_(name),
      shellToSolid_(shellToSolid), factor_(factor), initialStepName_(initialStepName) {
  keydeck::TakeConditionState(bc, step, deactivate_, modifiedOnly_, amplitude_);
  CheckForSubmodelBC();
}

qkw_Keyword* oif_Boundary::Copy() const { return new oif_Boundary(*this); }

cow_String oif_Boundary::FixBCNameHack(const cow_String& name) {
  const std::string_view text = name.View();
  return text.starts_with(BaseNamePrefix) ? cow_String(text.substr(BaseNamePrefix.size())) : name;
}

keydeck::BoundaryCardWriter oif_Boundary::CardWriter() const {
  const cow_String baseName = FixBCNameHack(name_);
  return {"*Boundary", opNew_,  amplitude_,   baseName == name_ ? cow_String() : baseName,
          setName_,    factor_, modifiedOnly_};
}

unsigned oif_Boundary::Procedure() const {
  return step_ == initialStepName_ ? 0 : bc_->StateProcedure(step_);
}

void oif_Boundary::Write(utl_Stream& s) const {
  if (deactivate_)
    return WriteDeactivated(s);
  switch (bc_->DynTypeId()) {
  case kbcC_DisplacementType:
    return WriteDisplacement(s);
  case kbcC_VelocityType:
    return WriteMotion(s, "VELOCITY");
  case kbcC_AccelerationType:
    return WriteMotion(s, "ACCELERATION");
  case kbcC_SymmetryType:
    return WriteType(s);
  case kbcC_TemperatureType:
    return WriteTemperature(s);
  case kbcC_SubmodelType:
    return WriteSubmodel(s);
  default:
    if (kbcC_DistributedBC::IsKindOf(bc_->DynTypeId()))
      return WriteDistributed(s);
    keydeck::Raise("Unimplemented boundary condition in input file.");
  }
}

void oif_Boundary::WriteDeactivated(utl_Stream& s) const {
  const int loadCase = Procedure() == kprC_Buckle ? 1 : 0;
  CardWriter().WriteHead(s, kbcC_BC::Uniform, false, loadCase, /*lineBreak=*/true);
}

void oif_Boundary::WriteDisplacement(utl_Stream& s) const {
  const auto& bc = keydeck::RecordCast<kbcC_DisplacementBC>(*bc_);
  const kbcC_DisplacementState& state = bc.ConstGetState(step_);
  const unsigned procedure = Procedure();
  const keydeck::CardPlan plan = keydeck::PlanCards(procedure, state.buckleLoadCase.ConstGet(),
                                                    kbcC_BCState::UseComplex(procedure));
  CardWriter().WriteDisplacement(s, state, plan, BoundaryDofs, bc.distribution, bc.fixed);
}

void oif_Boundary::WriteMotion(utl_Stream& s, const char* typeWord) const {
  const unsigned procedure = Procedure();
  const bool complexOrBuckle = kbcC_BCState::UseComplex(procedure) || procedure == kprC_Buckle;
  const kbcC_DofState& state =
      bc_->DynTypeId() == kbcC_VelocityType
          ? static_cast<const kbcC_DofState&>(
                keydeck::RecordCast<kbcC_VelocityBC>(*bc_).ConstGetState(step_))
          : keydeck::RecordCast<kbcC_AccelerationBC>(*bc_).ConstGetState(step_);
  CardWriter().WriteMotion(s, state, typeWord, complexOrBuckle, BoundaryDofs);
}

void oif_Boundary::WriteType(utl_Stream& s) const {
  const kbcC_TypeState& state = keydeck::RecordCast<kbcC_TypeBC>(*bc_).ConstGetState(step_);
  if (!oif_Utils::CheckDataState(state.typeName.State(), modifiedOnly_))
    return;
  const keydeck::BoundaryCardWriter writer = CardWriter();
  const keydeck::CardPlan plan =
      keydeck::PlanCards(Procedure(), state.buckleLoadCase.ConstGet(), /*complex=*/false);
  for (int card = 0; card < plan.count; ++card) {
    writer.WriteHead(s, kbcC_BC::Uniform, false, plan.loadCases[card], /*lineBreak=*/true);
    s << setName_ << ", " << keydeck::EnumDeckText(state.typeName.ConstGet());
    s.LineBreak();
  }
}

void oif_Boundary::WriteTemperature(utl_Stream& s) const {
  const auto& bc = keydeck::RecordCast<kbcC_TemperatureBC>(*bc_);
  const kbcC_TemperatureState& state = bc.ConstGetState(step_);
  const keydeck::BoundaryCardWriter writer = CardWriter();
  writer.WriteHead(s, bc.distribution, bc.fixed, 0, /*lineBreak=*/true);
  const double value = state.magnitude.ConstGet();
  const cow_List<int>& dofs = state.dofs.ConstGet();
  if (dofs.Empty()) {
    if (oif_Utils::CheckDataState(state.magnitude.State(), modifiedOnly_))
      writer.WriteData(s, ", 11, 11", value, bc.fixed);
    return;
  }
  if (!oif_Utils::CheckDataState(state.magnitude.State(), modifiedOnly_) &&
      !oif_Utils::CheckDataState(state.dofs.State(), modifiedOnly_))
    return;
  for (const int dof : dofs)
    writer.WriteData(s, ListedDof(dof).CStr(), value, bc.fixed);
}

void oif_Boundary::WriteDistributed(utl_Stream& s) const {
  const auto& bc = keydeck::RecordCast<kbcC_DistributedBC>(*bc_);
  const mdl_PropAttr<double>& real = bc.Magnitude(step_);
  const mdl_PropAttr<double>& imaginary = bc.Imaginary(step_);
  const bool complexKind =
      bc.DynTypeId() == kbcC_AcousticPressureType || bc.DynTypeId() == kbcC_ElectricPotentialType;
  const bool complex = complexKind && kbcC_BCState::UseComplex(Procedure());
  const keydeck::BoundaryCardWriter writer = CardWriter();
  const char* const dof = DistributedDof(bc.DynTypeId());
  const bool passes = oif_Utils::CheckDataState(real.State(), modifiedOnly_) ||
                      (complex && oif_Utils::CheckDataState(imaginary.State(), modifiedOnly_));
  for (int card = 0; card < (complex ? 2 : 1); ++card) {
    writer.WriteHead(s, bc.distribution, bc.fixed, complex ? card + 1 : 0, /*lineBreak=*/true);
    if (passes)
      writer.WriteData(s, dof, (card == 1 ? imaginary : real).ConstGet(), bc.fixed);
  }
}

void oif_Boundary::CheckForSubmodelBC() {
  if (bc_->DynTypeId() != kbcC_SubmodelType)
    return;
  const kbcC_SubmodelState& state = keydeck::RecordCast<kbcC_SubmodelBC>(*bc_).ConstGetState(step_);
  submodelHead_ = "*Boundary";
  if (opNew_)
    submodelHead_ = submodelHead_ + ", op=NEW";
  if (bc_->fixed)
    submodelHead_ = submodelHead_ + ", fixed";
  isSubmodel_ = !deactivate_ && state.IsSubmodel();
  if (!isSubmodel_)
    return;
  submodelHead_ = submodelHead_ + ", submodel, step=" + state.globalStep.ConstGet();
  if (state.globalIncrement.ConstGet() > 0)
    submodelHead_ = submodelHead_ + ", inc=" + cow_String(state.globalIncrement.ConstGet());
  if (state.timeScale.ConstGet())
    submodelHead_ = submodelHead_ + ", timescale";
}

void oif_Boundary::WriteSubmodel(utl_Stream& s) const {
  const auto& bc = keydeck::RecordCast<kbcC_SubmodelBC>(*bc_);
  const kbcC_SubmodelState& state = bc.ConstGetState(step_);
  if (!isSubmodel_)
    s << submodelHead_ << endl;
  if (shellToSolid_) {
    const double size = state.centerZoneSize.ConstGet() > 0 ? state.centerZoneSize.ConstGet()
                                                            : 0.1 * bc.shellThickness;
    s << setName_ << ", " << size << endl;
    return;
  }
  for (const int dof : state.dofs.ConstGet())
    s << setName_ << ListedDof(dof) << endl;
}
