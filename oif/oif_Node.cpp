#include "oif/oif_Node.h"

#include "base/utl_Stream.h"
#include "model/database.h"

oif_Node::oif_Node(const ddb_PartInstance& instance, const qkw_ModelInfo&)
    : hasNodeData_(true), nodeData_(instance.mesh().nodeData()) {}

oif_Node::oif_Node(const ddb_Assembly& assembly, const qkw_ModelInfo&)
    : hasNodeData_(assembly.hasMesh()) {
  if (hasNodeData_)
    nodeData_ = assembly.mesh().nodeData();
}

qkw_Keyword* oif_Node::Copy() const { return new oif_Node(*this); }

void oif_Node::WriteDataLine(utl_Stream& s, const int& label, const float& x, const float& y,
                             float z) const {
  s.Print(label, 7) << ", ";
  s.Print(x, 12, 7) << ", ";
  s.Print(y, 12, 7);
  if (threeDimensional_) {
    s << ", ";
    s.Print(z, 12, 7);
  }
  s << "\n";
}

void oif_Node::Write(utl_Stream& s) const {
  if (!hasNodeData_ || nodeData_.NumNodes() == 0)
    return;
  s << "*Node" << endl;
  const utl_StreamSmallReal smallReals(s, smallRealThreshold_);
  const cow_List<int>& labels = nodeData_.UserNodeLabels();
  const uti_CoordCont3D& coordinates = nodeData_.CoordContainer();
  for (int i = 0; i < labels.Size(); ++i) {
    const uti_Coord3D& point = coordinates.UncheckedConstGet(i);
    WriteDataLine(s, labels.UncheckedConstGet(i), point[0], point[1], point[2]);
  }
  s.Flush();
}
