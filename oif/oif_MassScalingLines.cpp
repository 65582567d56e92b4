#include "oif/oif_MassScalingLines.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"

void keydeck::WriteMassScalingComment(utl_Stream& s, const char* form, const cow_String& setName) {
  s << "** Mass Scaling: " << form << endl;
  s << "**               " << (setName.Empty() ? cow_String("Whole Model") : setName) << endl;
}

void keydeck::WriteMassScalingKeyword(utl_Stream& s, const char* keyword,
                                      const cow_String& setName) {
  s << keyword;
  if (!setName.Empty())
    s << ", elset=" << setName;
}

void keydeck::WriteTargetIncrement(utl_Stream& s, const kprC_MassScaling& record) {
  if (record.targetTimeIncrement == 0)
    return;
  s << ", dt=" << record.targetTimeIncrement << ", type=" << EnumDeckText(record.scalingType);
}
