#include "model/profiles.h"

#include <charconv>

keydeck::RecordFault keydeck::NegativeDimensionFault(std::string where, double value) {
  char text[32];
  const char* const end = std::to_chars(text, text + sizeof text, value).ptr;
  return {std::move(where), "a dimension must not be negative, found " +
                                std::string(text, static_cast<std::size_t>(end - text))};
}

std::optional<keydeck::RecordFault> kbpC_ArbitraryProfile::CheckData() const {
  if (segments.Rows() == 0)
    return keydeck::RecordFault{"segments", "an arbitrary profile needs at least one segment"};
  if (segments.Cols() != 3)
    return keydeck::RecordFault{"segments", "a segment is a row of x, y and thickness, found " +
                                                std::to_string(segments.Cols()) + " values"};
  for (int row = 0; row < segments.Rows(); ++row)
    if (const double thickness = segments.ConstGet(row, 2); thickness < 0)
      return keydeck::NegativeDimensionFault("segments/" + std::to_string(row) + "/2", thickness);
  return std::nullopt;
}

cow_2DArray<double> kbpC_ArbitraryProfile::Points() const {
  cow_2DArray<double> points(segments.Rows() + 1, 3);
  points.Get(0, 0) = start[0];
  points.Get(0, 1) = start[1];
  points.Get(0, 2) = 0;
  for (int row = 0; row < segments.Rows(); ++row)
    for (int column = 0; column < 3; ++column)
      points.Get(row + 1, column) = segments.ConstGet(row, column);
  return points;
}

int kbpC_TemperaturePointCount(const kbpC_BeamProfile& profile) {
  switch (profile.DynTypeId()) {
  case kbpC_LbeamType:
    return 3;
  case kbpC_RectangularType:
  case kbpC_BoxType:
  case kbpC_TbeamType:
  case kbpC_TrapezoidalType:
    return 4;
  case kbpC_CircularType:
  case kbpC_IbeamType:
    return 5;
  case kbpC_HexagonalType:
    return 6;
  case kbpC_PipeType:
    return 8;
  case kbpC_ArbitraryType:
    return keydeck::RecordCast<kbpC_ArbitraryProfile>(profile).segments.Rows() + 1;
  default:
    return 1;
  }
}
