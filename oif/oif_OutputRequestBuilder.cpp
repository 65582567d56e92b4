#include "oif/oif_OutputRequestBuilder.h"

#include "model/output_variables.h"
#include "model/steps.h"
#include "oif/oif_Comment.h"
#include "oif/oif_ContactOutput.h"
#include "oif/oif_DiagnosticPrint.h"
#include "oif/oif_ElementOutput.h"
#include "oif/oif_EnergyOutput.h"
#include "oif/oif_IncrementationOutput.h"
#include "oif/oif_IntegratedOutput.h"
#include "oif/oif_ModalOutput.h"
#include "oif/oif_Model.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_Monitor.h"
#include "oif/oif_NodeOutput.h"
#include "oif/oif_Output.h"
#include "oif/oif_RadiationOutput.h"
#include "oif/oif_Restart.h"
#include "oif/oif_SetName.h"
#include "oif/oif_SolverControls.h"

#include <algorithm>
#include <vector>

using namespace keydeck;

namespace {

bool IsWritableElementRegion(const rgnC_Region& region) {
  const int bits = RegionKindBits(region);
  return bits == 0 || ((bits & SurfaceRegionBit) == 0 && (bits & ElementRegionBit) != 0);
}

bool IsWritableNodeRegion(const rgnC_Region& region) {
  const int bits = RegionKindBits(region);
  return (bits & SurfaceRegionBit) == 0 &&
         ((bits & ElementRegionBit) == 0 || (bits & NodeRegionBit) != 0);
}

// True when the "*Output" line says all there is to say of the request: the
// whole model, every direction and a set of variables. Its sub-cards then
// stay away.
bool SaysAll(const korC_OdbRequest& request, bool preselect, bool all) {
  return request.DomainType() == korC_WholeModelDomain && request.directions &&
         request.sectionPoints.Empty() && (preselect || all);
}

bool IsVariableSet(const korC_OdbRequest& request) {
  return request.variablesType == korC_PreselectVariables ||
         request.variablesType == korC_AllVariables;
}

// The step time that explicit history output divides into intervals; 0 for
// an implicit step.
double ExplicitTimePeriod(const kprC_AnalysisStep& step) {
  if (step.DynTypeId() == kprC_ExplicitDynamicsStep::TypeId())
    return RecordCast<kprC_ExplicitDynamicsStep>(step).timePeriod;
  if (step.DynTypeId() == kprC_TempDisplacementDynamicsStep::TypeId())
    return RecordCast<kprC_TempDisplacementDynamicsStep>(step).timePeriod;
  return 0;
}

// A request's frequency from the state in force; a kind the procedure does
// not allow (one inherited from a step of another procedure) gives way to
// the procedure's default.
void SetFrequency(korC_OdbRequest& request, const korC_OutputState& state, bool isField,
                  unsigned procedure) {
  const korC_OutputFrequency& given = state.frequency.ConstGet();
  request.timeMarks = given.timeMarks.value_or(korC_DefaultTimeMarks(procedure));
  if (state.frequency.IsActive() && korC_FrequencyIsAllowed(given.Kind(), procedure)) {
    request.frequencyType = given.Kind();
    request.frequency = given.every == NotGivenInt ? 0 : given.every;
    request.numberInterval = given.intervals == NotGivenInt ? 0 : given.intervals;
    request.timeInterval = given.timeInterval == NotGivenDouble ? 0 : given.timeInterval;
    request.modeList = given.modes;
    request.timePoints = given.timePoints;
    return;
  }
  request.frequencyType = korC_DefaultOutputType(procedure, isField);
  const int value = korC_DefaultFrequencyValue(request.frequencyType, procedure, isField);
  request.frequency = request.frequencyType == korC_EveryIncrements ? value : 0;
  request.numberInterval = request.frequencyType == korC_NumberIntervals ? value : 0;
}

void SetVariables(korC_OdbRequest& request, const korC_OutputState& state, bool isField,
                  unsigned procedure) {
  request.variablesType = state.VariablesType();
  switch (state.VariablesType()) {
  case korC_ListedVariables:
    for (const DeckName& name : state.variables.ConstGet())
      request.variables.Append(name);
    return;
  case korC_PreselectVariables:
    request.variables = korC_OdbRequestTable::Defaults(isField, procedure);
    return;
  case korC_AllVariables:
    request.variables = korC_OdbRequestTable::All(isField, procedure);
    return;
  }
}

korC_OdbRequest RequestOf(const korC_Output& record, const korC_OutputState& state, bool isField,
                          unsigned procedure) {
  korC_OdbRequest request;
  request.region = record.regionData;
  request.rebar = record.rebar;
  request.sectionPoints = record.sectionPoints;
  request.directions = record.directions;
  SetFrequency(request, state, isField, procedure);
  SetVariables(request, state, isField, procedure);
  return request;
}

// An equal request takes the record's name into its label instead of a
// request of its own.
void MergeInto(korC_OdbChannel& channel, korC_OdbRequest request, const cow_String& name) {
  for (int i = 0; i < channel.requests.Size(); ++i) {
    if (!(channel.requests.ConstGet(i) == request))
      continue;
    korC_OdbRequest& equal = channel.requests.Get(i);
    equal.label = equal.label + ", " + name;
    return;
  }
  request.label = name;
  channel.requests.Append(std::move(request));
}

cow_List<korC_OdbRequest> Sorted(const cow_List<korC_OdbRequest>& requests) {
  std::vector<korC_OdbRequest> items(requests.begin(), requests.end());
  std::sort(items.begin(), items.end());
  cow_List<korC_OdbRequest> sorted;
  for (korC_OdbRequest& item : items)
    sorted.Append(std::move(item));
  return sorted;
}

} // namespace

