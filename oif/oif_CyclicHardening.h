#pragma once

#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

/// "*Cyclic Hardening": the isotropic part of combined hardening, as a table
/// or, with "parameters", as the constants of its law.
class oif_CyclicHardening : public qkw_Keyword {
public:
  explicit oif_CyclicHardening(const kmaC_CyclicHardening& record) : record_(record) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  kmaC_CyclicHardening record_;
};
