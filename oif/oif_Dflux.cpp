#include "oif/oif_Dflux.h"

qkw_Keyword* oif_Dflux::Copy() const { return new oif_Dflux(*this); }

void oif_Dflux::Write(utl_Stream& s) const {
  keydeck::WriteFluxForm(s, "*Dflux", card_,
                         keydeck::DistributionOf(*card_.load) == kloC_UserDefined ? ", BFNU, "
                                                                                  : ", BF, ");
}
