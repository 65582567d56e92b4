#pragma once

#include "base/cow_String.h"
#include "model/output.h"
#include "qkw/qkw_Keyword.h"

/// "*Contact Output": the contact variables of a request, on the surfaces
/// of a contact pair, a contact pair set or the request's own region.
/// `flag` (history output) or the explicit solver name the region: a set
/// by "nset=", a surface by "surface=".
class oif_ContactOutput : public qkw_Keyword {
public:
  oif_ContactOutput(const korC_OdbRequest& request, unsigned procedure, bool preselect, bool all,
                    const cow_String& masterName, const cow_String& slaveName,
                    const cow_String& cpsetName, const cow_String& setName, bool flag);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  korC_OdbRequest request_;
  unsigned procedure_;
  bool preselect_;
  bool all_;
  cow_String masterName_;
  cow_String slaveName_;
  cow_String cpsetName_;
  cow_String setName_;
  bool flag_;
};
