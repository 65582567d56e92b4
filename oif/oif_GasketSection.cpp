#include "oif/oif_GasketSection.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "qkw/qkw_QuorvexName.h"

qkw_Keyword* oif_GasketSection::Copy() const { return new oif_GasketSection(*this); }

void oif_GasketSection::Write(utl_Stream& s) const {
  if (section_->DynTypeId() != kseC_GasketSection::TypeId())
    return;
  const kseC_GasketSection& section = keydeck::RecordCast<kseC_GasketSection>(*section_);
  s << "*Gasket Section, elset=" << elsetName_;
  s.OptionalLineBreak();
  s << (hasBehavior_ ? ", behavior=" : ", material=") << qkw_QuorvexName(section.material, false);
  if (!orientationName_.Empty())
    keydeck::WriteParameter(s, "orientation=", orientationName_);
  if (section.stabilizationStiffness != keydeck::NotGivenDouble) {
    s.OptionalLineBreak();
    s << ", stabilization stiffness=" << section.stabilizationStiffness;
  }
  s << endl;
  if (section.gasketValue2 != keydeck::NotGivenDouble)
    s << section.gasketValue2;
  s << ", " << section.gasketValue1 << ", " << section.gasketValue3 << ", " << section.gasketValue0
    << endl;
}
