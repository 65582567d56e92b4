#pragma once

#include "oif/oif_BeamSectionCommon.h"
#include "qkw/qkw_Keyword.h"

/// "*Beam Section": a beam section integrated during the analysis, with its
/// material and temperature variation on the keyword line.
class oif_BeamSection : public oif_BeamSectionCommon, public qkw_Keyword {
public:
  oif_BeamSection(const cow_String& elsetName, const kseC_Section& section,
                  const gsl_Vector& direction, const kbpC_BeamProfile* profile)
      : oif_BeamSectionCommon("*Beam Section", elsetName, section, direction, profile) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override { WriteData(s); }

private:
  void WriteTempData(utl_Stream& s) const override;
  void WriteMaterialBehavior(utl_Stream& s) const override;
};
