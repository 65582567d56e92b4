#pragma once

#include "base/cow_String.h"
#include "model/output.h"
#include "qkw/qkw_Keyword.h"

/// "*Radiation Output": the cavity radiation variables of a request. It knows no preselected
/// set: without "ALL" and without variables it writes nothing.
class oif_RadiationOutput : public qkw_Keyword {
public:
  oif_RadiationOutput(const korC_OdbRequest& request, unsigned procedure, const cow_String& name,
                      bool all);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  korC_OdbRequest request_;
  unsigned procedure_;
  cow_String name_;
  bool all_;
};
