#include "base/nex_Exception.h"
#include "base/utl_Stream.h"

#include <gtest/gtest.h>

#include <bit>
#include <climits>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <random>
#include <string>
#include <string_view>

namespace {

template <class Write>
std::string DeckOf(Write write, int lineLimit = 131,
                   std::size_t bufferSize = utl_Stream::DefaultBufferSize) {
  qio_ostringDeck text;
  utl_Stream s(text, lineLimit, 6, 6, bufferSize);
  write(s);
  s.Close();
  return text.Text();
}

// What printf writes for `%W.Pg`, put in the deck's form.
std::string PrintfReal(double value, int width, int precision) {
  char text[64];
  std::snprintf(text, sizeof text, "%*.*g", width, precision, value);
  utl_Stream::FixNumericString(text, width);
  return text;
}

// A keyword line of `count` parameters, each after ", " and a mark.
void WriteKeywordLine(utl_Stream& s, int count) {
  s << "*Keyword";
  for (int i = 0; i < count; ++i) {
    s << ", ";
    s.OptionalLineBreak();
    s << "parameter" << i << "=" << i * 1001;
  }
  s.LineBreak();
}

} // namespace

TEST(StreamNumbers, IntegerLayouts) {
  const struct {
    int value, width;
    const char* text;
  } cases[] = {{1, 7, "      1"},
               {-12, 7, "    -12"},
               {1234567, 7, "1234567"},
               {12345678, 7, "12345678"},
               {INT_MIN, 7, "-2147483648"},
               {5, 0, "5"},
               {5, -3, "5"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(DeckOf([&](utl_Stream& s) { s.Print(c.value, c.width); }), c.text);
  }
  EXPECT_EQ(DeckOf([](utl_Stream& s) { s << 7 << "," << -12 << "," << INT_MAX; }),
            "7,-12,2147483647");
}

TEST(StreamNumbers, RealForm) {
  const struct {
    double value;
    const char* printed;  // Print(value, 12, 6)
    const char* streamed; // operator<<
  } cases[] = {{0, "          0.", "0."},
               {-0.0, "          0.", "0."},
               {1, "          1.", "1."},
               {-1, "         -1.", "-1."},
               {1e-10, "       1e-10", "1e-10"},
               {123456789, " 1.23457e+08", "1.23457e+08"},
               {1.7976931348623157e308, "1.79769e+308", "1.79769e+308"},
               {-1.7976931348623157e308, "-1.79769e+308", "-1.79769e+308"},
               {100000, "     100000.", "100000."},
               {1e6, "       1e+06", "1e+06"},
               {0.1234567, "    0.123457", "0.123457"},
               {-2.5, "        -2.5", "-2.5"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.streamed);
    EXPECT_EQ(DeckOf([&](utl_Stream& s) { s.Print(c.value, 12, 6); }), c.printed);
    EXPECT_EQ(DeckOf([&](utl_Stream& s) { s << c.value; }), c.streamed);
  }
  EXPECT_EQ(DeckOf([](utl_Stream& s) { s.Print(0.1, 12, 15) << "," << 1.0 / 3; }),
            "         0.1,0.333333");
  EXPECT_EQ(DeckOf([](utl_Stream& s) { s.Print(1.0 / 3, 12, 15); }), "0.333333333333333");
}

TEST(StreamNumbers, FloatCoordinates) {
  const std::pair<float, const char*> cases[] = {
      {0.1f, "         0.1"},      {1.f, "          1."},   {-2.5f, "        -2.5"},
      {123.4567f, "    123.4567"}, {1e-7f, "       1e-07"}, {16777216.f, "1.677722e+07"},
      {0.3f, "         0.3"},      {-0.f, "          0."}};
  for (const auto& [value, text] : cases) {
    SCOPED_TRACE(text);
    EXPECT_EQ(DeckOf([&](utl_Stream& s) { s.Print(value, 12, 7); }), text);
  }
  EXPECT_EQ(DeckOf([](utl_Stream& s) { s << 1.f / 3 << "," << 2.f; }), "0.333333,2.");
}

// The stream's digits are printf's: compare over values of all sizes, over
// floats of random bits, and over ties and near ties of the rounding.
TEST(StreamNumbers, RealsMatchPrintf) {
  const auto expectPrintf = [](double value, int precision) {
    ASSERT_EQ(DeckOf([&](utl_Stream& s) { s.Print(value, 12, precision); }),
              PrintfReal(value, 12, precision))
        << value << " to " << precision << " digits";
  };
  const double ties[] = {0.5,      2.5,     1.25,     0.125,     0.15,      9.5,    0.95,
                         9.999995, 9999995, 99999.95, 123456.5,  1234567.5, 1e-5,   0.0001234,
                         5e-324,   1e22,    1e23,     0.1 + 0.2, 4.35,      8.5e-5, 1e15 + 0.5};
  for (const double value : ties)
    for (int precision = 1; precision <= 17; ++precision) {
      expectPrintf(value, precision);
      expectPrintf(-value, precision);
    }
  std::mt19937_64 random(12345);
  std::uniform_real_distribution<double> mantissa(-10, 10);
  std::uniform_int_distribution<int> exponent(-1070, 1020);
  std::uniform_int_distribution<std::uint32_t> bits;
  for (int i = 0; i < 30000; ++i) {
    expectPrintf(std::ldexp(mantissa(random), i % 2 ? exponent(random) : exponent(random) / 20),
                 1 + i % 17);
    const float single = std::bit_cast<float>(bits(random));
    if (std::isfinite(single)) {
      ASSERT_EQ(DeckOf([&](utl_Stream& s) { s.Print(single, 12, 7); }), PrintfReal(single, 12, 7))
          << single;
    }
  }
}

TEST(StreamNumbers, FixNumericString) {
  const struct {
    const char* printed;
    int width;
    const char* fixed;
  } cases[] = {{"1", 0, "1."},
               {"           1", 12, "          1."},
               {"-1", 0, "-1."},
               {"          -0", 12, "          0."},
               {"         0.5", 12, "         0.5"},
               {"1e-10", 0, "1e-10"},
               {"1.23457e+08", 0, "1.23457e+08"},
               {"123456789012", 12, "123456789012."},
               {"1E+10", 0, "1E+10"},
               {"inf", 0, "inf"},
               {"-nan", 0, "-nan"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.printed);
    char text[32];
    std::strcpy(text, c.printed);
    utl_Stream::FixNumericString(text, c.width);
    EXPECT_STREQ(text, c.fixed);
  }
}

TEST(StreamSmallReal, ThresholdHoldsWhileGuardLives) {
  const std::string deck = DeckOf([](utl_Stream& s) {
    {
      const utl_StreamSmallReal outer(s, 1e-3);
      s.Print(1e-4, 8, 6) << "|" << -1e-6 << "|" << 1e-3f << "|";
      {
        const utl_StreamSmallReal inner(s, 1e-9);
        s << 1e-4 << "|" << 1e-10 << "|";
      }
      s << 1e-4 << "|";
    }
    s << 1e-4 << "|";
    const utl_StreamSmallReal none(s, 0);
    s << 1e-300;
  });
  EXPECT_EQ(deck, "      0.|0.|0.001|0.0001|0.|0.|0.0001|1e-300");
}

TEST(StreamLines, LineEndsAndChaining) {
  EXPECT_EQ(DeckOf([](utl_Stream& s) {
              s << "*Node" << endl;
              s.Print(3, 7) << ", ";
              s.Print(1.5f, 12, 7) << ",";
              s.LineBreak();
              s << cow_String("** ") << endl;
              s.Print(cow_String("*End Part")).Print("\n");
            }),
            "*Node\n      3,          1.5,\n** \n*End Part\n");
}

TEST(StreamLines, OptionalBreaksKeepLinesWithinLimit) {
  const char* const part = "*Part, |name=Alpha, |color=blue, |size=12, |kind=solid";
  const struct {
    int limit;
    const char* marked; // '|' stands for OptionalLineBreak
    const char* deck;
  } cases[] = {{131, part, "*Part, name=Alpha, color=blue, size=12, kind=solid\n"},
               {50, part, "*Part, name=Alpha, color=blue, size=12, kind=solid\n"},
               {49, part, "*Part, name=Alpha, color=blue, size=12,\nkind=solid\n"},
               {24, part, "*Part, name=Alpha,\ncolor=blue, size=12,\nkind=solid\n"},
               {18, part, "*Part, name=Alpha,\ncolor=blue,\nsize=12,\nkind=solid\n"},
               {17, part, "*Part,\nname=Alpha,\ncolor=blue,\nsize=12,\nkind=solid\n"},
               // A stretch longer than the limit stands alone on its line.
               {12, "*K, |name=AVeryLongNameIndeed, |x=1", "*K,\nname=AVeryLongNameIndeed,\nx=1\n"},
               // Without a blank after the comma the line end is inserted.
               {8, "*K,|name=Alpha", "*K,\nname=Alpha\n"},
               // A mark left behind by a literal line end does not break the next line.
               {8, "*K, |a=1\n1, 2, 3, 4, 5, 6, 7", "*K, a=1\n1, 2, 3, 4, 5, 6, 7\n"}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.marked);
    SCOPED_TRACE(c.limit);
    const std::string deck = DeckOf(
        [&](utl_Stream& s) {
          const std::string_view marked = c.marked;
          std::size_t start = 0;
          for (std::size_t bar; (bar = marked.find('|', start)) != marked.npos; start = bar + 1) {
            s << cow_String(marked.substr(start, bar - start));
            s.OptionalLineBreak();
          }
          s << cow_String(marked.substr(start)) << endl;
        },
        c.limit);
    EXPECT_EQ(deck, c.deck);
  }
}

