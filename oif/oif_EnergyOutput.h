#pragma once

#include "base/cow_String.h"
#include "model/output.h"
#include "qkw/qkw_Keyword.h"

/// "*Energy Output": the energies of a request, over an element set when one is named.
class oif_EnergyOutput : public qkw_Keyword {
public:
  oif_EnergyOutput(const korC_OdbRequest& request, unsigned procedure, const cow_String& name,
                   bool preselect, bool all);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  korC_OdbRequest request_;
  unsigned procedure_;
  cow_String name_;
  bool preselect_;
  bool all_;
};
