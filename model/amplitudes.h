#pragma once

#include "base/cow_List.h"
#include "model/records.h"

#include <optional>

// Amplitudes: the time (or frequency) functions that conditions and steps
// refer to by name. Tables are flat lists of numbers in the deck's order:
// time, value, time, value, ...

/// A baseline correction of an amplitude: the times that bound its
/// correction intervals.
class kamC_BaselineCorrection {
public:
  static constexpr const char* Description =
      "a baseline correction: the times that bound its correction intervals";
  template <class V> void Fields(V& v) {
    v({"correctionIntervals", "the times that end each correction interval, in increasing order"},
      correctionIntervals, cow_List<double>());
  }

  cow_List<double> correctionIntervals;
};

/// The kinds of amplitude, by type id; the model file names them by word.
enum kamC_AmplitudeTypeEnm : unsigned {
  kamC_DecayType = keydeck::TypeIds::DecayAmplitude,
  kamC_EquallySpacedType = keydeck::TypeIds::EquallySpacedAmplitude,
  kamC_ModulatedType = keydeck::TypeIds::ModulatedAmplitude,
  kamC_PeriodicType = keydeck::TypeIds::PeriodicAmplitude,
  kamC_SolutionDependentType = keydeck::TypeIds::SolutionDependentAmplitude,
  kamC_TabularType = keydeck::TypeIds::TabularAmplitude,
  kamC_PsdDefinitionType = keydeck::TypeIds::PsdDefinitionAmplitude,
  kamC_SpectrumType = keydeck::TypeIds::SpectrumAmplitude,
  kamC_SmoothStepType = keydeck::TypeIds::SmoothStepAmplitude,
  kamC_BubbleType = keydeck::TypeIds::BubbleAmplitude,
  kamC_UserType = keydeck::TypeIds::UserAmplitude,
};

namespace keydeck {

// Kinds have no deck text: the card tells them by type id.
template <> struct EnumTable<kamC_AmplitudeTypeEnm> {
  static constexpr std::string_view Noun = "amplitude type";
  static constexpr EnumEntry<kamC_AmplitudeTypeEnm> Entries[] = {
      {kamC_TabularType, "", "tabular"},
      {kamC_EquallySpacedType, "", "equallySpaced"},
      {kamC_PeriodicType, "", "periodic"},
      {kamC_ModulatedType, "", "modulated"},
      {kamC_DecayType, "", "decay"},
      {kamC_SmoothStepType, "", "smoothStep"},
      {kamC_SolutionDependentType, "", "solutionDependent"},
      {kamC_BubbleType, "", "bubble"},
      {kamC_PsdDefinitionType, "", "psdDefinition"},
      {kamC_SpectrumType, "", "spectrum"},
      {kamC_UserType, "", "user"},
  };
};

} // namespace keydeck

/// The base of the amplitude records.
class kamC_Amplitude {
public:
  /// The time an amplitude runs on: the step's own (the default) or the
  /// total time of the analysis.
  enum TimeSpanEnm : int { StepTime = 0, TotalTime = 1 };

  virtual ~kamC_Amplitude() = default;
  virtual kamC_Amplitude* Copy() const = 0;
  virtual unsigned DynTypeId() const = 0;
  /// What is wrong with the record's data, if anything: a table of pairs
  /// must hold an even count of numbers, and times must not decrease.
  virtual std::optional<keydeck::RecordFault> CheckData() const { return std::nullopt; }

  template <class V> void Fields(V& v) {
    v({"type", "the kind of amplitude, which decides its other fields"}, type);
    v({"timeSpan", "the time the amplitude runs on: the step's own or the total time"}, timeSpan,
      StepTime);
  }

  kamC_AmplitudeTypeEnm type = kamC_TabularType; ///< the kind, which is the class
  TimeSpanEnm timeSpan = StepTime;
};

namespace keydeck {

// The deck writes " TIME" behind the text.
template <> struct EnumTable<kamC_Amplitude::TimeSpanEnm> {
  static constexpr std::string_view Noun = "time span";
  static constexpr EnumEntry<kamC_Amplitude::TimeSpanEnm> Entries[] = {
      {kamC_Amplitude::StepTime, "STEP", "step"},
      {kamC_Amplitude::TotalTime, "TOTAL", "total"},
  };
};

/// The common part of every amplitude class: its kind, type id and copy.
template <class Record, kamC_AmplitudeTypeEnm Type> class AmplitudeKind : public kamC_Amplitude {
public:
  static constexpr kamC_AmplitudeTypeEnm Kind = Type;
  kamC_Amplitude* Copy() const override { return new Record(static_cast<const Record&>(*this)); }
  static constexpr unsigned TypeId() { return Type; }
  static bool IsKindOf(unsigned id) { return id == Type; }
  unsigned DynTypeId() const override { return Type; }

protected:
  AmplitudeKind() { type = Type; }
};

/// The fault of a flat table of pairs of `what` (odd length), and when
/// `timed`, of a time less than the one before it.
std::optional<RecordFault> PairTableFault(const cow_List<double>& data, const char* what,
                                          bool timed);

} // namespace keydeck

/// Values at given times: "*Amplitude" with its table.
class kamC_Tabular : public keydeck::AmplitudeKind<kamC_Tabular, kamC_TabularType> {
public:
  static constexpr const char* Description = "an amplitude of values at given times";
  std::optional<keydeck::RecordFault> CheckData() const override;
  template <class V> void Fields(V& v) {
    kamC_Amplitude::Fields(v);
    v({"smooth", "the smoothing fraction; the solver's default when left out"}, smooth,
      keydeck::NotGivenDouble);
    v({"data", "time, value, time, value, ...; times must not decrease"}, data, cow_List<double>());
    v({"baseline", "a baseline correction; none when left out"}, baseline, std::nullopt);
  }

