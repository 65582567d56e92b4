#include "base/cow_String.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <string_view>

namespace {

std::string Text(const cow_String& s) { return std::string(s.View()); }

TEST(CowString, CompareOrdersUnsignedBytesAndAnswersMinusOneZeroOne) {
  struct Case {
    std::string_view a, b;
    int order;
  };
  const Case cases[] = {
      {"", "", 0},
      {"a", "a", 0},
      {"a", "z", -1}, // a byte difference of 25, still -1
      {"z", "a", 1},
      {"", "a", -1},
      {"ab", "a", 1}, // a proper prefix sorts first
      {"abc", "abd", -1},
      {"Z", "a", -1},
      {"A", "a", -1},
      {"\xc3\xa9", "z", 1}, // bytes above 127 sort after ASCII
      {"z", "\x80", -1},
      {"\xff", "\x7f", 1},
      {"a\xff", "a\x01", 1},
      {std::string_view("a\0b", 3), "a", 1}, // an embedded zero byte still counts
      {"a", std::string_view("a\0b", 3), -1},
      {std::string_view("a\0b", 3), std::string_view("a\0c", 3), -1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.a) + " vs " + std::string(c.b));
    const cow_String a(c.a), b(c.b);
    EXPECT_EQ(a.Compare(b), c.order);
    EXPECT_EQ(b.Compare(a), -c.order);
    EXPECT_EQ(a == b, c.order == 0);
    EXPECT_EQ(a < b, c.order < 0);
    if (c.b.find('\0') == std::string_view::npos) {
      EXPECT_EQ(a.Compare(std::string(c.b).c_str()), c.order);
    }
  }
}

TEST(CowString, FindFromAPosition) {
  const cow_String s("abcabc");
  struct Case {
    const char* text;
    int from, at;
  };
  const Case cases[] = {
      {"b", 0, 1},  {"b", 2, 4},  {"b", 5, -1}, {"abc", 1, 3}, {"c", 5, 5},
      {"x", 0, -1}, {"c", 6, -1}, {"c", 7, -1}, {"", 6, 6},    {"abcabcd", 0, -1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.text) + " from " + std::to_string(c.from));
    EXPECT_EQ(s.Find(c.text, c.from), c.at);
  }
  EXPECT_EQ(s.Find("c"), 2);
  EXPECT_EQ(cow_String().Find("a"), -1);
}

TEST(CowString, SubstrAndEraseClampToTheString) {
  struct Case {
    int pos, length;
    const char* substr;
    const char* erased;
  };
  const Case cases[] = {
      {2, 3, "cde", "abf"}, {0, 6, "abcdef", ""},  {4, 10, "ef", "abcd"}, {5, 1, "f", "abcde"},
      {6, 1, "", "abcdef"}, {10, 2, "", "abcdef"}, {1, 0, "", "abcdef"},  {1, -3, "", "abcdef"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.pos) + ", " + std::to_string(c.length));
    const cow_String s("abcdef");
    EXPECT_EQ(Text(s.Substr(c.pos, c.length)), c.substr);
    cow_String erased = s;
    erased.Erase(c.pos, c.length);
    EXPECT_EQ(Text(erased), c.erased);
    EXPECT_EQ(erased.Length(), static_cast<int>(std::string_view(c.erased).size()));
    EXPECT_EQ(Text(s), "abcdef"); // the source shared the bytes with `erased`
  }
}

TEST(CowString, SubstituteLeftToRightUpToCount) {
  struct Case {
    const char* text;
    const char* from;
    const char* to;
    int count;
    const char* result;
    int replaced;
  };
  const Case cases[] = {
      {"a.b.c", ".", "::", -1, "a::b::c", 2},
      {"a.b.c", ".", "::", 1, "a::b.c", 1},
      {"a.b.c", ".", "::", 2, "a::b::c", 2},
      {"a.b.c", ".", "::", 5, "a::b::c", 2},
      {"a.b.c", ".", "::", 0, "a.b.c", 0},
      {"a.b.c", ",", "::", -1, "a.b.c", 0},
      {"a.b.c", ".", "", -1, "abc", 2},
      {"aaaa", "aa", "b", -1, "bb", 2}, // matches do not overlap
      {"aaa", "aa", "b", -1, "ba", 1},
      {"aa", "a", "aa", -1, "aaaa", 2}, // the replacement is not searched again
      {"STEP", "STEP", "", -1, "", 1},
      {"", "a", "b", -1, "", 0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.text) + " / " + c.from + " / " + c.to);
    cow_String s(c.text);
    const cow_String kept = s;
    EXPECT_EQ(s.Substitute(c.from, c.to, c.count), c.replaced);
    EXPECT_EQ(Text(s), c.result);
    EXPECT_EQ(Text(kept), c.text);
  }
  cow_String all("x-y-z");
  EXPECT_EQ(all.Substitute("-", "+"), 2);
  EXPECT_EQ(Text(all), "x+y+z");
}

