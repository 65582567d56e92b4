#include "oif/oif_Surface.h"

#include "base/utl_Stream.h"
#include "model/database.h"
#include "model/regions.h"
#include "oif/oif_Set.h"
#include "qkw/qkw_QuorvexName.h"

oif_Surface::oif_Surface(const rgnC_SetData& setData, const ddb_PartInstance& instance)
    : oif_Surface(setData, instance, cow_String()) {}

oif_Surface::oif_Surface(const rgnC_SetData& setData, const ddb_PartInstance& instance,
                         const cow_String& instanceName)
    : name_(setData.Name()), instanceName_(instanceName), internal_(setData.Internal()) {
  const oif_Set set(setData, instance);
  labels_ = set.Labels();
  faceNames_ = set.FaceList();
}

oif_Surface::oif_Surface(const rgnC_SetData& setData, const ddb_Assembly& assembly)
    : name_(setData.Name()), internal_(setData.Internal()) {
  cow_List<cow_String> instancesDone;
  for (int i = 0; i < setData.NumSubsets(); ++i) {
    const int meshIndex = setData.SubSet(i).MeshIndex();
    for (const auto& [key, instance] : assembly.instance()) {
      if (!instance->IsPartInstance())
        continue;
      const ddb_PartInstance& partInstance = keydeck::RecordCast<ddb_PartInstance>(*instance);
      if (partInstance.mesh().meshIndex() == meshIndex && instancesDone.AppendUnlessMember(key))
        subSurfaces_.Append(oif_Surface(setData, partInstance, key));
    }
  }
}

oif_Surface::oif_Surface(const qkw_ModelInfo&, const cow_String& surfaceName,
                         const cow_String& nodeSetName)
    : name_(surfaceName), nodeSetNames_{nodeSetName} {}

qkw_Keyword* oif_Surface::Copy() const { return new oif_Surface(*this); }

void oif_Surface::Write(utl_Stream& s) const {
  if (!labels_.Empty())
    WriteSurfaceFromLabels(s);
  else if (!nodeSetNames_.Empty())
    WriteSurfaceFromList(s);
  else if (!subSurfaces_.Empty())
    WriteSurfaceFromKeywords(s);
}

void oif_Surface::WriteSurfaceFromLabels(utl_Stream& s) const {
  WriteSurfaceElsets(s);
  WriteSurfaceKeyword(s);
  WriteSurfaceDatalines(s);
}

void oif_Surface::WriteSurfaceFromList(utl_Stream& s) const {
  s << "*Surface, type=NODE, name=" << qkw_QuorvexName(name_, false);
  if (internal_)
    s << ", internal";
  s << endl;
  for (const cow_String& nodeSet : nodeSetNames_)
    s << nodeSet << ", " << 1.0 << endl; // the name arrives quoted as needed
}

void oif_Surface::WriteSurfaceFromKeywords(utl_Stream& s) const {
  for (const oif_Surface& sub : subSurfaces_)
    sub.WriteSurfaceElsets(s);
  WriteSurfaceKeyword(s);
  for (const oif_Surface& sub : subSurfaces_)
    sub.WriteSurfaceDatalines(s);
}

void oif_Surface::WriteSurfaceKeyword(utl_Stream& s) const {
  s << "*Surface, type=ELEMENT, name=" << qkw_QuorvexName(name_, false);
  if (internal_)
    s << ", internal";
  s << endl;
}

cow_Map<cow_String, cow_List<int>> oif_Surface::LabelsByFace() const {
  cow_Map<cow_String, cow_List<int>> byFace;
  for (int i = 0; i < labels_.Size(); ++i) {
    const cow_String& face = faceNames_.ConstGet(i); // raises when the faces lost step
    if (byFace.IsMember(face))
      byFace.Get(face).Append(labels_.UncheckedConstGet(i));
    else
      byFace.Insert(face, cow_List<int>{labels_.UncheckedConstGet(i)});
  }
  return byFace;
}

cow_String oif_Surface::FaceSetName(const cow_String& face) const {
  return "_" + name_ + "_" + face;
}

void oif_Surface::WriteSurfaceElsets(utl_Stream& s) const {
  for (const auto& [face, labels] : LabelsByFace()) {
    oif_Set set(labels);
    s << "*Elset, elset=" << qkw_QuorvexName(FaceSetName(face), false);
    if (!instanceName_.Empty())
      s << ", instance=" << qkw_QuorvexName(instanceName_, false);
    s << ", internal";
    if (set.CanGenerate())
      s << ", generate";
    s << endl;
    set.WriteData(s);
  }
}

void oif_Surface::WriteSurfaceDatalines(utl_Stream& s) const {
  for (const auto& [face, labels] : LabelsByFace())
    s << qkw_QuorvexName(FaceSetName(face), false) << ", " << face << endl;
}
