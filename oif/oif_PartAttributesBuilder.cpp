#include "oif/oif_PartAttributesBuilder.h"

#include "base/gsl_Matrix.h"
#include "base/large_lists.h"
#include "model/database.h"
#include "oif/oif_BeamGeneralSection.h"
#include "oif/oif_BeamSection.h"
#include "oif/oif_Comment.h"
#include "oif/oif_Elset.h"
#include "oif/oif_GasketSection.h"
#include "oif/oif_HourglassStiffness.h"
#include "oif/oif_Mass.h"
#include "oif/oif_MembraneSection.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_Orientation.h"
#include "oif/oif_RotaryI.h"
#include "oif/oif_SectionControls.h"
#include "oif/oif_SetName.h"
#include "oif/oif_ShellGeneralSection.h"
#include "oif/oif_ShellSection.h"
#include "oif/oif_SolidSection.h"
#include "oif/oif_TransverseShear.h"
#include "qkw/qkw_QuorvexName.h"

using keydeck::RecordCast;

namespace {

// Calls `apply(property)` for the property of each member of an element set
// of the instance's mesh: the set's subsets give the element class and the
// position in it, so no label has to be looked up.
template <class F>
int ForEachMember(const rgnC_SetData& set, const std::vector<int>& classStarts,
                  std::vector<bme_Property>& properties, F&& apply) {
  int count = 0;
  for (int i = 0; i < set.NumSubsets(); ++i) {
    const rgnC_SubsetData& subset = set.SubSet(i);
    const int start = classStarts[static_cast<std::size_t>(subset.ClassIndex())];
    for (const int index : subset.indices)
      apply(properties[static_cast<std::size_t>(start + index)]);
    count += subset.Size();
  }
  return count;
}

// The class key of each property in turn. Classes get their keys in order of
// first appearance through a linear search, as their number stays small;
// neighbours in the mesh mostly share their class, so the last key found is
// tried first.
class PropertyClasses {
public:
  std::size_t KeyOf(const bme_Property& property) {
    if (last_ < firsts_.size() && firsts_[last_] == property)
      return last_;
    last_ = 0;
    while (last_ < firsts_.size() && !(firsts_[last_] == property))
      ++last_;
    if (last_ == firsts_.size())
      firsts_.push_back(property);
    return last_;
  }

private:
  std::vector<bme_Property> firsts_; // the first member of each class
  std::size_t last_ = 0;
};

cow_String Numbered(const char* prefix, int number) { return prefix + cow_String(number); }

} // namespace

oif_PartAttributesBuilder::oif_PartAttributesBuilder(oif_ModelInfo& info)
    : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_PartAttributesBuilder::Copy() const {
  return new oif_PartAttributesBuilder(*this);
}

int oif_PartAttributesBuilder::DefaultLibrary() const {
  switch (modelInfo->AnalysisProduct()) {
  case kprC_ImplicitProduct:
    return 1;
  case kprC_ExplicitProduct:
    return 2;
  case kprC_BothProducts:
    return 0;
  }
  return 0;
}

void oif_PartAttributesBuilder::Build() {
  for (const auto& [name, record] : keydeck::FacadeOf(*model).Instances()) {
    if (!record->IsPartInstance())
      continue;
    const ddb_PartInstance& instance = RecordCast<ddb_PartInstance>(*record);
    InstanceArrays arrays;
    InitializePropertyArray(instance, arrays);
    SetSectionsInArray(instance, arrays);
    SetElemCtrlInArray(instance, arrays);
    SetBeamOriInArray(instance, arrays);
    SetMatOriInArray(instance, arrays);
    ProcessPropertyArray(instance, arrays);
  }
  CreateElementControls();
}

