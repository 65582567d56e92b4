#include "model/json/derive_fields.h"

#include "model/json/json_text.h"
#include "model/json/region_names.h"

#include <string>
#include <type_traits>

namespace keydeck {

namespace {

// "a field of type \"velocity\"", as the messages name a field's kind.
std::string LabelOf(const kpfC_Field& field) {
  return "a field of type " + QuotedJson(FindEnumEntry(field.type)->fileText);
}

void DeriveRegion(const ddb_Model& model, kpfC_Field& field, const std::string& path,
                  LoadErrors& errors) {
  const std::string regionPath = path + "/region";
  rgnC_Region region = ResolveRegion(model, field.regionName.View(), regionPath, errors);
  if (!region.HasSet())
    return;
  if (region.ConstSet().SetType() != res_NodeSet) {
    const char* const found[] = {"a node set", "an element set", "a surface"};
    errors.Add(regionPath, QuotedJson(field.regionName.View()) + " is " +
                               found[region.ConstSet().SetType()] + "; " + LabelOf(field) +
                               " needs a node set");
    return;
  }
  field.region = std::move(region);
}

bool IsInitialStep(const ddb_Model& model, const cow_String& step) {
  const kprC_StepContainer& steps = model.step().container();
  return steps.Size() > 0 && steps.NameAt(0) == step;
}

void CheckDistribution(const ddb_Model& model, const kpfC_Field& field, const std::string& path,
                       LoadErrors& errors) {
  const std::string at = path + "/distribution";
  if (!field.Admits(field.distribution))
    errors.Add(at, LabelOf(field) + " cannot be " +
                       QuotedJson(FindEnumEntry(field.distribution)->fileText));
  else if (field.distribution == kpfC_FromFileAndUser && IsInitialStep(model, field.createdIn))
    errors.Add(at, "an initial condition cannot be \"fromFileAndUser\"");
}

// Checks the amplitudes that one step entry names.
template <class State>
void CheckAmplitude(const ddb_Model& model, const State& state, const std::string& path,
                    LoadErrors& errors) {
  if constexpr (requires { state.amplitude; }) {
    if (state.amplitude.IsActive() && !model.amplitudes().IsMember(state.amplitude.ConstGet()))
      errors.Add(path + "/amplitude",
                 "no amplitude " + QuotedJson(state.amplitude.ConstGet().View()) + " in the model");
  }
}

// A field read from a file names it; an initial condition reads one step
// and increment of it.
template <class State>
void CheckFromFile(const ddb_Model& model, const kpfC_Field& field, const State& created,
                   const std::string& path, LoadErrors& errors) {
  if (field.distribution != kpfC_FromFile && field.distribution != kpfC_FromFileAndUser)
    return;
  if (!created.file.IsActive() || created.file.ConstGet().Empty())
    errors.Add(path + "/file", LabelOf(field) + " from a file needs \"file\"");
  if constexpr (requires { created.beginStep; }) {
    if (IsInitialStep(model, field.createdIn) &&
        (!created.beginStep.IsActive() || !created.beginIncrement.IsActive()))
      errors.Add(path,
                 "an initial condition from a file needs \"beginStep\" and \"beginIncrement\"");
  }
}

template <class K>
void CheckKind(const ddb_Model& model, const K& field, const std::string& path,
               LoadErrors& errors) {
  if constexpr (std::is_same_v<K, kpfC_GeneralField>) {
    if (field.number < 1)
      errors.Add(path + "/number", "the number of a field variable is 1 or more");
  }
  if constexpr (requires { field.created.file; })
    CheckFromFile(model, field, field.created, path, errors);
  if constexpr (std::is_same_v<K, kpfC_Velocity>) {
    if (!IsInitialStep(model, field.createdIn))
      errors.Add(path + "/createdIn", "a velocity is an initial condition: it is created in the "
                                      "initial step");
    if (!field.changes.Empty())
      errors.Add(path + "/steps",
                 "a velocity is an initial condition: later steps cannot change it");
    if (field.rotating && field.point1 == field.point2)
      errors.Add(path + "/point2", "the axis needs two distinct points");
  }
}

template <class K>
void DeriveKind(const ddb_Model& model, K& field, const std::string& path, LoadErrors& errors) {
  DeriveRegion(model, field, path, errors);
  CheckDistribution(model, field, path, errors);
  CheckKind(model, field, path, errors);
  CheckAmplitude(model, field.created, path, errors);
  for (const auto& [step, change] : field.changes)
    CheckAmplitude(model, change.state, path + "/steps/" + std::string(step.View()), errors);
}

} // namespace

void DeriveFields(std::string_view modelPath, ddb_Model& model, LoadErrors& errors) {
  kprC_PropagatingContainer<kpfC_Field>& fields = model.predefinedFields_;
  for (const cow_String& name : fields.Keys()) {
    auto handle = fields.ConstGetMap().ConstGet(name);
    const std::string path =
        std::string(modelPath) + "/predefinedFields/" + std::string(name.View());
    VisitTypeIdClass<kpfC_Field>(handle->DynTypeId(), [&](auto type) {
      using K = typename decltype(type)::type;
      DeriveKind(model, RecordCast<K>(handle.Get()), path, errors);
    });
    fields.Insert(name, std::move(handle));
  }
}

} // namespace keydeck
