#include "oif/oif_ConstraintCards.h"

#include "base/utl_Stream.h"

utl_Stream& keydeck::WriteBreakableOption(utl_Stream& s, const char* option) {
  s << ", ";
  s.OptionalLineBreak();
  return s << option;
}

void keydeck::WriteCouplingDofs(utl_Stream& s, const kcoC_Coupling& coupling) {
  const bool dofs[] = {coupling.u1,  coupling.u2,  coupling.u3,
                       coupling.ur1, coupling.ur2, coupling.ur3};
  if (dofs[0] && dofs[1] && dofs[2] && dofs[3] && dofs[4] && dofs[5])
    return;
  for (int dof = 1; dof <= 6; ++dof)
    if (dofs[dof - 1])
      s << dof << ", " << dof << endl;
}
