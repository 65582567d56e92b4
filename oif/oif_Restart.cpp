#include "oif/oif_Restart.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"

qkw_Keyword* oif_Restart::Copy() const { return new oif_Restart(*this); }

namespace {

void WriteRestart(utl_Stream& s, const kprC_ExplicitRestart& restart) {
  s << "number interval=" << restart.numberInterval
    << ", time marks=" << keydeck::YesNo(restart.timeMarks);
}

// By increments unless evenly spaced intervals are asked for.
void WriteRestart(utl_Stream& s, const kprC_StandardRestart& restart) {
  if (restart.numberInterval < 1) {
    s << "frequency=" << restart.frequency;
    return;
  }
  s << "number interval=" << restart.numberInterval
    << ", time marks=" << keydeck::YesNo(restart.timeMarks);
}

} // namespace

void oif_Restart::Write(utl_Stream& s) const {
  std::visit(
      [&s](const auto& restart) {
        s << "*Restart, write, ";
        if (restart.overlay)
          s << "overlay, ";
        WriteRestart(s, restart);
        s << endl;
      },
      record_);
}
