#pragma once

#include "base/cow_String.h"
#include "oif/oif_DatumCsys.h"
#include "qkw/qkw_Keyword.h"

/// "*Transform": the nodes of a node set take their degrees of freedom in a
/// datum coordinate system. A null datum writes nothing.
class oif_Transform : public qkw_Keyword {
public:
  oif_Transform(const ddb_Model& model, const dtmC_DatumRef& datum, const cow_String& nset);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String nset_;
  oif_DatumCsys csys_;
};
