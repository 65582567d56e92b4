#pragma once

#include "base/cow_String.h"
#include "base/mdl_MapString2ObjCow.h"

class ddb_Model;
class kloC_Load;
class kprC_StepContainer;

/// The read-only view of one model that builders and cards use. It works
/// out the names of the first steps once, and gives each kind of model
/// record one accessor with a stable result type, so that no builder knows
/// how the database stores it.
class qkw_Model {
public:
  explicit qkw_Model(const cow_String& description) : description_(description) {}
  virtual ~qkw_Model() = default;

  /// The first step of the model; empty for a model without steps.
  const cow_String& InitialStepName() const { return initialStepName_; }
  /// The second step, the first analysis step; empty when there is none.
  const cow_String& FirstAnalysisStepName() const { return firstAnalysisStepName_; }
  /// The first analysis step that is not a linear perturbation; empty when
  /// every analysis step is one.
  const cow_String& FirstGeneralAnalysisStepName() const { return firstGeneralAnalysisStepName_; }

  virtual const kprC_StepContainer& Steps() const = 0;
  /// The loads, in ascending order of name.
  virtual const mdl_MapString2ObjCow<kloC_Load>& Loads() const = 0;
  virtual double AbsoluteZero() const = 0;
  virtual double StefanBoltzmann() const = 0;
  virtual cow_String RestartJob() const = 0;
  virtual cow_String RestartStep() const = 0;
  virtual int RestartIncrement() const = 0;
  virtual bool EndRestartStep() const = 0;
  virtual cow_String GlobalJob() const = 0;
  virtual bool ShellToSolid() const = 0;
  /// Always empty, whatever description the constructor received.
  virtual cow_String Description() const { return cow_String(); }
  /// A heap copy of the most derived facade.
  virtual qkw_Model* Copy() const = 0;

protected:
  qkw_Model(const qkw_Model&) = default;

  cow_String description_;
  cow_String initialStepName_;
  cow_String firstAnalysisStepName_;
  cow_String firstGeneralAnalysisStepName_;
};
