#pragma once

#include "oif/oif_BeamSectionCommon.h"
#include "qkw/qkw_Keyword.h"

/// "*Beam General Section": a beam section given by its response before the
/// analysis: density and zero on the keyword line, the response rows after
/// the direction line, then damping, shear center, centroid and section
/// points. A generalized profile gives "section=GENERAL" and its properties.
class oif_BeamGeneralSection : public oif_BeamSectionCommon, public qkw_Keyword {
public:
  oif_BeamGeneralSection(const cow_String& elsetName, const kseC_Section& section,
                         const gsl_Vector& direction, const kbpC_BeamProfile* profile)
      : oif_BeamSectionCommon("*Beam General Section", elsetName, section, direction, profile) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override { WriteData(s); }

private:
  void WriteGeneralizedProfile(utl_Stream& s) const override;
  void WriteDensity(utl_Stream& s) const override;
  void WriteOptions(utl_Stream& s) const override;
  void WriteTempData(utl_Stream& s) const override;
  void WriteMaterialBehavior(utl_Stream& s) const override;
};
