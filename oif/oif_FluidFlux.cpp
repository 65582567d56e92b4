#include "oif/oif_FluidFlux.h"

qkw_Keyword* oif_FluidFlux::Copy() const { return new oif_FluidFlux(*this); }

void oif_FluidFlux::Write(utl_Stream& s) const {
  keydeck::WriteFluxForm(s, "*Fluid Flux", card_, ", ");
}
