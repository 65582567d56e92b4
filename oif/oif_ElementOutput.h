#pragma once

#include "base/cow_String.h"
#include "model/output.h"
#include "qkw/qkw_Keyword.h"

/// "*Element Output": the element variables of a request, over an element
/// set when one is named. A rebar card keeps the variables of rebar layers,
/// which any other card drops; field output says whether local directions
/// are written. Section points come in groups of up to 16, and each group
/// repeats the whole card.
class oif_ElementOutput : public qkw_Keyword {
public:
  oif_ElementOutput(const korC_OdbChannel& channel, const korC_OdbRequest& request,
                    unsigned procedure, const cow_String& name, bool preselect, bool all,
                    bool rebar);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_List<cow_String> Variables() const;
  void WriteGroup(utl_Stream& s, const cow_List<cow_String>& names,
                  const cow_List<int>& sectionPoints) const;

  bool isField_;
  korC_OdbRequest request_;
  unsigned procedure_;
  cow_String name_;
  bool preselect_;
  bool all_;
  bool rebar_;
};
