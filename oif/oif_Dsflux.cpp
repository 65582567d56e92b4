#include "oif/oif_Dsflux.h"

qkw_Keyword* oif_Dsflux::Copy() const { return new oif_Dsflux(*this); }

void oif_Dsflux::Write(utl_Stream& s) const {
  keydeck::WriteFluxForm(s, "*Dsflux", card_,
                         keydeck::DistributionOf(*card_.load) == kloC_UserDefined ? ", SNU, "
                                                                                  : ", S, ");
}
