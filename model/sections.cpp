#include "model/sections.h"

using keydeck::RecordFault;

namespace {

using MaterialRefs = std::vector<std::pair<std::string, cow_String>>;

void AddLayerMaterials(const cow_List<kseC_Layer>& layers, MaterialRefs& out) {
  for (int i = 0; i < layers.Size(); ++i)
    out.emplace_back("layers/" + std::to_string(i) + "/material", layers.ConstGet(i).material);
}

} // namespace

std::optional<RecordFault> LayersFault(const cow_List<kseC_Layer>& layers) {
  if (!layers.Empty())
    return std::nullopt;
  return RecordFault{"layers", "a composite section needs at least one layer"};
}

void kseC_Section::Materials(MaterialRefs&) const {}

void kseC_HomogenousSolidSection::Materials(MaterialRefs& out) const {
  out.emplace_back("material", material);
}

void kseC_CompositeSolidSection::Materials(MaterialRefs& out) const {
  AddLayerMaterials(layers, out);
}

void kseC_TrussSection::Materials(MaterialRefs& out) const {
  out.emplace_back("material", material);
}

std::optional<RecordFault> kseC_ShellSection::CheckData() const {
  if (temperatureKind != TemperaturePoints || numTempPoints > 0)
    return std::nullopt;
  return RecordFault{"temperaturePoints",
                     "temperature at points needs 1 or more temperature points"};
}

void kseC_ShellSection::Materials(MaterialRefs& out) const {
  if (!rebarLayers)
    return;
  for (int i = 0; i < rebarLayers->layers.Size(); ++i)
    out.emplace_back("rebar/layers/" + std::to_string(i) + "/material",
                     rebarLayers->layers.ConstGet(i).material);
}

void kseC_HomogenousShellSection::Materials(MaterialRefs& out) const {
  out.emplace_back("material", material);
  kseC_ShellSection::Materials(out);
}

std::optional<RecordFault> kseC_CompositeShellSection::CheckData() const {
  if (std::optional<RecordFault> fault = LayersFault(layers))
    return fault;
  return kseC_ShellSection::CheckData();
}

void kseC_CompositeShellSection::Materials(MaterialRefs& out) const {
  AddLayerMaterials(layers, out);
  kseC_ShellSection::Materials(out);
}

void kseC_MembraneSection::Materials(MaterialRefs& out) const {
  out.emplace_back("material", material);
}

std::optional<RecordFault> kseC_BeamSection::CheckData() const {
  if (integration == DuringAnalysis && material.Empty())
    return RecordFault{"material", "a beam section integrated during the analysis needs a "
                                   "material"};
  if (sectionPoints.Rows() > 0 && sectionPoints.Cols() != 2)
    return RecordFault{"sectionPoints", "a section point is a row of two coordinates, found " +
                                            std::to_string(sectionPoints.Cols()) + " values"};
  return std::nullopt;
}

void kseC_BeamSection::Materials(MaterialRefs& out) const {
  if (integration == DuringAnalysis)
    out.emplace_back("material", material);
}

void kseC_GasketSection::Materials(MaterialRefs& out) const {
  if (!material.Empty())
    out.emplace_back("material", material);
}
