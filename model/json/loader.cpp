#include "model/json/loader.h"

#include "base/large_lists.h"
#include "model/element_types.h"
#include "model/json/derive.h"
#include "model/json/derive_sections.h"
#include "model/json/external_arrays.h"
#include "model/json/fields.h"
#include "model/json/json_syntax.h"
#include "model/json/json_text.h"
#include "model/json/unwritten.h"

#include <simdjson.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cassert>
#include <cctype>
#include <cerrno>
#include <charconv>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <system_error>
#include <type_traits>
#include <utility>

namespace keydeck {

namespace {

// True when `text` holds a control character; tab and line ends pass when
// `layoutPasses`.
bool HoldsControl(std::string_view text, bool layoutPasses) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (layoutPasses && (c == '\t' || c == '\n' || c == '\r'))
      continue;
    if (ControlCharacterSize(text, i) != 0)
      return true;
  }
  return false;
}

// A name goes on deck lines, quoted where it needs to be. It must not be
// empty; and the deck has no escape for a double quote inside quotes, while a
// line end or another control character would break the line, so a name may
// hold neither. Returns what is wrong, or nothing.
std::string NameFault(std::string_view name) {
  if (name.empty())
    return "a name must not be empty";
  if (name.find('"') == std::string_view::npos && !HoldsControl(name, /*layoutPasses=*/false))
    return {};
  return "the name " + QuotedJson(name) +
         " holds a double quote or a control character, which a deck line cannot carry";
}

// "1e+20": the shortest text of `value`, for messages.
std::string NumberText(double value) {
  char digits[32];
  const std::to_chars_result result = std::to_chars(digits, digits + sizeof digits, value);
  return std::string(digits, result.ptr);
}

// Stands for the default of a field that has none: the field is required.
struct Required {};

// What the loader checks of a field by its declaration, after reading its
// value: a count lies in its bounds, and the not-given mark reads as the field
// left out (its default; an error for a required field).
template <class M, class D> std::string SettleField(M& member, const D& fallback) {
  constexpr const char* RequiredMark =
      "the not-given mark stands for a field left out, and this field is required";
  if constexpr (std::is_same_v<D, Count>) {
    if (member < 0 || member > MaxCount)
      return "expected a count from 0 to " + std::to_string(MaxCount) + ", found " +
             std::to_string(member);
  } else if constexpr (IsArray<M>) {
    for (std::size_t i = 0; i < member.size(); ++i) {
      if (!IsNotGivenMark(member[i]))
        continue;
      if constexpr (std::is_same_v<D, Required>)
        return RequiredMark;
      else
        member[i] = M(fallback)[i];
    }
  } else if (IsNotGivenMark(member)) {
    if constexpr (std::is_same_v<D, Required>)
      return RequiredMark;
    else
      member = fallback;
  }
  return {};
}

namespace od = simdjson::ondemand;

// The greatest angle of an instance's rotation, in degrees.
constexpr double MaxRotationDegrees = 1e6;

// The warnings of a model that loads: what the deck leaves out for now. This
// is the one place that says so; it shrinks as the writer grows.
// Collects the names of the gasket behaviours that a material holds.
struct GasketOptionNames {
  std::vector<const char*> names;
  template <class M> void operator()(FieldName, M&) {}
  template <class M, class D> void operator()(FieldName name, M& member, const D&) {
    if constexpr (IsOptional<M>) {
      if constexpr (IsGasketOption<typename M::value_type>)
        if (member.has_value())
          names.push_back(name.text);
    }
  }
};

// The deck writes a material with gasket behaviours as a gasket behaviour
// only where a gasket section names it; otherwise it drops them.
bool UsedByGasketSection(const ddb_Model& model, const cow_String& material) {
  for (const auto& [sectionName, section] : model.sections())
    if (section->DynTypeId() == kseC_GasketSection::TypeId() &&
        RecordCast<kseC_GasketSection>(*section).material == material)
      return true;
  return false;
}

void AddGasketWarnings(std::string_view modelName, const ddb_Model& model,
                       std::vector<std::string>& warnings) {
  for (const auto& [name, material] : model.material()) {
    if (!material->HasGasketOption() || UsedByGasketSection(model, name))
      continue;
    kmaC_Material record = *material; // `Fields` hands out its members for writing
    GasketOptionNames options;
    record.Fields(options);
    for (const char* option : options.names) {
      std::string warning = "models/";
      warning.append(modelName).append("/materials/").append(name.View()).append("/");
      warning.append(option).append(": no gasket section uses this material, so the deck "
                                    "leaves out its gasket behaviour");
      warnings.push_back(std::move(warning));
    }
  }
}

void AddUnwrittenWarnings(const cow_Btree<cow_String, ddb_Model>& models,
                          std::vector<std::string>& warnings) {
  for (const auto& [name, model] : models) {
    AddGasketWarnings(name.View(), model, warnings);
    AddSectionWarnings(name.View(), model, warnings);
  }
}

// A field left out of the file takes its default; a record left out takes the
// default record, and the fields of that take their own defaults.
struct DefaultFiller {
  template <class M> void operator()(FieldName, M&) {}
  template <class M, class D> void operator()(FieldName, M& member, const D& value);
};

template <class M, class D> void SetDefault(M& member, const D& value) {
  member = value;
  if constexpr (FieldRecord<M>) {
    DefaultFiller filler;
    member.Fields(filler);
  }
}

template <class M, class D> void DefaultFiller::operator()(FieldName, M& member, const D& value) {
  SetDefault(member, value);
}

struct NameCollector {
  std::vector<std::string_view> names;
  template <class M> void operator()(FieldName name, M&) { names.push_back(name); }
  template <class M, class D> void operator()(FieldName name, M&, const D&) {
    names.push_back(name);
  }
};

std::string Lower(std::string_view text) {
  std::string lower(text);
  for (char& c : lower)
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return lower;
}

int EditDistance(std::string_view a, std::string_view b) {
  std::vector<int> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j)
    row[j] = static_cast<int>(j);
  for (std::size_t i = 1; i <= a.size(); ++i) {
    int diagonal = row[0];
    row[0] = static_cast<int>(i);
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const int above = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (a[i - 1] == b[j - 1] ? 0 : 1)});
      diagonal = above;
    }
  }
  return row[b.size()];
}

// The name of `names` closest to `text`, ignoring case, or nothing when none
// is close enough to be what was meant.
std::string_view NearestName(std::string_view text, std::span<const std::string_view> names) {
  const std::string lower = Lower(text);
  std::string_view best;
  int bestDistance = 3;
  for (const std::string_view name : names) {
    const int distance = EditDistance(lower, Lower(name));
    if (distance < bestDistance && 2 * distance < static_cast<int>(name.size())) {
      best = name;
      bestDistance = distance;
    }
  }
  return best;
}

