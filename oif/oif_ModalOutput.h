#pragma once

#include "base/cow_String.h"
#include "model/output.h"
#include "qkw/qkw_Keyword.h"

/// "*Modal Output": the generalized coordinates of a modal response. It knows no preselected
/// set: without "ALL" and without variables it writes nothing.
class oif_ModalOutput : public qkw_Keyword {
public:
  oif_ModalOutput(const korC_OdbRequest& request, unsigned procedure, bool all);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  korC_OdbRequest request_;
  unsigned procedure_;
  bool all_;
};
