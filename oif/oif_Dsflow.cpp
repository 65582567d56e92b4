#include "oif/oif_Dsflow.h"

qkw_Keyword* oif_Dsflow::Copy() const { return new oif_Dsflow(*this); }

void oif_Dsflow::Write(utl_Stream& s) const {
  keydeck::WriteFluxForm(s, "*Dsflow", card_,
                         keydeck::DistributionOf(*card_.load) == kloC_UserDefined ? ", SNU, "
                                                                                  : ", S, ");
}