// "; did you mean "nodes"?" for a key close to one of the record's fields,
// or to a key that the record refuses or drops by name.
template <FieldRecord R> std::string Suggestion(std::string_view key) {
  R probe;
  NameCollector collector;
  probe.Fields(collector);
  if constexpr (HolderOf<R> != Holder::None) {
    for (const PendingFamily& family : PendingFamilies)
      if (family.holder == HolderOf<R>)
        collector.names.push_back(family.key);
    for (const DroppedOption& option : DroppedOptions)
      if (option.holder == HolderOf<R>)
        collector.names.push_back(option.key);
  }
  const std::string_view best = NearestName(key, collector.names);
  return best.empty() ? std::string() : "; did you mean " + QuotedJson(best) + "?";
}

// A message of the JSON library in our form: lower-case, no final period.
std::string PlainMessage(simdjson::error_code error) {
  std::string text = simdjson::error_message(error);
  if (!text.empty())
    text[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(text[0])));
  while (!text.empty() && (text.back() == '.' || text.back() == ' '))
    text.pop_back();
  return text;
}

std::string_view Trimmed(std::string_view token) {
  while (!token.empty() && std::isspace(static_cast<unsigned char>(token.back())))
    token.remove_suffix(1);
  return token;
}

// True when `value` lies exactly halfway between two floats. Only there can
// rounding the double to a float differ from rounding the text to a float
// (the text may lie a hair off the midpoint), so only there the text is read
// again as a float. Values below the normal float range take that road too.
bool NeedsFloatFromText(double value) {
  const std::uint64_t bits = std::bit_cast<std::uint64_t>(value);
  const int exponent = static_cast<int>((bits >> 52) & 0x7FF);
  if (exponent < 1023 - 126)
    return value != 0;
  return (bits & 0x1FFFFFFF) == 0x10000000;
}

std::string Described(simdjson::simdjson_result<od::json_type> type) {
  od::json_type kind{};
  if (std::move(type).get(kind))
    return "an invalid value";
  switch (kind) {
  case od::json_type::array:
    return "an array";
  case od::json_type::object:
    return "an object";
  case od::json_type::number:
    return "a number";
  case od::json_type::string:
    return "a string";
  case od::json_type::boolean:
    return "a boolean";
  case od::json_type::null:
    return "null";
  }
  return "an invalid value";
}

// Reads a model file's text into a `ModelFile`, collecting every problem with
// its path. Each `Read` overload reads one kind of member; records go through
// their `Fields` lists.
class Reader {
public:
  Reader(const simdjson::padded_string& text, std::string_view documentName,
         const ExternalArrays& arrays, LoadErrors& errors, std::vector<std::string>& warnings)
      : text_(text), documentName_(documentName), arrays_(arrays), errors_(errors),
        warnings_(warnings) {}

  // Reads the whole text; false when it is broken or not a model file, so that
  // nothing more is worth checking.
  bool Read(ModelFile& file);

private:
  struct PathSegment {
    std::string_view name; // empty for an array index
    std::size_t index;
    bool isIndex;
  };

  class PathScope {
  public:
    PathScope(Reader& reader, std::string_view name) : reader_(reader) {
      reader_.path_.push_back({name, 0, false});
    }
    PathScope(Reader& reader, std::size_t index) : reader_(reader) {
      reader_.path_.push_back({{}, index, true});
    }
    PathScope(const PathScope&) = delete;
    PathScope& operator=(const PathScope&) = delete;
    ~PathScope() { reader_.path_.pop_back(); }

  private:
    Reader& reader_;
  };

  // Reads the field of a record whose name is `key`, if it has one.
  class FieldReader {
  public:
    FieldReader(Reader& reader, std::string_view key, od::value value, std::uint64_t& seen)
        : reader_(reader), key_(key), value_(value), seen_(seen) {}
    template <class M> void operator()(FieldName name, M& member) {
      Visit(name, member, Required());
    }
    template <class M, class D> void operator()(FieldName name, M& member, const D& fallback) {
      Visit(name, member, fallback);
    }
    bool Found() const { return found_; }

  private:
    template <class M, class D> void Visit(FieldName name, M& member, const D& fallback) {
      const int index = index_++;
      assert(index < 64 && "a record of more than 64 fields");
      if (found_ || key_ != name)
        return;
      found_ = true;
      const std::uint64_t bit = std::uint64_t{1} << index;
      if ((seen_ & bit) != 0) {
        reader_.Error("duplicate key " + QuotedJson(key_));
        return;
      }
      seen_ |= bit;
      PathScope scope(reader_, key_);
      const int before = reader_.errors_.Count();
      reader_.Read(value_, member);
      if (reader_.errors_.Count() != before)
        return;
      if (const std::string fault = SettleField(member, fallback); !fault.empty())
        reader_.Error(fault);
    }

    Reader& reader_;
    std::string_view key_;
    od::value value_;
    std::uint64_t& seen_;
    int index_ = 0;
    bool found_ = false;
  };

  // After a record's object: the required fields it lacks, the defaults of
  // the optional ones.
  class FieldFinisher {
  public:
    FieldFinisher(Reader& reader, std::uint64_t seen) : reader_(reader), seen_(seen) {}
    template <class M> void operator()(FieldName name, M&) {
      if (!Seen())
        reader_.Error("missing field " + QuotedJson(name));
    }
    template <class M, class D> void operator()(FieldName, M& member, const D& value) {
      if (!Seen())
        SetDefault(member, value);
    }

  private:
    bool Seen() { return ((seen_ >> index_++) & 1) != 0; }

    Reader& reader_;
    std::uint64_t seen_;
    int index_ = 0;
  };

  // Paths and messages.
  template <class... I> std::string PathText(I... indices) const;
  template <class... I> void ErrorAt(std::string_view what, I... indices) {
    if (!errors_.Keeping()) {
      errors_.Add({}, {});
      return;
    }
    errors_.Add(PathText(indices...), what);
  }
  void Error(std::string_view what) { ErrorAt(what); }
  void Warn(std::string_view what) { warnings_.push_back(PathText().append(": ").append(what)); }
  void Fail(simdjson::error_code error);
  bool Stopped() const { return stopped_; }
  template <class... I>
  void Unexpected(od::value value, simdjson::error_code error, std::string_view expected,
                  I... indices);
  bool Finish();

  // Structure.
  template <class... I> bool GetObject(od::value value, od::object& object, I... indices) {
    const simdjson::error_code error = value.get_object().get(object);
    if (!error) [[likely]]
      return true;
    Unexpected(value, error, "an object", indices...);
    return false;
  }
  template <class... I> bool GetArray(od::value value, od::array& array, I... indices) {
    const simdjson::error_code error = value.get_array().get(array);
    if (!error) [[likely]]
      return true;
    Unexpected(value, error, "an array", indices...);
    return false;
  }
  bool CountItems(od::array& array, int& count);
  template <class F> void ForEachItem(od::array& array, F&& read);
  template <class F> void ForEachMember(od::object& object, F&& read);
  template <class F> void ForEachEntry(od::value value, F&& read);
  template <class M> void ReadHeaderField(od::object& root, std::string_view key, M& member);
  template <FieldRecord R> void ReadMembers(od::object& object, R& record);
  template <FieldRecord R>
  void UnknownKey(std::string_view key, std::vector<std::string_view>& droppedKeys);
  template <ColumnCheckedRecord R> void CheckColumns(R& record);

