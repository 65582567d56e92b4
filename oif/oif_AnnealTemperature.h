#pragma once

#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

/// "*Anneal Temperature": the temperature over field variables; the record
/// has no temperature column, so no blank is inserted.
class oif_AnnealTemperature : public qkw_Keyword {
public:
  explicit oif_AnnealTemperature(const kmaC_AnnealTemperature& record) : record_(record) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kmaC_AnnealTemperature record_;
};
