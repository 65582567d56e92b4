// The keydeck command as a user meets it: exit status, messages, and what it
// leaves in the output folder.
#include "tests/support/deck_text.h"
#include "tests/support/run_keydeck.h"

#include <gtest/gtest.h>
#include <simdjson.h>

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

int CountLines(const std::string& text) {
  return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

class Command : public keydeck::test::CommandTest {
protected:
  fs::path Model(const std::string& name, const std::string& text) const {
    const fs::path path = folder_ / name;
    std::ofstream(path, std::ios::binary) << text;
    return path;
  }
};

const char* const GoodModel = R"({"format": "keydeck-model", "version": 1,
  "models": {"Default Model": {"parts": {"P": {}},
    "assembly": {"instances": {"P-1": {"part": "P"}}}}}})";

TEST_F(Command, VersionHelpAndUsage) {
  const Outcome version = RunKeydeck({"--version"}, folder_);
  EXPECT_EQ(version.status, 0);
  EXPECT_EQ(version.out, "keydeck " KEYDECK_VERSION "\n");
  const Outcome help = RunKeydeck({"write", "--help"}, folder_);
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.out.find("Usage: keydeck"), std::string::npos);

  const std::vector<std::vector<std::string>> misuses = {{},
                                                         {"frobnicate"},
                                                         {"write"},
                                                         {"write", "a.json", "b.json"},
                                                         {"write", "a.json", "-x"},
                                                         {"write", "a.json", "-j"},
                                                         {"schema", "a.json"}};
  for (const auto& args : misuses) {
    const Outcome run = RunKeydeck(args, folder_);
    EXPECT_EQ(run.status, 2) << run.err;
    EXPECT_NE(run.err.find("keydeck: "), std::string::npos);
  }
}

TEST_F(Command, WritesTheDeckAndSaysWhere) {
  const fs::path model = Model("beam.json", GoodModel);
  const Outcome run = RunKeydeck({"write", model.string(), "-o", Out().string()}, folder_);
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "keydeck: wrote " + (Out() / "beam.inp").string() + "\n");
  EXPECT_EQ(Written(), std::vector<std::string>{"beam.inp"});
  EXPECT_NE(ReadFile((Out() / "beam.inp").string()).find("*Part, name=P\n"), std::string::npos);

  const Outcome named =
      RunKeydeck({"write", model.string(), "-o", Out().string(), "-j", "Job-7", "-q"}, folder_);
  EXPECT_EQ(named.status, 0);
  EXPECT_EQ(named.out, "");
  EXPECT_EQ(Written(), (std::vector<std::string>{"Job-7.inp", "beam.inp"}));
}

TEST_F(Command, BadModelsFailCleanlyAndKeepTheOldDeck) {
  const std::string model =
      R"({"format": "keydeck-model", "version": 1, "models": {"Default Model": )";
  struct Case {
    const char* name;
    std::string text;
    const char* message; // a part of the one message expected on stderr
  };
  const Case cases[] = {
      {"invalid", "{\"format\": \"keydeck-model\",\n  \"version\": 1,,", "line 2, column"},
      {"empty", "", "empty"},
      {"wrong_type", model + R"({"parts": {"P": {"solverInput": 7}}}}})",
       "models/Default Model/parts/P/solverInput: expected a string"},
      {"unknown_field", model + R"({"partz": {}}}})", "unknown field \"partz\""},
      {"unknown_part", model + R"({"assembly": {"instances": {"I": {"part": "Q"}}}}}})",
       "models/Default Model/assembly/instances/I/part"},
      {"duplicate", model + R"({"parts": {"P": {}, "P": {}}}}})", "duplicate"},
  };
  const fs::path old = Out() / "job.inp";
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    std::ofstream(old) << "older deck\n";
    const fs::path path = Model(std::string(c.name) + ".json", c.text);
    const Outcome run =
        RunKeydeck({"write", path.string(), "-o", Out().string(), "-j", "job"}, folder_);
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find(c.message), std::string::npos) << run.err;
    EXPECT_EQ(CountLines(run.err), 1) << run.err;
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(ReadFile(old.string()), "older deck\n");
    EXPECT_EQ(Written(), std::vector<std::string>{"job.inp"});
  }
}

