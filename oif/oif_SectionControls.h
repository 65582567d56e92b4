#pragma once

#include "base/cow_String.h"
#include "model/element_controls.h"
#include "qkw/qkw_Keyword.h"

/// "*Section Controls": named element controls that section cards refer to.
/// Controls at their defaults for the job's solver library write nothing.
class oif_SectionControls : public qkw_Keyword {
public:
  /// `standardProduct`: the job is for the implicit solver alone (library 1;
  /// otherwise the explicit solver's library 2 decides what is a default).
  oif_SectionControls(const bme_ElemCtrlParams& params, const cow_String& name,
                      bool standardProduct)
      : name_(name), standardProduct_(standardProduct), params_(params) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;
  bool IsEmpty() const override;

private:
  void WriteParameters(utl_Stream& s) const;

  cow_String name_;
  bool standardProduct_;
  bme_ElemCtrlParams params_;
};
