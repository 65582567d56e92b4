#include "model/loads.h"

cow_String kloC_LoadTypeLabelMap(unsigned typeId) {
  const auto* entry = keydeck::FindEnumEntry(static_cast<kloC_LoadTypeEnm>(typeId));
  return entry == nullptr ? cow_String() : cow_String(entry->deckText);
}

namespace keydeck {

mdl_PropAttr<DeckName> AmplitudeOf(const kloC_Load& load, const cow_String& step) {
  mdl_PropAttr<DeckName> amplitude;
  VisitTypeIdClass<kloC_Load>(load.DynTypeId(), [&](auto type) {
    using K = typename decltype(type)::type;
    const auto& state = RecordCast<K>(load).ConstGetState(step);
    if constexpr (requires { state.amplitude; })
      amplitude = state.amplitude;
  });
  return amplitude;
}

} // namespace keydeck
