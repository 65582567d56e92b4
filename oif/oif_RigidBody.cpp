#include "oif/oif_RigidBody.h"

#include "base/utl_Stream.h"
#include "oif/oif_ConstraintCards.h"

oif_RigidBody::oif_RigidBody(const cow_String& refNode, const cow_String& elset,
                             const cow_String& pinNset, const cow_String& tieNset,
                             bool positionCenterOfMass, bool isothermal)
    : refNode_(refNode), elset_(elset), pinNset_(pinNset), tieNset_(tieNset),
      positionCenterOfMass_(positionCenterOfMass), isothermal_(isothermal) {}

qkw_Keyword* oif_RigidBody::Copy() const { return new oif_RigidBody(*this); }

void oif_RigidBody::Write(utl_Stream& s) const {
  s << "*Rigid Body, ref node=" << refNode_;
  if (!elset_.Empty())
    s << ", elset=" << elset_;
  if (!pinNset_.Empty())
    keydeck::WriteBreakableOption(s, "pin nset=") << pinNset_;
  if (!tieNset_.Empty())
    keydeck::WriteBreakableOption(s, "tie nset=") << tieNset_;
  if (positionCenterOfMass_)
    keydeck::WriteBreakableOption(s, "position=CENTER OF MASS");
  if (isothermal_)
    keydeck::WriteBreakableOption(s, "isothermal=YES");
  s << endl;
}