  // Scalars; the trailing indices name the place of an item inside the
  // member, for messages only.
  template <class... I> void ReadInt(od::value value, int& out, I... indices) {
    std::int64_t number = 0;
    const simdjson::error_code error = value.get_int64().get(number);
    if (!error && number >= INT_MIN && number <= INT_MAX) [[likely]] {
      out = static_cast<int>(number);
      return;
    }
    BadInt(value, error, indices...);
  }
  template <class... I> void ReadFloat(od::value value, float& out, I... indices) {
    double number = 0;
    const simdjson::error_code error = value.get_double().get(number);
    if (error) [[unlikely]] {
      BadReal(value, error, indices...);
      return;
    }
    out = static_cast<float>(number);
    if (NeedsFloatFromText(number) || std::isinf(out)) [[unlikely]]
      FloatFromText(value, number, out, indices...);
  }
  template <class... I>
  [[gnu::cold]] void BadInt(od::value value, simdjson::error_code error, I... indices);
  template <class... I>
  [[gnu::cold]] void BadReal(od::value value, simdjson::error_code error, I... indices);
  template <class... I>
  [[gnu::cold]] void FloatFromText(od::value value, double number, float& out, I... indices);

  // One overload per kind of member.
  void Read(od::value value, cow_String& out);
  void Read(od::value value, DeckName& out);
  void Read(od::value value, SolverText& out);
  void Read(od::value value, bool& out);
  void Read(od::value value, int& out) { ReadInt(value, out); }
  void Read(od::value value, double& out);
  template <TabledEnum E> void Read(od::value value, E& out);
  void Read(od::value value, FileVersion& out);
  void Read(od::value value, cow_List<int>& out);
  void Read(od::value value, cow_List<double>& out);
  void Read(od::value value, cow_List<DeckName>& out);
  void Read(od::value value, uti_CoordCont3D& out);
  /// What the messages of `ReadRows` call a row that is empty or uneven.
  struct RowWords {
    const char* emptyRow;
    std::string (*unevenRow)(std::size_t found, std::size_t width);
  };
  template <class T, class ReadCell>
  void ReadRows(od::value value, cow_2DArray<T>& out, const RowWords& words, ReadCell&& readCell);
  void Read(od::value value, cow_2DArray<int>& out);
  void Read(od::value value, kmaC_MaterialTable& out);
  template <class T, std::size_t N> void Read(od::value value, std::array<T, N>& out);
  template <class T> void Read(od::value value, std::optional<T>& out) {
    out.emplace();
    Read(value, *out);
  }
  // An attribute of a step state that the file gives is set in its step.
  template <class T> void Read(od::value value, mdl_PropAttr<T>& out) {
    T given{};
    const int before = errors_.Count();
    Read(value, given);
    if (errors_.Count() == before)
      out = mdl_PropAttr<T>(std::move(given), mdl_AttributeSet);
  }
  void Read(od::value value, LabelList& out);
  void CheckRange(const LabelRange& range);
  template <FieldRecord R> void Read(od::value value, cow_List<R>& out);
  /// True for the name of a new entry of a named collection; an empty or a
  /// repeated name is an error.
  bool AcceptName(std::string_view key, bool taken);
  template <FieldRecord R> void Read(od::value value, cow_Btree<cow_String, R>& out);
  template <class Base> void Read(od::value value, mdl_MapString2ObjCow<Base>& out);
  template <class Base, class Keep> void ReadEntry(od::value value, Keep&& keep);
  template <PolymorphicBase Base, class ReadKind>
  void ReadPolymorphic(od::value value, ReadKind&& read);
  template <PolymorphicBase Base> bool ReadKindWord(od::object& object, KindEnm<Base>& kind);
  void Read(od::value value, kprC_StepContainer& out);
  template <class Step>
  void ReadStep(od::object& object, std::type_identity<Step>, kprC_StepContainer& out);
  template <class Step> void FinishStep(Step& step);
  void FinishIncrements(kprC_Incrementation& increments);
  /// False, with the message, for a negative time period.
  bool AcceptTimePeriod(double period);
  void RequireForAutomatic(bool automatic, double value, const char* field);
  template <FieldRecord R> void Read(od::value value, R& out) {
    od::object object;
    if (GetObject(value, object))
      ReadObject(object, out);
  }
  template <FieldRecord R> void ReadObject(od::object& object, R& out) {
    const int before = errors_.Count();
    ReadMembers(object, out);
    if (errors_.Count() == before && !Stopped())
      Check(out);
  }
  // What a record's fields cannot say one by one, checked once the record is
  // read without error.
  template <class R> void Check(R&) {}
  template <ColumnCheckedRecord R> void Check(R& record) { CheckColumns(record); }
  void Check(ddb_NodeData& nodes) { CheckLabels("labels", nodes.labels); }
  void Check(ddb_ElementClass& elements);
  void Check(InstanceRotation& rotation);
  void CheckLabels(const char* field, const cow_List<int>& labels);

  // The array handed over in memory whose placeholder is `value`, or null.
  const ExternalArray* External(od::value value) {
    if (arrays_.Empty())
      return nullptr;
    return arrays_.At(static_cast<std::size_t>(value.raw_json_token().data() - text_.data()));
  }
  // Reports the faults of such an array at their places below the current path.
  ArrayFaultSink ExternalFaults() {
    return [this](std::string_view what, int depth, std::size_t row, std::size_t column) {
      if (depth == 0)
        ErrorAt(what);
      else if (depth == 1)
        ErrorAt(what, row);
      else
        ErrorAt(what, row, column);
    };
  }

  const simdjson::padded_string& text_;
  std::string documentName_;
  const ExternalArrays& arrays_;
  LoadErrors& errors_;
  std::vector<std::string>& warnings_;
  od::parser parser_;
  od::document document_;
  std::vector<PathSegment> path_;
  bool stopped_ = false;
  bool skippedValue_ = false; // a value was passed over unread, so its syntax is unchecked
  simdjson::error_code stopError_ = simdjson::SUCCESS;
  std::string stopPath_;
};

template <class... I> std::string Reader::PathText(I... indices) const {
  if (path_.empty() && sizeof...(indices) == 0)
    return documentName_;
  std::string text;
  for (const PathSegment& segment : path_) {
    if (!text.empty())
      text += '/';
    if (segment.isIndex)
      text += std::to_string(segment.index);
    else
      text += segment.name;
  }
  ((text += (text.empty() ? "" : "/") + std::to_string(indices)), ...);
  return text;
}

