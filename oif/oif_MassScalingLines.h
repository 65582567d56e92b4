#pragma once

#include "base/cow_String.h"
#include "model/mass_scaling.h"

class utl_Stream;

// The pieces that the fixed and the variable mass-scaling cards share.
namespace keydeck {

/// The two comment lines over a card: the form, then the region's label,
/// "Whole Model" for an empty set name.
void WriteMassScalingComment(utl_Stream& s, const char* form, const cow_String& setName);

/// "*Fixed Mass Scaling" or the like, with ", elset=" unless the whole model.
void WriteMassScalingKeyword(utl_Stream& s, const char* keyword, const cow_String& setName);

/// ", dt=" and ", type=" when a target increment is given.
void WriteTargetIncrement(utl_Stream& s, const kprC_MassScaling& record);

} // namespace keydeck
