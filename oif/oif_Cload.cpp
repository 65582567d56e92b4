#include "oif/oif_Cload.h"

#include "base/nex_Exception.h"
#include "base/utl_Stream.h"

using namespace keydeck;

oif_Cload::oif_Cload(const LoadHandle& load, const cow_String& step, bool opMod,
                     const cow_String& setName, double scale)
    : card_(load, step, opMod, setName, scale) {
  if (load->DynTypeId() == kloC_ConcentratedForce::TypeId())
    follower_ = RecordCast<kloC_ConcentratedForce>(*load).follower;
  else if (load->DynTypeId() == kloC_Moment::TypeId())
    follower_ = RecordCast<kloC_Moment>(*load).follower;
}

qkw_Keyword* oif_Cload::Copy() const { return new oif_Cload(*this); }

void oif_Cload::Write(utl_Stream& s) const {
  if (card_.deactivate) {
    WriteCloadCard(s, 0, false);
    return;
  }
  switch (card_.load->DynTypeId()) {
  case kloC_ConcentratedForceType:
    WriteVectorLoad(s, "*Cload", card_, follower_, {"1", "2", "3"});
    return;
  case kloC_MomentType:
    WriteVectorLoad(s, "*Cload", card_, follower_, {"4", "5", "6"});
    return;
  case kloC_PEGLoadType:
    WriteVectorLoad(s, "*Cload", card_, follower_, {"3", "4", "5"});
    return;
  case kloC_BoltLoadType:
    WriteBoltLoad(s);
    return;
  case kloC_ConcentratedPoreFluidType:
    WriteDof8(s, /*complexAllowed=*/false);
    return;
  case kloC_InwardVolAccelType:
    WriteDof8(s, /*complexAllowed=*/true);
    return;
  default:
    Raise("\"Invalid load type for *Cload\" == 0");
  }
}

void oif_Cload::WriteCloadCard(utl_Stream& s, int loadCase, bool follower) const {
  WriteConcentratedCard(s, "*Cload", card_, loadCase, follower);
}

void oif_Cload::WriteBoltLoad(utl_Stream& s) const {
  const kloC_BoltLoadState& state =
      RecordCast<kloC_BoltLoad>(*card_.load).ConstGetState(card_.step);
  WriteCloadCard(s, 0, false);
  // A method that turns to a length condition leaves the force card empty:
  // the boundary condition takes over.
  if (card_.status == PropModified && state.method.IsModified() && state.method.ConstGet() != 0)
    return;
  if (card_.Writes(state.magnitude.State()))
    WriteBaseData(s, card_, "1", state.magnitude.ConstGet(), /*lineBreak=*/true,
                  /*forceZero=*/true);
}

void oif_Cload::WriteDof8(utl_Stream& s, bool complexAllowed) const {
  const kloC_MagnitudeState& state = MagnitudeStateOf(*card_.load, card_.step);
  if (state.imaginary.IsActive()) {
    if (!complexAllowed)
      Raise("\"Concentrated pore fluid load cannot be complex\" == 0");
    ForEachComplexPass(state, [&](int pass, double part) {
      WriteCloadCard(s, pass, false);
      WriteBaseData(s, card_, "8", part, /*lineBreak=*/true, /*forceZero=*/false);
    });
    return;
  }
  WriteCloadCard(s, 0, false);
  WriteBaseData(s, card_, "8", state.magnitude.ConstGet(), /*lineBreak=*/true, /*forceZero=*/true);
}
