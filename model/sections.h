#pragma once

#include "base/cow_String.h"
#include "model/records.h"

/// A section of the model. The section families join one by one; until then
/// a model file with sections is refused, and only the gasket section is
/// known, for the materials that it turns into gasket behaviours.
class kseC_Section {
public:
  virtual ~kseC_Section() = default;
  virtual kseC_Section* Copy() const = 0;
  virtual unsigned DynTypeId() const = 0;
};

/// A gasket section: its material becomes a "*Gasket behavior".
class kseC_GasketSection : public kseC_Section {
public:
  kseC_Section* Copy() const override { return new kseC_GasketSection(*this); }
  static constexpr unsigned TypeId() { return keydeck::TypeIds::GasketSection; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  unsigned DynTypeId() const override { return TypeId(); }

  cow_String material; ///< empty when not set
};
