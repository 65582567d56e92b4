#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"

/// What a set selects.
enum res_SetTypeEnm : int {
  res_NodeSet = 0,
  res_ElementSet = 1,
  res_FacetSet = 2,
};

/// The members of a set in one element class of one mesh (or, for a node
/// set, in one mesh): indices into the mesh's node or element lists, and for
/// a facet set the facet id of each entry (0-based face number; for a shell
/// 0 is the positive side, 1 the negative side).
class rgnC_SubsetData {
public:
  int MeshIndex() const { return meshIndex; }
  int ClassIndex() const { return classIndex; }
  int Size() const { return indices.Size(); }
  void Subset(cow_List<int>& out) const { out = indices; }
  void FacetIds(cow_List<int>& out) const { out = facetIds; }

  int meshIndex = 0;
  int classIndex = -1; ///< -1 for a node subset
  cow_List<int> indices;
  cow_List<int> facetIds;
};

/// A set as the database stores it: its name, what it selects, and its
/// members by mesh and element class.
class rgnC_SetData {
public:
  const cow_String& Name() const { return name; }
  res_SetTypeEnm SetType() const { return type; }
  bool Internal() const { return internal; }
  int NumSubsets() const { return subsets.Size(); }
  const rgnC_SubsetData& SubSet(int i) const { return subsets.ConstGet(i); }

  cow_String name;
  res_SetTypeEnm type = res_NodeSet;
  bool internal = false;
  cow_List<rgnC_SubsetData> subsets;
};

/// A named set of a mesh or of the assembly.
class ddb_Set {
public:
  const cow_String& setLabel() const { return data.name; }
  res_SetTypeEnm setType() const { return data.type; }
  const rgnC_SetData& set() const { return data; }

  rgnC_SetData data;
};

using ddb_SetList = cow_List<ddb_Set>;

/// A reference from a record to a set: the set's place in the database as a
/// path ("rootAssembly.setData" for a set of the assembly,
/// "rootAssembly.mesh[N].setData" for a set of the mesh of index N), its
/// index in that set list, and a copy of its data (cow lists: cheap). A
/// region without a set has an empty path.
class rgnC_Region {
public:
  bool HasSet() const { return !path.Empty(); }
  const cow_String& Path() const { return path; }
  int SetIndex() const { return setIndex; }
  const rgnC_SetData& ConstSet() const { return set; }
  friend bool operator==(const rgnC_Region& a, const rgnC_Region& b) {
    return a.path == b.path && a.setIndex == b.setIndex;
  }

  cow_String path;
  int setIndex = -1;
  rgnC_SetData set;
};