void oif_PartAttributesBuilder::InitializePropertyArray(const ddb_PartInstance& instance,
                                                        InstanceArrays& arrays) const {
  const ddb_ElementData& elements = instance.elementData();
  arrays.properties.reserve(static_cast<std::size_t>(elements.numElements()));
  keydeck::AdviseHugePages(arrays.properties.data(),
                           arrays.properties.capacity() * sizeof(bme_Property));
  for (int k = 0; k < elements.numClasses(); ++k) {
    arrays.classStarts.push_back(static_cast<int>(arrays.properties.size()));
    for (const int label : elements.elementClass(k).userElementLabelsAsFlatArray())
      arrays.properties.push_back(bme_Property{.label = label});
  }
}

void oif_PartAttributesBuilder::SetSectionsInArray(const ddb_PartInstance& instance,
                                                   InstanceArrays& arrays) const {
  const ptoC_PartAttributeList& assignments = instance.sectionAssignments();
  for (int i = 0; i < assignments.Size(); ++i)
    arrays.assignmentElementCount[i] =
        ForEachMember(assignments.ConstGet(i).region().ConstSet(), arrays.classStarts,
                      arrays.properties, [i](bme_Property& p) { p.sectionIndex = i; });
}

void oif_PartAttributesBuilder::SetElemCtrlInArray(const ddb_PartInstance& instance,
                                                   InstanceArrays& arrays) {
  const int product = modelInfo->AnalysisProduct();
  const int library = product == 0 || product == 1 ? product + 1 : 0;
  const ddb_ElementData& elements = instance.elementData();
  for (int k = 0; k < elements.numClasses(); ++k) {
    bme_ElemCtrlParams params = elements.elementClass(k).GetElemControlParams();
    if (params.IsDefault(library))
      continue;
    params.library = library;
    int key = nextElemCtrlIndex_;
    for (const auto& [known, value] : elemCtrlParams_)
      if (!(value != params)) {
        key = known;
        break;
      }
    if (key == nextElemCtrlIndex_)
      elemCtrlParams_[nextElemCtrlIndex_++] = params;
    const auto first = arrays.properties.begin() + arrays.classStarts[static_cast<std::size_t>(k)];
    for (auto p = first; p != first + elements.elementClass(k).numElements(); ++p)
      p->elemCtrlIndex = key;
  }
}

void oif_PartAttributesBuilder::SetBeamOriInArray(const ddb_PartInstance& instance,
                                                  InstanceArrays& arrays) const {
  const ddb_BeamOrientationContainer& orientations = instance.beamOrientations();
  for (int i = 0; i < orientations.size(); ++i)
    ForEachMember(orientations.get(i).region().ConstSet(), arrays.classStarts, arrays.properties,
                  [i](bme_Property& p) { p.beamOriIndex = i; });
}

void oif_PartAttributesBuilder::SetMatOriInArray(const ddb_PartInstance& instance,
                                                 InstanceArrays& arrays) const {
  const ddb_MaterialOrientationContainer& orientations = instance.materialOrientations();
  for (int i = 0; i < orientations.size(); ++i)
    ForEachMember(orientations.get(i).region().ConstSet(), arrays.classStarts, arrays.properties,
                  [i](bme_Property& p) { p.matOriIndex = i; });
}

void oif_PartAttributesBuilder::ProcessPropertyArray(const ddb_PartInstance& instance,
                                                     InstanceArrays& arrays) {
  if (arrays.properties.empty())
    return;
  PropertyClasses keys;
  std::vector<int> counts;
  for (const bme_Property& property : arrays.properties) {
    const std::size_t key = keys.KeyOf(property);
    if (key == counts.size())
      counts.push_back(0);
    ++counts[key];
  }
  bme_MapPropertyArray classes;
  if (counts.size() == 1) {
    // One class, the usual case: its members are the whole array, in order.
    classes.Insert(0, cow_List<bme_Property>::Adopt(std::move(arrays.properties)));
  } else {
    std::vector<cow_List<bme_Property>> members;
    for (const int count : counts)
      members.push_back(cow_List<bme_Property>::WithCapacity(count));
    for (const bme_Property& property : arrays.properties)
      members[keys.KeyOf(property)].Append(property);
    for (std::size_t key = 0; key < members.size(); ++key)
      classes.Insert(static_cast<int>(key), std::move(members[key]));
  }
  CreateSetsAndAttributes(instance, arrays, classes);
}

