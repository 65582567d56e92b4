#include "oif/oif_Monitor.h"

#include "base/utl_Stream.h"

qkw_Keyword* oif_Monitor::Copy() const { return new oif_Monitor(*this); }

void oif_Monitor::Write(utl_Stream& s) const {
  if (setName_.Empty())
    return;
  const kprC_MonitorBase& monitor =
      std::visit([](const auto& record) -> const kprC_MonitorBase& { return record; }, record_);
  s << "*Monitor, dof=" << monitor.dof << ", node=" << setName_;
  if (const auto* standard = std::get_if<kprC_StandardMonitor>(&record_))
    s << ", frequency=" << standard->frequency;
  s << endl;
}
