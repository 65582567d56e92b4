// Output requests through the command: a variable the step's procedure does
// not know stops the write with its path, and no deck is left behind.
#include "tests/support/deck_text.h"
#include "tests/support/run_keydeck.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;

class OutputCommand : public keydeck::test::CommandTest {
protected:
  // Writes a model of two steps, static then heat transfer, with the given
  // requests and runs "keydeck write" on it.
  keydeck::test::Outcome Write(const std::string& requests) const {
    const fs::path model = folder_ / "model.json";
    std::ofstream(model) << R"({"format": "keydeck-model", "version": 1, "models": {"M": {
      "steps": [{"name": "Initial"}, {"name": "Load", "procedure": "static"},
                {"name": "Warm", "procedure": "heatTransfer"}], )"
                         << requests << "}}}";
    return keydeck::test::RunKeydeck(
        {"write", "-q", "-m", "M", "-o", folder_.string(), model.string()}, folder_);
  }
};

TEST_F(OutputCommand, UnknownVariableFailsWithItsPathAndProcedure) {
  const keydeck::test::Outcome run = Write(R"("fieldOutputRequests": {
      "F-1": {"createdIn": "Load", "variables": ["U", "STRESS"]},
      "F-2": {"createdIn": "Load", "variables": ["S"], "steps": {"Warm": {"variables": ["NT"]}}},
      "F-3": {"createdIn": "Load", "variables": ["RF"]}})");
  EXPECT_EQ(run.status, 1);
  // STRESS is no variable at all; RF is one of stress steps, inherited into
  // a heat transfer step; F-2 changes its list there in time.
  EXPECT_EQ(run.err,
            "keydeck: models/M/fieldOutputRequests/F-1/variables: \"STRESS\" is not a field "
            "output variable of the static procedure of step \"Load\"\n"
            "models/M/fieldOutputRequests/F-1/variables: \"U\" is not a field output "
            "variable of the heatTransfer procedure of step \"Warm\"\n"
            "models/M/fieldOutputRequests/F-1/variables: \"STRESS\" is not a field "
            "output variable of the heatTransfer procedure of step \"Warm\"\n"
            "models/M/fieldOutputRequests/F-3/variables: \"RF\" is not a field output "
            "variable of the heatTransfer procedure of step \"Warm\"\n");
  EXPECT_FALSE(fs::exists(folder_ / "model.inp"));
}

TEST_F(OutputCommand, KnownVariablesWriteTheirRequests) {
  const keydeck::test::Outcome run = Write(R"("fieldOutputRequests": {
      "F-1": {"createdIn": "Load", "variables": ["S"], "steps": {"Warm": {"variables": ["NT"]}}}})");
  ASSERT_EQ(run.status, 0) << run.err;
  const std::string deck = keydeck::test::ReadFile((folder_ / "model.inp").string());
  EXPECT_NE(deck.find("** FIELD OUTPUT: F-1\n** \n*Output, field\n*Element Output, "
                      "directions=YES\nS, \n"),
            std::string::npos)
      << deck;
  EXPECT_NE(deck.find("** FIELD OUTPUT: F-1\n** \n*Output, field\n*Node Output\nNT, \n"),
            std::string::npos)
      << deck;
}

} // namespace