void oif_PartAttributesBuilder::CreateSetsAndAttributes(const ddb_PartInstance& instance,
                                                        const InstanceArrays& arrays,
                                                        const bme_MapPropertyArray& classes) {
  orientationNames_ = cow_List<cow_String>();
  // Keys run from 0 in order; the class number counts the skipped classes too.
  for (int key = 0; key < classes.Size(); ++key)
    if (classes.SectionIndex(key) != bme_Property::Unset)
      CreateClassAttributes(instance, arrays, classes, key, key + 1);
}

void oif_PartAttributesBuilder::CreateClassAttributes(const ddb_PartInstance& instance,
                                                      const InstanceArrays& arrays,
                                                      const bme_MapPropertyArray& classes,
                                                      int classKey, int classNumber) {
  const int sectionIndex = classes.SectionIndex(classKey);
  const ptoC_SectionAssignment& assignment = instance.sectionAssignments().ConstGet(sectionIndex);
  const oif_SetName setName(assignment.region(), *modelInfo);
  const bool wholeSet =
      classes.ConstGet(classKey).Size() == arrays.assignmentElementCount.at(sectionIndex);
  ClassAttributes attributes;
  attributes.setName = oif_SetName::QuoteIfNeeded(
      wholeSet ? setName.UniqueSetName(oif_SetName::InstanceScope)
               : setName.UniqueSetName(PartSetString() + cow_String(classNumber),
                                       oif_SetName::InstanceScope));
  attributes.offset = assignment.offset();

  cow_String comment = RegionString() + "(" + assignment.sectionName() + ":" +
                       assignment.region().ConstSet().Name() + ")";
  const int controlsKey = classes.ElemCtrlIndex(classKey);
  if (controlsKey == bme_Property::Unset) {
    attributes.params.library = DefaultLibrary();
    if (!elemCtrlParams_.empty())
      comment += ", (Controls:Default)";
  } else {
    attributes.params = elemCtrlParams_.at(controlsKey);
    attributes.controlsName = Numbered("EC-", controlsKey + 1);
    comment += ", (Controls:" + attributes.controlsName + ")";
  }
  attributes.beamOriIndex = classes.BeamOriIndex(classKey);
  if (attributes.beamOriIndex != bme_Property::Unset)
    comment += ", (Beam Orientation:" +
               instance.beamOrientations().get(attributes.beamOriIndex).region().ConstSet().Name() +
               ")";
  if (const int index = classes.MatOriIndex(classKey); index != bme_Property::Unset) {
    cow_String label;
    attributes.orientationName = CreateMaterialOrientation(instance, index, label);
    comment += ", (Material Orientation:" + label + ")";
  }
  AddInstanceDefinition(instance.name(), oif_Comment(comment));
  if (!wholeSet)
    AddInstanceDefinition(instance.name(), oif_Elset(classes.ElementIds(classKey),
                                                     attributes.setName, cow_String(), true));
  CreateSection(instance, assignment.sectionName(), attributes);
}

cow_String oif_PartAttributesBuilder::CreateMaterialOrientation(const ddb_PartInstance& instance,
                                                                int index, cow_String& label) {
  const ddb_MaterialOrientation& orientation = instance.materialOrientations().get(index);
  label = orientation.region().ConstSet().Name();
  cow_String name;
  if (!orientation.orientation().csys.IsNullRef())
    name = Numbered("Ori-", index + 1);
  if (!modelInfo->V6Format())
    name = qkw_QuorvexName(instance.name() + "_" + name, false).Printable();
  // The empty name counts too: an orientation without a datum has one card,
  // which writes nothing.
  if (orientationNames_.AppendUnlessMember(name)) {
    gsl_Matrix identity;
    identity.FillIdentity();
    AddInstanceDefinition(instance.name(),
                          oif_Orientation(keydeck::FacadeOf(*model).Model(),
                                          orientation.orientation(), name, identity));
  }
  return name;
}

