#pragma once

#include "model/constraints.h"

class utl_Stream;

// What the constraint cards share.
namespace keydeck {

/// ", " then a point where the line may break, then `option`: a broken line
/// ends in "," and goes on with the option. Returns the stream for the value.
utl_Stream& WriteBreakableOption(utl_Stream& s, const char* option);

/// The data lines of the coupled degrees of freedom, "1, 1" to "6, 6"; none
/// when all six are coupled, which is what the bare card means.
void WriteCouplingDofs(utl_Stream& s, const kcoC_Coupling& coupling);

} // namespace keydeck
