#include "oif/oif_BoundarySubmodelList.h"

#include "oif/oif_Boundary.h"
#include "oif/oif_Comment.h"
#include "oif/oif_RawKeyword.h"

void oif_BoundarySubmodelList::Append(const cow_String& step, const cow_String& name,
                                      const oif_Boundary& card) {
  if (!cards_.IsMember(step)) {
    cow_List<cow_ArrayCOW<qkw_Keyword>> cards;
    cards.Append(cow_ArrayCOW<qkw_Keyword>(oif_RawKeyword(card.BCSubmodelKwd())));
    cards_.Insert(step, cards);
    names_.Insert(step, cow_List<cow_String>());
  }
  cards_.Get(step).Append(cow_ArrayCOW<qkw_Keyword>(card));
  names_.Get(step).Append(name);
}

cow_List<cow_ArrayCOW<qkw_Keyword>>
oif_BoundarySubmodelList::Keywords(const cow_String& step) const {
  cow_List<cow_ArrayCOW<qkw_Keyword>> keywords;
  if (!names_.IsMember(step))
    return keywords;
  cow_String text = "Name: ";
  const cow_List<cow_String>& names = names_.ConstGet(step);
  for (int i = 0; i < names.Size(); ++i)
    text = text + (i == 0 ? "" : ", ") + names.ConstGet(i);
  keywords.Append(cow_ArrayCOW<qkw_Keyword>(oif_Comment(text + " Type: Submodel")));
  for (const cow_ArrayCOW<qkw_Keyword>& card : cards_.ConstGet(step))
    keywords.Append(card);
  return keywords;
}
