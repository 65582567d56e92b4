#include "oif/oif_GasketThicknessBehavior.h"

#include "base/utl_Stream.h"
#include "oif/oif_GasketContactArea.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_TableCards.h"

using namespace keydeck;

qkw_Keyword* oif_GasketThicknessBehavior::Copy() const {
  return new oif_GasketThicknessBehavior(*this);
}

void oif_GasketThicknessBehavior::Write(utl_Stream& s) const {
  s << "*Gasket Thickness Behavior";
  WriteParameter(s, "dependencies=", record_.dependencies, 0);
  WriteParameter(s, "tensile stiffness factor=", record_.tensileStiffnessFactor,
                 kmaC_ThicknessBehavior::tensileStiffnessFactorDef);
  WriteFlag(s, "type=DAMAGE", record_.damage);
  WriteParameter(s, "variable=", record_.variable, kmaC_ThicknessBehavior::Stress);
  if (record_.yieldOnset)
    WriteParameter(s, "yield onset=", record_.yieldValue);
  else
    WriteParameter(s, "slope drop=", record_.yieldValue, kmaC_ThicknessBehavior::yieldValueDef);
  s.LineBreak();
  WritePlainTable(s, record_.loading);
  if (record_.unloading.Rows() > 0)
    WriteUnloading(s);
  if (record_.variable == kmaC_ThicknessBehavior::Force)
    WriteIfPresent<oif_GasketContactArea>(s, record_.contactArea);
}

void oif_GasketThicknessBehavior::WriteUnloading(utl_Stream& s) const {
  s << "*Gasket Thickness Behavior, direction=UNLOADING";
  WriteParameter(s, "dependencies=", record_.unloadingDependencies, 0);
  WriteFlag(s, "type=DAMAGE", record_.damage);
  WriteParameter(s, "variable=", record_.variable, kmaC_ThicknessBehavior::Stress);
  s.LineBreak();
  WritePlainTable(s, record_.unloading);
}
