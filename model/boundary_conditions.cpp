#include "model/boundary_conditions.h"

#include "model/steps.h"

#include <string>

cow_String kbcC_BCTypeLabelMap::Label(unsigned typeId) {
  const auto* entry = keydeck::FindEnumEntry(static_cast<kbcC_BCTypeEnm>(typeId));
  return entry == nullptr ? cow_String() : cow_String(entry->deckText);
}

bool kbcC_BCState::UseComplex(unsigned procedureType) {
  return IsSteadyStateProcedure(procedureType);
}

bool kbcC_DistributedBC::IsKindOf(unsigned id) {
  return id == kbcC_PorePressureType || id == kbcC_AcousticPressureType ||
         id == kbcC_FluidCavityPressureType || id == kbcC_ElectricPotentialType ||
         id == kbcC_MassConcentrationType || id == kbcC_HydrostaticFluidPressureType;
}

std::optional<keydeck::RecordFault> keydeck::DofListFault(const mdl_PropAttr<cow_List<int>>& dofs,
                                                          const char* field, int lowest,
                                                          int highest) {
  if (!dofs.IsModified())
    return std::nullopt;
  const cow_List<int>& list = dofs.ConstGet();
  for (int i = 0; i < list.Size(); ++i) {
    const int dof = list.ConstGet(i);
    if (dof < lowest || dof > highest)
      return RecordFault{std::string(field) + "/" + std::to_string(i),
                         "degree of freedom " + std::to_string(dof) + " is outside " +
                             std::to_string(lowest) + " to " + std::to_string(highest)};
  }
  return std::nullopt;
}

// Temperatures of shells run from 11 up, one per point through the thickness.
std::optional<keydeck::RecordFault> kbcC_TemperatureBC::StateFault(const cow_String& step) const {
  return keydeck::DofListFault(ConstGetState(step).dofs, "dofs", 11, 99);
}

std::optional<keydeck::RecordFault> kbcC_SubmodelBC::StateFault(const cow_String& step) const {
  return keydeck::DofListFault(ConstGetState(step).dofs, "dofs", 1, 6);
}

bool kbcC_SubmodelBC::SameDriver(const kbcC_SubmodelBC& other) const {
  return shellThickness == other.shellThickness &&
         absoluteExteriorTolerance == other.absoluteExteriorTolerance &&
         exteriorTolerance == other.exteriorTolerance && globalElset == other.globalElset;
}
