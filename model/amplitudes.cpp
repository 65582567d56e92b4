#include "model/amplitudes.h"

#include <charconv>

namespace keydeck {

namespace {

// The shortest text that reads back as `value`.
std::string NumberText(double value) {
  char text[32];
  return std::string(text, std::to_chars(text, text + sizeof text, value).ptr);
}

} // namespace

std::optional<RecordFault> PairTableFault(const cow_List<double>& data, const char* what,
                                          bool timed) {
  if (data.Size() % 2 != 0) {
    std::string message = "expected pairs of ";
    message.append(what).append(", found ").append(std::to_string(data.Size()));
    return RecordFault{"data", message.append(data.Size() == 1 ? " number" : " numbers")};
  }
  for (int i = 2; timed && i < data.Size(); i += 2) {
    if (data.ConstGet(i) >= data.ConstGet(i - 2))
      continue;
    std::string message = "the time ";
    message.append(NumberText(data.ConstGet(i))).append(" comes after the greater time ");
    message.append(NumberText(data.ConstGet(i - 2)));
    return RecordFault{"data/" + std::to_string(i), message};
  }
  return std::nullopt;
}

} // namespace keydeck

std::optional<keydeck::RecordFault> kamC_Tabular::CheckData() const {
  return keydeck::PairTableFault(data, "time and value", /*timed=*/true);
}

std::optional<keydeck::RecordFault> kamC_Periodic::CheckData() const {
  return keydeck::PairTableFault(data, "terms A and B", /*timed=*/false);
}

std::optional<keydeck::RecordFault> kamC_SmoothStep::CheckData() const {
  return keydeck::PairTableFault(data, "time and value", /*timed=*/true);
}
