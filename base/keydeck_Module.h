#pragma once

namespace keydeck {

/// One layer's use count for the module entries. `Rise` counts a use and,
/// at the count's rise from 0 to 1, adds one to `loaded`, the caller's count
/// of loaded modules; `Fall` undoes it, taking one from `loaded` at the fall
/// from 1 to 0. Neither is synchronised: the entries run on one thread.
/// Both return true at the transition.
inline bool Rise(int& useCount, int& loaded) {
  if (++useCount != 1)
    return false;
  ++loaded;
  return true;
}
inline bool Fall(int& useCount, int& loaded) {
  if (useCount == 0 || --useCount != 0)
    return false;
  --loaded;
  return true;
}

} // namespace keydeck

/// Module entries of the base layer and of the model layer.
void KeydeckBase_initialize(int& loaded);
void KeydeckBase_finalize(int& loaded);
void KeydeckModel_initialize(int& loaded);
void KeydeckModel_finalize(int& loaded);
