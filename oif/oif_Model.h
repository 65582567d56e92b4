#pragma once

#include "model/database.h"
#include "qkw/qkw_Model.h"

/// The model facade over one database model: a thin forwarding layer that
/// holds no record and keeps no cache beyond the names of the first steps.
class oif_Model : public qkw_Model {
public:
  oif_Model(const ddb_Model& model, const cow_String& description);
  oif_Model(const oif_Model&) = default;

  const ddb_Model& Model() const { return model_; }
  const ddb_PartContainer& Parts() const { return model_.part(); }
  const ddb_InstanceContainer& Instances() const { return model_.rootAssembly().instance(); }
  /// The materials, in ascending order of name.
  const mdl_MapString2ObjCow<kmaC_Material>& Materials() const { return model_.material(); }
  /// The sections, in ascending order of name.
  const mdl_MapString2ObjCow<kseC_Section>& Sections() const { return model_.sections(); }
  const mdl_MapString2ObjCow<kbpC_BeamProfile>& BeamProfiles() const { return model_.profiles(); }
  /// The amplitudes, in ascending order of name.
  const mdl_MapString2ObjCow<kamC_Amplitude>& Amplitudes() const { return model_.amplitudes(); }
  /// The boundary conditions, in ascending order of name.
  const kprC_PropagatingContainer<kbcC_BC>& BCs() const { return model_.boundaryConditions(); }
  /// The loads, in ascending order of name.
  const kprC_PropagatingContainer<kloC_Load>& Loads() const { return model_.loads(); }
  /// The constraints, in ascending order of name.
  const mdl_MapString2ObjCow<kcoC_Constraint>& Constraints() const { return model_.constraints_; }
  /// The predefined fields, in ascending order of name.
  const kprC_PropagatingContainer<kpfC_Field>& Fields() const { return model_.predefinedFields_; }
  /// The field and the history output requests, in ascending order of name.
  const kprC_PropagatingContainer<korC_FieldOutput>& FieldOutputs() const {
    return model_.fieldOutputs_;
  }
  const kprC_PropagatingContainer<korC_HistoryOutput>& HistoryOutputs() const {
    return model_.historyOutputs_;
  }

  const kprC_StepContainer& Steps() const override { return model_.step().container(); }
  double AbsoluteZero() const override { return model_.absoluteZero(); }
  double StefanBoltzmann() const override { return model_.stefanBoltzmann(); }
  cow_String RestartJob() const override { return model_.restartJob(); }
  cow_String RestartStep() const override { return model_.restartStep(); }
  int RestartIncrement() const override { return model_.restartIncrement(); }
  bool EndRestartStep() const override { return model_.endRestartStep(); }
  cow_String GlobalJob() const override { return model_.globalJob(); }
  bool ShellToSolid() const override { return model_.shellToSolid(); }
  qkw_Model* Copy() const override { return new oif_Model(*this); }

private:
  void FindFirstSteps();

  ddb_Model model_;
};

namespace keydeck {

/// The facade behind a builder's `qkw_Model`: in this library always an
/// `oif_Model`, built by `oif_ModelInfo`.
inline const oif_Model& FacadeOf(const qkw_Model& model) {
  return static_cast<const oif_Model&>(model);
}

} // namespace keydeck
