#include "model/database.h"
#include "model/json/loader.h"
#include "oif/oif_Builder.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_Writer.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

odb_Odb Model(const char* name) {
  std::vector<std::string> warnings;
  return keydeck::LoadModelText(std::string(R"({"format": "keydeck-model", "version": 1,
      "models": {")") + name + R"(": {"parts": {"P": {}},
      "assembly": {"instances": {"P-1": {"part": "P"}}}}}})",
                                warnings);
}

/// Runs a test body in a fresh current folder, as the library writes there.
class Writer : public ::testing::Test {
protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() / ("keydeck-writer-" + std::to_string(getpid()));
    fs::create_directories(folder_);
    previous_ = fs::current_path();
    fs::current_path(folder_);
  }
  void TearDown() override {
    fs::current_path(previous_);
    fs::remove_all(folder_);
  }

  fs::path folder_;
  fs::path previous_;
};

TEST_F(Writer, WritesJobNameDotInpInTheCurrentFolder) {
  const odb_Odb odb = Model("Default Model");
  oif_Writer(odb).WriteInputFile("Job-1");
  const std::string deck = keydeck::test::ReadFile("Job-1.inp");
  EXPECT_NE(deck.find("*Instance, name=P-1, part=P\n"), std::string::npos);
  oif_Writer(odb).WriteInputFile("");
  EXPECT_TRUE(fs::exists(".inp"));
}

TEST_F(Writer, AnUnopenableFileIsFalseAndNotAFailure) {
  const odb_Odb odb = Model("Default Model");
  oif_ModelInfo info(odb.ddb().model("Default Model"));
  oif_Builder builder(info);
  EXPECT_FALSE(builder.WriteInputFile("no-such-folder/job.inp"));
  oif_Writer(odb).WriteInputFile("no-such-folder/job");
  EXPECT_FALSE(fs::exists("no-such-folder"));
}

TEST_F(Writer, TheModelMustBeDefaultModel) {
  const odb_Odb odb = Model("Other");
  EXPECT_THROW(oif_Writer(odb).WriteInputFile("job"), nex_PrimException);
  EXPECT_FALSE(fs::exists("job.inp"));
}

} // namespace