void Reader::Fail(simdjson::error_code error) {
  if (stopped_)
    return;
  stopped_ = true;
  stopError_ = error;
  stopPath_ = PathText();
}

template <class... I>
void Reader::Unexpected(od::value value, simdjson::error_code error, std::string_view expected,
                        I... indices) {
  if (error != simdjson::INCORRECT_TYPE) {
    Fail(error);
    return;
  }
  ErrorAt("expected " + std::string(expected) + ", found " + Described(value.type()), indices...);
}

template <class... I>
void Reader::BadInt(od::value value, simdjson::error_code error, I... indices) {
  od::json_type type{};
  if ((!error || error == simdjson::INCORRECT_TYPE) && !value.type().get(type) &&
      type == od::json_type::number) {
    ErrorAt(IntegerFault(Trimmed(value.raw_json_token())), indices...);
    return;
  }
  Unexpected(value, error, "an integer", indices...);
}

template <class... I>
void Reader::BadReal(od::value value, simdjson::error_code error, I... indices) {
  if (error == simdjson::NUMBER_ERROR) {
    // A number that the grammar allows but a double cannot hold; a number
    // that breaks the grammar is caught by the syntax check at the end.
    ErrorAt("the number " + std::string(Trimmed(value.raw_json_token())) + " is out of range",
            indices...);
    return;
  }
  Unexpected(value, error, "a number", indices...);
}

template <class... I>
void Reader::FloatFromText(od::value value, double number, float& out, I... indices) {
  const std::string_view token = Trimmed(value.raw_json_token());
  const std::from_chars_result result =
      std::from_chars(token.data(), token.data() + token.size(), out);
  // Too small for a float is zero, with its sign; only too large is refused.
  if (result.ec == std::errc::result_out_of_range && std::abs(number) < 1) {
    out = std::copysign(0.0F, static_cast<float>(number));
    return;
  }
  if (result.ec == std::errc::result_out_of_range || std::isinf(out))
    ErrorAt(CoordinateRangeFault(token), indices...);
}

bool Reader::CountItems(od::array& array, int& count) {
  std::size_t items = 0;
  if (const simdjson::error_code error = array.count_elements().get(items)) {
    Fail(error);
    return false;
  }
  count = static_cast<int>(std::min<std::size_t>(items, INT_MAX));
  return true;
}

// Calls `read(value, index)` for each item of `array` until the walk stops.
template <class F> void Reader::ForEachItem(od::array& array, F&& read) {
  std::size_t index = 0;
  for (auto item : array) {
    od::value value;
    if (const simdjson::error_code error = item.get(value)) {
      Fail(error);
      return;
    }
    read(value, index++);
    if (Stopped())
      return;
  }
}

// Calls `read(value, key)` for each member of `object`, in file order; stops
// when reading has stopped.
template <class F> void Reader::ForEachMember(od::object& object, F&& read) {
  for (auto member : object) {
    od::field field;
    std::string_view key;
    if (const simdjson::error_code error = std::move(member).get(field)) {
      Fail(error);
      return;
    }
    if (const simdjson::error_code error = field.unescaped_key().get(key)) {
      Fail(error);
      return;
    }
    read(field.value(), key);
    if (Stopped())
      return;
  }
}

// The same for the members of `value`, which must be an object.
template <class F> void Reader::ForEachEntry(od::value value, F&& read) {
  od::object object;
  if (GetObject(value, object))
    ForEachMember(object, read);
}

template <FieldRecord R> void Reader::ReadMembers(od::object& object, R& record) {
  std::uint64_t seen = 0;
  std::vector<std::string_view> droppedKeys;
  ForEachMember(object, [&](od::value value, std::string_view key) {
    FieldReader reader(*this, key, value, seen);
    record.Fields(reader);
    if (!reader.Found())
      UnknownKey<R>(key, droppedKeys);
  });
  if (Stopped())
    return;
  FieldFinisher finisher(*this, seen);
  record.Fields(finisher);
}

template <FieldRecord R>
void Reader::UnknownKey(std::string_view key, std::vector<std::string_view>& droppedKeys) {
  if (const PendingFamily* family = FindPendingFamily(HolderOf<R>, key)) {
    PathScope scope(*this, key);
    Error(PendingMessage(*family));
    return;
  }
  if (IsDroppedOption(HolderOf<R>, key)) {
    if (std::find(droppedKeys.begin(), droppedKeys.end(), key) != droppedKeys.end()) {
      Error("duplicate key " + QuotedJson(key));
      return;
    }
    droppedKeys.push_back(key);
    skippedValue_ = true;
    PathScope scope(*this, key);
    Warn(DroppedWarning);
    return;
  }
  if constexpr (std::is_same_v<R, NamedStep<kprC_InitialStep>>) {
    if (key == "procedure") {
      PathScope scope(*this, key);
      Error("the first step is the initial step, which has no procedure");
      return;
    }
  }
  std::string what = "unknown field " + QuotedJson(key);
  if constexpr (requires { decltype(R::step)::Kind; }) {
    using Step = decltype(R::step);
    what += " for procedure " + QuotedJson(FindEnumEntry(Step::Kind)->fileText);
  }
  Error(what + Suggestion<R>(key));
}

template <class M> void Reader::ReadHeaderField(od::object& root, std::string_view key, M& member) {
  if (Stopped())
    return;
  od::value value;
  const simdjson::error_code error = root.find_field_unordered(key).get(value);
  if (error == simdjson::NO_SUCH_FIELD) {
    Error("missing field " + QuotedJson(key));
    return;
  }
  if (error) {
    Fail(error);
    return;
  }
  PathScope scope(*this, key);
  Read(value, member);
}

bool Reader::Read(ModelFile& file) {
  if (const simdjson::error_code error = parser_.iterate(text_).get(document_)) {
    Fail(error);
    return Finish();
  }
  od::object root;
  if (const simdjson::error_code error = document_.get_object().get(root)) {
    if (error == simdjson::INCORRECT_TYPE)
      Error("expected an object at the top level, found " + Described(document_.type()));
    else
      Fail(error);
    return Finish();
  }
  // A text that does not say it is a model file of this version gets no other
  // message: its other contents would only bury that one.
  ReadHeaderField(root, "format", file.format);
  ReadHeaderField(root, "version", file.version);
  if (!errors_.Empty() || Stopped())
    return Finish();
  document_.rewind();
  if (const simdjson::error_code error = document_.get_object().get(root)) {
    Fail(error);
    return Finish();
  }
  ReadMembers(root, file);
  const char* rest = nullptr;
  if (!Stopped() && !document_.current_location().get(rest))
    Fail(simdjson::TRAILING_CONTENT);
  return Finish() && file.format == FileFormat::KeydeckModel &&
         file.version.number == FileVersion::Supported;
}

