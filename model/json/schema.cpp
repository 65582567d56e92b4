#include "model/json/schema.h"

#include "model/element_types.h"
#include "model/json/fields.h"
#include "model/json/json_text.h"
#include "model/json/unwritten.h"

#include <array>
#include <cassert>
#include <climits>
#include <optional>
#include <string_view>
#include <vector>

namespace keydeck {

namespace {

// The loader's rules for names and raw solver text as patterns: a name holds
// no double quote and no control character (U+0000..U+001F, DEL,
// U+0080..U+009F); raw text may hold tabs and line ends.
constexpr std::string_view NamePattern = R"(^[^"\u0000-\u001f\u007f-\u009f]+$)";
constexpr std::string_view SolverTextPattern =
    R"(^[^\u0000-\u0008\u000b\u000c\u000e-\u001f\u007f-\u009f]*$)";

// Writes the schema of each kind of member. `Body` writes the keywords of a
// schema object into an object already open, so that a property can add its
// default beside them.
class SchemaWriter {
public:
  explicit SchemaWriter(JsonText& out) : out_(out) {}

  template <class M> void Schema(M value) {
    out_.OpenObject();
    described_ = false;
    Body(value);
    out_.CloseObject();
  }

  void Body(const cow_String&) { Type("string"); }
  void Body(const DeckName&) { NameBody(); }
  void Body(const SolverText&) {
    Type("string");
    Pattern(SolverTextPattern);
  }
  void Body(const bool&) { Type("boolean"); }
  void Body(const double&) { Type("number"); }
  void Body(const int&) {
    Type("integer");
    out_.Key("minimum");
    out_.Integer(INT_MIN);
    out_.Key("maximum");
    out_.Integer(INT_MAX);
  }
  template <TabledEnum E> void Body(const E&) {
    Type("string");
    out_.Key("enum");
    out_.OpenArray(/*oneLine=*/true);
    for (const EnumEntry<E>& entry : EnumTable<E>::Entries)
      out_.String(entry.fileText);
    out_.CloseArray();
  }
  void Body(const FileVersion&) {
    Type("integer");
    out_.Key("enum");
    out_.OpenArray(/*oneLine=*/true);
    out_.Integer(FileVersion::Supported);
    out_.CloseArray();
  }
  void Body(const cow_List<int>&) { ArrayOf(0, /*minItems=*/-1, /*maxItems=*/-1); }
  void Body(const cow_List<double>&) { ArrayOf(0.0, /*minItems=*/-1, /*maxItems=*/-1); }
  void Body(const cow_List<DeckName>&) { ArrayOf(DeckName(), /*minItems=*/-1, /*maxItems=*/-1); }
  template <class T, std::size_t N> void Body(const std::array<T, N>&) {
    ArrayOf(T(), static_cast<int>(N), static_cast<int>(N));
  }
  template <class T> void Body(const std::optional<T>&) {
    T value{};
    Body(value);
  }
  template <class T> void Body(const mdl_PropAttr<T>&) {
    T value{};
    Body(value);
  }
  void Body(const LabelList&) {
    out_.Key("oneOf");
    out_.OpenArray(/*oneLine=*/false);
    Schema(cow_List<int>());
    Schema(LabelRange());
    out_.CloseArray();
  }
  void Body(const uti_CoordCont3D&) {
    Type("array");
    out_.Key("items");
    out_.OpenObject();
    Type("array");
    out_.Key("items");
    Schema(0.0);
    Bounds(3, 3);
    out_.CloseObject();
  }
  void Body(const cow_2DArray<int>&) {
    Type("array");
    out_.Key("items");
    out_.OpenObject();
    ArrayOf(0, /*minItems=*/1, /*maxItems=*/-1);
    out_.CloseObject();
  }
  void Body(const kmaC_MaterialTable&) {
    Type("array");
    out_.Key("items");
    out_.OpenObject();
    ArrayOf(0.0, /*minItems=*/1, /*maxItems=*/-1);
    out_.CloseObject();
  }
  template <FieldRecord R> void Body(const cow_List<R>&) { ArrayOf(R(), -1, -1); }
  template <FieldRecord R> void Body(const cow_Btree<cow_String, R>&) { MapOf(R()); }
  template <class Base> void Body(const mdl_MapString2ObjCow<Base>&) {
    if constexpr (PolymorphicBase<Base>) {
      Type("object");
      NameKeys();
      out_.Key("additionalProperties");
      out_.OpenObject();
      KindsBody<Base>([](auto type) { return typename decltype(type)::type(); });
      out_.CloseObject();
    } else {
      MapOf(typename MapEntryClass<Base>::Type());
    }
  }
  void Body(const kprC_StepContainer&) {
    Type("array");
    out_.Key("prefixItems");
    out_.OpenArray(/*oneLine=*/false);
    Schema(NamedStep<kprC_InitialStep>());
    out_.CloseArray();
    out_.Key("items");
    out_.OpenObject();
    KindsBody<kprC_AnalysisStep>(
        [](auto type) { return NamedStep<typename decltype(type)::type>(); });
    out_.CloseObject();
  }
  template <FieldRecord R> void Body(R& record) {
    if constexpr (requires { R::Description; })
      Description(R::Description);
    described_ = false; // the record's fields get their own
    Constraints(record);
    Type("object");
    out_.Key("properties");
    out_.OpenObject();
    PropertyWriter properties(*this, kind_);
    kind_ = {};
    record.Fields(properties);
    DroppedProperties(HolderOf<R>);
    out_.CloseObject();
    RequiredNames required;
    record.Fields(required);
    if (!required.names.empty()) {
      out_.Key("required");
      out_.OpenArray(/*oneLine=*/true);
      for (const std::string_view name : required.names)
        out_.String(name);
      out_.CloseArray();
    }
    out_.Key("additionalProperties");
    out_.Boolean(false);
  }

private:
  // The discriminating field of a record of a polymorphic family and the
  // word that names the record's class; empty for any other record.
  struct KindWord {
    std::string_view field;
    std::string_view word;
  };

