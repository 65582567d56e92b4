#pragma once

#include "base/cow_COW.h"
#include "base/cow_String.h"
#include "model/boundary_conditions.h"
#include "qkw/qkw_Keyword.h"

namespace keydeck {
struct BoundaryCardWriter;
}

/// The "*Boundary" cards of one boundary condition in one step. A condition
/// written in place (`opMod`) writes only the degrees of freedom its step
/// sets, unless its amplitude changed there, which rewrites them all; a
/// deactivated one writes the bare keyword line. A submodel condition
/// driven from a global step shares its keyword line with the others of its
/// step (`IsBCSubmodel`, `BCSubmodelKwd`).
class oif_Boundary : public qkw_Keyword {
public:
  /// `factor` scales every value (a load case's scale); `initialStepName`
  /// is the model's first step.
  oif_Boundary(const kbcC_BC& bc, const cow_String& name, const cow_String& step, bool opMod,
               const cow_String& setName, bool shellToSolid, const cow_String& initialStepName,
               double factor);
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

  bool IsBCSubmodel() const { return isSubmodel_; }
  /// The keyword line of a submodel condition: "*Boundary", op=NEW, fixed,
  /// and the global step it is driven from.
  const cow_String& BCSubmodelKwd() const { return submodelHead_; }
  /// A name that begins with "__basename__" without that prefix; any other
  /// name as it is.
  static cow_String FixBCNameHack(const cow_String& name);

private:
  keydeck::BoundaryCardWriter CardWriter() const;
  /// The procedure of the step that set the state in force, or 0.
  unsigned Procedure() const;
  void WriteDeactivated(utl_Stream& s) const;
  void WriteDisplacement(utl_Stream& s) const;
  void WriteMotion(utl_Stream& s, const char* typeWord) const;
  void WriteType(utl_Stream& s) const;
  void WriteTemperature(utl_Stream& s) const;
  void WriteDistributed(utl_Stream& s) const;
  void WriteSubmodel(utl_Stream& s) const;
  void CheckForSubmodelBC();

  cow_ArrayCOW<kbcC_BC> bc_;
  cow_String step_;
  cow_String setName_;
  cow_String amplitude_;
  bool opNew_;
  bool deactivate_ = false;
  bool modifiedOnly_;
  cow_String name_;
  bool isSubmodel_ = false;
  cow_String submodelHead_;
  bool shellToSolid_;
  double factor_;
  cow_String initialStepName_;
};
