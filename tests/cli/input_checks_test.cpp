// What the command makes of input that a careful or a hostile user gives:
// names, numbers, labels, element types and text it must refuse or accept.
#include "tests/support/run_keydeck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;
using keydeck::test::Outcome;
using keydeck::test::ReadFile;
using keydeck::test::RunKeydeck;

/// A file whose one model "M" has `body` as its text.
std::string InModel(const std::string& body) {
  return R"({"format": "keydeck-model", "version": 1, "models": {"M": )" + body + "}}";
}

/// A model of one part "P" with `part` as its text and one instance "I" of it
/// with `instance` as its extra fields.
std::string PartAndInstance(const std::string& part, const std::string& instance = "") {
  return InModel(R"({"parts": {"P": )" + part +
                 R"(}, "assembly": {"instances": {"I": {"part": "P")" + instance + "}}}}");
}

std::string Brick(const std::string& type) {
  return R"({"nodes": {"labels": [1, 2, 3, 4, 5, 6, 7, 8],
    "coordinates": [[0, 0, 0], [1, 0, 0], [1, 1, 0], [0, 1, 0],
                    [0, 0, 1], [1, 0, 1], [1, 1, 1], [0, 1, 1]]},
    "elements": [{"type": ")" +
         type + R"(", "labels": [1], "connectivity": [[1, 2, 3, 4, 5, 6, 7, 8]]}]})";
}

int CountLines(const std::string& text) {
  return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

class InputChecks : public keydeck::test::CommandTest {
protected:
  Outcome Run(const std::vector<std::string>& args) const {
    return RunKeydeck(args, folder_.string());
  }
  std::string Model(const std::string& text) {
    const std::string path =
        (folder_ / "m").string().append(std::to_string(models_++)).append(".json");
    std::ofstream(path, std::ios::binary) << text;
    return path;
  }
  Outcome Check(const std::string& text) { return Run({"check", Model(text)}); }
  /// The deck of `text`, or the command's stderr when it fails.
  std::string Deck(const std::string& text) {
    const std::string deck = (folder_ / "job.inp").string();
    fs::remove(deck);
    const Outcome run =
        Run({"write", Model(text), "-m", "M", "-o", folder_.string(), "-j", "job", "-q"});
    return run.status == 0 ? ReadFile(deck) : run.err;
  }
  /// Expects `text` refused with one message that holds `message`.
  void ExpectRefused(const std::string& text, const std::string& message) {
    const Outcome run = Check(text);
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find(message), std::string::npos) << run.err;
    EXPECT_EQ(CountLines(run.err), 1) << run.err;
  }

  int models_ = 0;
};

TEST_F(InputChecks, NamesOnDeckLinesPassTheNameRule) {
  // The assembly line carries the name as stored: the deck's own rule.
  const std::string deck = Deck(InModel(R"({"assembly": {"name": "My Assembly, 2"}})"));
  EXPECT_NE(deck.find("*Assembly, name=My Assembly, 2\n"), std::string::npos) << deck;

  const std::string assembly = "models/M/assembly/name: the name ";
  ExpectRefused(InModel(R"({"assembly": {"name": "A\"B"}})"), assembly + R"("A\"B" holds)");
  ExpectRefused(InModel(R"({"assembly": {"name": "A\n*Node"}})"), assembly + R"("A\n*Node")");
  ExpectRefused(InModel(R"({"assembly": {"name": "A\u007f"}})"), assembly + R"("A\u007f")");
  ExpectRefused(InModel(R"({"assembly": {"name": "A\u0085"}})"), assembly + R"("A\u0085")");
  ExpectRefused(
      InModel(R"({"parts": {"P": {}}, "assembly": {"instances": {"I": {"part": "P\n"}}}})"),
      "models/M/assembly/instances/I/part: the name \"P\\n\"");
  ExpectRefused(InModel(R"({"restartJob": ""})"), "models/M/restartJob: a name must not be empty");
  ExpectRefused(InModel(R"({"assembly": {"sets": {"S": {"nodes": [{"instance": "I\t",
                   "labels": [1]}]}}}})"),
                "models/M/assembly/sets/S/nodes/0/instance: the name \"I\\t\"");
}

