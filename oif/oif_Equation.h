#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/constraints.h"
#include "qkw/qkw_Keyword.h"

class qkw_ModelInfo;

/// "*Equation": the number of terms, then one line per term: the node set,
/// the degree of freedom and the coefficient.
class oif_Equation : public qkw_Keyword {
public:
  oif_Equation(const kcoC_Equation& equation, const qkw_ModelInfo& info);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kcoC_Equation equation_;
  cow_List<cow_String> setNames_; ///< the deck names of the terms' sets, in their order
};
