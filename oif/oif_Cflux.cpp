#include "oif/oif_Cflux.h"

using namespace keydeck;

oif_Cflux::oif_Cflux(const LoadHandle& load, const cow_String& step, bool opMod,
                     const cow_String& setName, double scale)
    : card_(load, step, opMod, setName, scale) {
  if (load->DynTypeId() == kloC_ConcentratedHeatFlux::TypeId())
    dof_ = RecordCast<kloC_ConcentratedHeatFlux>(*load).dof;
  else
    dof_ = RecordCast<kloC_ConcentratedConcentrationFlux>(*load).dof;
}

qkw_Keyword* oif_Cflux::Copy() const { return new oif_Cflux(*this); }

void oif_Cflux::Write(utl_Stream& s) const {
  WriteFluxForm(s, "*Cflux", card_, ", " + cow_String(dof_) + ", ");
}