void oif_PartAttributesBuilder::CreateSection(const ddb_PartInstance& instance,
                                              const cow_String& sectionName,
                                              const ClassAttributes& attributes) {
  const mdl_MapString2ObjCow<kseC_Section>& sections = keydeck::FacadeOf(*model).Sections();
  if (!sections.IsMember(sectionName))
    return;
  const kseC_Section& section = sections.ConstGet(sectionName);
  const unsigned id = section.DynTypeId();
  if (id != kseC_BeamSection::TypeId())
    AddInstanceDefinition(instance.name(), oif_Comment("Section: " + sectionName));
  ClassAttributes passed = attributes;
  if (attributes.params.library != 1 && attributes.params.library != 2)
    passed.controlsName = cow_String();
  const cow_String& name = instance.name();
  switch (id) {
  case kseC_HomogenousSolidSection::TypeId():
  case kseC_CompositeSolidSection::TypeId():
    CreateSolidSection(name, section, passed);
    return;
  case kseC_HomogenousShellSection::TypeId():
  case kseC_CompositeShellSection::TypeId():
  case keydeck::TypeIds::ShellSectionWithoutCard:
  case kseC_UserShellSection::TypeId():
    CreateShellSection(name, section, passed);
    return;
  case kseC_BeamSection::TypeId():
    CreateBeamSection(instance, sectionName, section, passed);
    return;
  case kseC_TrussSection::TypeId():
    CreateTrussSection(name, section, passed);
    return;
  case kseC_MembraneSection::TypeId():
    CreateMembraneSection(name, section, passed);
    return;
  case kseC_GasketSection::TypeId():
    CreateGasketSection(name, section, passed);
    return;
  case kseC_PointSection::TypeId():
    CreatePointSection(name, section, passed);
    return;
  default:
    return; // a kind that has no card
  }
}

void oif_PartAttributesBuilder::CreateHourglassStiffness(const cow_String& instance,
                                                         const bme_ElemCtrlParams& params) {
  if (modelInfo->AnalysisProduct() == kprC_ImplicitProduct)
    AddInstanceDefinition(instance, oif_HourglassStiffness(params));
}

void oif_PartAttributesBuilder::CreateSolidSection(const cow_String& instance,
                                                   const kseC_Section& section,
                                                   const ClassAttributes& attributes) {
  AddInstanceDefinition(instance,
                        oif_SolidSection(attributes.setName, section, attributes.orientationName,
                                         attributes.controlsName));
  CreateHourglassStiffness(instance, attributes.params);
}

// A truss has the solid's keyword, no orientation and no hourglass card.
void oif_PartAttributesBuilder::CreateTrussSection(const cow_String& instance,
                                                   const kseC_Section& section,
                                                   const ClassAttributes& attributes) {
  AddInstanceDefinition(instance, oif_SolidSection(attributes.setName, section, cow_String(),
                                                   attributes.controlsName));
}

void oif_PartAttributesBuilder::CreateShellSection(const cow_String& instance,
                                                   const kseC_Section& section,
                                                   const ClassAttributes& attributes) {
  if (section.DynTypeId() == kseC_UserShellSection::TypeId())
    AddInstanceDefinition(
        instance, oif_ShellGeneralSection(attributes.setName, section, attributes.orientationName,
                                          attributes.controlsName, attributes.offset));
  else
    AddInstanceDefinition(instance,
                          oif_ShellSection(attributes.setName, section, attributes.orientationName,
                                           attributes.controlsName, attributes.offset));
  const auto& shell = RecordCast<kseC_ShellSection>(section);
  if (shell.transverseShear)
    AddInstanceDefinition(instance, oif_TransverseShear(*shell.transverseShear));
  CreateHourglassStiffness(instance, attributes.params);
}