// At the end: a broken text gets one message that says where it breaks, in
// place of whatever the walk made of it.
bool Reader::Finish() {
  if (!stopped_ && errors_.Empty() && !skippedValue_)
    return true;
  const std::string_view text(text_.data(), text_.size());
  if (const std::optional<JsonSyntaxError> syntax = FindJsonSyntaxError(text)) {
    errors_.Clear();
    errors_.Add(documentName_, "invalid JSON at line " + std::to_string(syntax->line) +
                                   ", column " + std::to_string(syntax->column) + " (byte offset " +
                                   std::to_string(syntax->offset) + "): " + syntax->what);
    return false;
  }
  if (stopped_)
    errors_.Add(stopPath_, "cannot read the JSON text here: " + PlainMessage(stopError_));
  return !stopped_;
}

void Reader::Read(od::value value, cow_String& out) {
  std::string_view text;
  if (const simdjson::error_code error = value.get_string().get(text)) {
    Unexpected(value, error, "a string");
    return;
  }
  out = cow_String(text);
}

void Reader::Read(od::value value, DeckName& out) {
  const int before = errors_.Count();
  Read(value, static_cast<cow_String&>(out));
  if (errors_.Count() != before)
    return;
  if (const std::string fault = NameFault(out.View()); !fault.empty())
    Error(fault);
}

void Reader::Read(od::value value, SolverText& out) {
  const int before = errors_.Count();
  Read(value, static_cast<cow_String&>(out));
  if (errors_.Count() == before && HoldsControl(out.View(), /*layoutPasses=*/true))
    Error("raw solver text may hold tabs and line ends but no other control character");
}

void Reader::CheckLabels(const char* field, const cow_List<int>& labels) {
  // The lowest label first, in a loop the compiler vectorises; only a list
  // that holds a bad label is gone through again to find each one.
  const int* const values = labels.GetCArray();
  const int count = labels.Size();
  int lowest = INT_MAX;
  for (int i = 0; i < count; ++i)
    lowest = std::min(lowest, values[i]);
  if (lowest >= 1) [[likely]]
    return;
  PathScope scope(*this, field);
  for (int i = 0; i < count; ++i)
    if (values[i] < 1)
      ErrorAt("a label must be 1 or more, found " + std::to_string(values[i]), i);
}

void Reader::Check(ddb_ElementClass& elements) {
  CheckLabels("labels", elements.labels);
  const std::string_view type = elements.type.View();
  PathScope scope(*this, "type");
  if (!IsWellFormedElementType(type)) {
    Error(R"(an element type is letters, digits, "_" and "-", found )" + QuotedJson(type));
    return;
  }
  if (IsKnownElementType(type) || IsUserElementType(type))
    return;
  std::string what = "element type " + QuotedJson(type) +
                     " is neither one that keydeck knows nor a user element (types are "
                     "case-sensitive";
  if (const std::string_view nearest = NearestName(type, KnownElementTypes()); !nearest.empty())
    what.append("; did you mean ").append(QuotedJson(nearest)).append("?");
  Warn(what.append("); the deck carries it as given"));
}

void Reader::Check(InstanceRotation& rotation) {
  // Beyond a million degrees a double no longer holds the angle to the
  // precision that reducing it to one turn needs.
  if (std::abs(rotation.angle) <= MaxRotationDegrees)
    return;
  PathScope scope(*this, "angle");
  Error("expected an angle from -1e6 to 1e6 degrees, found " + NumberText(rotation.angle));
}

void Reader::Read(od::value value, bool& out) {
  if (const simdjson::error_code error = value.get_bool().get(out))
    Unexpected(value, error, "true or false");
}

void Reader::Read(od::value value, double& out) {
  if (const simdjson::error_code error = value.get_double().get(out))
    BadReal(value, error);
}

template <TabledEnum E> void Reader::Read(od::value value, E& out) {
  std::string_view word;
  if (const simdjson::error_code error = value.get_string().get(word)) {
    Unexpected(value, error, "a string");
    return;
  }
  if (const EnumEntry<E>* entry = FindEnumEntryByFileText<E>(word)) {
    out = entry->value;
    return;
  }
  std::string expected;
  for (const EnumEntry<E>& entry : EnumTable<E>::Entries)
    expected.append(expected.empty() ? "" : ", ").append(entry.fileText);
  const bool several = std::size(EnumTable<E>::Entries) > 1;
  Error("unknown " + std::string(EnumTable<E>::Noun) + " " + QuotedJson(word) + "; expected " +
        (several ? "one of " : "") + expected);
}

void Reader::Read(od::value value, FileVersion& out) {
  int number = 0;
  const int before = errors_.Count();
  ReadInt(value, number);
  if (errors_.Count() != before)
    return;
  out.number = number;
  if (number != FileVersion::Supported)
    Error("version " + std::to_string(number) + " is not supported; this program reads version " +
          std::to_string(FileVersion::Supported));
}

void Reader::Read(od::value value, cow_List<int>& out) {
  if (const ExternalArray* external = External(value)) {
    ReadIntegers(*external, out, ExternalFaults());
    return;
  }
  od::array array;
  int count = 0;
  if (!GetArray(value, array) || !CountItems(array, count))
    return;
  out = LargeListCapacity<int>(count);
  ForEachItem(array, [&](od::value item, std::size_t index) {
    int number = 0;
    ReadInt(item, number, index);
    out.Append(number);
  });
}

void Reader::Read(od::value value, cow_List<double>& out) {
  if (const ExternalArray* external = External(value)) {
    ReadReals(*external, out, ExternalFaults());
    return;
  }
  od::array array;
  int count = 0;
  if (!GetArray(value, array) || !CountItems(array, count))
    return;
  out = LargeListCapacity<double>(count);
  ForEachItem(array, [&](od::value item, std::size_t index) {
    double number = 0;
    if (const simdjson::error_code error = item.get_double().get(number))
      BadReal(item, error, index);
    out.Append(number);
  });
}

void Reader::Read(od::value value, cow_List<DeckName>& out) {
  od::array array;
  if (!GetArray(value, array))
    return;
  ForEachItem(array, [&](od::value item, std::size_t index) {
    PathScope scope(*this, index);
    DeckName name;
    Read(item, name);
    out.Append(std::move(name));
  });
}

void Reader::Read(od::value value, uti_CoordCont3D& out) {
  if (const ExternalArray* external = External(value)) {
    ReadCoordinates(*external, out, ExternalFaults());
    return;
  }
  od::array rows;
  int count = 0;
  if (!GetArray(value, rows) || !CountItems(rows, count))
    return;
  out = LargeListCapacity<uti_Coord3D>(count);
  ForEachItem(rows, [&](od::value item, std::size_t row) {
    uti_Coord3D point{0, 0, 0};
    od::array numbers;
    if (GetArray(item, numbers, row)) {
      std::size_t found = 0;
      ForEachItem(numbers, [&](od::value number, std::size_t column) {
        if (column < point.size())
          ReadFloat(number, point[column], row, column);
        found = column + 1;
      });
      if (found != point.size() && !Stopped())
        ErrorAt("expected 3 coordinates, found " + std::to_string(found), row);
    }
    out.Append(point);
  });
}

