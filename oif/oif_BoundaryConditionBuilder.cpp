#include "oif/oif_BoundaryConditionBuilder.h"

#include "base/nex_Exception.h"
#include "model/boundary_conditions.h"
#include "model/loads.h"
#include "oif/oif_Boundary.h"
#include "oif/oif_BoundaryForBoltLoad.h"
#include "oif/oif_Comment.h"
#include "oif/oif_ConnectorMotion.h"
#include "oif/oif_Elset.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_RawKeyword.h"
#include "oif/oif_SetName.h"
#include "oif/oif_Submodel.h"
#include "oif/oif_Utils.h"
#include "qkw/qkw_QuorvexName.h"

namespace {

// The kinds that "*Boundary" writes; connector kinds have a card of their own.
bool IsBoundaryKind(unsigned typeId) {
  switch (typeId) {
  case kbcC_DisplacementType:
  case kbcC_VelocityType:
  case kbcC_AccelerationType:
  case kbcC_SymmetryType:
  case kbcC_TemperatureType:
  case kbcC_SubmodelType:
    return true;
  default:
    return kbcC_DistributedBC::IsKindOf(typeId);
  }
}

// A load case takes the conditions of the base state that its step carries
// on or changes there.
bool IsBaseStatus(mdl_PropagationStatusEnm status) {
  return status == PropPropagatedBase || status == PropModifiedBase;
}

const kprC_AnalysisStep* AnalysisStepOf(const kprC_StepContainer& steps, const cow_String& step) {
  const kprC_Step& record = steps.ConstGet(step);
  return kprC_AnalysisStep::IsKindOf(record.DynTypeId())
             ? &keydeck::RecordCast<kprC_AnalysisStep>(record)
             : nullptr;
}

} // namespace

oif_BoundaryConditionBuilder::oif_BoundaryConditionBuilder(oif_ModelInfo& info)
    : qkw_BuilderComponent(info), header_("BOUNDARY CONDITIONS") {}

qkw_BuilderComponent* oif_BoundaryConditionBuilder::Copy() const {
  return new oif_BoundaryConditionBuilder(*this);
}

void oif_BoundaryConditionBuilder::Build() {
  ConfigureOpStatus();
  BuildElementSets();
  const kprC_StepContainer& steps = model->Steps();
  for (int i = 0; i < steps.Size(); ++i) {
    const cow_String& step = steps.NameAt(i);
    CreateAllBCs(step);
    if (AnalysisStepOf(steps, step) != nullptr)
      CreateEmptyBCs(step, CreateBoltLoadBCs(step));
  }
  CreateSubmodelKwds();
}

void oif_BoundaryConditionBuilder::ConfigureOpStatus() {
  const kprC_StepContainer& steps = model->Steps();
  opStatus_.Configure<kloC_BoltLoad>(keydeck::FacadeOf(*model).BCs(),
                                     keydeck::FacadeOf(*model).Loads(), steps);
  // A buckling step restarts every boundary condition.
  for (int i = 1; i < steps.Size(); ++i) {
    const kprC_AnalysisStep* step = AnalysisStepOf(steps, steps.NameAt(i));
    if (step != nullptr && step->ProcedureType() == kprC_Buckle)
      opStatus_.ForceOpNew(i);
  }
}

void oif_BoundaryConditionBuilder::BuildElementSets() {
  for (const auto& [name, bc] : keydeck::FacadeOf(*model).BCs()) {
    if (bc->IsSuppressed() || !kbcC_ConnectorBC::IsKindOf(bc->DynTypeId()))
      continue;
    cow_List<cow_String> sets;
    for (const cow_String& connector : keydeck::RecordCast<kbcC_ConnectorBC>(*bc).connectors)
      sets.Append(oif_Utils::GetConnectorSetName(connector));
    AddAssemblyDefinition(oif_Elset(oif_Utils::GetConnectorSetName(name), sets));
  }
}

