#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "base/mdl_PropAttr.h"
#include "model/propagation.h"
#include "model/records.h"
#include "model/regions.h"
#include "model/steps.h"

#include <optional>

// Output requests: named records that say which variables the solver writes,
// where and how often, step by step. The deck groups them differently: the
// writer turns the requests in force in a step into normalised
// `korC_OdbRequest`s of one channel (field or history) before it prints.

/// How often a request writes: every n increments, n intervals of the step,
/// every time interval, at listed modes or at the times of a time points card.
/// The numbers are those of the deck's request kinds.
enum korC_FrequencyTypeEnm : int {
  korC_EveryIncrements = 0,
  korC_NumberIntervals = 1,
  korC_EveryTimeInterval = 2,
  korC_ModeList = 3,
  korC_AtTimePoints = 4,
};

/// How a request chooses its variables: listed by name, the solver's
/// preselected defaults of the procedure, or every variable it knows.
enum korC_VariablesTypeEnm : int {
  korC_ListedVariables = 0,
  korC_PreselectVariables = 1,
  korC_AllVariables = 2,
};

/// Whether a request covers rebar: not at all, the elements and their rebar,
/// or the rebar only.
enum korC_RebarEnm : int { korC_NoRebar = 0, korC_AlsoRebar = 1, korC_OnlyRebar = 2 };

/// What a request covers: the whole model, a node or element set, or a
/// surface. Integrated sections and interactions are domains the model file
/// cannot name yet.
enum korC_DomainTypeEnm : int {
  korC_WholeModelDomain = 0,
  korC_SetDomain = 1,
  korC_GeneralDomain = 2,
  korC_SurfaceDomain = 6,
  korC_IntegratedSectionDomain = 7,
  korC_InteractionDomain = 8,
};

namespace keydeck {

template <> struct EnumTable<korC_RebarEnm> {
  static constexpr std::string_view Noun = "rebar";
  static constexpr EnumEntry<korC_RebarEnm> Entries[] = {
      {korC_NoRebar, "", "none"}, {korC_AlsoRebar, "", "also"}, {korC_OnlyRebar, "", "only"}};
};

/// The kind bits of a region, as the output cards test them: bit 0 a node
/// set, bit 1 an element set, bit 3 a surface; none for the whole model.
inline constexpr int NodeRegionBit = 1;
inline constexpr int ElementRegionBit = 2;
inline constexpr int SurfaceRegionBit = 8;

/// The kind bits of a region with a set; 0 without one.
int RegionKindBits(const rgnC_Region& region);

} // namespace keydeck

/// The frequency of a request as the file gives it: exactly one of `every`,
/// `intervals`, `timeInterval`, `modes` and `timePoints`, and optionally
/// whether results are written at the exact times of the intervals.
struct korC_OutputFrequency {
  static constexpr const char* Description =
      "how often the request writes: one of every, intervals, timeInterval, modes, timePoints";
  int every = keydeck::NotGivenInt;
  int intervals = keydeck::NotGivenInt;
  double timeInterval = keydeck::NotGivenDouble;
  cow_List<int> modes;
  keydeck::DeckName timePoints;
  std::optional<bool> timeMarks;

  template <class V> void Fields(V& v) {
    v({"every", "write every this many increments; 0 writes nothing"}, every, keydeck::NotGivenInt);
    v({"intervals", "write at this many evenly spaced times of the step"}, intervals,
      keydeck::NotGivenInt);
    v({"timeInterval", "write every this much step time"}, timeInterval, keydeck::NotGivenDouble);
    v({"modes", "write at these modes of a modal procedure"}, modes, cow_List<int>());
    v({"timePoints", "write at the times of the time points card of this name"}, timePoints,
      keydeck::DeckName());
    v({"timeMarks", "true to write at the exact times asked, not at the increments after them"},
      timeMarks, std::nullopt);
  }

  /// How many of the five kinds the file gave; a valid frequency gives one.
  int KindsGiven() const;
  /// The kind given; meaningful when exactly one is.
  korC_FrequencyTypeEnm Kind() const;
};

/// The step-dependent attributes of an output request. A frequency never
/// given takes the procedure's default; variables never given stand for the
/// solver's preselected defaults. The one-item lists "PRESELECT" and "ALL"
/// ask for the defaults and for every variable of the procedure.
struct korC_OutputState {
  mdl_PropAttr<korC_OutputFrequency> frequency;
  mdl_PropAttr<cow_List<keydeck::DeckName>> variables;

  template <class V> void Fields(V& v) {
    v({"frequency", "how often the request writes; the procedure's default when left out"},
      frequency, mdl_PropAttr<korC_OutputFrequency>());
    v({"variables", "the output variables by name, or [\"PRESELECT\"] or [\"ALL\"]; "
                    "[\"PRESELECT\"] when left out"},
      variables, mdl_PropAttr<cow_List<keydeck::DeckName>>());
  }

  /// Listed, preselect or all, by the list in force.
  korC_VariablesTypeEnm VariablesType() const;
  /// True for "PRESELECT" and "ALL", which name sets of variables.
  static bool IsSymbol(const cow_String& name) { return name == "PRESELECT" || name == "ALL"; }
};

/// What field and history requests share: the region they cover and how
/// elements with rebar, section points and local directions are written.
class korC_Output : public kprC_PropagatingRecord {
public:
  virtual korC_Output* Copy() const = 0;
  /// The domain of the request: the whole model, a set or a surface.
  korC_DomainTypeEnm DomainType() const;

