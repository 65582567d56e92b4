#include "oif/oif_BoundaryForBoltLoad.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"

using namespace keydeck;

oif_BoundaryForBoltLoad::oif_BoundaryForBoltLoad(const LoadHandle& load, const cow_String& step,
                                                 const cow_String& setName, bool opMod,
                                                 double scale)
    : setName_(setName), opMod_(opMod) {
  const kloC_BoltLoadState& state = RecordCast<kloC_BoltLoad>(*load).ConstGetState(step);
  method_ = state.method.ConstGet();
  adjustment_ = state.magnitude.ConstGet() * scale;
  deactivate_ = load->Status(step) == PropDeactivated || method_ == kloC_ApplyForce;
  if (deactivate_)
    opMod_ = false;
}

qkw_Keyword* oif_BoundaryForBoltLoad::Copy() const { return new oif_BoundaryForBoltLoad(*this); }

void oif_BoundaryForBoltLoad::Write(utl_Stream& s) const {
  s << "*Boundary";
  WriteFlag(s, "op=NEW", !opMod_);
  if (deactivate_) {
    s.LineBreak();
    return;
  }
  WriteFlag(s, "fixed", method_ == kloC_FixLength);
  s.LineBreak();
  s << setName_ << ", 1, 1";
  // The sign of the adjustment does not matter to the solver here.
  if (method_ == kloC_AdjustLength && adjustment_ != 0)
    s << ", " << adjustment_;
  s.LineBreak();
}