void oif_PartAttributesBuilder::CreateMembraneSection(const cow_String& instance,
                                                      const kseC_Section& section,
                                                      const ClassAttributes& attributes) {
  AddInstanceDefinition(
      instance, oif_MembraneSection(attributes.setName, RecordCast<kseC_MembraneSection>(section),
                                    attributes.orientationName, attributes.controlsName));
  CreateHourglassStiffness(instance, attributes.params);
}

void oif_PartAttributesBuilder::CreateGasketSection(const cow_String& instance,
                                                    const kseC_Section& section,
                                                    const ClassAttributes& attributes) {
  const cow_String& material = RecordCast<kseC_GasketSection>(section).material;
  const mdl_MapString2ObjCow<kmaC_Material>& materials = keydeck::FacadeOf(*model).Materials();
  const bool hasBehavior =
      materials.IsMember(material) && materials.ConstGet(material).HasGasketOption();
  AddInstanceDefinition(instance, oif_GasketSection(attributes.setName, section, hasBehavior,
                                                    attributes.orientationName));
  CreateHourglassStiffness(instance, attributes.params);
}

void oif_PartAttributesBuilder::CreatePointSection(const cow_String& instance,
                                                   const kseC_Section& section,
                                                   const ClassAttributes& attributes) {
  const auto& point = RecordCast<kseC_PointSection>(section);
  if (const oif_Mass mass(attributes.setName, point); !mass.IsEmpty())
    AddInstanceDefinition(instance, mass);
  if (const oif_RotaryI inertia(attributes.setName, point, attributes.orientationName);
      !inertia.IsEmpty())
    AddInstanceDefinition(instance, inertia);
}

void oif_PartAttributesBuilder::CreateBeamSection(const ddb_PartInstance& instance,
                                                  const cow_String& sectionName,
                                                  const kseC_Section& section,
                                                  const ClassAttributes& attributes) {
  const auto& beam = RecordCast<kseC_BeamSection>(section);
  const mdl_MapString2ObjCow<kbpC_BeamProfile>& profiles = keydeck::FacadeOf(*model).BeamProfiles();
  const kbpC_BeamProfile* const profile =
      profiles.IsMember(beam.profileName) ? &profiles.ConstGet(beam.profileName) : nullptr;
  AddInstanceDefinition(instance.name(),
                        oif_Comment("Section: " + sectionName + "  Profile: " + beam.profileName));
  gsl_Vector direction{0, 0, -1};
  if (attributes.beamOriIndex != bme_Property::Unset)
    direction = instance.beamOrientations().get(attributes.beamOriIndex).orientation().Direction();
  if (beam.integration != kseC_BeamSection::BeforeAnalysis)
    AddInstanceDefinition(instance.name(),
                          oif_BeamSection(attributes.setName, section, direction, profile));
  else
    AddInstanceDefinition(instance.name(),
                          oif_BeamGeneralSection(attributes.setName, section, direction, profile));
}

void oif_PartAttributesBuilder::CreateElementControls() {
  bme_ElemCtrlParams defaults;
  defaults.library = DefaultLibrary();
  if (!elemCtrlParams_.empty())
    elemCtrlParams_[-1] = defaults;
  const bool standardProduct = modelInfo->AnalysisProduct() == kprC_ImplicitProduct;
  bool first = true;
  for (const auto& [key, params] : elemCtrlParams_) {
    const oif_SectionControls controls(params, Numbered("EC-", key + 1), standardProduct);
    if (controls.IsEmpty())
      continue;
    if (first)
      AddModelDefinition(oif_Comment("\nELEMENT CONTROLS\n"));
    first = false;
    AddModelDefinition(controls);
  }
}
