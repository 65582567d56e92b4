#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/regions.h"

class ddb_Assembly;
class ddb_Mesh;
class ddb_PartInstance;
class utl_Stream;

/// The data of a set card: a set's members turned into user labels (and,
/// for a facet set, face names), the test for the generate form, and the
/// data lines. Labels that step evenly, as those of a range usually do, are
/// held as a range from the model to the deck.
class oif_Set {
public:
  /// The labels as given; no face names.
  explicit oif_Set(const keydeck::IndexList& labels) : labels_(labels) {}
  /// The members of the set in the assembly's own mesh; none without one.
  oif_Set(const rgnC_SetData& setData, const ddb_Assembly& assembly);
  /// The members of the set in the instance's mesh.
  oif_Set(const rgnC_SetData& setData, const ddb_PartInstance& instance);

  /// Sorts the labels and drops duplicates, then tells whether they are at
  /// least three in arithmetic progression, so the set can be written as
  /// "first, last, step".
  bool CanGenerate();
  /// The generate line, or the labels sixteen to a line.
  void WriteData(utl_Stream& s) const;
  /// The labels as the cards keep them.
  const keydeck::IndexList& Members() const { return labels_; }
  /// The labels spelt out.
  cow_List<int> Labels() const { return labels_.List(); }
  /// For a facet set, the face name of each label.
  const cow_List<cow_String> FaceList() const { return faceNames_; }
  /// The data lines of a set made of other sets: one member's name a line,
  /// each followed by ", ". A member "instance.set" keeps its scope: each
  /// piece is quoted by itself, as needed.
  static void WriteMemberSets(utl_Stream& s, const cow_List<cow_String>& members);

private:
  void ComputeData(const rgnC_SetData& setData, const ddb_Mesh& mesh);
  void AddNodes(const rgnC_SetData& setData, const ddb_Mesh& mesh);
  void AddElements(const rgnC_SetData& setData, const ddb_Mesh& mesh);
  void AddFacets(const rgnC_SetData& setData, const ddb_Mesh& mesh);
  void SortUnique();

  keydeck::IndexList labels_;
  cow_List<cow_String> faceNames_;
  bool generate_ = false;
};