// An array of rows of one length, the first row fixing it: the array is made
// once that length is known, so the values go straight to their place.
// `readCell(value, cell, row, column)` reads one value; `words` names the rows'
// values in messages.
template <class T, class ReadCell>
void Reader::ReadRows(od::value value, cow_2DArray<T>& out, const RowWords& words,
                      ReadCell&& readCell) {
  od::array rows;
  int rowCount = 0;
  if (!GetArray(value, rows) || !CountItems(rows, rowCount))
    return;
  std::vector<T> firstRow;
  std::size_t width = 0;
  ForEachItem(rows, [&](od::value item, std::size_t row) {
    // In a broken text the walk may find more rows than the count said; the
    // syntax check at the end then says where the text breaks.
    if (row >= static_cast<std::size_t>(rowCount)) {
      Fail(simdjson::TAPE_ERROR);
      return;
    }
    od::array values;
    if (!GetArray(item, values, row))
      return;
    if (width == 0) {
      ForEachItem(values, [&](od::value cell, std::size_t column) {
        firstRow.push_back(T());
        readCell(cell, firstRow.back(), row, column);
      });
      if (Stopped())
        return;
      if (firstRow.empty()) {
        ErrorAt(words.emptyRow, row);
        return;
      }
      width = firstRow.size();
      out = cow_2DArray<T>(rowCount, static_cast<int>(width));
      std::copy(firstRow.begin(), firstRow.end(), &out.Get(static_cast<int>(row), 0));
      return;
    }
    T* const cells = &out.Get(static_cast<int>(row), 0);
    std::size_t found = 0;
    ForEachItem(values, [&](od::value cell, std::size_t column) {
      if (column < width)
        readCell(cell, cells[column], row, column);
      found = column + 1;
    });
    if (found != width && !Stopped())
      ErrorAt(words.unevenRow(found, width), row);
  });
}

void Reader::Read(od::value value, cow_2DArray<int>& out) {
  const RowWords words{"a connectivity row must name at least one node",
                       [](std::size_t found, std::size_t width) {
                         return "a connectivity row of " + std::to_string(found) +
                                " nodes where the first row has " + std::to_string(width);
                       }};
  if (const ExternalArray* external = External(value)) {
    ReadIntegerRows(*external, out, words.emptyRow, ExternalFaults());
    return;
  }
  ReadRows(value, out, words, [&](od::value label, int& cell, std::size_t row, std::size_t column) {
    ReadInt(label, cell, row, column);
  });
}

void Reader::Read(od::value value, kmaC_MaterialTable& out) {
  const RowWords words{"a table row must hold at least one value",
                       [](std::size_t found, std::size_t width) {
                         std::string what = "row has ";
                         what.append(std::to_string(found));
                         what.append(found == 1 ? " value" : " values");
                         what.append(", rows above have ").append(std::to_string(width));
                         return what;
                       }};
  cow_2DArray<double> cells;
  if (const ExternalArray* external = External(value)) {
    ReadRealRows(*external, cells, words.emptyRow, ExternalFaults());
    out = kmaC_MaterialTable(cells);
    return;
  }
  ReadRows(value, cells, words,
           [&](od::value number, double& cell, std::size_t row, std::size_t column) {
             if (const simdjson::error_code error = number.get_double().get(cell))
               BadReal(number, error, row, column);
           });
  out = kmaC_MaterialTable(cells);
}

// "expected 4 columns (2 data, 1 temperature, 1 field variable), found 5".
std::string ColumnsMessage(const TableColumns& columns, int found) {
  const std::int64_t fewest = columns.Fewest();
  std::string text = "expected ";
  if (columns.moreData)
    text.append("at least ");
  text.append(std::to_string(fewest));
  if (columns.optionalTemperature)
    text.append(" or ").append(std::to_string(fewest + 1));
  text.append(fewest == 1 && !columns.optionalTemperature ? " column (" : " columns (");
  if (columns.moreData)
    text.append("at least ");
  text.append(std::to_string(columns.data)).append(" data");
  if (columns.temperature)
    text.append(", 1 temperature");
  if (columns.optionalTemperature)
    text.append(", 1 optional temperature");
  if (columns.fieldVariables > 0)
    text.append(", ")
        .append(std::to_string(columns.fieldVariables))
        .append(columns.fieldVariables == 1 ? " field variable" : " field variables");
  text.append("), found ").append(std::to_string(found));
  return text;
}

// Finds the one table of a record whose columns it knows.
struct TableField {
  const char* name = nullptr;
  kmaC_MaterialTable* table = nullptr;
  int count = 0;
  template <class M> void operator()(FieldName fieldName, M& member) { Take(fieldName, member); }
  template <class M, class D> void operator()(FieldName fieldName, M& member, const D&) {
    Take(fieldName, member);
  }
  template <class M> void Take(FieldName fieldName, M& member) {
    if constexpr (std::is_same_v<M, kmaC_MaterialTable>) {
      name = fieldName.text;
      table = &member;
      ++count;
    }
  }
};

// A record that knows its columns gets its table checked against them; an
// empty table takes them, so that the writer finds the columns it counts on.
template <ColumnCheckedRecord R> void Reader::CheckColumns(R& record) {
  TableField field;
  record.Fields(field);
  assert(field.count == 1 && "a record that knows its columns has one table");
  // The fields' counts are bounded, so the columns fit an int.
  const TableColumns columns = record.ExpectedColumns();
  kmaC_MaterialTable& table = *field.table;
  if (table.Rows() == 0) {
    table = kmaC_MaterialTable(0, static_cast<int>(columns.Fewest()));
    return;
  }
  if (columns.Fits(table.Cols()))
    return;
  PathScope scope(*this, field.name);
  Error(ColumnsMessage(columns, table.Cols()));
}

template <class T, std::size_t N> void Reader::Read(od::value value, std::array<T, N>& out) {
  if (const ExternalArray* external = External(value)) {
    ReadFixed(*external, out.data(), N, ExternalFaults());
    return;
  }
  od::array items;
  if (!GetArray(value, items))
    return;
  std::size_t found = 0;
  ForEachItem(items, [&](od::value item, std::size_t index) {
    if (index < N) {
      PathScope scope(*this, index);
      Read(item, out[index]);
    }
    found = index + 1;
  });
  if (found != N && !Stopped())
    Error("expected " + std::to_string(N) + (std::is_integral_v<T> ? " integers" : " numbers") +
          ", found " + std::to_string(found));
}

