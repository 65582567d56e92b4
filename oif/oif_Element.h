#pragma once

#include "base/cow_String.h"
#include "model/mesh.h"
#include "qkw/qkw_Keyword.h"

/// The elements of one element class: their labels and connectivity by node
/// label, the first line holding the label and 15 nodes, each later line 16.
/// It comes in three forms: a literal one-element card, a class under its
/// own "*Element" line, and a class whose "*Element" line another card wrote.
class oif_Element : public qkw_Keyword {
public:
  /// A literal card: "*Element, type=" and one line "first, second".
  oif_Element(int first, int second, const cow_String& type, const cow_String& elset);
  /// A class under its own "*Element" line, with ", elset=" when one is given.
  oif_Element(int first, int second, const ddb_ElementClass& elementClass, const cow_String& elset);
  /// A class of a mesh, written without a keyword line.
  oif_Element(int first, int second, const ddb_ElementClass& elementClass, const ddb_Mesh& mesh,
              bool unused);

  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

protected:
  /// The data lines of the class: each node index replaced by its label; an
  /// index outside the mesh's nodes raises.
  void WriteConnectivity(utl_Stream& s, const cow_List<int>& nodeLabels) const;

private:
  int first_;
  int second_;
  ddb_ElementClass elementClass_;
  ddb_Mesh mesh_;
  cow_String elset_;
  bool literalCard_ = false;
  bool writeHeader_ = false;
  cow_String type_;
};
