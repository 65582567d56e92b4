#pragma once

#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

/// "*Gasket elasticity" of a gasket material, in one of two kinds: membrane
/// elasticity ("component=MEMBRANE") or transverse shear elasticity
/// ("variable=FORCE" when it is given per unit force). Its table is written
/// as it is.
class oif_GasketElasticity : public qkw_Keyword {
public:
  explicit oif_GasketElasticity(const kmaC_MembraneElastic& record)
      : membrane_(true), dependencies_(record.dependencies), table_(record.table) {}
  explicit oif_GasketElasticity(const kmaC_TransShearElastic& record)
      : membrane_(false), variable_(record.variable), dependencies_(record.dependencies),
        table_(record.table) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  bool membrane_;
  int variable_ = 0;
  int dependencies_;
  kmaC_MaterialTable table_;
};
