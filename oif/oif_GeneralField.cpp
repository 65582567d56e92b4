#include "oif/oif_GeneralField.h"

using namespace keydeck;

oif_GeneralField::oif_GeneralField(const FieldHandle& field, const cow_String& step, bool opMod,
                                   const cow_String& setName)
    : card_(field, step, opMod, setName) {}

qkw_Keyword* oif_GeneralField::Copy() const { return new oif_GeneralField(*this); }

void oif_GeneralField::Write(utl_Stream& s) const {
  s << "*Field";
  WriteFlag(s, "op=NEW", !card_.opMod);
  if (card_.deactivate) {
    s.LineBreak();
    return;
  }
  WriteParameter(s, "number=", RecordCast<kpfC_GeneralField>(*card_.field).number);
  // A step card pads no lines: only initial conditions line up their fields.
  WriteFieldTail(s, card_, [](utl_Stream& out, const cow_List<double>& values) {
    WriteFieldVariableValues(out, values, values.Size());
  });
}
