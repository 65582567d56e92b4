#pragma once

#include "oif/oif_FieldCards.h"
#include "qkw/qkw_Keyword.h"

/// "*Initial Conditions" of a field in the initial step: a temperature, a
/// field variable, or a velocity (along the axes or rotating about one).
/// Temperatures are padded to the model's temperature points, and the field
/// variables of a model all take as many data lines as the longest.
class oif_InitialConditions : public qkw_Keyword {
public:
  oif_InitialConditions(const keydeck::FieldHandle& field, const cow_String& step,
                        const cow_String& setName, int maxTempSize, int maxGenFieldSize);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  /// The keyword line.
  void WriteInitialConditionsCard(utl_Stream& s) const;
  /// ", USER" or ", file=" and its options, by the distribution.
  void WriteDistribution(utl_Stream& s, bool tolerances) const;
  /// The data lines of a temperature or field variable.
  template <class F> void WriteScalarData(utl_Stream& s, F&& writeValues) const;
  void WriteVelocityData(utl_Stream& s) const;

  keydeck::FieldHandle field_;
  cow_String step_;
  cow_String setName_;
  int maxTempSize_ = 1;
  int maxGenFieldSize_ = 0;
};