TEST_F(InputChecks, NotGivenMarkIsAFieldLeftOut) {
  const std::string plain = R"({"materials": {"Steel": {"regularization": {}}}})";
  const std::string marked =
      R"({"materials": {"Steel": {"regularization": {"rtol": 1.7976931348623157e308}}}})";
  const std::string deck = Deck(InModel(marked));
  EXPECT_EQ(deck, Deck(InModel(plain)));
  EXPECT_NE(deck.find("*Material, name=Steel\n"), std::string::npos) << deck;

  const std::string moved = Deck(PartAndInstance(Brick("C3D8R"), R"(, "translation": [2, 0, 0])"));
  const std::string marks = Deck(PartAndInstance(
      Brick("C3D8R"), R"(, "translation": [2, 1.7976931348623157e308, 1.7976931348623157e308])"));
  EXPECT_EQ(marks, moved);
  EXPECT_EQ(marks.find("e+308"), std::string::npos) << marks;

  ExpectRefused(PartAndInstance("{}", R"(, "rotation": {"axis": [0, 0, 1],
                   "angle": 1.7976931348623157e308})"),
                "models/M/assembly/instances/I/rotation/angle: the not-given mark stands for a "
                "field left out, and this field is required");
}

TEST_F(InputChecks, TinyCoordinatesAreZeroAndHugeOnesRefused) {
  const std::string nodes = R"({"nodes": {"labels": [1, 2, 3],
    "coordinates": [[1e-46, 1e-300, -1e-50], [1e-400, 0, 0], [8e-46, 1e-38, 0]]}})";
  const std::string deck = Deck(PartAndInstance(nodes));
  EXPECT_NE(deck.find("*Node\n      1,           0.,           0.,           0.\n"
                      "      2,           0.,           0.,           0.\n"
                      "      3, 1.401298e-45, 9.999999e-39,           0.\n"),
            std::string::npos)
      << deck;
  ExpectRefused(InModel(R"({"parts": {"P": {"nodes": {"labels": [1],
                   "coordinates": [[0, 4e38, 0]]}}}})"),
                "models/M/parts/P/nodes/coordinates/0/1: the number 4e38 is out of the range of "
                "a coordinate");
}

TEST_F(InputChecks, LabelsBelowOneAreRefused) {
  ExpectRefused(InModel(R"({"parts": {"P": {"nodes": {"labels": [1, 0],
                   "coordinates": [[0, 0, 0], [1, 0, 0]]}}}})"),
                "models/M/parts/P/nodes/labels/1: a label must be 1 or more, found 0");
  std::string brick = Brick("C3D8R");
  brick.replace(brick.find(R"("labels": [1])"), 13, R"("labels": [-4])");
  ExpectRefused(InModel(R"({"parts": {"P": )" + brick + "}}"),
                "models/M/parts/P/elements/0/labels/0: a label must be 1 or more, found -4");
}

TEST_F(InputChecks, UnknownElementTypesWarnWithTheNearestKnownOne) {
  struct Case {
    const char* type;
    const char* nearest;
  };
  for (const Case& c : {Case{"C3D8RR", "C3D8R"}, Case{"c3d8r", "C3D8R"}}) {
    SCOPED_TRACE(c.type);
    const std::string model = InModel(R"({"parts": {"P": )" + Brick(c.type) + "}}");
    const std::string warning =
        "keydeck: warning: models/M/parts/P/elements/0/type: element type \"" +
        std::string(c.type) +
        "\" is neither one that keydeck knows nor a user element (types "
        "are case-sensitive; did you mean \"" +
        c.nearest + "\"?); the deck carries it as given\n";
    const Outcome check = Check(model);
    EXPECT_EQ(check.status, 0) << check.err;
    EXPECT_EQ(check.err, warning);
    const Outcome write = Run({"write", Model(model), "-m", "M", "-o", folder_.string()});
    EXPECT_EQ(write.status, 0) << write.err;
    EXPECT_NE(write.err.find(warning), std::string::npos) << write.err;
  }
  for (const char* type : {"C3D8R", "U12"}) {
    const Outcome quiet = Check(InModel(R"({"parts": {"P": )" + Brick(type) + "}}"));
    EXPECT_EQ(quiet.status, 0);
    EXPECT_EQ(quiet.err, "") << type;
  }
}

