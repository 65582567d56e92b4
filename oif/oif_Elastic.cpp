#include "oif/oif_Elastic.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_TableCards.h"

using namespace keydeck;

qkw_Keyword* oif_Elastic::Copy() const { return new oif_Elastic(*this); }

void oif_Elastic::Write(utl_Stream& s) const {
  s << "*Elastic";
  WriteDependencies(s, record_.dependencies);
  WriteParameter(s, "type=", record_.type, kmaC_Elastic::Isotropic);
  if (hasViscoelastic_)
    WriteParameter(s, "moduli=", record_.moduli != 0 ? "LONG TERM" : "INSTANTANEOUS");
  s.LineBreak();
  WriteDependentTable(s, record_.table, record_.dependencies, record_.temperatureDependency);
  WriteIfPresent<oif_FailStrain>(s, record_.failStrain);
  WriteIfPresent<oif_FailStress>(s, record_.failStress);
  if (record_.noCompression)
    s << "*No Compression" << endl;
  if (record_.noTension)
    s << "*No Tension" << endl;
}
