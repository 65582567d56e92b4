#include "base/keydeck_Module.h"

namespace {
int baseUseCount = 0; // the only mutable static state of the layer
} // namespace

void KeydeckBase_initialize(int& loaded) { keydeck::Rise(baseUseCount, loaded); }
void KeydeckBase_finalize(int& loaded) { keydeck::Fall(baseUseCount, loaded); }
