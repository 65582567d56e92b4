#include "oif/oif_LoadBuilder.h"

#include "base/nex_Exception.h"
#include "oif/oif_Cecharge.h"
#include "oif/oif_Cecurrent.h"
#include "oif/oif_Cflux.h"
#include "oif/oif_Cload.h"
#include "oif/oif_Comment.h"
#include "oif/oif_ConnectorLoad.h"
#include "oif/oif_Decharge.h"
#include "oif/oif_Decurrent.h"
#include "oif/oif_Dflux.h"
#include "oif/oif_Dload.h"
#include "oif/oif_Dsecharge.h"
#include "oif/oif_Dsecurrent.h"
#include "oif/oif_Dsflow.h"
#include "oif/oif_Dsflux.h"
#include "oif/oif_Dsload.h"
#include "oif/oif_FluidFlux.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_SetName.h"

using namespace keydeck;

namespace {

bool InForceWithCard(mdl_PropagationStatusEnm status) {
  return status == PropCreated || status == PropModified || status == PropDeactivated;
}

} // namespace

oif_LoadBuilder::oif_LoadBuilder(oif_ModelInfo& info) : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_LoadBuilder::Copy() const { return new oif_LoadBuilder(*this); }

void oif_LoadBuilder::Build() { BuildLoadsHistory(); }

void oif_LoadBuilder::ConfigureOpStatus() {
  opStatus_.Configure<kloC_BoltLoad>(keydeck::FacadeOf(*model).Loads(), model->Steps(), *modelInfo);
}

void oif_LoadBuilder::BuildLoadsHistory() {
  ConfigureOpStatus();
  const kprC_StepContainer& steps = model->Steps();
  for (int i = 1; i < steps.Size(); ++i) { // the initial step holds no loads
    const cow_String& step = steps.NameAt(i);
    for (const auto& [name, load] : keydeck::FacadeOf(*model).Loads()) // name order
      if (!load->IsSuppressed() && MakesCard(*load, step))
        CreateLoadCard(name, load, step);
  }
}

bool oif_LoadBuilder::MakesCard(const kloC_Load& load, const cow_String& step) const {
  const mdl_PropagationStatusEnm status = load.Status(step);
  const bool opNew = opStatus_.OpNew(load.DynTypeId(), step);
  if (load.DynTypeId() != kloC_BoltLoad::TypeId())
    return InForceWithCard(status) || (status == PropPropagated && opNew);
  // A bolt load is a force only by the first method; by the others it is a
  // boundary condition, but for the step that turns it back into a force.
  const auto& method = RecordCast<kloC_BoltLoad>(load).ConstGetState(step).method;
  const bool force = method.ConstGet() == kloC_ApplyForce;
  switch (status) {
  case PropCreated:
  case PropDeactivated:
    return force;
  case PropPropagated:
    return force && opNew;
  case PropModified:
    return force || method.IsModified();
  default:
    return false;
  }
}

void oif_LoadBuilder::CreateLoadCard(const cow_String& name, const LoadHandle& load,
                                     const cow_String& step) {
  const kprC_Step& record = model->Steps().ConstGet(step);
  if (kprC_AnalysisStep::IsKindOf(record.DynTypeId())) {
    // A step with load cases holds its loads in them; only when every load
    // case takes the base state alone do they stand in the step's own list.
    bool examined = false;
    for (const auto& [loadCaseName, loadCase] : RecordCast<kprC_AnalysisStep>(record).loadCases) {
      if (loadCase->baseStateOnly)
        continue;
      examined = true;
      if (loadCase->loads.IsMember(name))
        LoadCardDetails(name, load, step, loadCaseName, loadCase->loads.ConstGet(name).scale);
    }
    if (examined)
      return;
  }
  LoadCardDetails(name, load, step, cow_String(), 1.0);
}

