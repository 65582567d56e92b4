#pragma once

#include "oif/oif_LoadCards.h"
#include "qkw/qkw_Keyword.h"

/// "*Connector Load" of a connector force (components 1 to 3) or moment (4
/// to 6): the lines of "*Cload", without a follower option.
class oif_ConnectorLoad : public qkw_Keyword {
public:
  oif_ConnectorLoad(const keydeck::LoadHandle& load, const cow_String& setName,
                    const cow_String& step, bool opMod, double scale)
      : card_(load, step, opMod, setName, scale) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  keydeck::LoadCardState card_;
};
