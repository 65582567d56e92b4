#pragma once

#include "base/cow_COW.h"
#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/amplitudes.h"
#include "qkw/qkw_Keyword.h"

class utl_Stream;

/// "*Amplitude, name=" and the name, quoted where the solver needs it,
/// ", time=TOTAL TIME" for an amplitude on the total time, then its
/// definition by kind: the keyword's tail and the data lines. Tables of
/// pairs stand four pairs to a line, lists of values eight to a line. A
/// record of a kind without a definition here raises "Unknown amplitude
/// definition" when written.
class oif_Amplitude : public qkw_Keyword {
public:
  oif_Amplitude(const cow_String& name, const kamC_Amplitude& record)
      : name_(name), record_(record) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  void WriteDefinition(utl_Stream& s) const;

  cow_String name_;
  cow_ArrayCOW<kamC_Amplitude> record_;
};

namespace keydeck {

/// `values` separated by ", ", `perLine` to a line; the last line ends after
/// the last value. An empty list writes nothing.
void WriteValueLines(utl_Stream& s, const cow_List<double>& values, int perLine);

} // namespace keydeck
