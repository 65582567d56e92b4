#include "base/keydeck_Module.h"

namespace {
int modelUseCount = 0; // the only mutable static state of the layer
} // namespace

void KeydeckModel_initialize(int& loaded) { keydeck::Rise(modelUseCount, loaded); }
void KeydeckModel_finalize(int& loaded) { keydeck::Fall(modelUseCount, loaded); }