oif_OutputRequestBuilder::oif_OutputRequestBuilder(oif_ModelInfo& info)
    : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_OutputRequestBuilder::Copy() const {
  return new oif_OutputRequestBuilder(*this);
}

void oif_OutputRequestBuilder::Build() {
  const oif_Model& facade = FacadeOf(*model);
  std::optional<kprC_DiagnosticPrint> previousPrint;
  kprC_StepContainerIT it(model->Steps());
  it.First();
  for (it.Next(); !it.IsDone(); it.Next()) { // the initial step writes no output
    const cow_String& stepName = it.CurrentKey();
    const kprC_AnalysisStep& step = RecordCast<kprC_AnalysisStep>(it.CurrentValue());
    const unsigned procedure = step.procedure;
    const korC_OdbChannel field =
        GetChannel(facade.FieldOutputs(), /*isField=*/true, stepName, procedure);
    const korC_OdbChannel history =
        step.loadCases.Empty()
            ? GetChannel(facade.HistoryOutputs(), /*isField=*/false, stepName, procedure)
            : korC_OdbChannel(/*isField=*/false);
    if (step.solverControls) {
      // Controls set back to the defaults go without their heading.
      if (!step.solverControls->reset)
        AddStepDefinition(stepName, oif_Comment("\nSOLVER CONTROLS\n"));
      AddStepDefinition(stepName, oif_SolverControls(*step.solverControls));
    }
    const cow_String monitorSet = MonitorSetName(step);
    if (!field.requests.Empty() || !history.requests.Empty() || step.restart ||
        step.explicitRestart || step.DiagnosticPrint() || !monitorSet.Empty())
      AddStepDefinition(stepName, oif_Comment("\nOUTPUT REQUESTS\n"));
    AddStepRequests(step, stepName, monitorSet, previousPrint);
    const double timePeriod = ExplicitTimePeriod(step);
    CreateOdbRequests(field, stepName, timePeriod, procedure);
    CreateOdbRequests(history, stepName, timePeriod, procedure);
  }
}

void oif_OutputRequestBuilder::AddStepRequests(const kprC_AnalysisStep& step,
                                               const cow_String& stepName,
                                               const cow_String& monitorSet,
                                               std::optional<kprC_DiagnosticPrint>& previousPrint) {
  if (step.restart)
    AddStepDefinition(stepName, oif_Restart(*step.restart));
  if (step.explicitRestart)
    AddStepDefinition(stepName, oif_Restart(*step.explicitRestart));
  if (std::optional<kprC_DiagnosticPrint> print = step.DiagnosticPrint()) {
    AddStepDefinition(stepName, oif_DiagnosticPrint(*print, previousPrint));
    previousPrint = std::move(print);
  }
  if (monitorSet.Empty())
    return;
  if (step.monitor)
    AddStepDefinition(stepName, oif_Monitor(*step.monitor, monitorSet));
  if (step.explicitMonitor)
    AddStepDefinition(stepName, oif_Monitor(*step.explicitMonitor, monitorSet));
}

