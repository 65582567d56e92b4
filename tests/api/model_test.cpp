// The public interface as a program that links libkeydeck.so meets it: only
// the headers of include/keydeck/, nothing internal.
#include "keydeck/keydeck.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

namespace fs = std::filesystem;

std::string ReadText(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

const fs::path Golden = fs::path(KEYDECK_SOURCE_DIR) / "tests/golden";

class PublicModel : public ::testing::Test {
protected:
  void SetUp() override {
    folder_ = fs::temp_directory_path() /
              ("keydeck-api-" + std::to_string(getpid()) + "-" +
               ::testing::UnitTest::GetInstance()->current_test_info()->name());
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  void TearDown() override { fs::remove_all(folder_); }

  /// The names in the test's folder, to see that a failure left nothing behind.
  std::vector<std::string> Files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder_))
      names.push_back(entry.path().filename().string());
    return names;
  }

  /// The message of the `Error` that `write` throws, or "no error".
  template <class Write> static std::string ErrorOf(Write write) {
    try {
      write();
    } catch (const keydeck::Error& failure) {
      return failure.what();
    }
    return "no error";
  }

  fs::path folder_;
};

TEST_F(PublicModel, OpenedAndInMemoryModelsWriteTheGoldenDeck) {
  const keydeck::Model opened = keydeck::Model::Open((Golden / "bracket.json").string());
  const keydeck::Model fromJson = keydeck::Model::FromJson(ReadText(Golden / "bracket.json"));
  const std::string expected = ReadText(Golden / "bracket.inp");
  for (const keydeck::Model* model : {&opened, &fromJson}) {
    EXPECT_TRUE(model->Problems().empty());
    EXPECT_EQ(model->Names(), std::vector<std::string>{"Default Model"});
    const std::string path = model->Write("bracket", folder_.string());
    EXPECT_EQ(path, (folder_ / "bracket.inp").string());
    EXPECT_EQ(ReadText(path), expected);
  }
  EXPECT_EQ(Files(), std::vector<std::string>{"bracket.inp"}); // no temporary file stays
}

TEST_F(PublicModel, BadFilesGiveEveryProblemWithItsPath) {
  const std::string missing = (folder_ / "missing.json").string();
  EXPECT_EQ(keydeck::Model::Open(missing).Problems(),
            std::vector<std::string>{missing + ": no such file"});

  const keydeck::Model twoFaults = keydeck::Model::FromJson(R"({"format": "keydeck-model",
    "version": 1, "models": {"Default Model": {"colour": 1, "parts": {"P": {"size": 2}}}}})");
  ASSERT_EQ(twoFaults.Problems().size(), 2u);
  for (const std::string& problem : twoFaults.Problems())
    EXPECT_EQ(problem.rfind("models/Default Model", 0), 0u) << problem;
  EXPECT_TRUE(twoFaults.Names().empty());
  EXPECT_EQ(ErrorOf([&] { twoFaults.Write("job", folder_.string()); }),
            "the model has problems; the first: " + twoFaults.Problems().front());
  EXPECT_TRUE(Files().empty());
}

TEST_F(PublicModel, FailedWritesSayWhyAndLeaveNoFile) {
  const keydeck::Model model = keydeck::Model::Open((Golden / "bracket.json").string());
  const std::string nowhere = (folder_ / "nowhere").string();
  EXPECT_EQ(ErrorOf([&] { model.Write("job", folder_.string(), "Other"); }),
            "no model named \"Other\"");
  EXPECT_EQ(ErrorOf([&] { model.Write("job", nowhere); }),
            "the output folder \"" + nowhere + "\" does not exist");
  EXPECT_EQ(ErrorOf([&] { model.Write("a/b", folder_.string()); }),
            "the job name \"a/b\" is not a file name");
  EXPECT_TRUE(Files().empty());
}

TEST(PublicVersion, IsTheProjectVersion) { EXPECT_STREQ(keydeck::Version(), KEYDECK_VERSION); }

} // namespace
