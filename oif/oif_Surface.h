#pragma once

#include "base/cow_COW.h"
#include "base/cow_List.h"
#include "base/cow_Map.h"
#include "base/cow_String.h"
#include "qkw/qkw_Keyword.h"

class ddb_Assembly;
class ddb_PartInstance;
class qkw_ModelInfo;
class rgnC_SetData;

/// "*Surface": an element-based surface is written as one internal element
/// set per face label ("_NAME_S1") and the surface's lines that pair those
/// sets with their face labels; a surface on the assembly carries one
/// sub-surface per instance, and all their sets stand before its one
/// "*Surface" line. A node-based surface names its node sets.
class oif_Surface : public qkw_Keyword {
public:
  /// A facet set of an instance, written inside the instance's block.
  oif_Surface(const rgnC_SetData& setData, const ddb_PartInstance& instance);
  /// A facet set of the assembly: one sub-surface per instance it touches.
  oif_Surface(const rgnC_SetData& setData, const ddb_Assembly& assembly);
  /// A node-based surface on one node set, whose name arrives quoted as needed.
  oif_Surface(const qkw_ModelInfo& info, const cow_String& surfaceName,
              const cow_String& nodeSetName);

  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  oif_Surface(const rgnC_SetData& setData, const ddb_PartInstance& instance,
              const cow_String& instanceName);

  /// Labels grouped by face name, faces in the map's own order.
  cow_Map<cow_String, cow_List<int>> LabelsByFace() const;
  void WriteSurfaceFromKeywords(utl_Stream& s) const;
  void WriteSurfaceFromLabels(utl_Stream& s) const;
  void WriteSurfaceFromList(utl_Stream& s) const;
  void WriteSurfaceElsets(utl_Stream& s) const;
  void WriteSurfaceKeyword(utl_Stream& s) const;
  void WriteSurfaceDatalines(utl_Stream& s) const;
  cow_String FaceSetName(const cow_String& face) const;

  cow_String name_;
  cow_String instanceName_;
  cow_List<int> labels_;
  cow_List<cow_String> faceNames_;
  bool internal_ = false;
  cow_List<cow_String> nodeSetNames_;
  cow_List<oif_Surface> subSurfaces_;
};
