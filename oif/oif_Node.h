#pragma once

#include "model/mesh.h"
#include "qkw/qkw_Keyword.h"

class ddb_Assembly;
class ddb_PartInstance;
class qkw_ModelInfo;

/// "*Node": the nodes of an instance's mesh or of the assembly's own mesh,
/// one line each: the label in 7 columns, then the coordinates in 12
/// columns with 7 significant digits. No nodes, no card.
class oif_Node : public qkw_Keyword {
public:
  oif_Node() = default;
  oif_Node(const ddb_PartInstance& instance, const qkw_ModelInfo& info);
  oif_Node(const ddb_Assembly& assembly, const qkw_ModelInfo& info);

  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

protected:
  /// One node line; a two-dimensional card leaves out z.
  void WriteDataLine(utl_Stream& s, const int& label, const float& x, const float& y,
                     float z) const;

private:
  bool threeDimensional_ = true;
  float smallRealThreshold_ = 0;
  bool hasNodeData_ = false;
  ddb_NodeData nodeData_; // cow lists inside: a copy shares the mesh's data
};
