#pragma once

#include "base/cow_COW.h"
#include "base/cow_List.h"
#include "base/cow_Map.h"
#include "base/cow_String.h"
#include "qkw/qkw_Keyword.h"

class qkw_Model;
class qkw_ModelInfo;

/// One builder of the deck. `Build` reads the model and files copies of
/// cards into deck slots keyed by part, instance, step and load case; the
/// deck writer reads the slots back in deck order. A builder never writes
/// text and never calls another builder.
///
/// Copies of a builder share every slot until one side files a card, so
/// handing a builder to the writing list costs a reference count.
class qkw_BuilderComponent {
public:
  using KeywordList = cow_List<cow_ArrayCOW<qkw_Keyword>>;

  explicit qkw_BuilderComponent(qkw_ModelInfo& info);
  qkw_BuilderComponent(const qkw_BuilderComponent&) = default;
  qkw_BuilderComponent& operator=(const qkw_BuilderComponent&) = delete;
  virtual ~qkw_BuilderComponent() = default;

  void AddModelDefinition(const qkw_Keyword& card);
  void AddAssemblyDefinition(const qkw_Keyword& card);
  /// The cards of the step that belong to no load case.
  KeywordList StepDefinition(const cow_String& step) const;

  virtual KeywordList ModelDefinition() const;
  /// The cards of that part; an empty list for a part with none.
  virtual KeywordList PartDefinition(const cow_String& part) const;
  /// The cards of that instance; an empty list for an instance with none.
  virtual KeywordList InstanceDefinition(const cow_String& instance) const;
  virtual KeywordList AssemblyDefinition() const;
  /// The cards of that step and load case ("" for the step's own cards);
  /// an empty list when either is unknown. Never adds a key.
  virtual KeywordList StepDefinition(const cow_String& step, const cow_String& loadCase) const;
  virtual KeywordList AtomOptionDefinition() const;
  virtual KeywordList SingleTermDefinition() const;
  virtual KeywordList CombinedTermDefinition() const;
  virtual KeywordList DesignAreaDefinition() const;

  virtual void Build() = 0;
  /// A new heap copy of the most derived builder, owned by the caller.
  virtual qkw_BuilderComponent* Copy() const = 0;

protected:
  void AddPartDefinition(const cow_String& part, const qkw_Keyword& card);
  void AddInstanceDefinition(const cow_String& instance, const qkw_Keyword& card);
  void AddStepDefinition(const cow_String& step, const qkw_Keyword& card);
  void AddStepDefinition(const cow_String& step, const qkw_Keyword& card,
                         const cow_String& loadCase);
  void AddAtomOptionDefinition(const qkw_Keyword& card);
  void AddSingleTermDefinition(const qkw_Keyword& card);
  void AddCombinedTermDefinition(const qkw_Keyword& card);
  void AddDesignAreaDefinition(const qkw_Keyword& card);

  const qkw_Model* model;   ///< the model facade; not owned
  qkw_ModelInfo* modelInfo; ///< the per-deck context shared by all builders; not owned

private:
  using KeyedLists = cow_Map<cow_String, KeywordList>;
  static void AddKeyed(KeyedLists& lists, const cow_String& key, const qkw_Keyword& card);
  static KeywordList Lookup(const KeyedLists& lists, const cow_String& key);

  KeywordList modelCards_;
  KeyedLists partCards_;
  KeyedLists instanceCards_;
  KeywordList assemblyCards_;
  cow_Map<cow_String, KeyedLists> stepCards_;
  // Slots that belong to every builder and every copy but that no builder of
  // the deck fills and nothing writes.
  KeywordList atomOptionCards_;
  KeywordList singleTermCards_;
  KeywordList combinedTermCards_;
  KeywordList designAreaCards_;
};
