#include "model/fields.h"

cow_String kpfC_FieldTypeLabelMap(unsigned typeId) {
  const auto* entry = keydeck::FindEnumEntry(static_cast<kpfC_FieldTypeEnm>(typeId));
  return entry == nullptr ? cow_String() : cow_String(entry->deckText);
}