TEST_F(Command, MissingFilesModelsAndFolders) {
  const fs::path model = Model("m.json", GoodModel);
  struct Case {
    std::vector<std::string> args;
    std::string message;
  };
  const Case cases[] = {
      {{"write", (folder_ / "absent.json").string()}, "absent.json"},
      {{"write", folder_.string()}, folder_.string()},
      {{"write", model.string(), "-m", "Default Modle"}, "no model named \"Default Modle\""},
      {{"write", model.string(), "-o", (folder_ / "m.json" / "sub").string()}, "is not a folder"},
      {{"write", model.string(), "-o", (folder_ / "absent").string()},
       "the output folder \"" + (folder_ / "absent").string() + "\" does not exist"},
      {{"check", (folder_ / "absent.json").string()}, "absent.json"},
      {{"check", model.string(), "-m", "Default Modle"}, "no model named \"Default Modle\""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.args[1]);
    const Outcome run = RunKeydeck(c.args, folder_);
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find(c.message), std::string::npos) << run.err;
    EXPECT_EQ(CountLines(run.err), 1) << run.err;
  }
  EXPECT_TRUE(Written().empty());
}

TEST_F(Command, CheckReportsEveryProblem) {
  const fs::path good = Model("good.json", GoodModel);
  const Outcome ok = RunKeydeck({"check", good.string()}, folder_);
  EXPECT_EQ(ok.status, 0) << ok.err;
  EXPECT_NE(ok.out.find("valid"), std::string::npos);

  const fs::path bad = Model("bad.json", R"({"format": "keydeck-model", "version": 1,
    "models": {"Default Model": {"parts": {"P": {"solverInput": 1, "nodez": {}}},
      "assembly": {"instances": {"I": {"part": "Q"}}}}}})");
  const Outcome run = RunKeydeck({"check", bad.string()}, folder_);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(CountLines(run.err), 3) << run.err;
}

TEST_F(Command, CheckTakesOneModelOrAll) {
  const fs::path path = Model("two.json", R"({"format": "keydeck-model", "version": 1,
    "models": {"A": {"parts": {"P": {}}}, "B": {"parts": {"Q": {}}}}})");
  const Outcome all = RunKeydeck({"check", path.string()}, folder_);
  EXPECT_EQ(all.status, 0) << all.err;
  EXPECT_NE(all.out.find("(\"A\", \"B\")"), std::string::npos) << all.out;
  const Outcome one = RunKeydeck({"check", path.string(), "--model=B"}, folder_);
  EXPECT_EQ(one.status, 0) << one.err;
  EXPECT_NE(one.out.find("(\"B\")"), std::string::npos) << one.out;
  const Outcome absent = RunKeydeck({"check", path.string(), "-m", "Default Model"}, folder_);
  EXPECT_EQ(absent.status, 1);
  EXPECT_EQ(absent.err, "keydeck: " + path.string() +
                            ": no model named \"Default Model\"; the file has \"A\", \"B\"\n");
}

