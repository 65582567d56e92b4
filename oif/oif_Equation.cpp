#include "oif/oif_Equation.h"

#include "base/utl_Stream.h"
#include "oif/oif_SetName.h"

oif_Equation::oif_Equation(const kcoC_Equation& equation, const qkw_ModelInfo& info)
    : equation_(equation) {
  for (const kcoC_EquationTerm& term : equation.terms)
    setNames_.Append(oif_SetName(term.region, info).UniqueSetName(oif_SetName::AssemblyScope));
}

qkw_Keyword* oif_Equation::Copy() const { return new oif_Equation(*this); }

void oif_Equation::Write(utl_Stream& s) const {
  s << "*Equation" << endl << equation_.terms.Size() << endl;
  for (int i = 0; i < equation_.terms.Size(); ++i) {
    const kcoC_EquationTerm& term = equation_.terms.ConstGet(i);
    s << setNames_.ConstGet(i) << ", " << term.dof << ", " << term.coefficient << endl;
  }
}
