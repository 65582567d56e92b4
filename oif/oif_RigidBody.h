#pragma once

#include "base/cow_String.h"
#include "qkw/qkw_Keyword.h"

/// "*Rigid Body": the reference node and the regions that move with it, by
/// their deck names; an empty name leaves its option out. No data line.
class oif_RigidBody : public qkw_Keyword {
public:
  oif_RigidBody(const cow_String& refNode, const cow_String& elset, const cow_String& pinNset,
                const cow_String& tieNset, bool positionCenterOfMass, bool isothermal);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String refNode_;
  cow_String elset_;
  cow_String pinNset_;
  cow_String tieNset_;
  bool positionCenterOfMass_;
  bool isothermal_;
};
