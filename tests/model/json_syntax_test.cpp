#include "model/json/json_syntax.h"

#include <gtest/gtest.h>

#include <string>

using namespace keydeck;

namespace {

TEST(JsonSyntax, AcceptsValidTexts) {
  const std::string texts[] = {
      "{}",
      " [ ] ",
      "0",
      "-0.5e+10",
      "\"\"",
      "true",
      "null",
      R"({"a": [1, -2, 3.25, 4E-2, true, false, null, {"b": {}}], "c": "\"\\\/\b\f\n\r\t\u00e9"})",
      "\"\\ud83d\\ude00 \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80\"",
      "\r\n\t{\"a\"\t:\r\n1}\n",
      std::string(MaxJsonDepth, '[') + std::string(MaxJsonDepth, ']'),
  };
  for (const std::string& text : texts) {
    SCOPED_TRACE(text);
    const std::optional<JsonSyntaxError> error = FindJsonSyntaxError(text);
    EXPECT_FALSE(error.has_value()) << error->what;
  }
}

TEST(JsonSyntax, FindsTheFirstFault) {
  struct Case {
    std::string text;
    std::size_t offset;
    const char* what;
  };
  const Case cases[] = {
      {"", 0, "the text holds no JSON value"},
      {"  ", 2, "the text holds no JSON value"},
      {"{} {}", 3, "unexpected text after the JSON value"},
      {"[1, 2", 5, "the text ends inside an unclosed array"},
      {R"({"a": 1)", 7, "the text ends inside an unclosed object"},
      {R"({"a" 1})", 5, "expected \":\" after the key"},
      {R"({"a": 1 "b": 2})", 8, "expected \",\" or \"}\""},
      {"[1 2]", 3, "expected \",\" or \"]\""},
      {"[1,]", 3, "expected a value"},
      {R"({"a": 1,})", 8, "expected a string key"},
      {"{1: 2}", 1, "expected a string key or \"}\""},
      {"[01]", 1, "invalid number: a leading zero"},
      {"[1.]", 1, "invalid number: no digit after the decimal point"},
      {"[1e+]", 1, "invalid number: no digit in the exponent"},
      {"[-]", 1, "invalid number"},
      {"[.5]", 1, "expected a value"},
      {"[+1]", 1, "expected a value"},
      {"[tru]", 1, "expected a value"},
      {"[nulls]", 1, "expected a value"},
      {"[NaN]", 1, "expected a value"},
      {"\"abc", 0, "a string is not closed"},
      {"[\"a\\", 1, "a string is not closed"},
      {"\"a\tb\"", 2, "control character in a string; write it as an escape"},
      {"\"\\x\"", 1, "invalid escape in a string"},
      {"\"\\u12G4\"", 1, "\\u in a string must be followed by four hexadecimal digits"},
      {"\"\\ud83d\"", 1, "a high surrogate \\u escape without a low one after it"},
      {"\"\\ud83d\\u0041\"", 1, "a high surrogate \\u escape without a low one after it"},
      {"\"\\ude00\"", 1, "a low surrogate \\u escape without a high one before it"},
      {"\"\xC3\x28\"", 1, "invalid UTF-8"},
      {"\"\xC0\xAF\"", 1, "invalid UTF-8"},         // overlong
      {"\"\xE0\x80\xAF\"", 1, "invalid UTF-8"},     // overlong
      {"\"\xED\xA0\x80\"", 1, "invalid UTF-8"},     // a surrogate
      {"\"\xF4\x90\x80\x80\"", 1, "invalid UTF-8"}, // above U+10FFFF
      {"\"\xE2\x82\"", 1, "invalid UTF-8"},         // cut short
      {"\xEF\xBB\xBF{}", 0, "expected a value"},    // a byte order mark
      {std::string(MaxJsonDepth + 1, '['), MaxJsonDepth,
       "arrays and objects nest more than 1024 levels deep"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    const std::optional<JsonSyntaxError> error = FindJsonSyntaxError(c.text);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->offset, c.offset);
    EXPECT_EQ(error->what, c.what);
  }
}

TEST(JsonSyntax, LineAndColumnCountLinesAndBytes) {
  const std::optional<JsonSyntaxError> error = FindJsonSyntaxError("{\n  \"\xC3\xA9\": 1,\n  x}");
  ASSERT_TRUE(error.has_value());
  EXPECT_EQ(error->offset, 15u);
  EXPECT_EQ(error->line, 3);
  EXPECT_EQ(error->column, 3);
  int line = 0;
  int column = 0;
  LineAndColumn("ab\ncd\n", 6, line, column);
  EXPECT_EQ(line, 3);
  EXPECT_EQ(column, 1);
}

} // namespace
