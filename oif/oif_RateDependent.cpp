#include "oif/oif_RateDependent.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_TableCards.h"

using namespace keydeck;

qkw_Keyword* oif_RateDependent::Copy() const { return new oif_RateDependent(*this); }

void oif_RateDependent::Write(utl_Stream& s) const {
  s << "*Rate Dependent";
  WriteDependencies(s, record_.dependencies);
  switch (record_.type) {
  case kmaC_RateDependent::YieldRatio:
    WriteParameter(s, "type=", "YIELD RATIO");
    break;
  case kmaC_RateDependent::JohnsonCook:
    WriteParameter(s, "type=", "JOHNSON COOK");
    break;
  case kmaC_RateDependent::Power: // the solver's default: not named
    break;
  }
  s.LineBreak();
  WriteDependentTable(s, record_.table, record_.dependencies, record_.temperatureDependency);
}
