#include "oif/oif_StepCards.h"

#include "base/nex_Exception.h"
#include "base/utl_Stream.h"

namespace keydeck {

void WriteDirect(utl_Stream& s, kprC_IncrementationEnm method, bool noStop) {
  if (method == kprC_FixedIncrements)
    s << (noStop ? ", direct=NO STOP" : ", direct");
}

void WriteStaticHead(utl_Stream& s, const kprC_StaticOptions& options,
                     kprC_IncrementationEnm method) {
  s << "*Static";
  if (options.adiabatic)
    s << ", adiabatic";
  WriteDirect(s, method, options.noStop);
  if (!options.fullyPlastic.Empty()) {
    s.OptionalLineBreak();
    s << ", fully plastic=" << options.fullyPlastic;
  }
}

void WriteThermalResponse(utl_Stream& s, kprC_ResponseEnm response, double endValue) {
  if (response == kprC_SteadyState) {
    s.OptionalLineBreak();
    s << ", steady state";
  } else {
    WriteThermalEnd(s, endValue);
  }
}

void WriteStabilize(utl_Stream& s, const kprC_Stabilization& stabilization) {
  if (stabilization.stabilizationMethod == kprC_NoStabilization)
    return;
  s.OptionalLineBreak();
  s << (stabilization.stabilizationMethod == kprC_EnergyFractionStabilization
            ? ", stabilize"
            : ", stabilize, factor");
  s << "=" << stabilization.stabilizationMagnitude;
}

void WriteThermalEnd(utl_Stream& s, double endValue) {
  s << (endValue == NotGivenDouble ? ", end=PERIOD" : ", end=SS");
}

void WriteIncrements(utl_Stream& s, const kprC_Incrementation& increments, const char* separator) {
  s << increments.initialInc << separator << increments.timePeriod << separator;
  if (increments.timeIncrementationMethod == kprC_AutomaticIncrements)
    s << increments.minInc << separator << increments.maxInc;
}

void WriteThermalIncrements(utl_Stream& s, const kprC_Incrementation& increments,
                            const char* fixedLimits) {
  s << increments.initialInc << ", " << increments.timePeriod << ", ";
  if (increments.timeIncrementationMethod == kprC_AutomaticIncrements)
    s << increments.minInc << ", " << increments.maxInc << ", ";
  else
    s << fixedLimits;
}

} // namespace keydeck

namespace keydeck {

static void WriteScaleFactor(utl_Stream& s, double scaleFactor) {
  if (scaleFactor != 1.0)
    s << ", scale factor=" << scaleFactor;
}

void WriteExplicitIncrements(utl_Stream& s, const kprC_ExplicitOptions& options,
                             const char* corrupt) {
  switch (options.timeIncrementationMethod) {
  case kprC_ExplicitUserFixed:
    s << ", direct user control";
    s.LineBreak();
    s << options.initialInc << ", " << options.timePeriod << endl;
    return;
  case kprC_ExplicitFixed:
    s << ", fixed time incrementation";
    WriteScaleFactor(s, options.scaleFactor);
    s.LineBreak();
    s << ", " << options.timePeriod << endl;
    return;
  case kprC_ExplicitElementByElement:
    s << ", element by element";
    [[fallthrough]];
  case kprC_ExplicitAutomatic:
    WriteScaleFactor(s, options.scaleFactor);
    s.LineBreak();
    s << ", " << options.timePeriod;
    if (options.maxInc != NotGivenDouble)
      s << ",, " << options.maxInc;
    s << endl;
    return;
  }
  Raise(corrupt);
}

} // namespace keydeck
