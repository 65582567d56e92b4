#include "oif/oif_FieldBuilder.h"

#include "oif/oif_Comment.h"
#include "oif/oif_FieldTemperature.h"
#include "oif/oif_GeneralField.h"
#include "oif/oif_InitialConditions.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_PressureStress.h"
#include "oif/oif_SetName.h"

#include <algorithm>

using namespace keydeck;

oif_FieldBuilder::oif_FieldBuilder(oif_ModelInfo& info) : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_FieldBuilder::Copy() const { return new oif_FieldBuilder(*this); }

void oif_FieldBuilder::Build() { BuildFieldsHistory(); }

void oif_FieldBuilder::ConfigureOpStatus() {
  opStatus_.Configure(FacadeOf(*model).Fields(), model->Steps());
}

void oif_FieldBuilder::BuildFieldsHistory() {
  ConfigureOpStatus();
  maxGenFieldSize_ = FindMaxGenFieldSizeInModel();
  maxTempSize_ = FindMaxTempSizeInModel();
  const kprC_StepContainer& steps = model->Steps();
  for (int i = 0; i < steps.Size(); ++i) { // the initial step first
    const cow_String& step = steps.NameAt(i);
    for (const auto& [name, field] : FacadeOf(*model).Fields()) // name order
      if (!field->IsSuppressed() && MakesCard(*field, step))
        CreateFieldCard(name, field, step);
  }
}

bool oif_FieldBuilder::MakesCard(const kpfC_Field& field, const cow_String& step) const {
  switch (field.Status(step)) {
  case PropCreated:
  case PropModified:
  case PropDeactivated:
  case PropFieldReset:
    return true;
  case PropPropagated:
    return opStatus_.OpNew(field.DynTypeId(), step) || WriteInEveryPropStep(field);
  default:
    return false;
  }
}

void oif_FieldBuilder::CreateFieldCard(const cow_String& name, const FieldHandle& field,
                                       const cow_String& step) {
  if (!HasCard(*field, step))
    return;
  const kprC_Step& record = model->Steps().ConstGet(step);
  if (kprC_AnalysisStep::IsKindOf(record.DynTypeId())) {
    const auto& loadCases = RecordCast<kprC_AnalysisStep>(record).loadCases;
    if (!loadCases.Empty()) {
      // A step with load cases holds its fields in them alone.
      for (const auto& [loadCaseName, loadCase] : loadCases)
        if (loadCase->fields.IsMember(name))
          FieldCardDetails(name, field, step, loadCaseName, loadCase->fields.ConstGet(name).scale);
      return;
    }
  }
  FieldCardDetails(name, field, step, cow_String(), 1.0);
}

void oif_FieldBuilder::FieldCardDetails(const cow_String& name, const FieldHandle& field,
                                        const cow_String& step, const cow_String& loadCase,
                                        double scale) {
  if (loadCase.Empty())
    AddStepDefinition(step, header_.StepHeader(step));
  cow_String comment = "Name: " + name + "   Type: " + kpfC_FieldTypeLabelMap(field->DynTypeId());
  if (!loadCase.Empty())
    comment += "   Scale factor: " + cow_String(scale);
  AddStepDefinition(step, oif_Comment(comment), loadCase);
  const cow_String setName =
      oif_SetName(field->region, *modelInfo).UniqueSetName(oif_SetName::AssemblyScope);
  const bool opMod = !opStatus_.OpNew(field->DynTypeId(), step);
  if (field->DynTypeId() == kpfC_PressureStress::TypeId())
    AddStepDefinition(step, oif_PressureStress(field, step, opMod, setName), loadCase);
  else if (IsInitialStep(step))
    AddStepDefinition(step,
                      oif_InitialConditions(field, step, setName, maxTempSize_, maxGenFieldSize_),
                      loadCase);
  else if (field->DynTypeId() == kpfC_Temperature::TypeId())
    AddStepDefinition(step, oif_FieldTemperature(field, step, opMod, setName, maxTempSize_, scale),
                      loadCase);
  else
    AddStepDefinition(step, oif_GeneralField(field, step, opMod, setName), loadCase);
}

bool oif_FieldBuilder::HasCard(const kpfC_Field& field, const cow_String& step) const {
  return IsInitialStep(step) || field.DynTypeId() != kpfC_Velocity::TypeId();
}

int oif_FieldBuilder::FindMaxGenFieldSizeInModel() const {
  int size = 0;
  const cow_String& initial = model->InitialStepName();
  for (const auto& [name, field] : FacadeOf(*model).Fields())
    if (!field->IsSuppressed() && field->DynTypeId() == kpfC_GeneralField::TypeId() &&
        MakesCard(*field, initial))
      size = std::max(size, ScalarStateOf(*field, initial).values.ConstGet().Size());
  return size;
}

int oif_FieldBuilder::FindMaxTempSizeInModel() const {
  const oif_Model& facade = FacadeOf(*model);
  int size = 1;
  bool temperatures = false;
  for (const auto& [name, field] : facade.Fields())
    temperatures = temperatures || field->DynTypeId() == kpfC_Temperature::TypeId();
  if (!temperatures)
    return size;
  for (const auto& [instanceName, instance] : facade.Instances()) {
    if (!instance->IsPartInstance())
      continue;
    for (const ptoC_SectionAssignment& assignment :
         RecordCast<ddb_PartInstance>(*instance).sectionAssignments()) {
      if (!facade.Sections().IsMember(assignment.sectionName()))
        continue;
      const kseC_Section& section = facade.Sections().ConstGet(assignment.sectionName());
      if (!kseC_BeamSection::IsKindOf(section.DynTypeId()))
        continue;
      const cow_String& profile = RecordCast<kseC_BeamSection>(section).profileName;
      if (facade.BeamProfiles().IsMember(profile))
        size = std::max(size, kbpC_TemperaturePointCount(facade.BeamProfiles().ConstGet(profile)));
    }
  }
  return size;
}

bool oif_FieldBuilder::IsInitialStep(const cow_String& step) const {
  return step == model->InitialStepName();
}

bool oif_FieldBuilder::WriteInEveryPropStep(const kpfC_Field& field) {
  return !field.IsSuppressed() && field.DynTypeId() == kpfC_GeneralField::TypeId();
}
