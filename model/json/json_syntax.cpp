#include "model/json/json_syntax.h"

#include <cctype>
#include <vector>

namespace keydeck {

namespace {

bool IsDigit(unsigned char c) { return c >= '0' && c <= '9'; }

bool IsHexDigit(unsigned char c) {
  return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool IsSpace(unsigned char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

// A scanner over the whole text that stops at the first fault. Containers are
// kept on an explicit stack, so a deeply nested text cannot exhaust the call
// stack.
class Scanner {
public:
  explicit Scanner(std::string_view text) : text_(text) {}

  std::optional<JsonSyntaxError> Run();

private:
  enum class Expect { Value, ValueOrClose, KeyOrClose, Key, Colon, CommaOrClose };

  bool AtEnd() const { return at_ >= text_.size(); }
  unsigned char Peek() const { return static_cast<unsigned char>(text_[at_]); }
  void SkipSpace() {
    while (!AtEnd() && IsSpace(Peek()))
      ++at_;
  }
  bool Fail(std::size_t offset, std::string what) {
    error_ = JsonSyntaxError{offset, 0, 0, std::move(what)};
    LineAndColumn(text_, offset, error_->line, error_->column);
    return false;
  }

  bool Step();
  bool Value();
  bool Open(char bracket);
  bool String();
  bool Escape();
  bool Utf8Sequence();
  bool Number();
  bool Literal();

  std::string_view text_;
  std::size_t at_ = 0;
  Expect expect_ = Expect::Value;
  std::vector<char> open_; // the open brackets, innermost last
  std::optional<JsonSyntaxError> error_;
};

std::optional<JsonSyntaxError> Scanner::Run() {
  SkipSpace();
  if (AtEnd()) {
    Fail(at_, "the text holds no JSON value");
    return error_;
  }
  while (Step()) {
    SkipSpace();
    if (expect_ == Expect::CommaOrClose && open_.empty()) {
      if (!AtEnd())
        Fail(at_, "unexpected text after the JSON value");
      return error_;
    }
    if (AtEnd()) {
      Fail(at_, "the text ends inside an unclosed " +
                    std::string(open_.back() == '{' ? "object" : "array"));
      return error_;
    }
  }
  return error_;
}

// One token in the state `expect_`; false at a fault.
bool Scanner::Step() {
  const unsigned char c = Peek();
  switch (expect_) {
  case Expect::ValueOrClose:
    if (c == ']') {
      ++at_;
      open_.pop_back();
      expect_ = Expect::CommaOrClose;
      return true;
    }
    return Value();
  case Expect::Value:
    return Value();
  case Expect::KeyOrClose:
    if (c == '}') {
      ++at_;
      open_.pop_back();
      expect_ = Expect::CommaOrClose;
      return true;
    }
    [[fallthrough]];
  case Expect::Key:
    if (c != '"')
      return Fail(at_, expect_ == Expect::Key ? "expected a string key"
                                              : "expected a string key or \"}\"");
    if (!String())
      return false;
    expect_ = Expect::Colon;
    return true;
  case Expect::Colon:
    if (c != ':')
      return Fail(at_, "expected \":\" after the key");
    ++at_;
    expect_ = Expect::Value;
    return true;
  case Expect::CommaOrClose: {
    const char open = open_.back();
    const char close = open == '{' ? '}' : ']';
    if (c == ',') {
      ++at_;
      expect_ = open == '{' ? Expect::Key : Expect::Value;
      return true;
    }
    if (c == static_cast<unsigned char>(close)) {
      ++at_;
      open_.pop_back();
      return true;
    }
    return Fail(at_, std::string("expected \",\" or \"") + close + "\"");
  }
  }
  return false;
}

bool Scanner::Value() {
  const unsigned char c = Peek();
  if (c == '{' || c == '[')
    return Open(static_cast<char>(c));
  expect_ = Expect::CommaOrClose;
  if (c == '"')
    return String();
  if (c == '-' || IsDigit(c))
    return Number();
  if (c == 't' || c == 'f' || c == 'n')
    return Literal();
  return Fail(at_, "expected a value");
}

bool Scanner::Open(char bracket) {
  if (open_.size() >= static_cast<std::size_t>(MaxJsonDepth))
    return Fail(at_, "arrays and objects nest more than " + std::to_string(MaxJsonDepth) +
                         " levels deep");
  open_.push_back(bracket);
  ++at_;
  expect_ = bracket == '{' ? Expect::KeyOrClose : Expect::ValueOrClose;
  return true;
}

bool Scanner::String() {
  const std::size_t start = at_++;
  while (!AtEnd()) {
    const unsigned char c = Peek();
    if (c == '"') {
      ++at_;
      return true;
    }
    if (c < 0x20)
      return Fail(at_, "control character in a string; write it as an escape");
    if (c == '\\') {
      if (at_ + 1 >= text_.size())
        return Fail(start, "a string is not closed");
      if (!Escape())
        return false;
      continue;
    }
    if (c >= 0x80) {
      if (!Utf8Sequence())
        return false;
      continue;
    }
    ++at_;
  }
  return Fail(start, "a string is not closed");
}

bool Scanner::Escape() {
  const std::size_t start = at_++;
  const unsigned char c = Peek();
  if (c != 'u') {
    constexpr std::string_view Escapable = "\"\\/bfnrt";
    if (Escapable.find(static_cast<char>(c)) == std::string_view::npos)
      return Fail(start, "invalid escape in a string");
    ++at_;
    return true;
  }
  auto readHex = [this](std::size_t from, unsigned& code) {
    if (text_.size() - from < 4)
      return false;
    code = 0;
    for (std::size_t i = from; i < from + 4; ++i) {
      const unsigned char h = static_cast<unsigned char>(text_[i]);
      if (!IsHexDigit(h))
        return false;
      code = code * 16 + static_cast<unsigned>(IsDigit(h) ? h - '0' : (h | 0x20) - 'a' + 10);
    }
    return true;
  };
  unsigned code = 0;
  if (!readHex(at_ + 1, code))
    return Fail(start, "\\u in a string must be followed by four hexadecimal digits");
  at_ += 5;
  if (code >= 0xDC00 && code <= 0xDFFF)
    return Fail(start, "a low surrogate \\u escape without a high one before it");
  if (code < 0xD800 || code > 0xDBFF)
    return true;
  unsigned low = 0;
  if (text_.substr(at_, 2) != "\\u" || !readHex(at_ + 2, low) || low < 0xDC00 || low > 0xDFFF)
    return Fail(start, "a high surrogate \\u escape without a low one after it");
  at_ += 6;
  return true;
}

// One multi-byte UTF-8 character: no overlong forms, no surrogates, nothing
// above U+10FFFF.
bool Scanner::Utf8Sequence() {
  const std::size_t start = at_;
  const unsigned char lead = Peek();
  int length = 0;
  unsigned code = 0;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
    code = lead & 0x1F;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    code = lead & 0x0F;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    code = lead & 0x07;
  } else {
    return Fail(start, "invalid UTF-8");
  }
  if (text_.size() - start < static_cast<std::size_t>(length))
    return Fail(start, "invalid UTF-8");
  for (int i = 1; i < length; ++i) {
    const unsigned char c = static_cast<unsigned char>(text_[start + static_cast<std::size_t>(i)]);
    if ((c & 0xC0) != 0x80)
      return Fail(start, "invalid UTF-8");
    code = (code << 6) | (c & 0x3F);
  }
  const bool overlong = (length == 3 && code < 0x800) || (length == 4 && code < 0x10000);
  if (overlong || (code >= 0xD800 && code <= 0xDFFF) || code > 0x10FFFF)
    return Fail(start, "invalid UTF-8");
  at_ += static_cast<std::size_t>(length);
  return true;
}

bool Scanner::Number() {
  const std::size_t start = at_;
  auto digits = [this] {
    const std::size_t from = at_;
    while (!AtEnd() && IsDigit(Peek()))
      ++at_;
    return at_ > from;
  };
  if (Peek() == '-')
    ++at_;
  if (AtEnd() || !IsDigit(Peek()))
    return Fail(start, "invalid number");
  if (Peek() == '0') {
    ++at_;
    if (!AtEnd() && IsDigit(Peek()))
      return Fail(start, "invalid number: a leading zero");
  } else {
    digits();
  }
  if (!AtEnd() && Peek() == '.') {
    ++at_;
    if (!digits())
      return Fail(start, "invalid number: no digit after the decimal point");
  }
  if (!AtEnd() && (Peek() == 'e' || Peek() == 'E')) {
    ++at_;
    if (!AtEnd() && (Peek() == '+' || Peek() == '-'))
      ++at_;
    if (!digits())
      return Fail(start, "invalid number: no digit in the exponent");
  }
  return true;
}

bool Scanner::Literal() {
  for (const std::string_view word : {"true", "false", "null"}) {
    if (text_.substr(at_, word.size()) != word)
      continue;
    const std::size_t end = at_ + word.size();
    if (end < text_.size()) {
      const unsigned char next = static_cast<unsigned char>(text_[end]);
      if (next >= 0x80 || std::isalnum(next) || next == '_')
        break;
    }
    at_ = end;
    return true;
  }
  return Fail(at_, "expected a value");
}

} // namespace

std::optional<JsonSyntaxError> FindJsonSyntaxError(std::string_view text) {
  return Scanner(text).Run();
}

void LineAndColumn(std::string_view text, std::size_t offset, int& line, int& column) {
  line = 1;
  std::size_t lineStart = 0;
  for (std::size_t i = 0; i < offset && i < text.size(); ++i) {
    if (text[i] == '\n') {
      ++line;
      lineStart = i + 1;
    }
  }
  column = static_cast<int>(offset - lineStart) + 1;
}

} // namespace keydeck
