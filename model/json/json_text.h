#pragma once

#include "base/cow_String.h"
#include "model/json/fields.h"
#include "model/records.h"

#include <cassert>
#include <string>
#include <string_view>
#include <vector>

namespace keydeck {

/// Builds a JSON text with a fixed layout: object members one to a line,
/// array items one to a line or, for an array opened with `oneLine`, all on
/// one line; two spaces of indent per level. The caller writes well-formed
/// sequences (a key before each member value, closes matching opens).
class JsonText {
public:
  void OpenObject();
  void CloseObject();
  void OpenArray(bool oneLine);
  void CloseArray();
  /// The key of the next member of the innermost object.
  void Key(std::string_view key);

  void String(std::string_view text);
  void Integer(long long value);
  /// The shortest text that reads back as the same double.
  void Real(double value);
  /// The shortest text that reads back as the same float.
  void Real(float value);
  void Boolean(bool value);

  /// The text so far, ending in a line break; the builder is left empty.
  std::string Take();

private:
  struct Level {
    bool oneLine;
    bool empty;
  };
  void BeforeValue();
  template <class T> void Number(T value);
  void NewLine();

  std::vector<Level> levels_;
  std::string text_;
  bool afterKey_ = false;
};

/// The length in bytes of the control character that starts at byte `at` of
/// the UTF-8 `text`, or 0 when none starts there. Control characters are
/// U+0000..U+001F, DEL and U+0080..U+009F.
std::size_t ControlCharacterSize(std::string_view text, std::size_t at);

/// `text` in double quotes with JSON escapes, for messages and JSON output;
/// every control character is escaped.
std::string QuotedJson(std::string_view text);

/// Writes a scalar field value as the file gives it.
inline void WriteScalar(JsonText& out, const cow_String& value) { out.String(value.View()); }
inline void WriteScalar(JsonText& out, int value) { out.Integer(value); }
inline void WriteScalar(JsonText& out, double value) { out.Real(value); }
inline void WriteScalar(JsonText& out, bool value) { out.Boolean(value); }
inline void WriteScalar(JsonText& out, const FileVersion& value) { out.Integer(value.number); }
template <TabledEnum E> void WriteScalar(JsonText& out, E value) {
  const EnumEntry<E>* entry = FindEnumEntry(value);
  assert(entry != nullptr && "an enumeration value outside its table");
  out.String(entry->fileText);
}

/// True for the types that `WriteScalar` writes.
template <class M>
concept ScalarField = requires(JsonText& out, const M& value) {
  WriteScalar(out, value);
};

} // namespace keydeck
