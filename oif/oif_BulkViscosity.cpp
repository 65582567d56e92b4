#include "oif/oif_BulkViscosity.h"

#include "base/utl_Stream.h"

using namespace keydeck;

qkw_Keyword* oif_BulkViscosity::Copy() const { return new oif_BulkViscosity(*this); }

static void WriteBulkViscosity(utl_Stream& s, const kprC_ExplicitOptions& options) {
  s << "*Bulk Viscosity" << endl;
  s << options.linearBulkViscosity << ", " << options.quadBulkViscosity << endl;
}

void oif_BulkViscosity::Write(utl_Stream& s) const {
  const unsigned id = step_->DynTypeId();
  if (id == kprC_ExplicitDynamicsStep::TypeId())
    WriteBulkViscosity(s, RecordCast<kprC_ExplicitDynamicsStep>(*step_));
  else if (id == kprC_TempDisplacementDynamicsStep::TypeId())
    WriteBulkViscosity(s, RecordCast<kprC_TempDisplacementDynamicsStep>(*step_));
}
