#pragma once

#include "model/step_requests.h"
#include "qkw/qkw_Keyword.h"

#include <variant>

/// "*Restart, write" of a step: the restart data it writes, by the options of
/// its solver.
class oif_Restart : public qkw_Keyword {
public:
  using Record = std::variant<kprC_ExplicitRestart, kprC_StandardRestart>;
  explicit oif_Restart(const Record& record) : record_(record) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  Record record_;
};