  double smooth = keydeck::NotGivenDouble;
  cow_List<double> data; ///< time, value, time, value, ...
  std::optional<kamC_BaselineCorrection> baseline;
};

/// Values at times a fixed interval apart.
class kamC_EquallySpaced
    : public keydeck::AmplitudeKind<kamC_EquallySpaced, kamC_EquallySpacedType> {
public:
  static constexpr const char* Description = "an amplitude of values a fixed time interval apart";
  template <class V> void Fields(V& v) {
    kamC_Amplitude::Fields(v);
    v({"fixedInterval", "the time between two values"}, fixedInterval);
    v({"begin", "the time of the first value"}, begin, 0.0);
    v({"smooth", "the smoothing fraction; the solver's default when left out"}, smooth,
      keydeck::NotGivenDouble);
    v({"data", "the values, one per interval"}, data, cow_List<double>());
    v({"baseline", "a baseline correction; none when left out"}, baseline, std::nullopt);
  }

  double fixedInterval = 0;
  double begin = 0;
  double smooth = keydeck::NotGivenDouble;
  cow_List<double> data; ///< the values, one per interval
  std::optional<kamC_BaselineCorrection> baseline;
};

/// A Fourier series: a constant and terms of a circular frequency.
class kamC_Periodic : public keydeck::AmplitudeKind<kamC_Periodic, kamC_PeriodicType> {
public:
  static constexpr const char* Description =
      "an amplitude given as a Fourier series: a constant and terms of a circular frequency";
  std::optional<keydeck::RecordFault> CheckData() const override;
  template <class V> void Fields(V& v) {
    kamC_Amplitude::Fields(v);
    v({"frequency", "the circular frequency of the series, in radians per unit time"}, frequency);
    v({"start", "the time at which the series starts"}, start, 0.0);
    v({"a0", "the constant term"}, a0, 0.0);
    v({"data", "the terms of the series: A1, B1, A2, B2, ..."}, data, cow_List<double>());
  }

  double frequency = 0;
  double start = 0;
  double a0 = 0;
  cow_List<double> data; ///< term A, term B, term A, term B, ...
};

/// A sine wave whose amplitude is a sine wave itself.
class kamC_Modulated : public keydeck::AmplitudeKind<kamC_Modulated, kamC_ModulatedType> {
public:
  static constexpr const char* Description =
      "a modulated amplitude: a0 + a sin(frequency1 (t - start)) sin(frequency2 (t - start))";
  template <class V> void Fields(V& v) {
    kamC_Amplitude::Fields(v);
    v({"a0", "the constant term"}, a0);
    v({"a", "the amplitude of the modulated sine"}, a);
    v({"start", "the time at which the amplitude starts"}, start);
    v({"frequency1", "the first circular frequency, in radians per unit time"}, frequency1);
    v({"frequency2", "the second circular frequency, in radians per unit time"}, frequency2);
  }

  double a0 = 0;
  double a = 0;
  double start = 0;
  double frequency1 = 0;
  double frequency2 = 0;
};

/// An exponential decay from a start time.
class kamC_Decay : public keydeck::AmplitudeKind<kamC_Decay, kamC_DecayType> {
public:
  static constexpr const char* Description =
      "an exponential decay: a0 + a exp(-(t - start) / decayTime) from the start time";
  template <class V> void Fields(V& v) {
    kamC_Amplitude::Fields(v);
    v({"a0", "the constant term"}, a0);
    v({"a", "the amplitude of the decaying term"}, a);
    v({"start", "the time at which the decay starts"}, start);
    v({"decayTime", "the time in which the decaying term falls by the factor e"}, decayTime);
  }

  double a0 = 0;
  double a = 0;
  double start = 0;
  double decayTime = 0;
};

/// An amplitude that the solver adapts to the solution, within bounds.
class kamC_SolutionDependent
    : public keydeck::AmplitudeKind<kamC_SolutionDependent, kamC_SolutionDependentType> {
public:
  static constexpr const char* Description =
      "an amplitude that the solver adapts to the solution, within bounds";
  template <class V> void Fields(V& v) {
    kamC_Amplitude::Fields(v);
    v({"initialValue", "the value at the start"}, initialValue);
    v({"minimum", "the smallest value the solver may choose"}, minimum);
    v({"maximum", "the largest value the solver may choose"}, maximum);
  }

  double initialValue = 0;
  double minimum = 0;
  double maximum = 0;
};

/// Values at given times, joined by smooth steps.
class kamC_SmoothStep : public keydeck::AmplitudeKind<kamC_SmoothStep, kamC_SmoothStepType> {
public:
  static constexpr const char* Description =
      "an amplitude of values at given times, joined by smooth steps";
  std::optional<keydeck::RecordFault> CheckData() const override;
  template <class V> void Fields(V& v) {
    kamC_Amplitude::Fields(v);
    v({"data", "time, value, time, value, ...; times must not decrease"}, data, cow_List<double>());
  }

  cow_List<double> data; ///< time, value, time, value, ...
};

namespace keydeck {

/// The amplitude classes a model file can use; the other kinds are refused as
/// not supported yet.
template <> struct RecordKinds<kamC_Amplitude> {
  static constexpr std::string_view Field = "type";
  using Types = KindList<kamC_Tabular, kamC_EquallySpaced, kamC_Periodic, kamC_Modulated,
                         kamC_Decay, kamC_SmoothStep, kamC_SolutionDependent>;
};

} // namespace keydeck