// A list of labels is an array, or an object that gives a range.
void Reader::Read(od::value value, LabelList& out) {
  od::json_type type{};
  if (const simdjson::error_code error = value.type().get(type)) {
    Fail(error);
    return;
  }
  if (type == od::json_type::array || External(value) != nullptr) {
    Read(value, out.labels);
    return;
  }
  if (type != od::json_type::object) {
    Error(R"(expected an array of labels or {"generate": [first, last, step]}, found )" +
          Described(value.type()));
    return;
  }
  out.isRange = true;
  const int before = errors_.Count();
  Read(value, out.range);
  if (errors_.Count() == before)
    CheckRange(out.range);
}

void Reader::CheckRange(const LabelRange& range) {
  PathScope scope(*this, "generate");
  if (range.Step() < 1)
    ErrorAt("the step must be 1 or more, found " + std::to_string(range.Step()), 2);
  if (range.First() > range.Last())
    Error("the first label " + std::to_string(range.First()) + " lies beyond the last " +
          std::to_string(range.Last()));
}

template <FieldRecord R> void Reader::Read(od::value value, cow_List<R>& out) {
  od::array array;
  if (!GetArray(value, array))
    return;
  ForEachItem(array, [&](od::value item, std::size_t index) {
    PathScope scope(*this, index);
    R record;
    Read(item, record);
    out.Append(std::move(record));
  });
}

bool Reader::AcceptName(std::string_view key, bool taken) {
  if (const std::string fault = NameFault(key); !fault.empty()) {
    Error(fault);
    return false;
  }
  if (taken)
    Error("duplicate key " + QuotedJson(key));
  return !taken;
}

template <FieldRecord R> void Reader::Read(od::value value, cow_Btree<cow_String, R>& out) {
  ForEachEntry(value, [&](od::value item, std::string_view key) {
    const cow_String name(key);
    if (!AcceptName(key, out.IsMember(name)))
      return;
    PathScope scope(*this, key);
    R record;
    Read(item, record);
    out.Insert(name, std::move(record));
  });
}

template <class Base> void Reader::Read(od::value value, mdl_MapString2ObjCow<Base>& out) {
  ForEachEntry(value, [&](od::value item, std::string_view key) {
    const cow_String name(key);
    if (!AcceptName(key, out.IsMember(name)))
      return;
    PathScope scope(*this, key);
    ReadEntry<Base>(item, [&](const Base& record) { out.Insert(name, record); });
  });
}

// Reads one entry of a map of records of base `Base` and hands it to `keep`.
template <class Base, class Keep> void Reader::ReadEntry(od::value value, Keep&& keep) {
  if constexpr (PolymorphicBase<Base>) {
    ReadPolymorphic<Base>(value, [&](od::object& object, auto kind) {
      typename decltype(kind)::type record;
      ReadObject(object, record);
      keep(static_cast<const Base&>(record));
    });
  } else {
    typename MapEntryClass<Base>::Type record;
    Read(value, record);
    keep(static_cast<const Base&>(record));
  }
}

// Reads a record of a polymorphic family: the word of its discriminating
// field picks the class K, then `read(object, std::type_identity<K>())` reads
// the object as a K.
template <PolymorphicBase Base, class ReadKind>
void Reader::ReadPolymorphic(od::value value, ReadKind&& read) {
  od::object object;
  if (!GetObject(value, object))
    return;
  KindEnm<Base> kind{};
  if (!ReadKindWord<Base>(object, kind))
    return;
  if (VisitKindClass<Base>(kind, [&](auto type) { read(object, type); }))
    return;
  using Table = EnumTable<KindEnm<Base>>;
  PathScope scope(*this, RecordKinds<Base>::Field);
  Error(std::string(Table::Noun) + " " + QuotedJson(FindEnumEntry(kind)->fileText) +
        " is not supported yet");
}

// Looks ahead for the discriminating field of a record of `Base` and reads
// its word; the object is then rewound for the record's own walk. False,
// with the message, when the field is missing or its word is not one of the
// family's enumeration.
template <PolymorphicBase Base> bool Reader::ReadKindWord(od::object& object, KindEnm<Base>& kind) {
  constexpr std::string_view field = RecordKinds<Base>::Field;
  od::value value;
  const simdjson::error_code error = object.find_field_unordered(field).get(value);
  if (error == simdjson::NO_SUCH_FIELD) {
    Error("missing field " + QuotedJson(field));
    return false;
  }
  if (error) {
    Fail(error);
    return false;
  }
  const int before = errors_.Count();
  {
    PathScope scope(*this, field);
    Read(value, kind);
  }
  if (errors_.Count() != before || Stopped())
    return false;
  bool empty = false;
  if (const simdjson::error_code rewind = object.reset().get(empty)) {
    Fail(rewind);
    return false;
  }
  return true;
}

void Reader::Read(od::value value, kprC_StepContainer& out) {
  od::array array;
  if (!GetArray(value, array))
    return;
  ForEachItem(array, [&](od::value item, std::size_t index) {
    PathScope scope(*this, index);
    if (index > 0) {
      ReadPolymorphic<kprC_AnalysisStep>(
          item, [&](od::object& object, auto kind) { ReadStep(object, kind, out); });
      return;
    }
    od::object object;
    if (GetObject(item, object))
      ReadStep(object, std::type_identity<kprC_InitialStep>(), out);
  });
}

template <class Step>
void Reader::ReadStep(od::object& object, std::type_identity<Step>, kprC_StepContainer& out) {
  NamedStep<Step> step;
  const int before = errors_.Count();
  ReadObject(object, step);
  if (errors_.Count() == before && !Stopped())
    FinishStep(step.step);
  if (errors_.Count() != before)
    return;
  std::string fault = NameFault(step.name.View());
  if (fault.empty() && out.IsMember(step.name))
    fault = "duplicate step name " + QuotedJson(step.name.View());
  if (!fault.empty()) {
    PathScope name(*this, "name");
    Error(fault);
    return;
  }
  out.Append(step.name, kprC_StepContainer::Handle(static_cast<const kprC_Step&>(step.step)));
}

// What the fields of a step must satisfy together, and what the step leaves
// out that the deck needs.
template <class Step> void Reader::FinishStep(Step& step) {
  if constexpr (std::is_base_of_v<kprC_AnalysisStep, Step>) {
    if (step.description.View().find_first_of("\r\n") != std::string_view::npos) {
      PathScope scope(*this, "description");
      Error("a description is one line; it holds a line end");
    }
  }
  if constexpr (std::is_base_of_v<kprC_Incrementation, Step>)
    FinishIncrements(step);
  if constexpr (std::is_base_of_v<kprC_ExplicitOptions, Step>) {
    AcceptTimePeriod(step.timePeriod);
    if (step.timeIncrementationMethod == kprC_ExplicitUserFixed &&
        step.initialInc == NotGivenDouble)
      Error("missing field \"initialIncrement\", which the userFixed incrementation needs");
  }
  if constexpr (std::is_same_v<Step, kprC_ImplicitDynamicsStep>)
    RequireForAutomatic(step.timeIncrementationMethod == kprC_AutomaticIncrements, step.haftol,
                        "haftol");
  if constexpr (std::is_same_v<Step, kprC_ViscoStep>)
    RequireForAutomatic(step.timeIncrementationMethod == kprC_AutomaticIncrements, step.cetol,
                        "cetol");
  if constexpr (std::is_same_v<Step, kprC_MassDiffusionStep>)
    RequireForAutomatic(step.timeIncrementationMethod == kprC_AutomaticIncrements, step.dcmax,
                        "dcmax");
}

