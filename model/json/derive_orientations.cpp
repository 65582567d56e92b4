#include "model/json/derive_orientations.h"

#include "model/json/json_text.h"
#include "model/json/region_names.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>

namespace keydeck {

namespace {

// The ids of one part's datums by name.
using DatumIds = std::map<cow_String, int>;

int AddDatum(ddb_Model& model, const cow_String& name, const ddb_DatumCsys& csys) {
  model.datums_.Append(ddb_Datum(name, csys));
  return model.datums_.Size();
}

// Derives the axes of each system of `datums`, reporting faults under `path`.
void DeriveAxes(cow_Btree<cow_String, ddb_DatumCsys>& datums, const std::string& path,
                LoadErrors& errors) {
  for (const cow_String& name : datums.Keys()) {
    bool zeroAxis = false;
    if (datums.Get(name).DeriveAxes(zeroAxis))
      continue;
    const std::string datumPath = path + "/datums/" + std::string(name.View());
    if (zeroAxis)
      errors.Add(datumPath + "/point1", "the x axis has zero length: point1 is the origin");
    else
      errors.Add(datumPath + "/point2", "origin, point1 and point2 lie on one line and span no "
                                        "plane");
  }
}

// The placement of an instance as a rigid motion: the translation, then the
// rotation about an axis through the origin, folded into one rotation and
// one translation.
gsl_Matrix PlacementOf(const ddb_BaseInstance& instance) {
  const cow_List<double>& transform = instance.transform();
  const gsl_Vector translation{transform.ConstGet(0), transform.ConstGet(1), transform.ConstGet(2)};
  const gsl_Vector rotation{transform.ConstGet(3), transform.ConstGet(4), transform.ConstGet(5)};
  gsl_Matrix placement;
  placement.AxisRotation(gsl_Point{}, rotation.Normalized(), rotation.ComputeMagnitude());
  placement.SetTranslation(placement.TransformVector(translation));
  return placement;
}

// A name as a piece of a scoped region name: in quotes when it holds a dot.
std::string ScopePiece(const cow_String& name) {
  const std::string text(name.View());
  return text.find('.') == std::string::npos ? text : "\"" + text + "\"";
}

bool IsElementSetOf(const ddb_Part& part, const cow_String& name) {
  const ddb_SetList& sets = part.mesh_.sets;
  return std::any_of(sets.begin(), sets.end(), [&](const ddb_Set& set) {
    return set.setLabel() == name && set.setType() == res_ElementSet;
  });
}

void CheckRegion(const ddb_Part& part, const cow_String& region, const std::string& path,
                 LoadErrors& errors) {
  if (!IsElementSetOf(part, region))
    errors.Add(path + "/region", "no element set " + QuotedJson(region.View()) + " in the part");
}

// Checks the orientations of one part and points its material orientations
// at the part's datums.
void DerivePartOrientations(ddb_Part& part, const DatumIds& datumIds, bool setsKnown,
                            const std::string& path, LoadErrors& errors) {
  for (int i = 0; i < part.beamOrientations_.Size(); ++i) {
    const ptoC_BeamOrientation& orientation = part.beamOrientations_.ConstGet(i);
    const std::string at = path + "/beamOrientations/" + std::to_string(i);
    if (setsKnown)
      CheckRegion(part, orientation.regionName_, at, errors);
    if (orientation.Direction().ComputeMagnitude() == 0)
      errors.Add(at + "/direction", "the direction has zero length");
  }
  for (int i = 0; i < part.materialOrientations_.Size(); ++i) {
    ptoC_MaterialOrientation& orientation = part.materialOrientations_.Get(i);
    const std::string at = path + "/materialOrientations/" + std::to_string(i);
    if (setsKnown)
      CheckRegion(part, orientation.regionName_, at, errors);
    if (orientation.datumName_.Empty())
      continue;
    const auto datum = datumIds.find(orientation.datumName_);
    if (datum == datumIds.end())
      errors.Add(at + "/datum",
                 "no datum " + QuotedJson(orientation.datumName_.View()) + " in the part");
    else
      orientation.csys = dtmC_DatumRef(datum->second);
  }
  for (int i = 0; i < part.sectionAssignments_.Size(); ++i) {
    const std::string at = path + "/sectionAssignments/" + std::to_string(i);
    if (setsKnown && !errors.AnyAtOrUnder(at)) // a broken record has no region to check
      CheckRegion(part, part.sectionAssignments_.ConstGet(i).regionName_, at, errors);
  }
}

// The region of an element set of an instance's part in the instance's mesh.
rgnC_Region InstanceRegion(const ddb_Model& model, const cow_String& instanceName,
                           const cow_String& setName) {
  LoadErrors unused; // the part's check has reported every missing set once
  return ResolveRegion(model, ScopePiece(instanceName) + "." + ScopePiece(setName), "", unused);
}

// The orientations of one kind that an instance takes from its part.
template <class Held, class Record>
cow_List<Held> PlacedOrientations(const ddb_Model& model, const cow_String& instanceName,
                                  const cow_List<Record>& records) {
  cow_List<Held> placed;
  for (const Record& record : records) {
    Held held;
    held.region_ = InstanceRegion(model, instanceName, record.regionName_);
    held.orientation_ = record;
    placed.Append(std::move(held));
  }
  return placed;
}

// The section assignments that an instance takes from its part.
ptoC_PartAttributeList PlacedAssignments(const ddb_Model& model, const cow_String& instanceName,
                                         const ptoC_PartAttributeList& assignments) {
  ptoC_PartAttributeList placed;
  for (ptoC_SectionAssignment assignment : assignments) {
    assignment.region_ = InstanceRegion(model, instanceName, assignment.regionName_);
    placed.Append(std::move(assignment));
  }
  return placed;
}

} // namespace

void DeriveDatumsAndOrientations(std::string_view modelPath, ddb_Model& model, LoadErrors& errors) {
  const std::string path(modelPath);
  model.datums_ = cow_List<ddb_Datum>();
  cow_Btree<cow_String, ddb_Part>& parts = model.parts_.parts_;
  for (const cow_String& partName : parts.Keys()) {
    ddb_Part& part = parts.Get(partName);
    const std::string partPath = path + "/parts/" + std::string(partName.View());
    DeriveAxes(part.datums_, partPath, errors);
    DatumIds ids;
    for (const auto& [name, csys] : part.datums_)
      ids[name] = AddDatum(model, name, csys);
    // A set of a part whose mesh or sets have faults may be missing for that
    // reason alone; such a part's regions go unchecked.
    const bool setsKnown = !errors.AnyAtOrUnder(partPath + "/nodes") &&
                           !errors.AnyAtOrUnder(partPath + "/elements") &&
                           !errors.AnyAtOrUnder(partPath + "/sets");
    DerivePartOrientations(part, ids, setsKnown, partPath, errors);
  }
  ddb_Assembly& assembly = model.assembly_;
  DeriveAxes(assembly.datums_, path + "/assembly", errors);
  std::set<cow_String> assemblyNames; // the names that the assembly's orientations print
  for (const auto& [name, csys] : assembly.datums_) {
    AddDatum(model, name, csys);
    assemblyNames.insert(name);
  }
  for (const cow_String& instanceName : assembly.instances_.Keys()) {
    ddb_PartInstance instance =
        RecordCast<ddb_PartInstance>(assembly.instances_.ConstGet(instanceName));
    if (!parts.IsMember(instance.partName_))
      continue; // reported with the instance
    const ddb_Part& part = parts.ConstGet(instance.partName_);
    const gsl_Matrix placement = PlacementOf(instance);
    const std::string instancePath =
        path + "/assembly/instances/" + std::string(instanceName.View());
    for (const auto& [name, csys] : part.datums_) {
      ddb_Datum datum(instanceName + "_" + name, csys);
      datum.TransformData(placement);
      if (!assemblyNames.insert(datum.Shortcut()).second)
        errors.Add(instancePath, "the datum " + QuotedJson(name.View()) + " of its part is named " +
                                     QuotedJson(datum.Shortcut().View()) +
                                     " in the assembly, and another datum has that name");
      model.datums_.Append(datum);
    }
    instance.beamOrientations_.entries_ =
        PlacedOrientations<ddb_BeamOrientation>(model, instanceName, part.beamOrientations_);
    instance.materialOrientations_.entries_ = PlacedOrientations<ddb_MaterialOrientation>(
        model, instanceName, part.materialOrientations_);
    instance.sectionAssignments_ = PlacedAssignments(model, instanceName, part.sectionAssignments_);
    assembly.instances_.Insert(instanceName, instance);
  }
}

} // namespace keydeck
