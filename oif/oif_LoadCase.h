#pragma once

#include "base/cow_String.h"
#include "qkw/qkw_Keyword.h"

/// "*Load Case, name=" and the load case's name, quoted as needed.
class oif_LoadCase : public qkw_Keyword {
public:
  explicit oif_LoadCase(const cow_String& name) : name_(name) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  cow_String name_;
};