// The deck writes these tolerances whenever the increments are automatic,
// and the solver has no default for them.
void Reader::RequireForAutomatic(bool automatic, double value, const char* field) {
  if (automatic && value == NotGivenDouble)
    Error("missing field " + QuotedJson(field) + ", which automatic incrementation needs");
}

bool Reader::AcceptTimePeriod(double period) {
  if (period >= 0)
    return true;
  PathScope scope(*this, "timePeriod");
  Error("the time period must not be negative, found " + NumberText(period));
  return false;
}

// The increment sizes left out take the period (initial and largest) and the
// lesser of the initial increment and 1e-5 of the period (smallest).
void Reader::FinishIncrements(kprC_Incrementation& increments) {
  if (!AcceptTimePeriod(increments.timePeriod))
    return;
  if (increments.initialInc == NotGivenDouble)
    increments.initialInc = increments.timePeriod;
  if (increments.maxInc == NotGivenDouble)
    increments.maxInc = increments.timePeriod;
  if (increments.minInc == NotGivenDouble)
    increments.minInc = std::min(increments.initialInc, 1e-5 * increments.timePeriod);
  if (increments.initialInc > increments.timePeriod) {
    PathScope scope(*this, "initialIncrement");
    Error("the initial increment " + NumberText(increments.initialInc) +
          " is larger than the time period " + NumberText(increments.timePeriod));
  }
  if (increments.timeIncrementationMethod == kprC_AutomaticIncrements &&
      increments.minInc > increments.maxInc) {
    PathScope scope(*this, "minIncrement");
    Error("the smallest increment " + NumberText(increments.minInc) +
          " is larger than the largest " + NumberText(increments.maxInc));
  }
}

std::string ErrnoText(int number) {
  std::string text = std::strerror(number);
  if (!text.empty())
    text[0] = static_cast<char>(std::tolower(static_cast<unsigned char>(text[0])));
  return text;
}

class FileCloser {
public:
  explicit FileCloser(std::FILE* file) : file_(file) {}
  FileCloser(const FileCloser&) = delete;
  FileCloser& operator=(const FileCloser&) = delete;
  ~FileCloser() { std::fclose(file_); }

private:
  std::FILE* file_;
};

// Reads the file at `path` whole; false, with the reason in `errors`, when it
// cannot.
bool ReadFile(const char* path, simdjson::padded_string& text, LoadErrors& errors) {
  std::error_code code;
  const std::filesystem::file_status status = std::filesystem::status(path, code);
  if (code == std::errc::no_such_file_or_directory) {
    errors.Add(path, "no such file");
    return false;
  }
  if (code) {
    errors.Add(path, "cannot open the file: " + Lower(code.message()));
    return false;
  }
  if (std::filesystem::is_directory(status)) {
    errors.Add(path, "is a directory, not a model file");
    return false;
  }
  if (!std::filesystem::is_regular_file(status)) {
    errors.Add(path, "is not a regular file");
    return false;
  }
  std::FILE* const file = std::fopen(path, "rb");
  if (file == nullptr) {
    errors.Add(path, "cannot open the file: " + ErrnoText(errno));
    return false;
  }
  const FileCloser closer(file);
  long size = -1;
  if (std::fseek(file, 0, SEEK_END) == 0)
    size = std::ftell(file);
  if (size < 0 || std::fseek(file, 0, SEEK_SET) != 0) {
    errors.Add(path, "cannot read the file: " + ErrnoText(errno));
    return false;
  }
  if (size == 0) {
    errors.Add(path, "the file is empty");
    return false;
  }
  simdjson::padded_string buffer(static_cast<std::size_t>(size));
  if (buffer.data() == nullptr) {
    errors.Add(path, "cannot read the file: not enough memory");
    return false;
  }
  if (std::fread(buffer.data(), 1, buffer.size(), file) != buffer.size()) {
    errors.Add(path, "cannot read the file: " +
                         (std::ferror(file) ? ErrnoText(errno) : "it shrank while being read"));
    return false;
  }
  text = std::move(buffer);
  return true;
}

// Editors on Windows start a file with the UTF-8 byte-order mark, which JSON
// lets a reader ignore. It becomes blanks, so that columns and offsets in
// messages still count the file's bytes.
void BlankByteOrderMark(simdjson::padded_string& text) {
  constexpr std::string_view Mark = "\xEF\xBB\xBF";
  if (std::string_view(text.data(), text.size()).starts_with(Mark))
    std::fill_n(text.data(), Mark.size(), ' ');
}

odb_Odb LoadText(simdjson::padded_string& text, std::string_view documentName,
                 const ExternalArrays& arrays, std::vector<std::string>& warnings) {
  BlankByteOrderMark(text);
  LoadErrors errors;
  ModelFile file;
  file.format = FileFormat::Unknown;
  file.version.number = 0;
  bool whole = false;
  std::vector<std::string> readWarnings; // kept only if the model loads
  {
    Reader reader(text, documentName, arrays, errors, readWarnings);
    whole = reader.Read(file);
  }
  text = simdjson::padded_string(); // the model holds all it needs from the text now
  errors.EndReading();
  if (whole) {
    for (const cow_String& name : file.models.Keys())
      DeriveModel("models/" + std::string(name.View()), file.models.Get(name), errors);
  }
  if (!errors.Empty())
    errors.Throw();
  warnings.insert(warnings.end(), readWarnings.begin(), readWarnings.end());
  AddUnwrittenWarnings(file.models, warnings);
  ddb_Ddb ddb;
  ddb.models_ = file.models;
  return odb_Odb(std::move(ddb));
}

} // namespace

odb_Odb LoadModelFile(const char* path, std::vector<std::string>& warnings) {
  simdjson::padded_string text;
  LoadErrors errors;
  if (!ReadFile(path, text, errors))
    errors.Throw();
  return LoadText(text, path, ExternalArrays(), warnings);
}

odb_Odb LoadModelText(std::string_view json, std::vector<std::string>& warnings) {
  return LoadModelText(json, ExternalArrays(), warnings);
}

odb_Odb LoadModelText(std::string_view json, const ExternalArrays& arrays,
                      std::vector<std::string>& warnings) {
  simdjson::padded_string text(json);
  return LoadText(text, "", arrays, warnings);
}

} // namespace keydeck
