#include "oif/oif_DiagnosticPrint.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"

qkw_Keyword* oif_DiagnosticPrint::Copy() const { return new oif_DiagnosticPrint(*this); }

namespace {

// One parameter, written only where it differs from the baseline.
class PrintWriter {
public:
  explicit PrintWriter(utl_Stream& s) : s_(s) {}
  void Flag(const char* name, bool value, bool baseline) {
    if (value != baseline)
      keydeck::WriteParameter(s_, name, keydeck::YesNo(value));
  }
  void Number(const char* name, int value, int baseline) {
    keydeck::WriteParameter(s_, name, value, baseline);
  }

private:
  utl_Stream& s_;
};

void WritePrint(PrintWriter& w, const kprC_ExplicitDiagnosticPrint& print,
                const kprC_ExplicitDiagnosticPrint& base) {
  w.Flag("allke=", print.allke, base.allke);
  w.Flag("critical element=", print.criticalElement, base.criticalElement);
  w.Flag("etotal=", print.etotal, base.etotal);
  w.Flag("dmass=", print.dmass, base.dmass);
}

void WritePrint(PrintWriter& w, const kprC_StandardDiagnosticPrint& print,
                const kprC_StandardDiagnosticPrint& base) {
  w.Flag("contact=", print.contact, base.contact);
  w.Number("frequency=", print.frequency, base.frequency);
  w.Flag("model change=", print.modelChange, base.modelChange);
  w.Flag("plasticity=", print.plasticity, base.plasticity);
  w.Flag("residual=", print.residual, base.residual);
  w.Flag("solve=", print.solve, base.solve);
}

} // namespace

void oif_DiagnosticPrint::Write(utl_Stream& s) const {
  std::visit(
      [&](const auto& print) {
        using Print = std::decay_t<decltype(print)>;
        const Print* before = previous_ ? std::get_if<Print>(&*previous_) : nullptr;
        PrintWriter w(s);
        s << "*Print";
        WritePrint(w, print, before ? *before : Print());
        s << endl;
      },
      print_);
}
