#include "model/json/derive_output.h"

#include "model/json/json_text.h"
#include "model/json/region_names.h"
#include "model/output_variables.h"

#include <set>
#include <string>

namespace keydeck {

namespace {

std::string ProcedureWord(const kprC_AnalysisStep& step) {
  return std::string(FindEnumEntry(step.procedure)->fileText);
}

// Checks the requests of one channel.
template <class Request> class OutputChecker {
public:
  OutputChecker(const ddb_Model& model, bool isField, LoadErrors& errors)
      : model_(model), steps_(model.step().container()), isField_(isField), errors_(errors) {}

  void Run(const std::string& path, Request& request) {
    if (!request.region.Empty())
      request.regionData = ResolveRegion(model_, request.region.View(), path + "/region", errors_);
    CheckEntry(path, request.created, request.createdIn);
    for (const auto& [stepName, change] : request.changes)
      CheckEntry(path + "/steps/" + std::string(stepName.View()), change.state, stepName);
    for (int i = 1; i < steps_.Size(); ++i)
      if (kprC_PropagatingRecord::IsActive(request.Status(steps_.NameAt(i))))
        CheckVariablesInForce(path, request, i);
  }

private:
  // What one entry of the file gives, checked by itself and against the
  // procedure of its step.
  void CheckEntry(const std::string& path, const korC_OutputState& state,
                  const cow_String& stepName) {
    if (state.frequency.IsActive())
      CheckFrequency(path + "/frequency", state.frequency.ConstGet(), stepName);
    if (state.variables.IsActive())
      CheckSymbols(path + "/variables", state.variables.ConstGet());
  }

  void CheckFrequency(const std::string& path, const korC_OutputFrequency& frequency,
                      const cow_String& stepName) {
    if (frequency.KindsGiven() != 1) {
      errors_.Add(path, "give exactly one of \"every\", \"intervals\", \"timeInterval\", "
                        "\"modes\" and \"timePoints\"");
      return;
    }
    CheckFrequencyValue(path, frequency);
    if (!steps_.IsMember(stepName) ||
        steps_.ConstGet(stepName).DynTypeId() == kprC_InitialStep::TypeId())
      return; // the propagation rule reports such a step
    const auto& step = RecordCast<kprC_AnalysisStep>(steps_.ConstGet(stepName));
    if (!korC_FrequencyIsAllowed(frequency.Kind(), step.procedure))
      errors_.Add(path, "the " + ProcedureWord(step) + " procedure of step " +
                            QuotedJson(stepName.View()) + " cannot write output at " +
                            KindWords(frequency.Kind()));
  }

  static std::string KindWords(korC_FrequencyTypeEnm kind) {
    switch (kind) {
    case korC_EveryIncrements:
      return "increments";
    case korC_NumberIntervals:
      return "intervals";
    case korC_EveryTimeInterval:
      return "time intervals";
    case korC_ModeList:
      return "modes";
    case korC_AtTimePoints:
      return "time points";
    }
    return "";
  }

  void CheckFrequencyValue(const std::string& path, const korC_OutputFrequency& frequency) {
    if (frequency.every != NotGivenInt && frequency.every < 0)
      errors_.Add(path + "/every", "the increments between outputs must be 0 or more, found " +
                                       std::to_string(frequency.every));
    if (frequency.intervals != NotGivenInt && frequency.intervals < 1)
      errors_.Add(path + "/intervals",
                  "the intervals must be 1 or more, found " + std::to_string(frequency.intervals));
    if (frequency.timeInterval != NotGivenDouble && !(frequency.timeInterval > 0))
      errors_.Add(path + "/timeInterval", "the time interval must be positive");
    for (int i = 0; i < frequency.modes.Size(); ++i)
      if (frequency.modes.ConstGet(i) < 1)
        errors_.Add(path + "/modes/" + std::to_string(i),
                    "a mode is 1 or more, found " + std::to_string(frequency.modes.ConstGet(i)));
  }

  // "PRESELECT" and "ALL" name a whole set of variables; beside other names
  // they would be read as one.
  void CheckSymbols(const std::string& path, const cow_List<DeckName>& names) {
    if (names.Size() < 2)
      return;
    for (int i = 0; i < names.Size(); ++i) {
      const cow_String& name = names.ConstGet(i);
      if (korC_OutputState::IsSymbol(name))
        errors_.Add(path + "/" + std::to_string(i), QuotedJson(name.View()) + " stands alone");
    }
  }

  void CheckVariablesInForce(const std::string& path, const Request& request, int stepIndex) {
    const cow_String& stepName = steps_.NameAt(stepIndex);
    const korC_OutputState& state = request.ConstGetState(stepName);
    if (state.VariablesType() != korC_ListedVariables)
      return;
    const auto& step = RecordCast<kprC_AnalysisStep>(steps_.StepAt(stepIndex));
    const std::string listPath = PathOfList(path, request, stepIndex);
    for (const DeckName& name : state.variables.ConstGet()) {
      if (korC_OutputState::IsSymbol(name) ||
          korC_OdbRequestTable::IsKnown(name.View(), step.procedure, isField_))
        continue; // a symbol among names is reported by itself
      std::string message = QuotedJson(name.View()) + " is not a " +
                            (isField_ ? "field" : "history") + " output variable of the " +
                            ProcedureWord(step) + " procedure of step " +
                            QuotedJson(stepName.View());
      if (reported_.insert(listPath + message).second)
        errors_.Add(listPath, std::move(message));
    }
  }

  // The path of the entry that set the list in force at `stepIndex`.
  std::string PathOfList(const std::string& path, const Request& request, int stepIndex) const {
    for (int i = stepIndex; i > 0; --i) {
      const cow_String& name = steps_.NameAt(i);
      if (request.ConstGetState(name).variables.State() != mdl_AttributeSet)
        continue;
      if (request.changes.IsMember(name))
        return path + "/steps/" + std::string(name.View()) + "/variables";
      break;
    }
    return path + "/variables";
  }

  const ddb_Model& model_;
  const kprC_StepContainer& steps_;
  bool isField_;
  LoadErrors& errors_;
  std::set<std::string> reported_; // a list inherited by several steps is reported once
};

template <class Request>
void CheckRequests(const std::string& mapPath, ddb_Model& model,
                   kprC_PropagatingContainer<Request>& requests, bool isField, LoadErrors& errors) {
  OutputChecker<Request> checker(model, isField, errors);
  for (const cow_String& name : requests.Keys()) {
    auto handle = requests.ConstGetMap().ConstGet(name);
    checker.Run(mapPath + "/" + std::string(name.View()), handle.Get());
    requests.Insert(name, std::move(handle));
  }
}

} // namespace

void DeriveOutputRequests(std::string_view modelPath, ddb_Model& model, LoadErrors& errors) {
  const std::string path(modelPath);
  CheckRequests(path + "/fieldOutputRequests", model, model.fieldOutputs_, /*isField=*/true,
                errors);
  CheckRequests(path + "/historyOutputRequests", model, model.historyOutputs_, /*isField=*/false,
                errors);
}

} // namespace keydeck
