#include "model/json/json_text.h"

#include <charconv>
#include <utility>

namespace keydeck {

void JsonText::OpenObject() {
  BeforeValue();
  text_ += '{';
  levels_.push_back({/*oneLine=*/false, /*empty=*/true});
}

void JsonText::CloseObject() {
  const Level level = levels_.back();
  levels_.pop_back();
  if (!level.empty)
    NewLine();
  text_ += '}';
}

void JsonText::OpenArray(bool oneLine) {
  BeforeValue();
  text_ += '[';
  levels_.push_back({oneLine, /*empty=*/true});
}

void JsonText::CloseArray() {
  const Level level = levels_.back();
  levels_.pop_back();
  if (!level.empty && !level.oneLine)
    NewLine();
  text_ += ']';
}

void JsonText::Key(std::string_view key) {
  Level& level = levels_.back();
  if (!level.empty)
    text_ += ',';
  level.empty = false;
  NewLine();
  text_ += QuotedJson(key);
  text_ += ": ";
  afterKey_ = true;
}

void JsonText::String(std::string_view text) {
  BeforeValue();
  text_ += QuotedJson(text);
}

// The shortest text that reads back as the same number.
template <class T> void JsonText::Number(T value) {
  BeforeValue();
  char digits[32];
  const auto result = std::to_chars(digits, digits + sizeof digits, value);
  text_.append(digits, result.ptr);
}

void JsonText::Integer(long long value) { Number(value); }
void JsonText::Real(double value) { Number(value); }
void JsonText::Real(float value) { Number(value); }

void JsonText::Boolean(bool value) {
  BeforeValue();
  text_ += value ? "true" : "false";
}

std::string JsonText::Take() {
  text_ += '\n';
  levels_.clear();
  afterKey_ = false;
  return std::exchange(text_, std::string());
}

void JsonText::BeforeValue() {
  if (afterKey_) {
    afterKey_ = false;
    return;
  }
  if (levels_.empty())
    return;
  Level& level = levels_.back();
  if (!level.empty)
    text_ += level.oneLine ? ", " : ",";
  if (!level.oneLine)
    NewLine();
  level.empty = false;
}

void JsonText::NewLine() {
  text_ += '\n';
  text_.append(2 * levels_.size(), ' ');
}

std::size_t ControlCharacterSize(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  if (byte(at) < 0x20 || byte(at) == 0x7F)
    return 1;
  // U+0080..U+009F: C2 followed by 80..9F in UTF-8.
  if (byte(at) == 0xC2 && at + 1 < text.size() && byte(at + 1) >= 0x80 && byte(at + 1) <= 0x9F)
    return 2;
  return 0;
}

// "\u001b" for the control character `code`.
static void AppendUnicodeEscape(std::string& out, unsigned code) {
  constexpr char Hex[] = "0123456789abcdef";
  out += "\\u00";
  out += Hex[(code >> 4) & 0xF];
  out += Hex[code & 0xF];
}

std::string QuotedJson(std::string_view text) {
  std::string quoted;
  quoted.reserve(text.size() + 2);
  quoted += '"';
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    switch (c) {
    case '"':
      quoted += "\\\"";
      break;
    case '\\':
      quoted += "\\\\";
      break;
    case '\n':
      quoted += "\\n";
      break;
    case '\t':
      quoted += "\\t";
      break;
    case '\r':
      quoted += "\\r";
      break;
    default:
      // Escaped, so that a message never sends a terminal a control sequence.
      switch (ControlCharacterSize(text, i)) {
      case 0:
        quoted += c;
        break;
      case 1:
        AppendUnicodeEscape(quoted, static_cast<unsigned char>(c));
        break;
      default:
        AppendUnicodeEscape(quoted, static_cast<unsigned char>(text[++i]));
      }
    }
  }
  quoted += '"';
  return quoted;
}

} // namespace keydeck
