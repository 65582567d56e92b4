#pragma once

#include "base/cow_COW.h"
#include "base/cow_String.h"
#include "model/boundary_conditions.h"
#include "qkw/qkw_Keyword.h"

namespace keydeck {
struct BoundaryCardWriter;
}

/// The "*Connector Motion" cards of one connector boundary condition in one
/// step: as "*Boundary", with one component number per data line and no
/// base name.
class oif_ConnectorMotion : public qkw_Keyword {
public:
  oif_ConnectorMotion(const kbcC_ConnectorBC& bc, const cow_String& name, const cow_String& step,
                      bool opMod, const cow_String& setName, double factor);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  keydeck::BoundaryCardWriter CardWriter() const;
  unsigned Procedure() const;

  cow_ArrayCOW<kbcC_BC> bc_;
  cow_String name_;
  cow_String step_;
  cow_String setName_;
  cow_String amplitude_;
  bool opNew_;
  bool deactivate_ = false;
  bool modifiedOnly_;
  double factor_;
};