cow_String oif_OutputRequestBuilder::MonitorSetName(const kprC_AnalysisStep& step) const {
  const kprC_MonitorBase* monitor = step.Monitor();
  if (monitor == nullptr)
    return cow_String();
  return oif_SetName(monitor->region, *modelInfo).UniqueSetName(oif_SetName::AssemblyScope);
}

// Requests in force in the step count, whether the step changes them or
// inherits them: every step states its output in full.
template <class Record>
korC_OdbChannel
oif_OutputRequestBuilder::GetChannel(const kprC_PropagatingContainer<Record>& records, bool isField,
                                     const cow_String& stepName, unsigned procedure) const {
  korC_OdbChannel channel(isField);
  for (const auto& [name, record] : records) {
    if (record->IsSuppressed() || !kprC_PropagatingRecord::IsActive(record->Status(stepName)))
      continue;
    MergeInto(channel, RequestOf(*record, record->ConstGetState(stepName), isField, procedure),
              name);
  }
  return channel;
}

void oif_OutputRequestBuilder::CreateOdbRequests(const korC_OdbChannel& channel,
                                                 const cow_String& stepName, double timePeriod,
                                                 unsigned procedure) {
  if (channel.requests.Empty()) {
    RequestNoOutput(channel, stepName, timePeriod, procedure);
    return;
  }
  const cow_String prefix = channel.IsField() ? "\nFIELD" : "\nHISTORY";
  const cow_List<korC_OdbRequest> requests = Sorted(channel.requests);
  bool first = true;
  const korC_OdbRequest* previous = nullptr;
  for (int i = 0; i < requests.Size(); ++i) {
    const korC_OdbRequest& request = requests.ConstGet(i);
    AddStepDefinition(stepName, oif_Comment(prefix + " OUTPUT: " + request.label + "\n"));
    const cow_String name = DomainName(request);
    const bool preselect = request.variablesType == korC_PreselectVariables;
    const bool all = request.variablesType == korC_AllVariables;
    // Listed variables at the frequency of the group before share its "*Output".
    const bool joins = !first && !IsVariableSet(request) && !IsVariableSet(*previous) &&
                       request.EqualFrequency(*previous) && request.filter == previous->filter;
    if (!joins) {
      previous = &request;
      // The variable option moves down to the sub-cards where the "*Output"
      // line cannot say it for the whole request.
      const bool optionMovesDown =
          (IsVariableSet(request) && request.DomainType() != korC_WholeModelDomain) ||
          !request.sectionPoints.Empty() || !request.directions;
      if (!optionMovesDown && !HasWritableVariables(request, procedure)) {
        if (first && i + 1 == requests.Size())
          RequestNoOutput(channel, stepName, timePeriod, procedure);
        continue;
      }
      AddStepDefinition(stepName, oif_Output(channel, request, !optionMovesDown && preselect,
                                             !optionMovesDown && all, timePeriod, procedure));
    }
    first = false;
    AddOutputSuboptions(request, channel, stepName, name, procedure, preselect, all);
  }
}

void oif_OutputRequestBuilder::RequestNoOutput(const korC_OdbChannel& channel,
                                               const cow_String& stepName, double timePeriod,
                                               unsigned procedure) {
  korC_OdbRequest blank;
  const bool explicitSolver = kprC_IsExplicit(procedure);
  if (channel.IsField() && kprC_ModesIsAllowed(procedure)) {
    blank.frequencyType = korC_ModeList;
    AddStepDefinition(stepName, oif_Output(channel, blank, false, false, timePeriod, procedure));
    AddStepDefinition(stepName, oif_NodeOutput(blank, procedure, cow_String(), false, false,
                                               /*skipEmpty=*/false));
    return;
  }
  if (!channel.IsField() && kprC_IsFrequencyBuckle(procedure))
    return;
  blank.frequencyType =
      channel.IsField() && explicitSolver ? korC_NumberIntervals : korC_EveryIncrements;
  AddStepDefinition(stepName, oif_Output(channel, blank, channel.IsField() && explicitSolver, false,
                                         timePeriod, procedure));
}

