#include "oif/oif_SolidSection.h"

#include "base/nex_Exception.h"
#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "qkw/qkw_QuorvexName.h"

namespace {

// A layer line is one string of the values' default text, unlike the
// stream's numbers elsewhere, and its material is not quoted.
void WriteLayer(utl_Stream& s, const kseC_Layer& layer) {
  s << cow_String(layer.thickness) + ", " + cow_String(layer.numIntegrationPoints) + ", " +
           layer.material + ", " + cow_String(layer.orientationAngle)
    << endl;
}

void WriteLayers(utl_Stream& s, const kseC_CompositeSolidSection& section) {
  const cow_List<kseC_Layer>& layers = section.layers;
  for (const kseC_Layer& layer : layers)
    WriteLayer(s, layer);
  if (!section.symmetric || layers.Size() < 2)
    return;
  for (int i = layers.Size() - 1; i >= 0; --i)
    WriteLayer(s, layers.ConstGet(i));
}

} // namespace

qkw_Keyword* oif_SolidSection::Copy() const { return new oif_SolidSection(*this); }

void oif_SolidSection::Write(utl_Stream& s) const {
  const unsigned id = section_->DynTypeId();
  if (id == kseC_HomogenousSolidSection::TypeId() || id == kseC_CompositeSolidSection::TypeId())
    WriteSolid(s);
  else if (id == kseC_TrussSection::TypeId())
    WriteTruss(s, keydeck::RecordCast<kseC_TrussSection>(*section_));
  else
    keydeck::Raise("Neither solid nor truss section type");
}

void oif_SolidSection::WriteSolid(utl_Stream& s) const {
  const bool composite = section_->DynTypeId() == kseC_CompositeSolidSection::TypeId();
  s << "*Solid Section, elset=" << elsetName_;
  keydeck::WriteFlag(s, "composite", composite);
  keydeck::WriteParameter(s, "orientation=", orientationName_, cow_String());
  keydeck::WriteParameter(s, "controls=", controlsName_, cow_String());
  if (composite) {
    s.LineBreak();
    WriteLayers(s, keydeck::RecordCast<kseC_CompositeSolidSection>(*section_));
    return;
  }
  const auto& solid = keydeck::RecordCast<kseC_HomogenousSolidSection>(*section_);
  keydeck::WriteParameter(s, "material=", qkw_QuorvexName(solid.material, false));
  s.LineBreak();
  // The comma stands even with nothing behind it.
  s << solid.thickness << "," << endl;
}

void oif_SolidSection::WriteTruss(utl_Stream& s, const kseC_TrussSection& truss) const {
  s << "*Solid Section, elset=" << elsetName_;
  keydeck::WriteParameter(s, "material=", qkw_QuorvexName(truss.material, false));
  s.LineBreak();
  s << truss.area << "," << endl;
}
