#include "oif/oif_Set.h"

#include "base/utl_Stream.h"
#include "model/database.h"
#include "model/element_types.h"
#include "model/regions.h"
#include "oif/oif_SetName.h"

#include <algorithm>
#include <vector>

namespace {

/// Whether the labels at stepped indices step evenly too, as they do over
/// labels numbered in order.
bool LabelsStep(const keydeck::IndexList& indices, const cow_List<int>& labels) {
  const int count = indices.Size();
  const long long first = labels.UncheckedConstGet(indices.First());
  const long long step =
      count < 2 ? 0 : labels.UncheckedConstGet(indices.UncheckedConstGet(1)) - first;
  if (step != static_cast<int>(step))
    return false;
  for (int i = 2; i < count; ++i)
    if (labels.UncheckedConstGet(indices.UncheckedConstGet(i)) != first + i * step)
      return false;
  return true;
}

/// Whether every index lies inside a list of `size`.
bool AllInside(const keydeck::IndexList& indices, int size) {
  if (!indices.IsStepped())
    return std::all_of(indices.begin(), indices.end(),
                       [size](int index) { return index >= 0 && index < size; });
  const int last = indices.UncheckedConstGet(std::max(indices.Size() - 1, 0));
  return indices.Empty() ||
         (std::min(indices.First(), last) >= 0 && std::max(indices.First(), last) < size);
}

/// Appends the labels at `indices`; a range of them stays a range.
void AppendLabels(keydeck::IndexListBuilder& out, const keydeck::IndexList& indices,
                  const cow_List<int>& labels) {
  if (indices.IsStepped() && indices.Size() > 2 && AllInside(indices, labels.Size()) &&
      LabelsStep(indices, labels)) {
    const int first = labels.UncheckedConstGet(indices.First());
    return out.AppendStepped(first, labels.UncheckedConstGet(indices.UncheckedConstGet(1)) - first,
                             indices.Size());
  }
  for (const int index : indices)
    out.Append(labels.ConstGet(index));
}

} // namespace

oif_Set::oif_Set(const rgnC_SetData& setData, const ddb_Assembly& assembly) {
  if (assembly.hasMesh())
    ComputeData(setData, assembly.mesh());
}

oif_Set::oif_Set(const rgnC_SetData& setData, const ddb_PartInstance& instance) {
  ComputeData(setData, instance.mesh());
}

void oif_Set::ComputeData(const rgnC_SetData& setData, const ddb_Mesh& mesh) {
  switch (setData.SetType()) {
  case res_NodeSet:
    return AddNodes(setData, mesh);
  case res_ElementSet:
    return AddElements(setData, mesh);
  case res_FacetSet:
    return AddFacets(setData, mesh);
  }
}

void oif_Set::AddNodes(const rgnC_SetData& setData, const ddb_Mesh& mesh) {
  const cow_List<int>& nodeLabels = mesh.nodeData().UserNodeLabels();
  keydeck::IndexListBuilder labels;
  for (int i = 0; i < setData.NumSubsets(); ++i) {
    const rgnC_SubsetData& subset = setData.SubSet(i);
    if (subset.MeshIndex() != mesh.meshIndex())
      continue;
    if (AllInside(subset.indices, nodeLabels.Size())) {
      AppendLabels(labels, subset.indices, nodeLabels);
      continue;
    }
    for (const int index : subset.indices)
      if (index >= 0 && index < nodeLabels.Size()) // an index outside the mesh is dropped
        labels.Append(nodeLabels.UncheckedConstGet(index));
  }
  labels_ = labels.Take();
}

void oif_Set::AddElements(const rgnC_SetData& setData, const ddb_Mesh& mesh) {
  keydeck::IndexListBuilder labels;
  for (int i = 0; i < setData.NumSubsets(); ++i) {
    const rgnC_SubsetData& subset = setData.SubSet(i);
    if (subset.MeshIndex() != mesh.meshIndex() || subset.ClassIndex() < 0)
      continue;
    const cow_List<int>& elementLabels =
        mesh.elementData().elementClass(subset.ClassIndex()).userElementLabelsAsFlatArray();
    AppendLabels(labels, subset.indices, elementLabels);
  }
  labels_ = labels.Take();
}

void oif_Set::AddFacets(const rgnC_SetData& setData, const ddb_Mesh& mesh) {
  keydeck::IndexListBuilder labels;
  for (int i = 0; i < setData.NumSubsets(); ++i) {
    const rgnC_SubsetData& subset = setData.SubSet(i);
    if (subset.MeshIndex() != mesh.meshIndex() || subset.ClassIndex() < 0 || subset.indices.Empty())
      continue;
    const ddb_ElementClass& elementClass = mesh.elementData().elementClass(subset.ClassIndex());
    const cow_List<int>& elementLabels = elementClass.userElementLabelsAsFlatArray();
    const shp_Shape shape = elementClass.shape();
    const bool bySide = (shape.elementDimension == 2 && shape.spaceDimension == 3) || shape.shell;
    const char* const prefix =
        shape.elementDimension == 1 ? "END"
        : shape.elementDimension == 3 || (shape.elementDimension == 2 && shape.spaceDimension == 2)
            ? "S"
            : "";
    for (int j = 0; j < subset.indices.Size(); ++j) {
      const int facet = subset.facetIds.ConstGet(j);
      labels.Append(elementLabels.ConstGet(subset.indices.UncheckedConstGet(j)));
      if (!bySide) {
        faceNames_.Append(prefix + cow_String(facet + 1));
        continue;
      }
      // Sides of a shell: any other facet id adds no face name, on purpose.
      if (facet == 0)
        faceNames_.Append("SPOS");
      else if (facet == 1)
        faceNames_.Append("SNEG");
      else if (facet == 6)
        faceNames_.Append(cow_String());
    }
  }
  labels_ = labels.Take();
}

void oif_Set::SortUnique() {
  if (labels_.IsStepped()) { // sorted already, or backwards, or one label repeated
    const int step = labels_.Step();
    const int count = step == 0 ? std::min(labels_.Size(), 1) : labels_.Size();
    const int lowest = step < 0 ? labels_.UncheckedConstGet(count - 1) : labels_.First();
    labels_ = keydeck::IndexList::Stepped(lowest, step < 0 ? -step : step, count);
    return;
  }
  std::vector<int> labels(labels_.begin(), labels_.end());
  std::sort(labels.begin(), labels.end());
  labels.erase(std::unique(labels.begin(), labels.end()), labels.end());
  keydeck::IndexListBuilder sorted;
  for (const int label : labels)
    sorted.Append(label);
  labels_ = sorted.Take();
}

bool oif_Set::CanGenerate() {
  SortUnique();
  return generate_ = labels_.IsStepped() && labels_.Size() >= 3;
}

void oif_Set::WriteData(utl_Stream& s) const {
  if (generate_) {
    s << labels_.First() << ", " << labels_.UncheckedConstGet(labels_.Size() - 1) << ", "
      << labels_.Step() << endl;
    return;
  }
  const int count = labels_.Size();
  for (int p = 1; p <= count; ++p) {
    s << labels_.UncheckedConstGet(p - 1);
    if (p % 16 == 0)
      s << "\n";
    else if (p == count)
      s << (p % 16 == 1 ? ", \n" : "\n"); // a lone label on the last line keeps a comma
    else
      s << ",";
  }
  s.Flush();
}

void oif_Set::WriteMemberSets(utl_Stream& s, const cow_List<cow_String>& members) {
  for (const cow_String& member : members)
    s << oif_SetName::QuoteIfNeeded(member) << ", " << endl; // "instance.set" stays scoped
}
