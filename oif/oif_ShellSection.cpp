#include "oif/oif_ShellSection.h"

#include "base/nex_Exception.h"
#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_RebarLayer.h"
#include "qkw/qkw_QuorvexName.h"

namespace {

void WriteRebar(utl_Stream& s, const kseC_ShellSection& shell) {
  if (shell.rebarLayers)
    oif_RebarLayer(*shell.rebarLayers, cow_String(), false).Write(s);
}

} // namespace

qkw_Keyword* oif_ShellSection::Copy() const { return new oif_ShellSection(*this); }

void oif_ShellSection::Write(utl_Stream& s) const {
  switch (section_->DynTypeId()) {
  case kseC_HomogenousShellSection::TypeId():
    WriteHomogeneous(s, keydeck::RecordCast<kseC_HomogenousShellSection>(*section_));
    return;
  case kseC_CompositeShellSection::TypeId():
    WriteComposite(s, keydeck::RecordCast<kseC_CompositeShellSection>(*section_));
    return;
  case kseC_UserShellSection::TypeId():
    WriteUserShell(s, keydeck::RecordCast<kseC_ShellSection>(*section_));
    return;
  case keydeck::TypeIds::ShellSectionWithoutCard:
    keydeck::Raise("Shell general section unimplemented");
  default:
    return;
  }
}

void oif_ShellSection::WriteHead(utl_Stream& s, const kseC_ShellSection& shell) const {
  s << (shell.general ? "*Shell General Section, elset=" : "*Shell Section, elset=") << elsetName_;
}

// The parameters that follow the material, or "composite", on both forms.
void oif_ShellSection::WriteOptions(utl_Stream& s, const kseC_ShellSection& shell) const {
  keydeck::WriteParameter(s, "section integration=", shell.integrationRule,
                          kseC_GeometryShellSection::DefaultRule);
  if (shell.PoissonDefined() != 0)
    keydeck::WriteParameter(s, "poisson=", shell.poisson);
  const bool modulusGiven = shell.thicknessModulus != keydeck::NotGivenDouble;
  if (modulusGiven && shell.thicknessModulus > 0)
    keydeck::WriteParameter(s, "thickness modulus=", shell.thicknessModulus);
  keydeck::WriteParameter(s, "offset=", offset_, 0.0);
  // The stack direction goes with a given thickness modulus, even one of 0.
  if (modulusGiven && !orientationName_.Empty())
    keydeck::WriteParameter(s, "stack direction=", "ORIENTATION");
}

void oif_ShellSection::WriteHomogeneous(utl_Stream& s,
                                        const kseC_HomogenousShellSection& shell) const {
  WriteHead(s, shell);
  keydeck::WriteParameter(s, "orientation=", orientationName_, cow_String());
  keydeck::WriteParameter(s, "controls=", controlsName_, cow_String());
  if (shell.temperatureKind == kseC_ShellSection::TemperaturePoints)
    keydeck::WriteParameter(s, "temperature=", shell.numTempPoints);
  keydeck::WriteParameter(s, "material=", qkw_QuorvexName(shell.material, false));
  WriteOptions(s, shell);
  s.LineBreak();
  // A general section's line ends in ", ": it has no integration points.
  s << shell.thickness << ", ";
  if (!shell.general)
    s << shell.numIntegrationPoints;
  s << endl;
  WriteRebar(s, shell);
}

void oif_ShellSection::WriteComposite(utl_Stream& s,
                                      const kseC_CompositeShellSection& shell) const {
  WriteHead(s, shell);
  keydeck::WriteFlag(s, "composite", true);
  keydeck::WriteParameter(s, "orientation=", orientationName_, cow_String());
  keydeck::WriteParameter(s, "controls=", controlsName_, cow_String());
  if (shell.temperatureKind == kseC_ShellSection::TemperaturePoints)
    keydeck::WriteParameter(s, "temperature=", shell.numTempPoints);
  WriteOptions(s, shell);
  s.LineBreak();
  for (const kseC_Layer& layer : shell.layers) {
    s << layer.thickness << ", ";
    if (!shell.general)
      s << layer.numIntegrationPoints;
    s << ", " << qkw_QuorvexName(layer.material, false) << ", ";
    if (layer.orientationName.Empty())
      s << layer.orientationAngle;
    else
      s << qkw_QuorvexName(layer.orientationName, false);
    s << endl;
  }
  WriteRebar(s, shell);
}

void oif_ShellSection::WriteUserShell(utl_Stream& s, const kseC_ShellSection& shell) const {
  s << "*Shell General Section, elset=" << elsetName_;
  keydeck::WriteParameter(s, "controls=", controlsName_, cow_String());
  keydeck::WriteFlag(s, "unsymm", !shell.symmetric);
  keydeck::Raise("Shell general section unimplemented");
}
