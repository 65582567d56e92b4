#pragma once

#include "qkw/qkw_BuilderComponent.h"

class cow_String;
class kamC_Amplitude;
class oif_ModelInfo;

/// Files the model's amplitudes in the model definitions, in ascending order
/// of name: each an "*Amplitude" card, followed by its "*Baseline
/// Correction" where a tabular or equally spaced amplitude has one.
class oif_AmplitudeBuilder : public qkw_BuilderComponent {
public:
  explicit oif_AmplitudeBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;

private:
  void CreateAmplitude(const kamC_Amplitude& record, const cow_String& name);
};
