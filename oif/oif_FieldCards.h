#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/fields.h"

class utl_Stream;

// What the field cards share: the state of a field in a step as the step
// cards read it, the name of a results file, the from-file options, and the
// two layouts of value lists on data lines.
namespace keydeck {

using FieldHandle = kprC_PropagatingContainer<kpfC_Field>::Handle;

/// A temperature or field variable in one step as its step card reads it.
struct FieldCardState {
  /// A field deactivated or reset in `step` writes its keyword line alone,
  /// with ", op=NEW", whatever `opMod` says.
  FieldCardState(const FieldHandle& field, const cow_String& step, bool opMod,
                 const cow_String& setName);

  /// The values and options of the field in the card's step.
  const kpfC_ScalarFieldState& State() const;

  FieldHandle field;
  cow_String step;
  cow_String setName;
  bool opMod = false;
  bool deactivate = false;
};

/// The values and options of a temperature or field variable in `step`.
const kpfC_ScalarFieldState& ScalarStateOf(const kpfC_Field& field, const cow_String& step);

/// The name of a results file as the deck gives it: a name of five
/// characters or more that ends in ".fil", in any case, loses that ending.
cow_String FieldFileName(const cow_String& file);

/// ", midside", or ", interpolate" and, with `tolerances`, the exterior
/// tolerances that differ from the solver's defaults; nothing without
/// interpolation.
void WriteInterpolation(utl_Stream& s, const kpfC_ScalarFieldState& state, bool tolerances);

/// The from-file options of a step card: ", file=", the step range and the
/// interpolation with its tolerances.
void WriteFileOptions(utl_Stream& s, const kpfC_ScalarFieldState& state);

/// Temperature values after the set name: ", value" each, times `scale`,
/// seven to a line; a list shorter than `padTo` repeats its last value up to
/// that count, so that every node gets a value for each temperature point.
/// Ends the line.
void WriteTemperatureValues(utl_Stream& s, const cow_List<double>& values, double scale, int padTo);

/// Field variable values after the set name: ", value" each, eight entries
/// to a line with the set name first, then empty lines up to the line count
/// of `maxSize` values, so that every field of the model has as many lines.
/// Ends the line.
void WriteFieldVariableValues(utl_Stream& s, const cow_List<double>& values, int maxSize);

/// The keyword-line tail and data of a temperature or field variable step
/// card after its own parameters: ", user" and the set name; the file
/// options (", user" first for a file changed by a user subroutine); or the
/// amplitude, the set name and `writeValues(s, values)`.
template <class F> void WriteFieldTail(utl_Stream& s, const FieldCardState& card, F&& writeValues);

/// The number of data lines that `count` entries take at `perLine` a line.
inline int GetNumberOfDataLines(int count, int perLine) { return (count + perLine - 1) / perLine; }

} // namespace keydeck

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "qkw/qkw_QuorvexName.h"

template <class F>
void keydeck::WriteFieldTail(utl_Stream& s, const FieldCardState& card, F&& writeValues) {
  const kpfC_ScalarFieldState& state = card.State();
  switch (card.field->distribution) {
  case kpfC_UserDefined:
    WriteFlag(s, "user", true);
    s.LineBreak();
    s << card.setName;
    s.LineBreak();
    return;
  case kpfC_FromFile:
  case kpfC_FromFileAndUser:
    WriteFlag(s, "user", card.field->distribution == kpfC_FromFileAndUser);
    WriteFileOptions(s, state);
    s.LineBreak();
    return;
  default:
    if (!state.amplitude.ConstGet().Empty())
      WriteParameter(s, "amplitude=", qkw_QuorvexName(state.amplitude.ConstGet(), false));
    s.LineBreak();
    s << card.setName;
    writeValues(s, state.values.ConstGet());
  }
}
