#pragma once

#include "base/cow_String.h"
#include "model/step_requests.h"
#include "qkw/qkw_Keyword.h"

#include <variant>

/// "*Monitor" of a step: the degree of freedom of one node that the solver
/// reports, and for the implicit solver how often.
class oif_Monitor : public qkw_Keyword {
public:
  using Record = std::variant<kprC_ExplicitMonitor, kprC_StandardMonitor>;
  oif_Monitor(const Record& record, const cow_String& setName)
      : record_(record), setName_(setName) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  Record record_;
  cow_String setName_;
};