TEST(CowString, NumbersGiveTheirShortestDecimalText) {
  const std::pair<int, const char*> ints[] = {
      {0, "0"}, {-12, "-12"}, {7, "7"}, {INT_MAX, "2147483647"}, {INT_MIN, "-2147483648"}};
  for (const auto& [value, text] : ints)
    EXPECT_EQ(Text(cow_String(value)), text);

  const std::pair<double, const char*> doubles[] = {
      {0.0, "0"},
      {2.0, "2"},
      {-0.5, "-0.5"},
      {0.1, "0.1"},
      {0.1 + 0.2, "0.30000000000000004"},
      {100.0, "100"},
      {1e-10, "1e-10"},
      {1e21, "1e+21"},
      {1.0 / 3.0, "0.3333333333333333"},
      {1.7976931348623157e308, "1.7976931348623157e+308"},
  };
  for (const auto& [value, text] : doubles)
    EXPECT_EQ(Text(cow_String(value)), text);

  // A float gives the shortest text that reads back as the same float, not
  // the text of its widened double (0.1f is 0.100000001490116...).
  const std::pair<float, const char*> floats[] = {
      {0.1f, "0.1"},
      {1.5f, "1.5"},
      {-2.0f, "-2"},
      {16777216.0f, "16777216"},
      {3.4028235e38f, "3.4028235e+38"},
  };
  for (const auto& [value, text] : floats)
    EXPECT_EQ(Text(cow_String(value)), text);
}

TEST(CowString, CStrIsNeverNull) {
  cow_String erased("ab");
  erased.Erase(0, 2);
  cow_String substituted("ab");
  substituted.Substitute("ab", "");
  const cow_String empties[] = {cow_String(),
                                cow_String(""),
                                cow_String(static_cast<const char*>(nullptr)),
                                cow_String("abc", 0),
                                cow_String("abc").Substr(3, 1),
                                erased,
                                substituted,
                                cow_String() + cow_String()};
  for (const cow_String& s : empties) {
    ASSERT_NE(s.CStr(), nullptr);
    EXPECT_EQ(s.CStr()[0], '\0');
    EXPECT_TRUE(s.Empty());
    EXPECT_EQ(s.Length(), 0);
  }
}

TEST(CowString, ConstructionFromBytesWithALength) {
  const cow_String s("abcdef", 3);
  EXPECT_EQ(Text(s), "abc");
  EXPECT_EQ(s.CStr()[3], '\0');
  const cow_String zero("a\0b", 3);
  EXPECT_EQ(zero.Length(), 3);
  EXPECT_EQ(zero[2], 'b');
}

TEST(CowString, PlusJoinsWithoutChangingItsOperands) {
  const cow_String a("ab"), b("cd");
  EXPECT_EQ(Text(a + b), "abcd");
  EXPECT_EQ(Text(a + "x"), "abx");
  EXPECT_EQ(Text("x" + b), "xcd");
  EXPECT_EQ(Text(cow_String() + b), "cd");
  EXPECT_EQ(Text(a + ""), "ab");
  EXPECT_EQ(Text(a), "ab");
  EXPECT_EQ(Text(b), "cd");
}

TEST(CowString, CopyChangesIndependentlyOfItsSource) {
  const cow_String source("abc");
  cow_String copy = source;
  copy += "def";
  EXPECT_EQ(Text(source), "abc");
  EXPECT_EQ(Text(copy), "abcdef");

  cow_String writer("abc");
  const cow_String kept = writer;
  writer.Append("!");
  writer.Erase(0, 1);
  EXPECT_EQ(Text(kept), "abc");
  EXPECT_EQ(Text(writer), "bc!");

  cow_String assigned("old");
  assigned = source;
  assigned += cow_String("+");
  EXPECT_EQ(Text(source), "abc");
  EXPECT_EQ(Text(assigned), "abc+");
}

TEST(CowString, AppendingAStringToItself) {
  cow_String s("ab");
  s += s;
  EXPECT_EQ(Text(s), "abab");
  s.Append(s.View());
  EXPECT_EQ(Text(s), "abababab");
  cow_String self("x");
  const cow_String& alias = self;
  self = alias;
  EXPECT_EQ(Text(self), "x");
}

TEST(CowString, ToLowerChangesOnlyAsciiCapitals) {
  const cow_String s("Steel-42_AZ@[\xc3\x89]");
  EXPECT_EQ(Text(s.ToLower()), "steel-42_az@[\xc3\x89]");
  EXPECT_EQ(Text(s), "Steel-42_AZ@[\xc3\x89]");
}

} // namespace
