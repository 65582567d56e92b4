#include "oif/oif_SolutionTechnique.h"

#include "base/utl_Stream.h"

using namespace keydeck;

qkw_Keyword* oif_SolutionTechnique::Copy() const { return new oif_SolutionTechnique(*this); }

static kprC_SolutionTechniqueEnm TechniqueOf(const kprC_Step& step) {
  const unsigned id = step.DynTypeId();
  if (id == kprC_CoupledTempDisplacementStep::TypeId())
    return RecordCast<kprC_CoupledTempDisplacementStep>(step).solutionTechnique;
  if (id == kprC_CoupledThermalElectricStep::TypeId())
    return RecordCast<kprC_CoupledThermalElectricStep>(step).solutionTechnique;
  return kprC_FullNewton;
}

void oif_SolutionTechnique::Write(utl_Stream& s) const {
  if (TechniqueOf(*step_) == kprC_Separated)
    s << "*Solution Technique, type=SEPARATED" << endl;
}