// At the deck's limit each broken line ends in "," and could not have taken
// the next parameter; joined again, the lines give the unbroken text.
TEST(StreamLines, LongKeywordLineAtDeckLimit) {
  const std::string deck = DeckOf([](utl_Stream& s) { WriteKeywordLine(s, 40); });
  const std::string whole = DeckOf([](utl_Stream& s) { WriteKeywordLine(s, 40); }, INT_MAX);
  ASSERT_EQ(whole.find('\n'), whole.size() - 1);
  std::string joined;
  std::size_t start = 0;
  int lines = 0;
  for (std::size_t end; (end = deck.find('\n', start)) != std::string::npos; start = end + 1) {
    const std::string line = deck.substr(start, end - start);
    EXPECT_LE(line.size(), 131u) << line;
    const bool last = end + 1 == deck.size();
    if (!last) {
      EXPECT_EQ(line.back(), ',') << line;
      const std::size_t nextEnd = deck.find_first_of(",\n", end + 1);
      const std::size_t unit = nextEnd - end - (deck[nextEnd] == ',' ? 0 : 1);
      EXPECT_GT(line.size() + 1 + unit, 131u) << line; // the next parameter would not fit
    }
    joined += line + (last ? "\n" : " ");
    ++lines;
  }
  EXPECT_GE(lines, 5);
  EXPECT_EQ(joined, whole);
}

