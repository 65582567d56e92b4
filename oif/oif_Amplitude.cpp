#include "oif/oif_Amplitude.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "qkw/qkw_QuorvexName.h"

using namespace keydeck;

namespace {

// Pairs stand four to a line: "t, v, t, v, t, v, t, v".
void WritePairs(utl_Stream& s, const cow_List<double>& data) {
  const int pairs = data.Size() / 2;
  for (int p = 0; p < pairs; ++p) {
    s << data.UncheckedConstGet(2 * p) << ", " << data.UncheckedConstGet(2 * p + 1);
    if ((p + 1) % 4 == 0 || p + 1 == pairs)
      s << endl;
    else
      s << ", ";
  }
}

// One data line of a few numbers.
void WriteLine(utl_Stream& s, std::initializer_list<double> values) {
  const char* separator = "";
  for (const double value : values) {
    s << separator << value;
    separator = ", ";
  }
  s << endl;
}

void WriteDefinitionWord(utl_Stream& s, const char* definition) {
  WriteParameter(s, "definition=", definition);
}

void WriteTabular(utl_Stream& s, const kamC_Tabular& amplitude) {
  WriteParameter(s, "smooth=", amplitude.smooth, NotGivenDouble);
  s << endl;
  WritePairs(s, amplitude.data);
}

void WriteSmoothStep(utl_Stream& s, const kamC_SmoothStep& amplitude) {
  WriteDefinitionWord(s, "SMOOTH STEP");
  s << endl;
  WritePairs(s, amplitude.data);
}

void WriteEquallySpaced(utl_Stream& s, const kamC_EquallySpaced& amplitude) {
  WriteDefinitionWord(s, "EQUALLY SPACED");
  WriteParameter(s, "smooth=", amplitude.smooth, NotGivenDouble);
  WriteParameter(s, "fixed interval=", amplitude.fixedInterval);
  WriteParameter(s, "begin=", amplitude.begin, 0.0);
  s << endl;
  WriteValueLines(s, amplitude.data, 8);
}

void WritePeriodic(utl_Stream& s, const kamC_Periodic& amplitude) {
  WriteDefinitionWord(s, "PERIODIC");
  s << endl;
  s << amplitude.data.Size() / 2 << ", " << amplitude.frequency << ", " << amplitude.start << ", "
    << amplitude.a0 << endl;
  WritePairs(s, amplitude.data);
}

void WriteModulated(utl_Stream& s, const kamC_Modulated& amplitude) {
  WriteDefinitionWord(s, "MODULATED");
  s << endl;
  WriteLine(
      s, {amplitude.a0, amplitude.a, amplitude.start, amplitude.frequency1, amplitude.frequency2});
}

void WriteDecay(utl_Stream& s, const kamC_Decay& amplitude) {
  WriteDefinitionWord(s, "DECAY");
  s << endl;
  WriteLine(s, {amplitude.a0, amplitude.a, amplitude.start, amplitude.decayTime});
}

void WriteSolutionDependent(utl_Stream& s, const kamC_SolutionDependent& amplitude) {
  WriteDefinitionWord(s, "SOLUTION DEPENDENT");
  s << endl;
  WriteLine(s, {amplitude.initialValue, amplitude.minimum, amplitude.maximum});
}

} // namespace

namespace keydeck {

void WriteValueLines(utl_Stream& s, const cow_List<double>& values, int perLine) {
  for (int i = 0; i < values.Size(); ++i) {
    s << values.UncheckedConstGet(i);
    if ((i + 1) % perLine == 0 || i + 1 == values.Size())
      s << endl;
    else
      s << ", ";
  }
}

} // namespace keydeck

qkw_Keyword* oif_Amplitude::Copy() const { return new oif_Amplitude(*this); }

void oif_Amplitude::Write(utl_Stream& s) const {
  s << "*Amplitude, name=" << qkw_QuorvexName(name_, false);
  if (record_->timeSpan != kamC_Amplitude::StepTime) {
    WriteParameter(s, "time=", record_->timeSpan);
    s << " TIME";
  }
  WriteDefinition(s);
}

void oif_Amplitude::WriteDefinition(utl_Stream& s) const {
  const kamC_Amplitude& record = *record_;
  switch (record.DynTypeId()) {
  case TypeIds::TabularAmplitude:
    return WriteTabular(s, RecordCast<kamC_Tabular>(record));
  case TypeIds::SmoothStepAmplitude:
    return WriteSmoothStep(s, RecordCast<kamC_SmoothStep>(record));
  case TypeIds::EquallySpacedAmplitude:
    return WriteEquallySpaced(s, RecordCast<kamC_EquallySpaced>(record));
  case TypeIds::PeriodicAmplitude:
    return WritePeriodic(s, RecordCast<kamC_Periodic>(record));
  case TypeIds::ModulatedAmplitude:
    return WriteModulated(s, RecordCast<kamC_Modulated>(record));
  case TypeIds::DecayAmplitude:
    return WriteDecay(s, RecordCast<kamC_Decay>(record));
  case TypeIds::SolutionDependentAmplitude:
    return WriteSolutionDependent(s, RecordCast<kamC_SolutionDependent>(record));
  default:
    Raise("Unknown amplitude definition");
  }
}
