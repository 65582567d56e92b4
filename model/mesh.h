#pragma once

#include "base/cow_2DArray.h"
#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/element_controls.h"
#include "model/element_types.h"
#include "model/regions.h"

#include <array>
#include <optional>

/// Coordinates of one node; the mesh keeps them in single precision.
using uti_Coord3D = std::array<float, 3>;
using uti_CoordCont3D = cow_List<uti_Coord3D>;

/// The nodes of one mesh: user labels and coordinates, by node index.
class ddb_NodeData {
public:
  int NumNodes() const { return labels.Size(); }
  const uti_CoordCont3D& CoordContainer() const { return coordinates; }
  void GetUserNodeLabels(cow_List<int>& out) const { out = labels; }
  const cow_List<int>& UserNodeLabels() const { return labels; }
  int GetUserNodeLabel(unsigned index) const { return labels.ConstGet(static_cast<int>(index)); }

  template <class V> void Fields(V& v) {
    v({"labels", "the node labels, integers of 1 or more, each used once in the part"}, labels);
    v({"coordinates", "the x, y, z coordinates of each node, in the order of labels"}, coordinates);
  }

  cow_List<int> labels;
  uti_CoordCont3D coordinates;
  // Derived after loading, in the assembly's mesh only: nodes of instances
  // that the assembly's elements use. They follow the mesh's own nodes in
  // the node indices: index NumNodes() + k is the k-th of them.
  cow_List<int> scopedLabels;
  cow_List<cow_String> scopedInstances;
};

/// The nodes of a mesh together with the instance nodes that its elements
/// reach: the view of the assembly's mesh that connector lines need.
class ddb_ScopedNodeData {
public:
  explicit ddb_ScopedNodeData(const ddb_NodeData& nodes) : nodes_(nodes) {}
  /// True for a node of the mesh itself, false for a node of an instance.
  bool isNativeNode(int index) const { return index < nodes_.NumNodes(); }
  /// The instance of a node that is not native.
  const cow_String& getPartInstance(int index) const {
    return nodes_.scopedInstances.ConstGet(index - nodes_.NumNodes());
  }
  int GetUserNodeLabel(unsigned index) const {
    const int i = static_cast<int>(index);
    return isNativeNode(i) ? nodes_.labels.ConstGet(i)
                           : nodes_.scopedLabels.ConstGet(i - nodes_.NumNodes());
  }

private:
  const ddb_NodeData& nodes_;
};

/// The elements of one type in a mesh: user labels and connectivity.
/// The file gives the connectivity by node label; after loading,
/// `elementConnectivity()` holds node indices, row by row.
class ddb_ElementClass {
public:
  static constexpr const char* Description = "elements of one type: labels and connectivity";
  const cow_String& elementTypeLabel() const { return type; }
  int numElements() const { return labels.Size(); }
  int numNodesPerElement() const { return connectivity.Cols(); }
  /// Node indices into the mesh's node data, numElements() rows of
  /// numNodesPerElement() each.
  const cow_List<int>& elementConnectivity() const { return nodeIndices; }
  const cow_List<int>& userElementLabelsAsFlatArray() const { return labels; }
  shp_Shape shape() const { return keydeck::ShapeOfElementType(type); }

  template <class V> void Fields(V& v) {
    v({"type", "the element type of the deck, such as C3D8R or S4R (case-sensitive)"}, type);
    v({"labels", "the element labels, integers of 1 or more, each used once in the part"}, labels);
    v({"connectivity",
       "the node labels of each element, one row per element in the order of labels"},
      connectivity);
    v({"controls", "the element controls of these elements; the solver's own when left out"},
      controls, std::nullopt);
  }
  /// The element controls, the solver's own when the file gives none.
  bme_ElemCtrlParams GetElemControlParams() const {
    return controls.value_or(bme_ElemCtrlParams());
  }

  cow_String type;
  cow_List<int> labels;
  cow_2DArray<int> connectivity; ///< node labels, one row per element, as in the file
  cow_List<int> nodeIndices;     ///< derived after loading from `connectivity`
  std::optional<bme_ElemCtrlParams> controls;
};

/// The element classes of one mesh, in file order.
class ddb_ElementData {
public:
  int numClasses() const { return classes.Size(); }
  const ddb_ElementClass& elementClass(int i) const { return classes.ConstGet(i); }
  int numElements() const {
    int count = 0;
    for (const ddb_ElementClass& elementClass : classes)
      count += elementClass.numElements();
    return count;
  }

  cow_List<ddb_ElementClass> classes;
};

/// A mesh as the writer sees it: node and element data, shared between the
/// part and its instances, and the mesh index that tells whose mesh it is.
class ddb_Mesh {
public:
  int meshIndex() const { return index; }
  const ddb_NodeData& nodeData() const { return nodes; }
  const ddb_ElementData& elementData() const { return elements; }
  const ddb_SetList& set() const { return sets; }

  int index = 0;
  ddb_NodeData nodes; // cow lists inside: a copy shares them
  ddb_ElementData elements;
  ddb_SetList sets;
};
