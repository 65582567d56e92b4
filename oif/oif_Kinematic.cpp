#include "oif/oif_Kinematic.h"

#include "base/utl_Stream.h"

qkw_Keyword* oif_Kinematic::Copy() const { return new oif_Kinematic(*this); }

void oif_Kinematic::Write(utl_Stream& s) const {
  s << "*Kinematic" << endl;
  keydeck::WriteCouplingDofs(s, coupling_);
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