void oif_LoadBuilder::LoadCardDetails(const cow_String& name, const LoadHandle& load,
                                      const cow_String& step, const cow_String& loadCase,
                                      double scale) {
  const bool opMod = !opStatus_.OpNew(load->DynTypeId(), step);
  if (loadCase.Empty())
    AddStepDefinition(step, header_.StepHeader(step));
  const bool inertiaRelief = load->DynTypeId() == kloC_InertiaRelief::TypeId();
  if (inertiaRelief && load->Status(step) == PropDeactivated && !CheckForUniqueIRLoad(name, step))
    return;
  cow_String comment = "Name: " + name + "   Type: " + kloC_LoadTypeLabelMap(load->DynTypeId());
  if (!loadCase.Empty())
    comment += "   Scale factor: " + cow_String(scale);
  AddStepDefinition(step, oif_Comment(comment), loadCase);
  // Inertia relief has its keyword with the step's other cards.
  if (inertiaRelief)
    return;
  const cow_String setName =
      oif_SetName(load->region, *modelInfo).UniqueSetName(oif_SetName::AssemblyScope);
  AddLoadCard(load, step, loadCase, opMod, setName, scale);
}

void oif_LoadBuilder::AddLoadCard(const LoadHandle& load, const cow_String& step,
                                  const cow_String& loadCase, bool opMod, const cow_String& setName,
                                  double scale) {
  const auto add = [&](const qkw_Keyword& card) { AddStepDefinition(step, card, loadCase); };
  switch (load->DynTypeId()) {
  case kloC_ConcentratedForceType:
  case kloC_MomentType:
  case kloC_PEGLoadType:
  case kloC_BoltLoadType:
  case kloC_ConcentratedPoreFluidType:
  case kloC_InwardVolAccelType:
    return add(oif_Cload(load, step, opMod, setName, scale));
  case kloC_ConnectorForceType:
  case kloC_ConnectorMomentType:
    return add(oif_ConnectorLoad(load, setName, step, opMod, scale));
  case kloC_ConcentratedHeatFluxType:
  case kloC_ConcentratedConcentrationFluxType:
    return add(oif_Cflux(load, step, opMod, setName, scale));
  case kloC_ConcentratedChargeType:
    return add(oif_Cecharge(load, step, opMod, setName, scale));
  case kloC_ConcentratedCurrentType:
    return add(oif_Cecurrent(load, step, opMod, setName, scale));
  case kloC_GravityType:
  case kloC_BodyForceType:
  case kloC_LineLoadType:
  case kloC_PipePressureType:
  case kloC_RotationalBodyForceType:
    return add(oif_Dload(load, step, opMod, setName, /*modelSpace=*/1, scale));
  case kloC_PressureType:
  case kloC_SurfaceTractionType:
  case kloC_ShellEdgeLoadType:
    return add(oif_Dsload(load, step, opMod, setName, scale));
  case kloC_BodyHeatFluxType:
  case kloC_BodyConcentrationFluxType:
    return add(oif_Dflux(load, step, opMod, setName, scale));
  case kloC_SurfaceHeatFluxType:
  case kloC_SurfaceConcentrationFluxType:
    return add(oif_Dsflux(load, step, opMod, setName, scale));
  case kloC_SurfacePoreFluidType:
    return add(oif_Dsflow(load, step, opMod, setName, scale));
  case kloC_HydroFluidFlowType:
    return add(oif_FluidFlux(load, step, opMod, setName, scale));
  case kloC_BodyChargeType:
    return add(oif_Decharge(load, step, opMod, setName, scale));
  case kloC_BodyCurrentType:
    return add(oif_Decurrent(load, step, opMod, setName, scale));
  case kloC_SurfaceChargeType:
    return add(oif_Dsecharge(load, step, opMod, setName, scale));
  case kloC_SurfaceCurrentType:
    return add(oif_Dsecurrent(load, step, opMod, setName, scale));
  }
  Raise("Unimplemented load type conversion");
}

bool oif_LoadBuilder::CheckForUniqueIRLoad(const cow_String& loadName,
                                           const cow_String& step) const {
  for (const auto& [name, load] : keydeck::FacadeOf(*model).Loads()) {
    if (name == loadName || load->IsSuppressed() ||
        load->DynTypeId() != kloC_InertiaRelief::TypeId())
      continue;
    if (InForceWithCard(load->Status(step)))
      return false;
  }
  return true;
}
