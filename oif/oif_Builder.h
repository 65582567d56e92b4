#pragma once

#include "base/cow_COW.h"
#include "base/cow_List.h"
#include "base/cow_String.h"
#include "oif/oif_AmplitudeBuilder.h"
#include "oif/oif_BoundaryConditionBuilder.h"
#include "oif/oif_ConstraintBuilder.h"
#include "oif/oif_FieldBuilder.h"
#include "oif/oif_FinalBuilder.h"
#include "oif/oif_InstanceBuilder.h"
#include "oif/oif_JobKeywordsBuilder.h"
#include "oif/oif_LoadBuilder.h"
#include "oif/oif_MaterialBuilder.h"
#include "oif/oif_OutputRequestBuilder.h"
#include "oif/oif_PartAttributesBuilder.h"
#include "oif/oif_PartBuilder.h"
#include "oif/oif_RegionBuilder.h"
#include "oif/oif_StepBuilder.h"
#include "oif/oif_TransformBuilder.h"
#include "qkw/qkw_BuilderComponent.h"

class oif_Model;
class oif_ModelInfo;
class qio_ostream;
class utl_Stream;

namespace keydeck {

/// Seconds spent in the two phases of one deck, for the command's `-v`.
struct DeckPhaseTimes {
  double build = 0;
  double write = 0;
};

} // namespace keydeck

/// Runs the builders and writes the deck: every builder's `Build` once, in
/// the build order, then the cards of their slots in deck order: job
/// keywords, parts, instances, assembly, model, steps.
class oif_Builder {
public:
  explicit oif_Builder(oif_ModelInfo& info);
  oif_Builder(const oif_Builder&) = delete;
  oif_Builder& operator=(const oif_Builder&) = delete;

  /// Removes any older file of that name, then writes the deck to it. The
  /// file is made new: when something else takes the name in between (a
  /// symlink, say), nothing is followed or overwritten and the call fails.
  /// False when the file cannot be opened (nothing is built then); a failure
  /// while building or writing raises, and leaves what was written so far.
  /// `times`, when given, receives the time of each phase.
  bool WriteInputFile(const cow_String& fileName, keydeck::DeckPhaseTimes* times = nullptr);
  /// Builds the deck and writes it to `os`, then closes `os`; a failure
  /// raises.
  void WriteInputFile(qio_ostream& os, keydeck::DeckPhaseTimes* times = nullptr);

private:
  using BuilderList = cow_List<cow_ArrayCOW<qkw_BuilderComponent>>;
  using KeywordList = qkw_BuilderComponent::KeywordList;

  void BuildAll();
  BuilderList WritingList() const;
  void WriteDeck(utl_Stream& s, const BuilderList& builders) const;
  void WriteHeading(utl_Stream& s, const cow_String& title) const;
  void WriteInput(utl_Stream& s, const KeywordList& cards) const;
  void WritePartDefinitions(utl_Stream& s, const BuilderList& builders) const;
  void WritePartInstanceDefinitions(utl_Stream& s, const BuilderList& builders) const;
  void WriteAssemblyDefinitions(utl_Stream& s, const BuilderList& builders) const;
  void WriteOtherModelDefinitions(utl_Stream& s, const BuilderList& builders) const;
  void WriteStepDefinitions(utl_Stream& s, const BuilderList& builders) const;

  // Construction order; the build order and the writing order differ from it.
  oif_JobKeywordsBuilder jobKeywords_;
  oif_InstanceBuilder instance_;
  oif_MaterialBuilder material_;
  oif_PartBuilder part_;
  oif_RegionBuilder region_;
  oif_StepBuilder step_;
  oif_PartAttributesBuilder partAttributes_;
  oif_AmplitudeBuilder amplitude_;
  oif_TransformBuilder transform_;
  oif_BoundaryConditionBuilder boundaryCondition_;
  oif_LoadBuilder load_;
  oif_FieldBuilder field_;
  oif_ConstraintBuilder constraint_;
  oif_OutputRequestBuilder output_;
  oif_FinalBuilder final_;
  bool v6Format_;
  const oif_Model* model_;
};
