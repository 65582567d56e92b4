#pragma once

#include "base/cow_String.h"
#include "base/nex_Exception.h"

#include <limits>
#include <source_location>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>

namespace keydeck {

/// The mark of a real that the model does not give: the greatest finite double.
inline constexpr double NotGivenDouble = std::numeric_limits<double>::max();
/// The mark of an integer that the model does not give.
inline constexpr int NotGivenInt = 2147483647;

/// A name that a deck line prints: an entry's name or a reference to one. The
/// loader checks every field of this type with the one name rule (not empty,
/// no double quote, no control character), so a record declares the check by
/// the type of its member and nobody keeps a list of such fields.
class DeckName : public cow_String {
public:
  DeckName() = default;
  DeckName(const cow_String& text) : cow_String(text) {} // NOLINT: a name is a string
  DeckName(const char* text) : cow_String(text) {}       // NOLINT: like a string literal
};

/// Raw solver text that the deck carries as it stands. The loader refuses the
/// control characters in it other than tab and line ends, which no deck
/// line may hold.
class SolverText : public cow_String {
public:
  SolverText() = default;
  SolverText(const cow_String& text) : cow_String(text) {} // NOLINT: a text is a string
  SolverText(const char* text) : cow_String(text) {}       // NOLINT: like a string literal
};

/// The name of a field in the file, and optionally what the field means:
/// `v("labels", labels)` or `v({"labels", "the node labels"}, labels)`. The
/// schema carries the meaning as the field's "description", so that it is said
/// once, where the field is declared.
struct FieldName {
  constexpr FieldName(const char* name) : text(name) {} // NOLINT: a name is its text
  constexpr FieldName(const char* name, const char* meaning) : text(name), description(meaning) {}
  constexpr operator std::string_view() const { return text; } // NOLINT: stands for its text