TEST_F(Command, StandardInputAndOutput) {
  const fs::path model = Model("beam.json", GoodModel);
  ASSERT_EQ(RunKeydeck({"write", model.string(), "-o", Out().string(), "-q"}, folder_).status, 0);
  const std::string deck = ReadFile((Out() / "beam.inp").string());
  ASSERT_FALSE(deck.empty());

  const Outcome piped = RunKeydeck({"write", "-", "--stdout", "-q"}, folder_, model);
  EXPECT_EQ(piped.status, 0) << piped.err;
  EXPECT_EQ(piped.out, deck);
  const Outcome named =
      RunKeydeck({"write", "-", "-j", "fromstdin", "-o", Out().string()}, folder_, model);
  EXPECT_EQ(named.status, 0) << named.err;
  EXPECT_EQ(ReadFile((Out() / "fromstdin.inp").string()), deck);
  const Outcome checked = RunKeydeck({"check", "-"}, folder_, model);
  EXPECT_EQ(checked.status, 0) << checked.err;
  EXPECT_NE(checked.out.find("standard input is a valid model file"), std::string::npos);

  // Without a job name a deck from standard input has no file name.
  const Outcome unnamed = RunKeydeck({"write", "-", "-o", Out().string()}, folder_, model);
  EXPECT_EQ(unnamed.status, 2);
  EXPECT_NE(unnamed.err.find("needs a job name"), std::string::npos) << unnamed.err;
  const fs::path bad = Model("bad.json", "{\"format\": 1}");
  const Outcome failed = RunKeydeck({"write", "-", "--stdout"}, folder_, bad);
  EXPECT_EQ(failed.status, 1);
  EXPECT_EQ(failed.out, "");
}

TEST_F(Command, OptionsWithEqualsAndTheEndOfOptions) {
  const fs::path model = Model("-beam.json", GoodModel);
  const Outcome run = RunKeydeck({"write", "--output=" + Out().string(), "--job=a=b",
                                  "--model=Default Model", "--", model.string()},
                                 folder_);
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(Written(), std::vector<std::string>{"a=b.inp"});
  // After "--" a name that starts with "-" is the model file, not an option.
  const Outcome dashed = RunKeydeck({"write", "-o", Out().string(), "--", "-beam.json"}, folder_);
  EXPECT_EQ(dashed.status, 1);
  EXPECT_NE(dashed.err.find("-beam.json"), std::string::npos) << dashed.err;

  const std::vector<std::vector<std::string>> misuses = {{"write", "--quiet=yes", "m.json"},
                                                         {"write", "--jobs=x", "m.json"},
                                                         {"write", "m.json", "--", "-q"},
                                                         {"check", "-j=x", "m.json"}};
  for (const auto& args : misuses) {
    const Outcome misuse = RunKeydeck(args, folder_);
    EXPECT_EQ(misuse.status, 2) << args[1];
  }
}

TEST_F(Command, SchemaIsJson) {
  const Outcome run = RunKeydeck({"schema"}, folder_);
  ASSERT_EQ(run.status, 0);
  simdjson::dom::parser parser;
  simdjson::dom::element schema;
  EXPECT_EQ(parser.parse(run.out).get(schema), simdjson::SUCCESS);
  std::string_view draft;
  EXPECT_EQ(schema["$schema"].get(draft), simdjson::SUCCESS);
}

} // namespace

