#include "oif/oif_Output.h"

#include "base/utl_Stream.h"
#include "oif/oif_OutputCards.h"
#include "oif/oif_Parameters.h"

using namespace keydeck;

oif_Output::oif_Output(const korC_OdbChannel& channel, const korC_OdbRequest& request,
                       bool preselect, bool all, double stepTimePeriod, unsigned procedure)
    : frequency_(request.frequency), numberInterval_(request.numberInterval),
      timeMarks_(request.timeMarks), filter_(request.filter), timePoints_(request.timePoints),
      timeInterval_(request.timeInterval), modeList_(request.modeList),
      frequencyType_(request.frequencyType), preselect_(preselect), all_(all),
      stepTimePeriod_(stepTimePeriod), procedure_(procedure), isField_(channel.IsField()) {}

qkw_Keyword* oif_Output::Copy() const { return new oif_Output(*this); }

// Frequency 0 in increments asks for nothing; the line then holds no more
// than that.
bool oif_Output::IsNoOutput() const {
  return frequency_ == 0 && frequencyType_ == korC_EveryIncrements;
}

void oif_Output::Write(utl_Stream& s) const {
  s << "*Output" << (isField_ ? ", field" : ", history");
  if (!IsNoOutput()) {
    if (preselect_)
      WriteParameter(s, "variable=", "PRESELECT");
    else if (all_)
      WriteParameter(s, "variable=", "ALL");
    if (!filter_.Empty())
      WriteParameter(s, "filter=", filter_);
  }
  WriteFrequency(s);
  if (frequencyType_ == korC_ModeList && !modeList_.Empty())
    return; // the mode lines ended the card
  WriteTimeMarks(s);
  s << endl;
}

void oif_Output::WriteFrequency(utl_Stream& s) const {
  const bool defaultKind = korC_DefaultOutputType(procedure_, isField_) == frequencyType_;
  const int defaultValue = korC_DefaultFrequencyValue(frequencyType_, procedure_, isField_);
  switch (frequencyType_) {
  case korC_EveryIncrements:
    if (!defaultKind || frequency_ != defaultValue)
      WriteParameter(s, "frequency=", frequency_);
    return;
  case korC_NumberIntervals:
    if (!defaultKind || numberInterval_ != defaultValue)
      WriteIntervals(s);
    return;
  case korC_EveryTimeInterval:
    WriteParameter(s, "time interval=", timeInterval_);
    return;
  case korC_ModeList:
    if (modeList_.Empty())
      return;
    s << ", mode list" << endl;
    WriteOutputList(s, modeList_, 16, ListShape::Plain);
    return;
  case korC_AtTimePoints:
    WriteParameter(s, "time points=", timePoints_);
    return;
  }
}

// History output of the explicit solver takes its intervals as a time
// interval of the step time; with no step time it says nothing of them.
void oif_Output::WriteIntervals(utl_Stream& s) const {
  if (isField_ || !kprC_IsExplicit(procedure_)) {
    WriteParameter(s, "number interval=", numberInterval_);
    return;
  }
  if (stepTimePeriod_ > 0 && numberInterval_ > 0)
    WriteParameter(s, "time interval=", stepTimePeriod_ / numberInterval_);
}

void oif_Output::WriteTimeMarks(utl_Stream& s) const {
  if (IsNoOutput())
    return;
  if (frequencyType_ != korC_NumberIntervals && frequencyType_ != korC_EveryTimeInterval &&
      frequencyType_ != korC_AtTimePoints)
    return;
  if (timeMarks_ == korC_DefaultTimeMarks(procedure_) || !kprC_TimeMarksIsAllowed(procedure_))
    return;
  WriteParameter(s, "time marks=", YesNo(timeMarks_));
}
