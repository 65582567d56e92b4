#include "oif/oif_RebarLayer.h"

#include "base/utl_Stream.h"
#include "oif/oif_Parameters.h"
#include "qkw/qkw_QuorvexName.h"

#include <algorithm>

qkw_Keyword* oif_RebarLayer::Copy() const { return new oif_RebarLayer(*this); }

void oif_RebarLayer::Write(utl_Stream& s) const {
  const cow_List<kseC_RebarLayer>& layers = rebar_.layers;
  const auto ownDirections = [](const kseC_RebarLayer& layer) {
    return layer.orientationName.Empty();
  };
  if (std::any_of(layers.begin(), layers.end(), ownDirections)) {
    WriteKeywordLine(s, orientationName_);
    for (const kseC_RebarLayer& layer : layers)
      if (ownDirections(layer))
        WriteLayer(s, layer, /*withAngle=*/true);
  }
  for (const kseC_RebarLayer& layer : layers) {
    if (ownDirections(layer))
      continue;
    WriteKeywordLine(s, layer.orientationName);
    WriteLayer(s, layer, /*withAngle=*/false);
  }
}

void oif_RebarLayer::WriteKeywordLine(utl_Stream& s, const cow_String& orientationName) const {
  s << "*Rebar Layer";
  keydeck::WriteFlag(s, "angular spacing", rebar_.spacingKind == kseC_RebarLayers::AngularSpacing);
  if (!orientationName.Empty())
    keydeck::WriteParameter(s, "orientation=", qkw_QuorvexName(orientationName, false));
  s << endl;
}

// A layer with an orientation of its own takes its angle from that
// orientation, so its angle field stays empty.
void oif_RebarLayer::WriteLayer(utl_Stream& s, const kseC_RebarLayer& layer, bool withAngle) const {
  s << qkw_QuorvexName(layer.name, false) << ", " << layer.area << ", "
    << (rebar_.spacingKind != kseC_RebarLayers::ConstantSpacing ? layer.angularSpacing
                                                                : layer.spacing)
    << ", ";
  if (!noAngle_)
    s << layer.position;
  s << ", " << qkw_QuorvexName(layer.material, false) << ", ";
  if (withAngle)
    s << layer.rebarOrientation;
  s << ", 1" << endl;
}