TEST_F(InputChecks, ElementTypeMessagesEscapeControlBytes) {
  const Outcome run = Check(InModel(R"({"parts": {"P": )" + Brick("C3D\\u001b[2J8") + "}}"));
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err.find('\x1b'), std::string::npos);
  EXPECT_NE(run.err.find("models/M/parts/P/elements/0/type: an element type is letters, digits, "
                         "\"_\" and \"-\", found \"C3D\\u001b[2J8\""),
            std::string::npos)
      << run.err;
}

// Problems found while reading and problems found after it (duplicate
// labels) are counted alike.
TEST_F(InputChecks, ManyProblemsSayHowManyMore) {
  for (const char* part :
       {R"({"solverInput": 1})",
        R"({"nodes": {"labels": [1, 1], "coordinates": [[0, 0, 0], [0, 0, 0]]}})"}) {
    SCOPED_TRACE(part);
    std::string parts;
    for (int i = 0; i < 500; ++i)
      parts.append(i ? ", " : "")
          .append("\"P")
          .append(std::to_string(i))
          .append("\": ")
          .append(part);
    const Outcome run = Check(InModel(R"({"parts": {)" + parts + "}}"));
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(CountLines(run.err), 51) << run.err;
    EXPECT_TRUE(run.err.ends_with("\n... and 450 more\n")) << run.err;
  }
}

TEST_F(InputChecks, ByteOrderMarkAndSchemaFieldAreAccepted) {
  const Outcome bom = Check("\xEF\xBB\xBF" + InModel("{}"));
  EXPECT_EQ(bom.status, 0) << bom.err;
  const Outcome broken = Check("\xEF\xBB\xBF{,");
  EXPECT_NE(broken.err.find("line 1, column 5"), std::string::npos) << broken.err;

  const Outcome schema = Check(R"({"$schema": "https://example.org/keydeck.schema.json",
    "format": "keydeck-model", "version": 1, "models": {}})");
  EXPECT_EQ(schema.status, 0) << schema.err;
}

TEST_F(InputChecks, CountsAreBounded) {
  ExpectRefused(InModel(R"({"materials": {"Steel": {"density": {"dependencies": 2147483647,
                   "table": [[1]]}}}})"),
                "models/M/materials/Steel/density/dependencies: expected a count from 0 to 1000, "
                "found 2147483647");
  ExpectRefused(InModel(R"({"materials": {"Steel": {"plastic": {"hardening": "combined",
                   "dataType": "parameters", "numBackstress": 1073741824, "table": []}}}})"),
                "models/M/materials/Steel/plastic/numBackstress: expected a count from 0 to 1000, "
                "found 1073741824");
  ExpectRefused(InModel(R"({"materials": {"Steel": {"density": {"dependencies": -1,
                   "table": [[1]]}}}})"),
                "models/M/materials/Steel/density/dependencies: expected a count from 0 to 1000, "
                "found -1");
}

TEST_F(InputChecks, RawSolverTextHoldsNoControlBytes) {
  EXPECT_NE(Deck(InModel(R"({"solverInput": "*Preprint, echo=NO\t\r\n"})")).find("*Preprint"),
            std::string::npos);
  for (const char* text : {R"(*Node\u0000)", R"(\u001b[2J)", R"(\u0085)"})
    ExpectRefused(InModel(std::string(R"({"topLevelSolverInput": ")") + text + "\"}"),
                  "models/M/topLevelSolverInput: raw solver text may hold tabs and line ends but "
                  "no other control character");
  ExpectRefused(PartAndInstance(R"({"solverInput": "\u0000"})"),
                "models/M/parts/P/solverInput: raw solver text");
}

TEST_F(InputChecks, RotationAnglesBeyondAMillionDegreesAreRefused) {
  for (const char* angle : {"1e20", "-1e300", "1000000.5"})
    ExpectRefused(
        PartAndInstance("{}", std::string(R"(, "rotation": {"axis": [0, 0, 1], "angle": )") +
                                  angle + "}"),
        "models/M/assembly/instances/I/rotation/angle: expected an angle from -1e6 to "
        "1e6 degrees, found ");
  const Outcome turned =
      Check(PartAndInstance("{}", R"(, "rotation": {"axis": [0, 0, 1], "angle": -1e6})"));
  EXPECT_EQ(turned.status, 0) << turned.err;
}

} // namespace
