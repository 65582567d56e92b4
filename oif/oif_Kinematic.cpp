#include "oif/oif_Kinematic.h"

#include "base/utl_Stream.h"
#include "oif/oif_ConstraintCards.h"

qkw_Keyword* oif_Kinematic::Copy() const { return new oif_Kinematic(*this); }

void oif_Kinematic::Write(utl_Stream& s) const {
  s << "*Kinematic" << endl;
  keydeck::WriteCouplingDofs(s, coupling_);
}
