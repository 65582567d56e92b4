#include "oif/oif_RigidBody.h"

#include "base/utl_Stream.h"

oif_RigidBody::oif_RigidBody(const cow_String& refNode, const cow_String& elset,
                             const cow_String& pinNset, const cow_String& tieNset,
                             bool positionCenterOfMass, bool isothermal)
    : refNode_(refNode), elset_(elset), pinNset_(pinNset), tieNset_(tieNset),
      positionCenterOfMass_(positionCenterOfMass), isothermal_(isothermal) {}

qkw_Keyword* oif_RigidBody::Copy() const { return new oif_RigidBody(*this); }

namespace {

// ", " then a mark where the line may break, then the option.
void BreakableOption(utl_Stream& s, const char* option) {
  s << ", ";
  s.OptionalLineBreak();
  s << option;
}

} // namespace

void oif_RigidBody::Write(utl_Stream& s) const {
  s << "*Rigid Body, ref node=" << refNode_;
  if (!elset_.Empty())
    s << ", elset=" << elset_;
  if (!pinNset_.Empty()) {
    BreakableOption(s, "pin nset=");
    s << pinNset_;
  }
  if (!tieNset_.Empty()) {
    BreakableOption(s, "tie nset=");
    s << tieNset_;
  }
  if (positionCenterOfMass_)
    BreakableOption(s, "position=CENTER OF MASS");
  if (isothermal_)
    BreakableOption(s, "isothermal=YES");
  s << endl;
}