void oif_BoundaryConditionBuilder::CreateAllBCs(const cow_String& step) {
  const kprC_StepContainer& steps = model->Steps();
  if (!steps.IsMember(step))
    return;
  const kprC_AnalysisStep* analysis = AnalysisStepOf(steps, step);
  const bool hasLoadCases = analysis != nullptr && analysis->loadCases.Size() > 0;
  for (const auto& [name, bc] : keydeck::FacadeOf(*model).BCs()) {
    if (bc->IsSuppressed())
      continue;
    if (!hasLoadCases) {
      AllBCDetails(*bc, name, step, cow_String(), 1.0);
      continue;
    }
    for (const auto& [loadCaseName, loadCase] : analysis->loadCases) {
      if (loadCase->boundaryConditions.IsMember(name))
        AllBCDetails(*bc, name, step, loadCaseName,
                     loadCase->boundaryConditions.ConstGet(name).scale);
      else if (loadCase->includeBaseState && IsBaseStatus(bc->Status(step)))
        AllBCDetails(*bc, name, step, loadCaseName, 1.0);
    }
  }
}

void oif_BoundaryConditionBuilder::AllBCDetails(const kbcC_BC& bc, const cow_String& name,
                                                const cow_String& step, const cow_String& loadCase,
                                                double scale) {
  const bool inLoadCase = !loadCase.Empty();
  const oif_OpStatus::CardDecision decision =
      oif_OpStatus::DecideCard(bc.Status(step), opStatus_.OpNew(bc.DynTypeId(), step), inLoadCase);
  if (!decision.write)
    return;
  if (decision.blockHeader)
    AddStepDefinition(step, header_.StepHeader(step));
  CreateBCCard(bc, name, step, loadCase, scale, decision.opMod);
}

void oif_BoundaryConditionBuilder::CreateBCCard(const kbcC_BC& bc, const cow_String& name,
                                                const cow_String& step, const cow_String& loadCase,
                                                double scale, bool opMod) {
  const cow_String displayName = oif_Boundary::FixBCNameHack(name);
  const oif_Comment comment(
      Comment(displayName, kbcC_BCTypeLabelMap::Label(bc.DynTypeId()), loadCase, scale));
  if (kbcC_ConnectorBC::IsKindOf(bc.DynTypeId())) {
    // Connector conditions act on the element set named after them.
    const auto& connector = keydeck::RecordCast<kbcC_ConnectorBC>(bc);
    cow_String appliesTo = "Applies To: ";
    for (int i = 0; i < connector.connectors.Size(); ++i)
      appliesTo = appliesTo + (i == 0 ? "" : ", ") + connector.connectors.ConstGet(i);
    AddStepDefinition(step, comment, loadCase);
    AddStepDefinition(step, oif_Comment(appliesTo), loadCase);
    AddStepDefinition(step,
                      oif_ConnectorMotion(connector, displayName, step, opMod,
                                          oif_Utils::GetConnectorSetName(name), scale),
                      loadCase);
    return;
  }
  if (!IsBoundaryKind(bc.DynTypeId()))
    keydeck::Raise("Unimplemented keyword for boundary condition");
  const cow_String setName =
      oif_SetName(bc.region, *modelInfo).UniqueSetName(oif_SetName::AssemblyScope);
  const oif_Boundary card(bc, name, step, opMod, setName, model->ShellToSolid(),
                          model->InitialStepName(), scale);
  if (card.IsBCSubmodel())
    return submodels_.Append(step, displayName, card);
  AddStepDefinition(step, comment, loadCase);
  AddStepDefinition(step, card, loadCase);
}

cow_List<cow_String> oif_BoundaryConditionBuilder::CreateBoltLoadBCs(const cow_String& step) {
  cow_List<cow_String> served;
  const kprC_AnalysisStep* analysis = AnalysisStepOf(model->Steps(), step);
  const bool hasLoadCases = analysis != nullptr && analysis->loadCases.Size() > 0;
  for (const auto& [name, load] : keydeck::FacadeOf(*model).Loads()) {
    if (load->IsSuppressed() || load->DynTypeId() != kloC_BoltLoad::TypeId() ||
        load->Status(step) == PropBuiltIn)
      continue;
    if (!hasLoadCases) {
      BoltLoadBCDetails(load, name, step, cow_String(), 1.0);
      served.Append(cow_String());
      continue;
    }
    for (const auto& [loadCaseName, loadCase] : analysis->loadCases)
      if (loadCase->loads.IsMember(name) &&
          BoltLoadBCDetails(load, name, step, loadCaseName, loadCase->loads.ConstGet(name).scale))
        served.Append(loadCaseName);
  }
  return served;
}

