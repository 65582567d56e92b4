#pragma once

#include "base/cow_String.h"
#include "model/output.h"
#include "qkw/qkw_Keyword.h"

/// "*Incrementation Output": the increment sizes of the explicit solver.
class oif_IncrementationOutput : public qkw_Keyword {
public:
  oif_IncrementationOutput(const korC_OdbRequest& request, unsigned procedure, bool preselect,
                           bool all);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  korC_OdbRequest request_;
  unsigned procedure_;
  bool preselect_;
  bool all_;
};
