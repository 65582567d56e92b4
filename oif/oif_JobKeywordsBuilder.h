#pragma once

#include "qkw/qkw_BuilderComponent.h"

class oif_ModelInfo;

/// Files the model's top-level solver text, which stands above all cards.
class oif_JobKeywordsBuilder : public qkw_BuilderComponent {
public:
  explicit oif_JobKeywordsBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;
};
