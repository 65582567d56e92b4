#include "oif/oif_AssemblyElement.h"

#include "base/utl_Stream.h"
#include "model/database.h"
#include "oif/oif_ModelInfo.h"
#include "qkw/qkw_QuorvexName.h"

#include <utility>

oif_AssemblyElement::oif_AssemblyElement(const rgnC_Region& region, cow_String setName,
                                         oif_ModelInfo& info)
    : region_(region), setName_(std::move(setName)), info_(&info) {}

qkw_Keyword* oif_AssemblyElement::Copy() const { return new oif_AssemblyElement(*this); }

void oif_AssemblyElement::Write(utl_Stream& s) const {
  s << "*Element, type=CONN3D2";
  s.LineBreak();
  const ddb_Model& model = keydeck::FacadeOf(info_->Model()).Model();
  const rgnC_SetData& set = region_.ConstSet();
  for (int i = 0; i < set.NumSubsets(); ++i) {
    const rgnC_SubsetData& subset = set.SubSet(i);
    const ddb_Mesh& mesh = model.mesh(subset.MeshIndex());
    const ddb_ScopedNodeData nodes(mesh.nodeData());
    const ddb_ElementClass& elementClass = mesh.elementData().elementClass(subset.ClassIndex());
    const int perElement = elementClass.numNodesPerElement();
    const cow_List<int>& connectivity = elementClass.elementConnectivity();
    for (const int e : subset.indices) {
      s << elementClass.userElementLabelsAsFlatArray().ConstGet(e) << ", ";
      for (int j = 0; j < perElement; ++j) {
        const int node = connectivity.ConstGet(e * perElement + j);
        if (!nodes.isNativeNode(node))
          s << qkw_QuorvexName(nodes.getPartInstance(node), false) << ".";
        s << nodes.GetUserNodeLabel(static_cast<unsigned>(node));
        if (j + 1 < perElement)
          s << ", ";
      }
      s << endl;
    }
  }
}
