#include "model/json/dumper.h"

#include "model/json/fields.h"
#include "model/json/json_text.h"

#include <array>
#include <bit>
#include <cassert>
#include <cstdint>
#include <optional>
#include <type_traits>

namespace keydeck {

namespace {

// True when a field may be left out: it holds its default. A record is always
// written; a container is left out when it and its default are empty; an
// optional value when it is absent.
template <class M, class D> bool IsDefault(const M& member, const D& value) {
  if constexpr (FieldRecord<M>) {
    return false;
  } else if constexpr (std::is_same_v<M, kmaC_MaterialTable>) {
    return member.Rows() == 0 && value.Rows() == 0;
  } else if constexpr (IsOptional<M>) {
    return !member.has_value();
  } else if constexpr (IsPropAttr<M>) {
    return !member.IsActive();
  } else if constexpr (requires { member.Size(); } && std::is_same_v<M, D>) {
    // Compared in place: a copy of a container with an optional inside trips
    // a false "maybe uninitialized" warning of the compiler.
    return member.Size() == 0 && value.Size() == 0;
  } else {
    const M fallback = value;
    if constexpr (IsArray<M>) {
      for (std::size_t i = 0; i < member.size(); ++i)
        if (!IsDefault(member[i], fallback[i]))
          return false;
      return true;
    } else if constexpr (requires { member.Size(); })
      return member.Size() == 0 && fallback.Size() == 0;
    else if constexpr (std::is_floating_point_v<M>)
      return std::bit_cast<std::uint64_t>(member) == std::bit_cast<std::uint64_t>(fallback);
    else
      return member == fallback;
  }
}

class Dumper {
public:
  explicit Dumper(JsonText& out) : out_(out) {}

  template <ScalarField M> void Write(const M& value) { WriteScalar(out_, value); }

  void Write(const cow_List<int>& numbers) {
    out_.OpenArray(/*oneLine=*/true);
    for (const int number : numbers)
      out_.Integer(number);
    out_.CloseArray();
  }

  void Write(const cow_List<double>& numbers) {
    out_.OpenArray(/*oneLine=*/true);
    for (const double number : numbers)
      out_.Real(number);
    out_.CloseArray();
  }

  void Write(const cow_List<DeckName>& names) {
    out_.OpenArray(/*oneLine=*/true);
    for (const DeckName& name : names)
      out_.String(name.View());
    out_.CloseArray();
  }

  void Write(const uti_CoordCont3D& points) {
    out_.OpenArray(/*oneLine=*/false);
    for (const uti_Coord3D& point : points) {
      out_.OpenArray(/*oneLine=*/true);
      for (const float coordinate : point)
        out_.Real(coordinate);
      out_.CloseArray();
    }
    out_.CloseArray();
  }

  template <class T, std::size_t N> void Write(const std::array<T, N>& values) {
    out_.OpenArray(/*oneLine=*/true);
    for (const T& value : values)
      Write(value);
    out_.CloseArray();
  }

  template <class T> void Write(const std::optional<T>& value) {
    assert(value.has_value() && "an absent optional field is left out");
    Write(*value);
  }

  template <class T> void Write(const mdl_PropAttr<T>& attribute) { Write(attribute.ConstGet()); }

  void Write(const LabelList& list) {
    if (list.isRange)
      Write(list.range);
    else
      Write(list.labels);
  }

  void Write(const cow_2DArray<int>& rows) {
    out_.OpenArray(/*oneLine=*/false);
    for (int r = 0; r < rows.Rows(); ++r) {
      out_.OpenArray(/*oneLine=*/true);
      for (int c = 0; c < rows.Cols(); ++c)
        out_.Integer(rows.ConstGet(r, c));
      out_.CloseArray();
    }
    out_.CloseArray();
  }

  void Write(const kmaC_MaterialTable& table) {
    out_.OpenArray(/*oneLine=*/false);
    for (int r = 0; r < table.Rows(); ++r) {
      out_.OpenArray(/*oneLine=*/true);
      for (int c = 0; c < table.Cols(); ++c)
        out_.Real(table.ConstGet(r, c));
      out_.CloseArray();
    }
    out_.CloseArray();
  }

  template <FieldRecord R> void Write(const cow_List<R>& records) {
    out_.OpenArray(/*oneLine=*/false);
    for (const R& record : records)
      Write(record);
    out_.CloseArray();
  }

  template <FieldRecord R> void Write(const cow_Btree<cow_String, R>& records) {
    out_.OpenObject();
    for (const auto& [name, record] : records) {
      out_.Key(name.View());
      Write(record);
    }
    out_.CloseObject();
  }

  template <class Base> void Write(const mdl_MapString2ObjCow<Base>& records) {
    out_.OpenObject();
    for (const auto& [name, handle] : records) {
      out_.Key(name.View());
      if constexpr (PolymorphicBase<Base>)
        WriteKind<Base>(*handle, [&](const auto& record) { Write(record); });
      else
        Write(RecordCast<typename MapEntryClass<Base>::Type>(*handle));
    }
    out_.CloseObject();
  }

  void Write(const kprC_StepContainer& steps) {
    out_.OpenArray(/*oneLine=*/false);
    for (int i = 0; i < steps.Size(); ++i) {
      const cow_String& name = steps.NameAt(i);
      if (i == 0)
        WriteStep(name, RecordCast<kprC_InitialStep>(steps.StepAt(i)));
      else
        WriteKind<kprC_AnalysisStep>(steps.StepAt(i),
                                     [&](const auto& step) { WriteStep(name, step); });
    }
    out_.CloseArray();
  }

  template <FieldRecord R> void Write(const R& record) {
    R copy = record; // `Fields` hands out its members for writing; the copy shares them
    out_.OpenObject();
    FieldWriter writer(*this);
    copy.Fields(writer);
    out_.CloseObject();
  }

private:
  class FieldWriter {
  public:
    explicit FieldWriter(Dumper& dumper) : dumper_(dumper) {}
    template <class M> void operator()(FieldName name, M& member) {
      dumper_.out_.Key(name);
      dumper_.Write(member);
    }
    template <class M, class D> void operator()(FieldName name, M& member, const D& value) {
      if (!IsDefault(member, value))
        (*this)(name, member);
    }

  private:
    Dumper& dumper_;
  };

  template <class Step> void WriteStep(const cow_String& name, const Step& step) {
    Write(NamedStep<Step>{name, step});
  }

  // Calls `write` with the record narrowed to its class in the family `Base`;
  // only a record of a class the family lists can be in a model.
  template <PolymorphicBase Base, class Record, class F>
  void WriteKind(const Record& record, F&& write) {
    const bool known = VisitTypeIdClass<Base>(record.DynTypeId(), [&](auto type) {
      write(RecordCast<typename decltype(type)::type>(record));
    });
    assert(known && "a record of a class that its family does not list");
    (void)known;
  }

  JsonText& out_;
};

} // namespace

std::string DumpModel(const odb_Odb& odb) {
  ModelFile file;
  file.models = odb.ddb().models_;
  JsonText out;
  Dumper(out).Write(file);
  return out.Take();
}

} // namespace keydeck
