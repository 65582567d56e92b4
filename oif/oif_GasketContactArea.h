#pragma once

#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

/// "*Gasket contact area" and its table. Its "dependencies=" stands at the
/// start of the first data line, in front of the table, not on the keyword
/// line: the deck has settled on that for this card.
class oif_GasketContactArea : public qkw_Keyword {
public:
  explicit oif_GasketContactArea(const kmaC_ContactArea& record) : record_(record) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kmaC_ContactArea record_;
};
