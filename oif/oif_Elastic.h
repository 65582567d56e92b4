#pragma once

#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

/// "*Elastic": the elastic moduli over temperature and field variables, then
/// "*Fail Strain" and "*Fail Stress" when given (strain first), then the
/// lines "*No Compression" and "*No Tension" when set.
class oif_Elastic : public qkw_Keyword {
public:
  /// `hasViscoelastic`: the material also has a viscoelastic behaviour; only
  /// then does the card say whether its moduli are long-term or instantaneous.
  oif_Elastic(const kmaC_Elastic& record, bool hasViscoelastic)
      : record_(record), hasViscoelastic_(hasViscoelastic) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kmaC_Elastic record_;
  bool hasViscoelastic_;
};
