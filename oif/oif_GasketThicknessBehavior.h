#pragma once

#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

/// "*Gasket Thickness Behavior": the gasket's pressure against closure in
/// loading, then, when the record has unloading rows, a second block with
/// "direction=UNLOADING", then "*Gasket contact area" when the behaviour is
/// given per unit force and has a contact area. The tables are written as
/// they are. One field holds the yield onset ("yield onset=", always written
/// when set) or else the slope drop ("slope drop=", left out at 0.1).
class oif_GasketThicknessBehavior : public qkw_Keyword {
public:
  explicit oif_GasketThicknessBehavior(const kmaC_ThicknessBehavior& record) : record_(record) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  void WriteUnloading(utl_Stream& s) const;

  kmaC_ThicknessBehavior record_;
};
