#include "oif/oif_Utils.h"

#include "qkw/qkw_QuorvexName.h"

bool oif_Utils::CheckDataState(const mdl_PropAttributeStateEnm& state, const bool& modifiedOnly) {
  return state == mdl_AttributeSet || (state == mdl_AttributePropagated && !modifiedOnly);
}

void oif_Utils::SetDeactivateOpFlags(const mdl_PropagationStatusEnm& status, bool& deactivated,
                                     bool& modifiedOnly) {
  deactivated = status == PropDeactivated || status == PropDeactivatedBase;
  if (deactivated)
    modifiedOnly = false;
}

cow_String oif_Utils::GetConnectorSetName(cow_String name) {
  return qkw_QuorvexName(name, false).Printable();
}
