#pragma once

/// The library's module entries. Each keeps a use count of its own; the
/// caller's `loaded` goes up by one when a module's count rises from 0 to 1
/// and down by one when it falls from 1 to 0. `NVXKtwInputFileWriter_initialize`
/// brings up the lower layers (base, model), then the contract layer, the
/// card layer and the module's own part; `..._finalize` takes them down in
/// the reverse order. None of them is synchronised.
void NVXKtwIfwQkw_initialize(int& loaded);
void NVXKtwIfwQkw_finalize(int& loaded);
void NVXKtwIfwOif_initialize(int& loaded);
void NVXKtwIfwOif_finalize(int& loaded);
void NVXKtwInputFileWriter_specific_initialize(int& loaded);
void NVXKtwInputFileWriter_specific_finalize(int& loaded);
void NVXKtwInputFileWriter_initialize(int& loaded);
void NVXKtwInputFileWriter_finalize(int& loaded);

extern "C" {
/// The two entries above, with a counter private to the module.
void NVXKtwInputFileWriter_initializeC();
void NVXKtwInputFileWriter_finalizeC();
}
