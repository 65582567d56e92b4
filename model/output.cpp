#include "model/output.h"

#include <algorithm>
#include <compare>
#include <tuple>

namespace keydeck {

int RegionKindBits(const rgnC_Region& region) {
  if (!region.HasSet())
    return 0;
  switch (region.ConstSet().SetType()) {
  case res_NodeSet:
    return NodeRegionBit;
  case res_ElementSet:
    return ElementRegionBit;
  case res_FacetSet:
    return SurfaceRegionBit;
  }
  return 0;
}

} // namespace keydeck

using namespace keydeck;

int korC_OutputFrequency::KindsGiven() const {
  return (every != NotGivenInt) + (intervals != NotGivenInt) + (timeInterval != NotGivenDouble) +
         !modes.Empty() + !timePoints.Empty();
}

korC_FrequencyTypeEnm korC_OutputFrequency::Kind() const {
  if (intervals != NotGivenInt)
    return korC_NumberIntervals;
  if (timeInterval != NotGivenDouble)
    return korC_EveryTimeInterval;
  if (!modes.Empty())
    return korC_ModeList;
  if (!timePoints.Empty())
    return korC_AtTimePoints;
  return korC_EveryIncrements;
}

korC_VariablesTypeEnm korC_OutputState::VariablesType() const {
  const cow_List<DeckName>& names = variables.ConstGet();
  if (!variables.IsActive() || names.Empty())
    return korC_PreselectVariables;
  if (names.Size() == 1 && names.ConstGet(0) == cow_String("PRESELECT"))
    return korC_PreselectVariables;
  if (names.Size() == 1 && names.ConstGet(0) == cow_String("ALL"))
    return korC_AllVariables;
  return korC_ListedVariables;
}

namespace {

korC_DomainTypeEnm DomainOf(const rgnC_Region& region) {
  if (!region.HasSet())
    return korC_WholeModelDomain;
  return RegionKindBits(region) == SurfaceRegionBit ? korC_SurfaceDomain : korC_SetDomain;
}

template <class T> std::strong_ordering ListOrder(const cow_List<T>& a, const cow_List<T>& b) {
  return std::lexicographical_compare_three_way(a.begin(), a.end(), b.begin(), b.end());
}

} // namespace

korC_DomainTypeEnm korC_Output::DomainType() const { return DomainOf(regionData); }

korC_DomainTypeEnm korC_OdbRequest::DomainType() const {
  if (!integratedSection.Empty())
    return korC_IntegratedSectionDomain;
  if (!interactions.Empty())
    return korC_InteractionDomain;
  return DomainOf(region);
}

bool korC_OdbRequest::EqualFrequency(const korC_OdbRequest& other) const {
  if (frequencyType != other.frequencyType)
    return false;
  switch (frequencyType) {
  case korC_EveryIncrements:
    return frequency == other.frequency;
  case korC_NumberIntervals:
    return numberInterval == other.numberInterval && timeMarks == other.timeMarks;
  case korC_EveryTimeInterval:
    return timeInterval == other.timeInterval && timeMarks == other.timeMarks;
  case korC_ModeList:
    return modeList == other.modeList;
  case korC_AtTimePoints:
    return timePoints == other.timePoints && timeMarks == other.timeMarks;
  }
  return false;
}

bool operator==(const korC_OdbRequest& a, const korC_OdbRequest& b) {
  // The label names the records behind a request; it does not tell requests apart.
  return a.region == b.region && a.loadName == b.loadName && a.interactions == b.interactions &&
         a.integratedSection == b.integratedSection && a.springs == b.springs &&
         a.rebar == b.rebar && a.variablesType == b.variablesType && a.variables == b.variables &&
         a.sectionPoints == b.sectionPoints && a.frequencyType == b.frequencyType &&
         a.frequency == b.frequency && a.numberInterval == b.numberInterval &&
         a.timeInterval == b.timeInterval && a.modeList == b.modeList &&
         a.timeMarks == b.timeMarks && a.directions == b.directions && a.filter == b.filter &&
         a.timePoints == b.timePoints;
}

bool operator<(const korC_OdbRequest& a, const korC_OdbRequest& b) {
  const auto frequency = [](const korC_OdbRequest& r) {
    return std::make_tuple(r.frequencyType, r.frequency, r.numberInterval, r.timeInterval,
                           r.timeMarks);
  };
  const auto place = [](const korC_OdbRequest& r) {
    return std::make_tuple(r.timePoints, r.filter, r.variablesType,
                           static_cast<int>(r.DomainType()), r.region.Path(), r.region.SetIndex());
  };
  if (const auto order = frequency(a) <=> frequency(b); order != 0)
    return order < 0;
  if (const auto order = ListOrder(a.modeList, b.modeList); order != 0)
    return order < 0;
  if (const auto order = place(a) <=> place(b); order != 0)
    return order < 0;
  if (const auto order = ListOrder(a.variables, b.variables); order != 0)
    return order < 0;
  return a.label < b.label;
}

namespace {

bool IsEigen(unsigned procedure) {
  return procedure == kprC_Frequency || procedure == kprC_Buckle ||
         procedure == kprC_ComplexFrequency;
}

} // namespace

bool kprC_IsExplicit(unsigned procedure) {
  return procedure == kprC_ExplicitDynamics || procedure == kprC_TempDisplacementDynamics;
}

bool kprC_IsImplicitModal(unsigned procedure) {
  return procedure == kprC_ModalDynamics || procedure == kprC_SubspaceDynamics ||
         procedure == kprC_SteadyStateModal || procedure == kprC_SteadyStateSubspace ||
         procedure == kprC_RandomResponse || procedure == kprC_ResponseSpectrum;
}

bool kprC_IsFrequencyBuckle(unsigned procedure) { return IsEigen(procedure); }

bool kprC_ModesIsAllowed(unsigned procedure) { return IsEigen(procedure); }

bool kprC_TimeMarksIsAllowed(unsigned procedure) {
  // Steps without a step time: an anneal, the Riks method's arc length, and
  // the linear perturbation procedures.
  return procedure != kprC_Anneal && procedure != kprC_StaticRiks && !IsEigen(procedure) &&
         procedure != kprC_StaticLinearPerturbation && procedure != kprC_SteadyStateDirect &&
         procedure != kprC_SteadyStateModal && procedure != kprC_SteadyStateSubspace &&
         procedure != kprC_RandomResponse && procedure != kprC_ResponseSpectrum;
}

bool korC_FrequencyIsAllowed(korC_FrequencyTypeEnm kind, unsigned procedure) {
  switch (kind) {
  case korC_EveryIncrements:
    return true;
  case korC_NumberIntervals:
  case korC_EveryTimeInterval:
  case korC_AtTimePoints:
    return kprC_TimeMarksIsAllowed(procedure);
  case korC_ModeList:
    return kprC_ModesIsAllowed(procedure);
  }
  return false;
}

korC_FrequencyTypeEnm korC_DefaultOutputType(unsigned procedure, bool isField) {
  if (kprC_IsExplicit(procedure))
    return korC_NumberIntervals;
  if (isField && kprC_ModesIsAllowed(procedure))
    return korC_ModeList;
  return korC_EveryIncrements;
}

int korC_DefaultFrequencyValue(korC_FrequencyTypeEnm kind, unsigned procedure, bool isField) {
  if (kind == korC_EveryIncrements)
    return kprC_IsImplicitModal(procedure) ? 10 : 1;
  if (kind == korC_NumberIntervals)
    return isField ? 20 : 200;
  return 0;
}

bool korC_DefaultTimeMarks(unsigned procedure) { return !kprC_IsExplicit(procedure); }
