#pragma once

#include "base/cow_COW.h"
#include "base/cow_Map.h"
#include "base/cow_String.h"
#include "qkw/qkw_Keyword.h"

/// The title comment of a builder's block ("** ", "** LOADS", "** "), held by
/// the builder and asked for before each of its cards: the first request in
/// the assembly, in the model and in each step gets the title card, every
/// later one a blank card that writes nothing. So exactly one title stands
/// in each section and step, at that builder's first card there.
class oif_BlockHeader {
public:
  explicit oif_BlockHeader(const cow_String& title);

  const qkw_Keyword& AssyHeader();
  const qkw_Keyword& ModelHeader();
  const qkw_Keyword& StepHeader(const cow_String& stepName);

private:
  const qkw_Keyword& FirstTime(bool& done);

  cow_ArrayCOW<qkw_Keyword> header_;
  cow_ArrayCOW<qkw_Keyword> blank_;
  bool assemblyHeaderDone_ = false;
  bool modelHeaderDone_ = false;
  cow_Map<cow_String, int> stepsHeaded_;
};