namespace {

TEST_F(Command, MeshAndSetFaultsNameTheirPlace) {
  const std::string head =
      R"({"format": "keydeck-model", "version": 1, "models": {"M": {"parts": {"P": {
      "nodes": {"labels": [1, 2, 3, 4, 5, 6, 7, 8],
                "coordinates": [[0,0,0],[1,0,0],[1,1,0],[0,1,0],[0,0,1],[1,0,1],[1,1,1],[0,1,1]]},
      "elements": [{"type": "C3D8R", "labels": [1], "connectivity": [[1,2,3,4,5,6,7,8]]}])";
  const std::string tail = R"(}}, "assembly": {"instances": {"I": {"part": "P"}}}}}})";
  struct Case {
    const char* name;
    std::string text;
    const char* path;
  };
  const Case cases[] = {
      {"missing_node",
       R"({"format": "keydeck-model", "version": 1, "models": {"M": {"parts": {"P": {
          "nodes": {"labels": [1, 2], "coordinates": [[0,0,0],[1,0,0]]},
          "elements": [{"type": "T3D2", "labels": [1], "connectivity": [[1, 9]]}]}}}}})",
       "models/M/parts/P/elements/0/connectivity"},
      {"duplicate_node",
       R"({"format": "keydeck-model", "version": 1, "models": {"M": {"parts": {"P": {
          "nodes": {"labels": [1, 1], "coordinates": [[0,0,0],[1,0,0]]}}}}}})",
       "models/M/parts/P/nodes/labels/1"},
      {"node_count",
       R"({"format": "keydeck-model", "version": 1, "models": {"M": {"parts": {"P": {
          "nodes": {"labels": [1, 2], "coordinates": [[0,0,0],[1,0,0]]},
          "elements": [{"type": "C3D8R", "labels": [1], "connectivity": [[1, 2]]}]}}}}})",
       "models/M/parts/P/elements/0/connectivity"},
      {"set_label", head + R"(, "sets": {"S": {"nodes": [1, 99]}})" + tail,
       "models/M/parts/P/sets/S/nodes"},
      {"face_label",
       head + R"(, "surfaces": {"F": {"faces": [{"face": "S7", "elements": [1]}]}})" + tail,
       "models/M/parts/P/surfaces/F/faces/0/face"},
      {"unknown_instance", head + R"(}}, "assembly": {"instances": {"I": {"part": "P"}},
          "sets": {"A": {"nodes": [{"instance": "J", "labels": [1]}]}}}}}})",
       "models/M/assembly/sets/A/nodes/0/instance"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const fs::path path = Model(std::string(c.name) + ".json", c.text);
    const Outcome run =
        RunKeydeck({"write", path.string(), "-m", "M", "-o", Out().string()}, folder_);
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find(c.path), std::string::npos) << run.err;
    EXPECT_EQ(CountLines(run.err), 1) << run.err;
    EXPECT_TRUE(Written().empty());
  }
}

} // namespace

namespace {

TEST_F(Command, DatumAndOrientationFaultsNameTheirPlace) {
  const std::string head = R"({"format": "keydeck-model", "version": 1, "models": {"M": {
      "parts": {"P": {"nodes": {"labels": [1, 2], "coordinates": [[0,0,0],[1,0,0]]},
      "elements": [{"type": "T3D2", "labels": [1], "connectivity": [[1, 2]]}],
      "sets": {"E": {"elements": [1]}})";
  const std::string tail = R"(}}, "assembly": {"instances": {"I": {"part": "P"}}}}}})";
  struct Case {
    const char* name;
    std::string part;
    const char* message;
  };
  const Case cases[] = {
      {"zero_axis",
       R"(, "datums": {"D": {"type": "cylindrical", "point1": [0,0,0], "point2": [0,1,0]}})",
       "models/M/parts/P/datums/D/point1: the x axis has zero length: point1 is the origin"},
      {"no_plane",
       R"(, "datums": {"D": {"type": "rectangular", "point1": [1,0,0], "point2": [3,0,0]}})",
       "models/M/parts/P/datums/D/point2: origin, point1 and point2 lie on one line and span "
       "no plane"},
      {"unknown_datum", R"(, "materialOrientations": [{"region": "E", "datum": "D"}])",
       "models/M/parts/P/materialOrientations/0/datum: no datum \"D\" in the part"},
      {"unknown_set", R"(, "beamOrientations": [{"region": "F", "direction": [0,0,1]}])",
       "models/M/parts/P/beamOrientations/0/region: no element set \"F\" in the part"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const fs::path path = Model(std::string(c.name) + ".json", head + c.part + tail);
    const Outcome run =
        RunKeydeck({"write", path.string(), "-m", "M", "-o", Out().string()}, folder_);
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find(c.message), std::string::npos) << run.err;
    EXPECT_EQ(CountLines(run.err), 1) << run.err;
    EXPECT_TRUE(Written().empty());
  }
}

} // namespace
