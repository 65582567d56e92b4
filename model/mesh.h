#pragma once

#include "base/cow_2DArray.h"
#include "base/cow_List.h"
#include "base/cow_String.h"

#include <array>

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
    v("labels", labels);
    v("coordinates", coordinates);
  }

  cow_List<int> labels;
  uti_CoordCont3D coordinates;
};

/// The elements of one type in a mesh: user labels and connectivity.
/// The file gives the connectivity by node label; after loading,
/// `elementConnectivity()` holds node indices, row by row.
class ddb_ElementClass {
public:
  const cow_String& elementTypeLabel() const { return type; }
  int numElements() const { return labels.Size(); }
  int numNodesPerElement() const { return connectivity.Cols(); }
  /// Node indices into the mesh's node data, numElements() rows of
  /// numNodesPerElement() each.
  const cow_List<int>& elementConnectivity() const { return nodeIndices; }
  const cow_List<int>& userElementLabelsAsFlatArray() const { return labels; }

  template <class V> void Fields(V& v) {
    v("type", type);
    v("labels", labels);
    v("connectivity", connectivity);
  }

  cow_String type;
  cow_List<int> labels;
  cow_2DArray<int> connectivity; ///< node labels, one row per element, as in the file
  cow_List<int> nodeIndices;     ///< derived after loading from `connectivity`
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

  int index = 0;
  ddb_NodeData nodes;       // cow lists inside: a copy shares them
  ddb_ElementData elements;
};
