#include "model/json/derive_boundary_conditions.h"

#include "model/json/json_text.h"
#include "model/json/region_names.h"

#include <string>
#include <vector>

namespace keydeck {

namespace {

// The path of what `step` says of a record at `recordPath`: the record's own
// fields for the step that creates it, its "steps" entry otherwise.
std::string StepPath(const std::string& recordPath, const kbcC_BC& bc, const cow_String& step) {
  return step == bc.createdIn ? recordPath : recordPath + "/steps/" + std::string(step.View());
}

void CheckStates(const ddb_Model& model, const kbcC_BC& bc, const std::string& path,
                 LoadErrors& errors) {
  const kprC_StepContainer& steps = model.step().container();
  for (int i = 0; i < steps.Size(); ++i) {
    const cow_String& step = steps.NameAt(i);
    if (!bc.HasStep(step))
      continue;
    const mdl_PropAttr<DeckName>& amplitude = bc.BCState(step).amplitude;
    if (amplitude.IsModified() && !model.amplitudes().IsMember(amplitude.ConstGet()))
      errors.Add(StepPath(path, bc, step) + "/amplitude",
                 "no amplitude " + QuotedJson(amplitude.ConstGet().View()));
    if (const std::optional<RecordFault> fault = bc.StateFault(step))
      errors.Add(StepPath(path, bc, step) + "/" + fault->where, fault->what);
  }
}

void DeriveOne(ddb_Model& model, kbcC_BC& bc, const std::string& path, LoadErrors& errors) {
  if (bc.HasRegion()) {
    bc.region = ResolveRegion(model, bc.regionName.View(), path + "/region", errors);
    if (bc.region.HasSet() && bc.region.ConstSet().SetType() != res_NodeSet)
      errors.Add(path + "/region", QuotedJson(bc.regionName.View()) +
                                       " is an element set; a boundary condition acts on a "
                                       "node set");
  }
  if (!bc.csysName.Empty()) {
    bc.csys = ResolveDatum(model, bc.csysName.View(), path + "/csys", errors);
  }
  CheckStates(model, bc, path, errors);
}

// The boundary conditions, loads and fields that the load cases name must exist, and
// a load case that takes no loads of its own names none.
void CheckLoadCases(std::string_view modelPath, const ddb_Model& model, LoadErrors& errors) {
  const kprC_StepContainer& steps = model.step().container();
  for (int i = 1; i < steps.Size(); ++i) {
    const kprC_AnalysisStep& step = RecordCast<kprC_AnalysisStep>(steps.StepAt(i));
    for (const auto& [caseName, loadCase] : step.loadCases) {
      const std::string casePath = std::string(modelPath) + "/steps/" + std::to_string(i) +
                                   "/loadCases/" + std::string(caseName.View());
      const auto check = [&](const auto& entries, const auto& records, std::string_view key,
                             std::string_view noun) {
        for (const auto& [name, entry] : entries)
          if (!records.IsMember(name))
            errors.Add(casePath + "/" + std::string(key) + "/" + std::string(name.View()),
                       "no " + std::string(noun) + " " + QuotedJson(name.View()));
      };
      check(loadCase->boundaryConditions, model.boundaryConditions(), "boundaryConditions",
            "boundary condition");
      check(loadCase->loads, model.loads(), "loads", "load");
      check(loadCase->fields, model.predefinedFields_, "fields", "predefined field");
      if (loadCase->baseStateOnly && !loadCase->loads.Empty())
        errors.Add(casePath + "/loads",
                   "a load case with \"baseStateOnly\" takes no loads of its own");
    }
  }
}

} // namespace

void DeriveBoundaryConditions(std::string_view modelPath, ddb_Model& model, LoadErrors& errors) {
  kprC_PropagatingContainer<kbcC_BC>& bcs = model.boundaryConditions_;
  for (const cow_String& name : bcs.Keys()) {
    typename kprC_PropagatingContainer<kbcC_BC>::Handle handle = bcs.ConstGetMap().ConstGet(name);
    DeriveOne(model, handle.Get(),
              std::string(modelPath) + "/boundaryConditions/" + std::string(name.View()), errors);
    bcs.Insert(name, std::move(handle));
  }
  CheckLoadCases(modelPath, model, errors);
}

} // namespace keydeck
