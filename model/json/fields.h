#pragma once

#include "base/cow_Btree.h"
#include "base/cow_String.h"
#include "model/database.h"
#include "model/json/unwritten.h"
#include "model/propagation.h"
#include "model/records.h"
#include "model/steps.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>
#include <type_traits>

// What the loader, the schema generator and the dumper share: the records that
// exist only in the file (its top level, a step with its name) and the traits
// that tell the three walkers how to treat a member.

namespace keydeck {

/// A visitor that accepts every field; it only serves to ask whether a class
/// declares fields.
struct AnyFieldVisitor {
  template <class M> void operator()(FieldName, M&) {}
  template <class M, class D> void operator()(FieldName, M&, const D&) {}
};

/// A record: a class that lists its fields in `Fields(V&)`.
template <class R>
concept FieldRecord = requires(R& record, AnyFieldVisitor& visitor) {
  record.Fields(visitor);
};

/// The class to build for an entry of a map of records of base `Base` whose
/// entries are all of one class. A map whose entries differ has a
/// `RecordKinds<Base>` instead (model/records.h), and the discriminating word
/// of each entry picks its class.
template <class Base> struct MapEntryClass;
template <> struct MapEntryClass<ddb_BaseInstance> { using Type = ddb_PartInstance; };
template <> struct MapEntryClass<klcC_LoadCase> { using Type = klcC_LoadCase; };
template <> struct MapEntryClass<kmaC_Material> { using Type = kmaC_Material; };
template <> struct MapEntryClass<korC_FieldOutput> { using Type = korC_FieldOutput; };
template <> struct MapEntryClass<korC_HistoryOutput> { using Type = korC_HistoryOutput; };

/// A step as the file gives it: its name, then the step's own fields. The
/// model keeps the name as the step's key.
template <class Step> struct NamedStep {
  static constexpr const char* Description = Step::Description;
  cow_String name;
  Step step;

  template <class V> void Fields(V& v) {
    v({"name", "the name of the step, unique in the model"}, name);
    step.Fields(v);
  }
};

template <class Step> inline constexpr Holder HolderOf<NamedStep<Step>> = Holder::Step;

/// The word that opens every model file. `Unknown` stands for a file that has
/// not said it yet; it has no word.
enum class FileFormat { Unknown, KeydeckModel };

template <> struct EnumTable<FileFormat> {
  static constexpr std::string_view Noun = "format";
  static constexpr EnumEntry<FileFormat> Entries[] = {
      {FileFormat::KeydeckModel, "", "keydeck-model"}};
};

/// The version number of the file format; this program reads and writes
/// `Supported` only.
struct FileVersion {
  static constexpr int Supported = 1;
  int number = Supported;
};

/// The top level of a model file.
struct ModelFile {
  static constexpr const char* Description = "models for keydeck to write as input decks";
  FileFormat format = FileFormat::KeydeckModel;
  FileVersion version;
  cow_Btree<cow_String, ddb_Model> models;
  cow_String schema; ///< where an editor finds the schema; the deck ignores it

  template <class V> void Fields(V& v) {
    v({"format", "says that the file is a keydeck model file"}, format);
    v({"version", "the version of the file format"}, version);
    v({"models", "the models by name"}, models);
    v({"$schema", "where an editor finds this schema; the deck ignores it"}, schema, cow_String());
  }
};

/// True for a field that the file may leave out without a default: absent
/// means "the file does not say", as for the two kinds of a set.
template <class T> constexpr bool IsOptional = false;
template <class T> constexpr bool IsOptional<std::optional<T>> = true;

/// True for a field of a fixed number of values, such as a translation.
template <class T> constexpr bool IsArray = false;
template <class T, std::size_t N> constexpr bool IsArray<std::array<T, N>> = true;

/// True for a value that stands for "not given": such a default is not
/// printed, since the file says it by leaving the field out.
template <class M> constexpr bool IsNotGivenMark(const M& value) {
  if constexpr (std::is_same_v<M, double>)
    return value == NotGivenDouble;
  else if constexpr (std::is_same_v<M, int>)
    return value == NotGivenInt;
  else
    return false;
}

} // namespace keydeck