bool oif_OutputRequestBuilder::HasWritableVariables(const korC_OdbRequest& request,
                                                    unsigned procedure) const {
  if (!IsWritableNodeRegion(request.region) && korC_OdbRequestTable::GetInvalidPrintIdentifiers(
                                                   request.variables, procedure, {korC_NodeKind})
                                                   .Empty())
    return false;
  return IsWritableElementRegion(request.region) ||
         !korC_OdbRequestTable::GetInvalidPrintIdentifiers(
              request.variables, procedure, {korC_ElementKind, korC_ContactOrElementKind})
              .Empty();
}

cow_String oif_OutputRequestBuilder::DomainName(const korC_OdbRequest& request) const {
  switch (request.DomainType()) {
  case korC_SetDomain:
  case korC_SurfaceDomain:
    return oif_SetName(request.region, *modelInfo).UniqueSetName(oif_SetName::AssemblyScope);
  case korC_InteractionDomain:
    return request.interactions.ConstGet(0);
  case korC_WholeModelDomain:
  case korC_GeneralDomain:
  case korC_IntegratedSectionDomain:
    return cow_String();
  }
  return cow_String();
}

void oif_OutputRequestBuilder::AddOutputSuboptions(const korC_OdbRequest& request,
                                                   const korC_OdbChannel& channel,
                                                   const cow_String& stepName,
                                                   const cow_String& name, unsigned procedure,
                                                   bool preselect, bool all) {
  const korC_DomainTypeEnm domain = request.DomainType();
  const bool whole = SaysAll(request, preselect, all);
  const bool rebarOnly = request.rebar == korC_OnlyRebar;
  const bool more = !rebarOnly && !whole;
  const bool explicitSolver = kprC_IsExplicit(procedure);
  const bool elementOk = IsWritableElementRegion(request.region);
  if (more && !request.integratedSection.Empty())
    AddStepDefinition(stepName, oif_IntegratedOutput(request, procedure, preselect, all));
  if (domain == korC_IntegratedSectionDomain)
    return;
  const bool onRegion = domain != korC_SurfaceDomain && domain != korC_InteractionDomain;
  if (onRegion) {
    AddNodeOutput(request, stepName, name, procedure, preselect, all);
    AddElementOutput(request, channel, stepName, name, procedure, preselect, all);
    if (more && !explicitSolver)
      AddStepDefinition(stepName, oif_ModalOutput(request, procedure, all));
    if (more && elementOk)
      AddStepDefinition(stepName, oif_EnergyOutput(request, procedure, name, preselect, all));
    if (more && explicitSolver)
      AddStepDefinition(stepName, oif_IncrementationOutput(request, procedure, preselect, all));
  }
  if (more)
    AddStepDefinition(stepName, oif_ContactOutput(request, procedure, preselect, all, cow_String(),
                                                  cow_String(), cow_String(), name,
                                                  /*flag=*/!channel.IsField()));
  if (onRegion && more && !explicitSolver && domain != korC_GeneralDomain && elementOk)
    AddStepDefinition(stepName, oif_RadiationOutput(request, procedure, name, all));
}

void oif_OutputRequestBuilder::AddNodeOutput(const korC_OdbRequest& request,
                                             const cow_String& stepName, const cow_String& name,
                                             unsigned procedure, bool preselect, bool all) {
  if (SaysAll(request, preselect, all) || !IsWritableNodeRegion(request.region))
    return;
  AddStepDefinition(stepName,
                    oif_NodeOutput(request, procedure, name, preselect, all, /*skipEmpty=*/true));
}

void oif_OutputRequestBuilder::AddElementOutput(const korC_OdbRequest& request,
                                                const korC_OdbChannel& channel,
                                                const cow_String& stepName, const cow_String& name,
                                                unsigned procedure, bool preselect, bool all) {
  const bool wholeModel = request.DomainType() == korC_WholeModelDomain;
  if (SaysAll(request, preselect, all) || !(IsWritableElementRegion(request.region) || wholeModel))
    return;
  if (request.rebar != korC_OnlyRebar)
    AddStepDefinition(stepName, oif_ElementOutput(channel, request, procedure, name, preselect, all,
                                                  /*rebar=*/false));
  if (request.rebar != korC_NoRebar)
    AddStepDefinition(stepName, oif_ElementOutput(channel, request, procedure, name, preselect, all,
                                                  /*rebar=*/true));
}
