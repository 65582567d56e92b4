#pragma once

#include "base/cow_String.h"
#include "model/regions.h"
#include "qkw/qkw_Keyword.h"

class oif_ModelInfo;

/// "*Element, type=CONN3D2": the wires of a connector region in the
/// assembly, one line each: the element label, then its nodes, each a plain
/// label of the assembly's own nodes or "instance.label" for a node of an
/// instance. The set name is kept but not written: the labels link the
/// elements to their sets.
class oif_AssemblyElement : public qkw_Keyword {
public:
  oif_AssemblyElement(const rgnC_Region& region, cow_String setName, oif_ModelInfo& info);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  rgnC_Region region_;
  cow_String setName_;
  const oif_ModelInfo* info_;
};
