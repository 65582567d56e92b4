#pragma once

#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

/// "*Plastic" and the cards that hang on it. A table with a strain-rate
/// column is written as one "*Plastic, rate=" block per rate, in ascending
/// order of rate; such blocks carry no hardening parameters. User hardening
/// writes its constants, the first column of the table, as one row with
/// "properties=". Otherwise the table follows as a dependent table. The
/// companions come last: "*Rate Dependent", "*Potential",
/// "*Cyclic Hardening", "*Ornl", "*Cycled Plastic", "*Anneal Temperature".
class oif_Plastic : public qkw_Keyword {
public:
  explicit oif_Plastic(const kmaC_Plastic& record) : record_(record) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  void WriteRateTables(utl_Stream& s) const;
  void WriteUserHardening(utl_Stream& s) const;
  void WriteHardeningTable(utl_Stream& s) const;
  void WriteHardeningParameters(utl_Stream& s) const;
  /// The first column of `table` as one row, eight values to a line.
  void WriteTable(const kmaC_MaterialTable& table, utl_Stream& s) const;

  kmaC_Plastic record_;
};
