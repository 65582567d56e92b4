#include "model/json/derive_loads.h"

#include "model/json/json_text.h"
#include "model/json/region_names.h"

#include <string>
#include <vector>

namespace keydeck {

namespace {

const char* RegionWords(kloC_Load::RegionKindEnm kind) {
  switch (kind) {
  case kloC_Load::NodeRegion:
    return "a node set";
  case kloC_Load::ElementRegion:
    return "an element set";
  case kloC_Load::SurfaceRegion:
    return "a surface";
  case kloC_Load::NoRegion:
    return "no region";
  }
  return "";
}

res_SetTypeEnm SetTypeOf(kloC_Load::RegionKindEnm kind) {
  switch (kind) {
  case kloC_Load::NodeRegion:
    return res_NodeSet;
  case kloC_Load::ElementRegion:
    return res_ElementSet;
  case kloC_Load::SurfaceRegion:
  case kloC_Load::NoRegion:
    break;
  }
  return res_FacetSet;
}

// "a load of type \"pressure\"", as the messages name a load's kind.
std::string LabelOf(const kloC_Load& load) {
  return "a load of type " + QuotedJson(FindEnumEntry(load.type)->fileText);
}

void DeriveRegion(const ddb_Model& model, kloC_Load& load, const std::string& path,
                  LoadErrors& errors) {
  const kloC_Load::RegionKindEnm kind = load.RegionKind();
  if (load.regionName.Empty()) {
    if (kind != kloC_Load::NoRegion && !load.WholeModel())
      errors.Add(path + "/region", LabelOf(load) + " needs " + RegionWords(kind));
    return;
  }
  if (kind == kloC_Load::NoRegion) {
    errors.Add(path + "/region", LabelOf(load) + " takes no region");
    return;
  }
  const std::string regionPath = path + "/region";
  rgnC_Region region = ResolveRegion(model, load.regionName.View(), regionPath, errors);
  if (!region.HasSet())
    return;
  if (region.ConstSet().SetType() != SetTypeOf(kind)) {
    const char* const found[] = {"a node set", "an element set", "a surface"};
    errors.Add(regionPath, QuotedJson(load.regionName.View()) + " is " +
                               found[region.ConstSet().SetType()] + "; " + LabelOf(load) +
                               " needs " + RegionWords(kind));
    return;
  }
  load.region = std::move(region);
}

void DeriveCsys(const ddb_Model& model, LoadCsys& csys, const std::string& path,
                LoadErrors& errors) {
  if (csys.csysName.Empty())
    return;
  csys.csys = ResolveDatum(model, csys.csysName.View(), path + "/csys", errors);
}

// Checks what one step entry of a load gives: its amplitude and its
// imaginary parts.
template <class State>
void CheckState(const ddb_Model& model, const kloC_Load& load, const State& state,
                const cow_String& stepName, const std::string& path, LoadErrors& errors) {
  State copy = state; // the walk hands out members for writing
  ForEachAttribute(copy, [&](const char* name, auto& attribute) {
    if (!attribute.IsActive())
      return;
    const std::string at = path + "/" + name;
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(attribute.ConstGet())>, DeckName>) {
      if (!model.amplitudes().IsMember(attribute.ConstGet()))
        errors.Add(at, "no amplitude " + QuotedJson(attribute.ConstGet().View()) + " in the model");
    } else if (std::string_view(name).starts_with("imaginary")) {
      if (load.DynTypeId() == kloC_ConcentratedPoreFluidType)
        errors.Add(at, "a concentrated pore fluid load cannot be complex");
      else if (model.step().container().IsMember(stepName) &&
               !IsSteadyStateProcedure(model.step().container().ConstGet(stepName).DynTypeId()))
        errors.Add(at, "step " + QuotedJson(stepName.View()) +
                           " takes no imaginary parts: only a steady-state step carries a "
                           "complex load");
    }
  });
}

bool IsZero(const std::array<double, 3>& v) { return v[0] == 0 && v[1] == 0 && v[2] == 0; }

// The checks of the fields that only some kinds have.
template <class K>
void CheckKindFields(const K& load, const std::string& path, LoadErrors& errors) {
  if constexpr (requires { load.distribution; }) {
    if (load.distribution == kloC_Hydrostatic && !std::is_same_v<K, kloC_Pressure> &&
        !std::is_same_v<K, kloC_PipePressure>)
      errors.Add(path + "/distribution", "only a pressure may be hydrostatic");
  }
  if constexpr (requires { load.point2; }) {
    if (load.point1 == load.point2)
      errors.Add(path + "/point2", "the axis needs two distinct points");
  }
  if constexpr (std::is_same_v<K, kloC_SurfaceTraction>) {
    if (IsZero(load.direction))
      errors.Add(path + "/direction", "the direction has zero length");
  }
  if constexpr (std::is_same_v<K, kloC_ShellEdgeLoad>) {
    if (load.kind == kloC_EdgeGeneral && IsZero(load.direction))
      errors.Add(path + "/direction", "the direction has zero length");
  }
}

template <class K>
void DeriveKind(const ddb_Model& model, K& load, const std::string& path, LoadErrors& errors) {
  DeriveRegion(model, load, path, errors);
  if constexpr (std::is_base_of_v<LoadCsys, K>)
    DeriveCsys(model, load, path, errors);
  CheckKindFields(load, path, errors);
  CheckState(model, load, load.created, load.createdIn, path, errors);
  for (const auto& [step, change] : load.changes)
    CheckState(model, load, change.state, step, path + "/steps/" + std::string(step.View()),
               errors);
}

} // namespace

void DeriveLoads(std::string_view modelPath, ddb_Model& model, LoadErrors& errors) {
  kprC_PropagatingContainer<kloC_Load>& loads = model.loads_;
  for (const cow_String& name : loads.Keys()) {
    auto handle = loads.ConstGetMap().ConstGet(name);
    const std::string path = std::string(modelPath) + "/loads/" + std::string(name.View());
    VisitTypeIdClass<kloC_Load>(handle->DynTypeId(), [&](auto type) {
      using K = typename decltype(type)::type;
      DeriveKind(model, RecordCast<K>(handle.Get()), path, errors);
    });
    loads.Insert(name, std::move(handle));
  }
}

} // namespace keydeck
