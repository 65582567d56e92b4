#pragma once

#include "base/cow_String.h"
#include "model/output.h"
#include "qkw/qkw_Keyword.h"

/// "*Node Output": the nodal variables of a request, over a node set when
/// one is named, eight names to a line. With `skipEmpty` a card with no
/// variables and no "PRESELECT" or "ALL" writes nothing; without it, it
/// writes its bare keyword.
class oif_NodeOutput : public qkw_Keyword {
public:
  oif_NodeOutput(const korC_OdbRequest& request, unsigned procedure, const cow_String& name,
                 bool preselect, bool all, bool skipEmpty);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  korC_OdbRequest request_;
  unsigned procedure_;
  cow_String name_;
  bool preselect_;
  bool all_;
  bool skipEmpty_;
};
