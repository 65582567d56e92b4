#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/output.h"
#include "qkw/qkw_Keyword.h"

/// "*Output, field" or "*Output, history": opens a group of output
/// sub-cards with its frequency. A frequency the solver would assume anyway
/// is left out; so are time marks at the procedure's default. Frequency 0 in
/// increments writes "frequency=0": no output at all.
class oif_Output : public qkw_Keyword {
public:
  /// The group of `request` (its frequency and filter) in `channel`.
  /// `stepTimePeriod` is the step time of an explicit step, 0 otherwise.
  oif_Output(const korC_OdbChannel& channel, const korC_OdbRequest& request, bool preselect,
             bool all, double stepTimePeriod, unsigned procedure);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  void WriteFrequency(utl_Stream& s) const;
  void WriteIntervals(utl_Stream& s) const;
  void WriteTimeMarks(utl_Stream& s) const;
  bool IsNoOutput() const;

  int frequency_;
  int numberInterval_;
  bool timeMarks_;
  cow_String filter_;
  cow_String timePoints_;
  double timeInterval_;
  cow_List<int> modeList_;
  korC_FrequencyTypeEnm frequencyType_;
  bool preselect_;
  bool all_;
  double stepTimePeriod_;
  unsigned procedure_;
  bool isField_;
};