// The text does not depend on where the buffer is passed on: small buffers
// split keyword lines, marks and stretches longer than the buffer at every
// offset.
TEST(StreamBuffer, TextIndependentOfBufferSize) {
  const auto sample = [](utl_Stream& s) {
    for (int block = 0; block < 3; ++block) {
      WriteKeywordLine(s, 25);
      for (int i = 1; i <= 40; ++i) {
        s.Print(i, 7) << ", ";
        s.Print(i * 0.37f, 12, 7) << ", ";
        s.Print(-i * 1e-3, 12, 15) << "\n";
      }
      s << "*Long, ";
      s.OptionalLineBreak();
      s << std::string(600, 'A').c_str() << ", ";
      s.OptionalLineBreak();
      s << std::string(150 + block * 77, 'B').c_str() << endl;
      s << "*Raw, "; // a mark that a literal line end leaves behind
      s.OptionalLineBreak();
      s << std::string(200 + block * 90, 'C').c_str() << "\n";
    }
  };
  const std::string reference = DeckOf(sample, 131);
  ASSERT_GT(reference.size(), 20u * 400); // many times the largest buffer below
  for (std::size_t size = 64; size < 400; ++size)
    ASSERT_EQ(DeckOf(sample, 131, size), reference) << "buffer of " << size;
}

TEST(StreamBuffer, WritesBeyondOneBufferStayExact) {
  std::string expected;
  std::string raw(3 * utl_Stream::DefaultBufferSize + 17, 'x');
  for (std::size_t i = 0; i < raw.size(); i += 97)
    raw[i] = '\n';
  qio_ostringDeck text;
  utl_Stream s(text, 131, 6, 6);
  for (int label = 1; label <= 60000; ++label) {
    const float x = label * 0.001f;
    s.Print(label, 7) << ", ";
    s.Print(x, 12, 7) << "\n";
    char line[64];
    std::snprintf(line, sizeof line, "%7d, %s\n", label, PrintfReal(x, 12, 7).c_str());
    expected += line;
  }
  s << raw.c_str();
  expected += raw;
  s.Flush();
  EXPECT_EQ(text.Text(), expected);
  s.Close();
  EXPECT_EQ(text.Text(), expected);
}

TEST(StreamFile, WritesAndCloses) {
  const std::string path = ::testing::TempDir() + "stream_test.inp";
  qio_ofstreamDeck file(std::fopen(path.c_str(), "wb"), /*owns=*/true);
  utl_Stream s(file, 131, 6, 6);
  s << "*Heading" << endl << 1.5 << "\n";
  s.Close();
  s.Close();
  std::FILE* in = std::fopen(path.c_str(), "rb");
  ASSERT_NE(in, nullptr);
  char text[64] = {};
  EXPECT_EQ(std::fread(text, 1, sizeof text - 1, in), 13u);
  std::fclose(in);
  std::remove(path.c_str());
  EXPECT_STREQ(text, "*Heading\n1.5\n");
}

TEST(StreamFile, FailedWriteRaises) {
  std::FILE* full = std::fopen("/dev/full", "wb");
  if (full == nullptr)
    GTEST_SKIP() << "no /dev/full here";
  qio_ofstreamDeck file(full, /*owns=*/true);
  utl_Stream s(file, 131, 6, 6);
  try {
    for (int i = 0; i < 200000; ++i)
      s << "1234567890\n";
    s.Close();
    ADD_FAILURE() << "no failure raised";
  } catch (const nex_PrimException& failure) {
    EXPECT_STREQ(failure.what(), "cannot write the deck: No space left on device");
  }
}