  // A record of a polymorphic family: one of its classes, each told by the
  // word of its discriminating field. `make(std::type_identity<K>())` gives
  // the record to describe for class K.
  template <PolymorphicBase Base, class Make> void KindsBody(Make make) {
    out_.Key("oneOf");
    out_.OpenArray(/*oneLine=*/false);
    VisitKindClasses<Base>([&](auto type) {
      using K = typename decltype(type)::type;
      kind_ = {RecordKinds<Base>::Field, FindEnumEntry(K::Kind)->fileText};
      Schema(make(type));
    });
    out_.CloseArray();
  }

  class PropertyWriter {
  public:
    PropertyWriter(SchemaWriter& writer, KindWord kind) : writer_(writer), kind_(kind) {}
    template <class M> void operator()(FieldName name, M& member) {
      writer_.out_.Key(name);
      if (!kind_.field.empty() && kind_.field == name)
        return writer_.Const(kind_.word, name.description);
      writer_.out_.OpenObject();
      writer_.described_ = false;
      writer_.Description(name.description);
      writer_.Body(member);
      writer_.out_.CloseObject();
    }
    template <class M, class D> void operator()(FieldName name, M& member, const D& value) {
      writer_.out_.Key(name);
      writer_.out_.OpenObject();
      writer_.described_ = false;
      writer_.Description(name.description);
      if constexpr (std::is_same_v<D, Count>)
        writer_.CountBody();
      else
        writer_.Body(member);
      const M fallback = value;
      writer_.Default(fallback);
      writer_.out_.CloseObject();
    }

  private:
    SchemaWriter& writer_;
    KindWord kind_;
  };

  struct RequiredNames {
    std::vector<std::string_view> names;
    template <class M> void operator()(FieldName name, M&) { names.push_back(name); }
    template <class M, class D> void operator()(FieldName, M&, const D&) {}
  };

