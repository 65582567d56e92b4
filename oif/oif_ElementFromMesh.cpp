#include "oif/oif_ElementFromMesh.h"

#include "base/utl_Stream.h"
#include "oif/oif_Element.h"
#include "qkw/qkw_ModelInfo.h"

oif_ElementFromMesh::oif_ElementFromMesh(const ddb_PartInstance& instance,
                                         const qkw_ModelInfo& info)
    : info_(&info), instance_(instance) {}

qkw_Keyword* oif_ElementFromMesh::Copy() const { return new oif_ElementFromMesh(*this); }

void oif_ElementFromMesh::AddKeyword(const cow_String& type, const qkw_Keyword& card,
                                     CardsByType& byType) const {
  const cow_ArrayCOW<qkw_Keyword> handle(card);
  if (byType.IsMember(type))
    byType.Get(type).Append(handle);
  else
    byType.Insert(type, cow_List<cow_ArrayCOW<qkw_Keyword>>{handle});
}

void oif_ElementFromMesh::Write(utl_Stream& s) const {
  const ddb_ElementData& elements = instance_.elementData();
  const int elementOffset = info_->AssyElementOffsets(instance_.name());
  const int nodeOffset = info_->AssyNodeOffsets(instance_.name());
  CardsByType byType;
  for (int i = 0; i < elements.numClasses(); ++i) {
    const ddb_ElementClass& elementClass = elements.elementClass(i);
    const cow_String& type = elementClass.elementTypeLabel();
    if (type.Find("SURF") >= 0)
      continue;
    AddKeyword(type, oif_Element(elementOffset, nodeOffset, elementClass, instance_.mesh(), true),
               byType);
  }
  for (const auto& [type, cards] : byType) {
    s << "*Element, type=" << type << endl;
    for (const auto& card : cards)
      card->Write(s);
  }
  s.Flush();
}
