#include "qkw/qkw_BuilderComponent.h"

#include "qkw/qkw_ModelInfo.h"

namespace {

cow_ArrayCOW<qkw_Keyword> Wrap(const qkw_Keyword& card) { return cow_ArrayCOW<qkw_Keyword>(card); }

} // namespace

qkw_BuilderComponent::qkw_BuilderComponent(qkw_ModelInfo& info)
    : model(&info.Model()), modelInfo(&info) {}

void qkw_BuilderComponent::AddKeyed(KeyedLists& lists, const cow_String& key,
                                    const qkw_Keyword& card) {
  if (lists.IsMember(key)) {
    lists.Get(key).Append(Wrap(card));
    return;
  }
  KeywordList list;
  list.Append(Wrap(card));
  lists.Insert(key, list);
}

qkw_BuilderComponent::KeywordList qkw_BuilderComponent::Lookup(const KeyedLists& lists,
                                                               const cow_String& key) {
  return lists.IsMember(key) ? lists.ConstGet(key) : KeywordList();
}

void qkw_BuilderComponent::AddModelDefinition(const qkw_Keyword& card) {
  modelCards_.Append(Wrap(card));
}
void qkw_BuilderComponent::AddAssemblyDefinition(const qkw_Keyword& card) {
  assemblyCards_.Append(Wrap(card));
}
void qkw_BuilderComponent::AddPartDefinition(const cow_String& part, const qkw_Keyword& card) {
  AddKeyed(partCards_, part, card);
}
void qkw_BuilderComponent::AddInstanceDefinition(const cow_String& instance,
                                                 const qkw_Keyword& card) {
  AddKeyed(instanceCards_, instance, card);
}
void qkw_BuilderComponent::AddStepDefinition(const cow_String& step, const qkw_Keyword& card) {
  AddStepDefinition(step, card, cow_String());
}

void qkw_BuilderComponent::AddStepDefinition(const cow_String& step, const qkw_Keyword& card,
                                             const cow_String& loadCase) {
  if (stepCards_.IsMember(step)) {
    AddKeyed(stepCards_.Get(step), loadCase, card);
    return;
  }
  KeyedLists loadCases;
  AddKeyed(loadCases, loadCase, card);
  stepCards_.Insert(step, loadCases);
}

void qkw_BuilderComponent::AddAtomOptionDefinition(const qkw_Keyword& card) {
  atomOptionCards_.Append(Wrap(card));
}
void qkw_BuilderComponent::AddSingleTermDefinition(const qkw_Keyword& card) {
  singleTermCards_.Append(Wrap(card));
}
void qkw_BuilderComponent::AddCombinedTermDefinition(const qkw_Keyword& card) {
  combinedTermCards_.Append(Wrap(card));
}
void qkw_BuilderComponent::AddDesignAreaDefinition(const qkw_Keyword& card) {
  designAreaCards_.Append(Wrap(card));
}

qkw_BuilderComponent::KeywordList
qkw_BuilderComponent::StepDefinition(const cow_String& step) const {
  return StepDefinition(step, cow_String());
}

qkw_BuilderComponent::KeywordList qkw_BuilderComponent::ModelDefinition() const {
  return modelCards_;
}
qkw_BuilderComponent::KeywordList
qkw_BuilderComponent::PartDefinition(const cow_String& part) const {
  return Lookup(partCards_, part);
}
qkw_BuilderComponent::KeywordList
qkw_BuilderComponent::InstanceDefinition(const cow_String& instance) const {
  return Lookup(instanceCards_, instance);
}
qkw_BuilderComponent::KeywordList qkw_BuilderComponent::AssemblyDefinition() const {
  return assemblyCards_;
}
qkw_BuilderComponent::KeywordList
qkw_BuilderComponent::StepDefinition(const cow_String& step, const cow_String& loadCase) const {
  return stepCards_.IsMember(step) ? Lookup(stepCards_.ConstGet(step), loadCase) : KeywordList();
}
qkw_BuilderComponent::KeywordList qkw_BuilderComponent::AtomOptionDefinition() const {
  return atomOptionCards_;
}
qkw_BuilderComponent::KeywordList qkw_BuilderComponent::SingleTermDefinition() const {
  return singleTermCards_;
}
qkw_BuilderComponent::KeywordList qkw_BuilderComponent::CombinedTermDefinition() const {
  return combinedTermCards_;
}
qkw_BuilderComponent::KeywordList qkw_BuilderComponent::DesignAreaDefinition() const {
  return designAreaCards_;
}