  // What the deck leaves out on purpose is accepted whatever its value.
  void DroppedProperties(Holder holder) {
    for (const DroppedOption& option : DroppedOptions) {
      if (option.holder != holder)
        continue;
      out_.Key(option.key);
      out_.OpenObject();
      described_ = false;
      Description("a behaviour that the deck leaves out: any value is accepted, with a warning");
      out_.CloseObject();
    }
  }
  void Const(std::string_view word, const char* description) {
    out_.OpenObject();
    described_ = false;
    Description(description);
    out_.Key("const");
    out_.String(word);
    out_.CloseObject();
  }
  // The "description" of a field, or of a record where no field describes
  // it; one to a schema object.
  void Description(const char* text) {
    if (text == nullptr || described_)
      return;
    out_.Key("description");
    out_.String(text);
    described_ = true;
  }
  // What the fields of a record say together, beyond each field alone.
  template <FieldRecord R> void Constraints(const R&) {}
  void Constraints(const ddb_ElementClass&) {
    FieldConstraint("type", [&] { Pattern(ElementTypePattern); });
  }
  void Constraints(const PartSet&) { ExactlyOneOf("nodes", "elements"); }
  void Constraints(const AssemblySet&) { ExactlyOneOf("nodes", "elements"); }
  void Constraints(const PartSurface&) { ExactlyOneOf("faces", "nodes"); }
  void Constraints(const AssemblySurface&) { ExactlyOneOf("faces", "nodes"); }
  void Constraints(const LabelRange&) {
    FieldConstraint("generate", [&] { // the step, the third item, is 1 or more
      out_.Key("prefixItems");
      out_.OpenArray(/*oneLine=*/true);
      EmptyObject();
      EmptyObject();
      out_.OpenObject();
      out_.Key("minimum");
      out_.Integer(1);
      out_.CloseObject();
      out_.CloseArray();
    });
  }
  // {"allOf": [{"properties": {NAME: {KEYWORDS}}}]}: a rule on one field
  // beside the record's own "properties", which say the field's type.
  template <class F> void FieldConstraint(std::string_view name, F&& keywords) {
    out_.Key("allOf");
    out_.OpenArray(/*oneLine=*/false);
    out_.OpenObject();
    out_.Key("properties");
    out_.OpenObject();
    out_.Key(name);
    out_.OpenObject();
    keywords();
    out_.CloseObject();
    out_.CloseObject();
    out_.CloseObject();
    out_.CloseArray();
  }
  void ExactlyOneOf(std::string_view first, std::string_view second) {
    out_.Key("oneOf");
    out_.OpenArray(/*oneLine=*/false);
    for (const std::string_view name : {first, second}) {
      out_.OpenObject();
      out_.Key("required");
      out_.OpenArray(/*oneLine=*/true);
      out_.String(name);
      out_.CloseArray();
      out_.CloseObject();
    }
    out_.CloseArray();
  }
  void NameBody() {
    Type("string");
    out_.Key("minLength");
    out_.Integer(1);
    Pattern(NamePattern);
  }
  void CountBody() {
    Type("integer");
    out_.Key("minimum");
    out_.Integer(0);
    out_.Key("maximum");
    out_.Integer(MaxCount);
  }
  void Pattern(std::string_view pattern) {
    out_.Key("pattern");
    out_.String(pattern);
  }
  void Type(std::string_view type) {
    out_.Key("type");
    out_.String(type);
  }
  void Bounds(int minItems, int maxItems) {
    if (minItems >= 0) {
      out_.Key("minItems");
      out_.Integer(minItems);
    }
    if (maxItems >= 0) {
      out_.Key("maxItems");
      out_.Integer(maxItems);
    }
  }
  template <class Item> void ArrayOf(Item item, int minItems, int maxItems) {
    Type("array");
    out_.Key("items");
    Schema(item);
    Bounds(minItems, maxItems);
  }
  template <class Entry> void MapOf(Entry entry) {
    Type("object");
    NameKeys();
    out_.Key("additionalProperties");
    Schema(entry);
  }
  // The keys of a map are names.
  void NameKeys() {
    out_.Key("propertyNames");
    out_.OpenObject();
    NameBody();
    out_.CloseObject();
  }

  // The "default" of an optional field. A record's default is the record
  // with its fields' defaults, which the fields' schemas say already; a
  // not-given mark, and an attribute left unset in its step, are said by
  // leaving the field out, so none of them has one here.
  template <class M> void Default(const M& value) {
    if constexpr (FieldRecord<M> || IsOptional<M> || IsPropAttr<M>) {
      return;
    } else if constexpr (std::is_same_v<M, kmaC_MaterialTable>) {
      assert(value.Rows() == 0 && "a table whose default is not empty");
      out_.Key("default");
      EmptyArray();
    } else if constexpr (IsArray<M>) {
      out_.Key("default");
      out_.OpenArray(/*oneLine=*/true);
      for (const auto& item : value)
        WriteScalar(out_, item);
      out_.CloseArray();
    } else if constexpr (ScalarField<M>) {
      if (IsNotGivenMark(value))
        return;
      out_.Key("default");
      WriteScalar(out_, value);
    } else {
      assert(value.Size() == 0 && "a container whose default is not empty");
      out_.Key("default");
      EmptyContainer(value);
    }
  }
  template <class K, class V> void EmptyContainer(const cow_Btree<K, V>&) { EmptyObject(); }
  template <class Base> void EmptyContainer(const mdl_MapString2ObjCow<Base>&) { EmptyObject(); }
  template <class T> void EmptyContainer(const cow_List<T>&) { EmptyArray(); }
  void EmptyContainer(const kprC_StepContainer&) { EmptyArray(); }
  void EmptyObject() {
    out_.OpenObject();
    out_.CloseObject();
  }
  void EmptyArray() {
    out_.OpenArray(/*oneLine=*/true);
    out_.CloseArray();
  }

  JsonText& out_;
  KindWord kind_;          // for the next record's properties only
  bool described_ = false; // the schema object being written has its description
};

} // namespace

std::string ModelSchema() {
  JsonText out;
  out.OpenObject();
  out.Key("$schema");
  out.String("https://json-schema.org/draft/2020-12/schema");
  out.Key("title");
  out.String("keydeck model file");
  ModelFile file;
  SchemaWriter(out).Body(file);
  out.CloseObject();
  return out.Take();
}

} // namespace keydeck