bool oif_BoundaryConditionBuilder::BoltLoadBCDetails(const keydeck::LoadHandle& handle,
                                                     const cow_String& name, const cow_String& step,
                                                     const cow_String& loadCase, double scale) {
  const auto& load = keydeck::RecordCast<kloC_BoltLoad>(*handle);
  const bool noLoadCase = loadCase.Empty();
  const bool opNew = opStatus_.OpNew(kloC_BoltLoad::TypeId(), step);
  const mdl_PropagationStatusEnm status = load.Status(step);
  const auto& method = load.ConstGetState(step).method;
  if (status == PropPropagated && noLoadCase && !opNew)
    return false;
  const bool onLength = method.ConstGet() != kloC_ApplyForce;
  const bool inForce = status == PropCreated || status == PropPropagated || status == PropModified;
  // Deactivated, or turned back into a force: the card that ends the
  // condition.
  const bool ends =
      status == PropDeactivated || (status == PropModified && method.IsModified() && !onLength);
  if (!(inForce && onLength) && !ends)
    return false;
  if (noLoadCase)
    AddStepDefinition(step, header_.StepHeader(step));
  const cow_String setName =
      oif_SetName(load.region, *modelInfo).UniqueSetName(oif_SetName::AssemblyScope);
  AddStepDefinition(
      step, oif_Comment(Comment(name, kloC_LoadTypeLabelMap(load.DynTypeId()), loadCase, scale)),
      loadCase);
  AddStepDefinition(
      step, oif_BoundaryForBoltLoad(handle, step, setName, noLoadCase && !opNew, scale), loadCase);
  return true;
}

void oif_BoundaryConditionBuilder::CreateEmptyBCs(const cow_String& step,
                                                  const cow_List<cow_String>& served) {
  const kprC_AnalysisStep* analysis = AnalysisStepOf(model->Steps(), step);
  if (analysis == nullptr || analysis->ProcedureType() == kprC_ModalDynamics ||
      analysis->ProcedureType() == kprC_SteadyStateModal)
    return;
  bool baseBCs = false;
  for (const auto& [name, bc] : keydeck::FacadeOf(*model).BCs())
    baseBCs = baseBCs || (!bc->IsSuppressed() && IsBaseStatus(bc->Status(step)));
  const oif_RawKeyword wipe("*Boundary, op=NEW");
  for (const auto& [loadCaseName, loadCase] : analysis->loadCases) {
    if (served.IsMember(loadCaseName) || !loadCase->boundaryConditions.Empty())
      continue;
    if (!(baseBCs && loadCase->includeBaseState))
      AddStepDefinition(step, wipe, loadCaseName);
  }
}

void oif_BoundaryConditionBuilder::CreateSubmodelKwds() {
  cow_List<oif_Submodel> cards;
  for (const auto& [name, bc] : keydeck::FacadeOf(*model).BCs()) {
    if (bc->IsSuppressed() || bc->DynTypeId() != kbcC_SubmodelType)
      continue;
    const auto& submodel = keydeck::RecordCast<kbcC_SubmodelBC>(*bc);
    const cow_String setName =
        oif_SetName(bc->region, *modelInfo).UniqueSetName(oif_SetName::AssemblyScope);
    int i = 0;
    while (i < cards.Size() && !cards.ConstGet(i).IsEqual(submodel))
      ++i;
    if (i < cards.Size())
      cards.Get(i).AppendRegion(setName);
    else
      cards.Append(oif_Submodel(model->ShellToSolid(), submodel, setName));
  }
  for (const oif_Submodel& card : cards)
    AddAssemblyDefinition(card);
  const kprC_StepContainer& steps = model->Steps();
  for (int i = 0; i < steps.Size(); ++i)
    for (const cow_ArrayCOW<qkw_Keyword>& card : submodels_.Keywords(steps.NameAt(i)))
      AddStepDefinition(steps.NameAt(i), *card);
}

cow_String oif_BoundaryConditionBuilder::Comment(const cow_String& name, const cow_String& label,
                                                 const cow_String& loadCase, double scale) {
  cow_String text = "Name: " + name + " Type: " + label;
  if (!loadCase.Empty())
    text = text + "   Scale factor: " + cow_String(scale);
  return text;
}
