#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "qkw/qkw_BuilderComponent.h"

class oif_ModelInfo;

/// Opens each part that an instance uses with its "*Part" line, once per
/// part however many instances share it; a part no instance uses is not
/// written.
class oif_PartBuilder : public qkw_BuilderComponent {
public:
  explicit oif_PartBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;

private:
  cow_List<cow_String> partsOpened_;
};
