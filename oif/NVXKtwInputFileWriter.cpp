#include "oif/NVXKtwInputFileWriter.h"

#include "base/keydeck_Module.h"

namespace {
// The use counts of the module entries: the only static state of the library.
int qkwUseCount = 0;
int oifUseCount = 0;
int specificUseCount = 0;
int moduleUseCount = 0;
int loadedForC = 0;
} // namespace

void NVXKtwIfwQkw_initialize(int& loaded) { keydeck::Rise(qkwUseCount, loaded); }
void NVXKtwIfwQkw_finalize(int& loaded) { keydeck::Fall(qkwUseCount, loaded); }
void NVXKtwIfwOif_initialize(int& loaded) { keydeck::Rise(oifUseCount, loaded); }
void NVXKtwIfwOif_finalize(int& loaded) { keydeck::Fall(oifUseCount, loaded); }
void NVXKtwInputFileWriter_specific_initialize(int& loaded) {
  keydeck::Rise(specificUseCount, loaded);
}
void NVXKtwInputFileWriter_specific_finalize(int& loaded) {
  keydeck::Fall(specificUseCount, loaded);
}

void NVXKtwInputFileWriter_initialize(int& loaded) {
  if (!keydeck::Rise(moduleUseCount, loaded))
    return;
  KeydeckModel_initialize(loaded);
  KeydeckBase_initialize(loaded);
  NVXKtwIfwQkw_initialize(loaded);
  NVXKtwIfwOif_initialize(loaded);
  NVXKtwInputFileWriter_specific_initialize(loaded);
}

void NVXKtwInputFileWriter_finalize(int& loaded) {
  if (!keydeck::Fall(moduleUseCount, loaded))
    return;
  NVXKtwInputFileWriter_specific_finalize(loaded);
  NVXKtwIfwOif_finalize(loaded);
  NVXKtwIfwQkw_finalize(loaded);
  KeydeckBase_finalize(loaded);
  KeydeckModel_finalize(loaded);
}

void NVXKtwInputFileWriter_initializeC() { NVXKtwInputFileWriter_initialize(loadedForC); }
void NVXKtwInputFileWriter_finalizeC() { NVXKtwInputFileWriter_finalize(loadedForC); }