  const char* text;
  const char* description = nullptr;
};

/// The default of a field that counts something the deck lays out, such as
/// the field-variable columns of a table: `v("dependencies", dependencies,
/// Count{0})`. The loader refuses a count below 0 or above `MaxCount`, and the
/// schema says so, so that the columns a count asks for always fit an int.
struct Count {
  int value;
  constexpr operator int() const { return value; } // NOLINT: stands for its value
};

/// The most a count may be: far more columns than any table of a deck holds.
inline constexpr int MaxCount = 1000;

/// Type ids of the model records, all in one place so that they stay unique.
/// Where the deck branches on an id the number is the one the deck's own
/// rules give; the others are ours.
namespace TypeIds {
inline constexpr unsigned InitialStep = 37486592;  // 0x23C0000
inline constexpr unsigned AnalysisStep = 37486593; // 0x23C0001
inline constexpr unsigned LoadCase = 37486800;
inline constexpr unsigned PartInstance = 37490000;
inline constexpr unsigned HomogeneousSolidSection = 0x2600003;
inline constexpr unsigned CompositeSolidSection = 0x2600004;
inline constexpr unsigned HomogeneousShellSection = 0x260000b;
inline constexpr unsigned CompositeShellSection = 0x260000c;
inline constexpr unsigned ShellSectionWithoutCard = 0x260000d;
inline constexpr unsigned UserShellSection = 0x260000e;
inline constexpr unsigned BeamSection = 0x260000f;
inline constexpr unsigned TrussSection = 0x2600011;
inline constexpr unsigned MembraneSection = 0x2600012;
inline constexpr unsigned GasketSection = 0x2600018;
inline constexpr unsigned PointSection = 0x2600019;
inline constexpr unsigned GeneralizedProfile = 0x2640002;
inline constexpr unsigned CircularProfile = 0x2640003;
inline constexpr unsigned HexagonalProfile = 0x2640004;
inline constexpr unsigned PipeProfile = 0x2640005;
inline constexpr unsigned IbeamProfile = 0x2640006;
inline constexpr unsigned BoxProfile = 0x2640007;
inline constexpr unsigned ArbitraryProfile = 0x2640009;
inline constexpr unsigned RectangularProfile = 0x264000a;
inline constexpr unsigned LbeamProfile = 0x264000b;
inline constexpr unsigned TbeamProfile = 0x264000c;
inline constexpr unsigned TrapezoidalProfile = 0x264000d;
inline constexpr unsigned Material = 37500000;
inline constexpr unsigned BoltLoad = 0x2880024;
inline constexpr unsigned DecayAmplitude = 0x2440003;
inline constexpr unsigned EquallySpacedAmplitude = 0x2440004;
inline constexpr unsigned ModulatedAmplitude = 0x2440005;
inline constexpr unsigned PeriodicAmplitude = 0x2440006;
inline constexpr unsigned SolutionDependentAmplitude = 0x2440007;
inline constexpr unsigned TabularAmplitude = 0x2440008;
inline constexpr unsigned PsdDefinitionAmplitude = 0x2440009;
inline constexpr unsigned SpectrumAmplitude = 0x244000A;
inline constexpr unsigned SmoothStepAmplitude = 0x244000B;
inline constexpr unsigned BubbleAmplitude = 0x244000C;
inline constexpr unsigned UserAmplitude = 0x244000D;
inline constexpr unsigned FieldOutput = 0x2900001;
inline constexpr unsigned HistoryOutput = 0x2900002;
} // namespace TypeIds

/// A problem inside one record that only the record's own checks find:
/// where, below the record's path ("data/4", "steps/Step-2"), and what is
/// wrong.
struct RecordFault {
  std::string where;
  std::string what;
};

/// One enumerator of a model enumeration: its value, its text in the deck and
/// its word in the model file.
template <class E> struct EnumEntry {
  E value;
  std::string_view deckText;
  std::string_view fileText;
};

/// The table of an enumeration, specialised beside the enumeration with
///
///     static constexpr std::string_view Noun = "procedure"; // names it in messages
///     static constexpr EnumEntry<E> Entries[] = {{value, deckText, fileText}, ...};
///
/// Every enumerator has one entry; the file words are unique lowerCamel words.
template <class E> struct EnumTable;

/// An enumeration that has a table.
template <class E>
concept TabledEnum = requires {
  EnumTable<E>::Noun;
  EnumTable<E>::Entries;
};

/// The entry of `value`, or null for a value outside the table.
template <TabledEnum E> constexpr const EnumEntry<E>* FindEnumEntry(E value) {
  for (const EnumEntry<E>& entry : EnumTable<E>::Entries)
    if (entry.value == value)
      return &entry;
  return nullptr;
}

/// The entry whose file word is `word`, or null.
template <TabledEnum E>
constexpr const EnumEntry<E>* FindEnumEntryByFileText(std::string_view word) {
  for (const EnumEntry<E>& entry : EnumTable<E>::Entries)
    if (entry.fileText == word)
      return &entry;
  return nullptr;
}

/// The classes of a family of polymorphic records, in the order the schema
/// lists them.
template <class... Kinds> struct KindList {};

/// The family of polymorphic records of base `Base`, specialised beside the
/// family with
///
///     static constexpr std::string_view Field = "procedure"; // the word that picks the class
///     using Types = KindList<kprC_StaticStep, ...>;
///
/// Each class K of `Types` declares `static constexpr auto Kind` (an
/// enumerator of a tabled enumeration, the same one for the whole family) and
/// declares the field `Field` in its own `Fields`, so that the dumper and the
/// schema write it like any other field. An enumerator that no class has yet
/// is a kind the model file cannot use yet.
template <class Base> struct RecordKinds;

/// A base of polymorphic records: one with a `RecordKinds`.
template <class Base>
concept PolymorphicBase = requires {
  RecordKinds<Base>::Field;
  typename RecordKinds<Base>::Types;
};

template <class List> struct KindListTraits;
template <class First, class... Rest> struct KindListTraits<KindList<First, Rest...>> {
  using Enum = std::remove_cv_t<decltype(First::Kind)>;

  template <class F> static bool VisitKind(Enum kind, F& visit) {
    return ((kind == First::Kind ? (visit(std::type_identity<First>()), true) : false) || ... ||
            (kind == Rest::Kind ? (visit(std::type_identity<Rest>()), true) : false));
  }
  template <class F> static bool VisitTypeId(unsigned id, F& visit) {
    return ((id == First::TypeId() ? (visit(std::type_identity<First>()), true) : false) || ... ||
            (id == Rest::TypeId() ? (visit(std::type_identity<Rest>()), true) : false));
  }
  template <class F> static void VisitAll(F& visit) {
    visit(std::type_identity<First>());
    (visit(std::type_identity<Rest>()), ...);
  }
};

/// The enumeration whose values pick the class of a record of `Base`.
template <PolymorphicBase Base>
using KindEnm = typename KindListTraits<typename RecordKinds<Base>::Types>::Enum;

/// Calls `visit(std::type_identity<K>())` for the class K of `Base` whose
/// `Kind` is `kind`; false, without a call, when no class has that kind.
template <PolymorphicBase Base, class F> bool VisitKindClass(KindEnm<Base> kind, F&& visit) {
  return KindListTraits<typename RecordKinds<Base>::Types>::VisitKind(kind, visit);
}

/// The same for the class whose type id is `id`.
template <PolymorphicBase Base, class F> bool VisitTypeIdClass(unsigned id, F&& visit) {
  return KindListTraits<typename RecordKinds<Base>::Types>::VisitTypeId(id, visit);
}

/// Calls `visit(std::type_identity<K>())` for every class of `Base`, in the
/// order of its `KindList`.
template <PolymorphicBase Base, class F> void VisitKindClasses(F&& visit) {
  KindListTraits<typename RecordKinds<Base>::Types>::VisitAll(visit);
}

/// Narrows a record to `T` after checking its type id; a record of any
/// other type raises the type-check failure with the caller's file and line.
/// `T::IsKindOf(id)` says which ids `T` accepts (a family class accepts the
/// ids of its members).
template <class T, class Record>
const T& RecordCast(const Record& record,
                    std::source_location where = std::source_location::current()) {
  if (!T::IsKindOf(record.DynTypeId()))
    nex_canDynamicCastRef(T::TypeId(), record.DynTypeId(), where.file_name(),
                          static_cast<int>(where.line()));
  return static_cast<const T&>(record);
}

/// The same for a record that the loader completes.
template <class T, class Record>
T& RecordCast(Record& record, std::source_location where = std::source_location::current()) {
  return const_cast<T&>(RecordCast<T>(std::as_const(record), where));
}

} // namespace keydeck
