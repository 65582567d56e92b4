#pragma once

#include "model/steps.h"

class utl_Stream;

// What the step card and the procedure cards share: parameters that several
// of them write alike, and the data line of increments.
namespace keydeck {

/// ", direct=NO STOP" or ", direct" for fixed increments; nothing otherwise.
void WriteDirect(utl_Stream& s, kprC_IncrementationEnm method, bool noStop);

/// "*Static" and the parameters that a static and a Riks step share:
/// ", adiabatic", the direct parameters of `method`, ", fully plastic=".
void WriteStaticHead(utl_Stream& s, const kprC_StaticOptions& options,
                     kprC_IncrementationEnm method);

/// ", steady state" for a steady-state response, else the end parameter of
/// `WriteThermalEnd`.
void WriteThermalResponse(utl_Stream& s, kprC_ResponseEnm response, double endValue);

/// ", stabilize=MAGNITUDE" or ", stabilize, factor=MAGNITUDE", each after a
/// point where the line may break; nothing without stabilization.
void WriteStabilize(utl_Stream& s, const kprC_Stabilization& stabilization);

/// The end parameter of a transient thermal step: ", end=PERIOD" when the
/// end value is not given, else ", end=SS".
void WriteThermalEnd(utl_Stream& s, double endValue);

/// "INITIAL, PERIOD, " and, for automatic increments, "MIN, MAX"; a fixed
/// step so ends on the separator. `separator` stands between the values.
void WriteIncrements(utl_Stream& s, const kprC_Incrementation& increments,
                     const char* separator = ", ");

/// The data line of the thermal and diffusion procedures up to the end
/// value: the increments, then "MIN, MAX, " for automatic increments,
/// `fixedLimits` for fixed ones.
void WriteThermalIncrements(utl_Stream& s, const kprC_Incrementation& increments,
                            const char* fixedLimits);

/// The incrementation parameters of an explicit procedure, the end of its
/// keyword line and its data line; `corrupt` is the failure text for an
/// incrementation outside the four the solver knows.
void WriteExplicitIncrements(utl_Stream& s, const kprC_ExplicitOptions& options,
                             const char* corrupt);

} // namespace keydeck