  template <class V> void OutputFields(V& v) {
    v({"region", "the set or surface the request covers, by region name such as Tip or "
                 "Beam-1.Tip; the whole model when left out"},
      region, cow_String());
    v({"rebar", "whether element output covers rebar: none, also or only"}, rebar, korC_NoRebar);
    v({"sectionPoints", "the section points of shell and beam elements to write"}, sectionPoints,
      cow_List<int>());
    v({"directions", "false to leave out the local directions of element output"}, directions,
      true);
  }

  cow_String region; ///< the region's name in the file; empty for the whole model
  korC_RebarEnm rebar = korC_NoRebar;
  cow_List<int> sectionPoints;
  bool directions = true;
  rgnC_Region regionData; ///< derived after loading from `region`
};

/// A field output request: whole fields of variables at intervals.
class korC_FieldOutput : public kprC_StepStates<korC_Output, korC_OutputState> {
public:
  korC_Output* Copy() const override { return new korC_FieldOutput(*this); }
  static constexpr const char* Description =
      "a field output request: the variables over a region at a frequency, step by step";
  static constexpr unsigned TypeId() { return keydeck::TypeIds::FieldOutput; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  unsigned DynTypeId() const override { return TypeId(); }

  template <class V> void Fields(V& v) {
    StateFields(v);
    OutputFields(v);
  }
};

/// A history output request: variables of a region or of the whole model,
/// usually more often than field output.
class korC_HistoryOutput : public kprC_StepStates<korC_Output, korC_OutputState> {
public:
  korC_Output* Copy() const override { return new korC_HistoryOutput(*this); }
  static constexpr const char* Description =
      "a history output request: the variables over a region or the whole model, step by step";
  static constexpr unsigned TypeId() { return keydeck::TypeIds::HistoryOutput; }
  static bool IsKindOf(unsigned id) { return id == TypeId(); }
  unsigned DynTypeId() const override { return TypeId(); }

  template <class V> void Fields(V& v) {
    StateFields(v);
    OutputFields(v);
  }
};

/// One normalised request of a channel: what one "*Output" group or one set
/// of its sub-cards prints.
///
/// Requests sort by: the frequency (its kind, then its value, then the time
/// marks), the filter, how the variables are chosen (listed before preselect
/// before all), the domain (whole model, sets, surfaces), the region's set
/// (its place in the database, then its index), the variables, and last the
/// label. So requests that can share one "*Output" line stand next to each
/// other, and the deck does not depend on the order of the records' names.
class korC_OdbRequest {
public:
  friend bool operator==(const korC_OdbRequest& a, const korC_OdbRequest& b);
  /// The order of `Sort`, described above.
  friend bool operator<(const korC_OdbRequest& a, const korC_OdbRequest& b);
  /// True when both write at the same times: the same kind with the same
  /// value and time marks.
  bool EqualFrequency(const korC_OdbRequest& other) const;
  korC_DomainTypeEnm DomainType() const;

  rgnC_Region region;
  cow_String loadName;
  cow_List<cow_String> interactions;
  cow_String integratedSection;
  cow_List<cow_String> springs;
  int rebar = korC_NoRebar;
  int variablesType = korC_ListedVariables;
  cow_List<cow_String> variables;
  cow_List<int> sectionPoints;
  korC_FrequencyTypeEnm frequencyType = korC_EveryIncrements;
  int frequency = 0;
  int numberInterval = 0;
  double timeInterval = 0;
  cow_List<int> modeList;
  bool timeMarks = false;
  bool directions = true;
  cow_String filter;
  cow_String timePoints;
  cow_String label;
};

/// The requests of one channel of a step: field output (type 1) or history
/// output (type 2).
class korC_OdbChannel {
public:
  explicit korC_OdbChannel(bool isField) : type_(isField ? 1 : 2) {}
  bool IsField() const { return type_ == 1; }

  cow_List<korC_OdbRequest> requests;

private:
  int type_;
};

// What the procedures allow and assume of output requests; each takes a
// procedure number (`kprC_ProcedureEnm`).

/// True for a procedure of the explicit solver.
bool kprC_IsExplicit(unsigned procedure);
/// True for the implicit procedures that integrate modal coordinates over
/// time or frequency: their default increment frequency is 10.
bool kprC_IsImplicitModal(unsigned procedure);
/// True for the eigenvalue procedures (frequency, complex frequency, buckle):
/// they write at modes and keep no history of increments.
bool kprC_IsFrequencyBuckle(unsigned procedure);
/// True when requests of the procedure may write at a mode list.
bool kprC_ModesIsAllowed(unsigned procedure);
/// True for a procedure with a step time, where intervals, time intervals,
/// time points and time marks mean something.
bool kprC_TimeMarksIsAllowed(unsigned procedure);
/// True when a request of the procedure may use that frequency kind.
bool korC_FrequencyIsAllowed(korC_FrequencyTypeEnm kind, unsigned procedure);
/// The frequency kind the solver assumes when a request names none: intervals
/// for the explicit solver, modes for field output of an eigenvalue
/// procedure, increments otherwise.
korC_FrequencyTypeEnm korC_DefaultOutputType(unsigned procedure, bool isField);
/// The solver's own default frequency of that kind for the procedure and
/// channel: every increment (every 10th in an implicit modal procedure), 20
/// intervals of field and 200 of history output; 0 for the other kinds.
int korC_DefaultFrequencyValue(korC_FrequencyTypeEnm kind, unsigned procedure, bool isField);
/// The procedure's default of the time marks: off for the explicit solver.
bool korC_DefaultTimeMarks(unsigned procedure);
