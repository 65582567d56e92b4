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

std::string QuotedJson(std::string_view text) {
  std::string quoted;
  quoted.reserve(text.size() + 2);
  quoted += '"';
  for (const char c : text) {
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
      if (static_cast<unsigned char>(c) < 0x20) {
        constexpr char Hex[] = "0123456789abcdef";
        quoted += "\\u00";
        quoted += Hex[(c >> 4) & 0xF];
        quoted += Hex[c & 0xF];
      } else {
        quoted += c;
      }
    }
  }
  quoted += '"';
  return quoted;
}

} // namespace keydeck
