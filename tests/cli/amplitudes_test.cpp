// Amplitudes through the command: their cards in the deck, and what the
// command says of a bad amplitude.
#include "tests/support/deck_text.h"
#include "tests/support/run_keydeck.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;
using keydeck::test::ReadFile;

class AmplitudesCommand : public keydeck::test::CommandTest {
protected:
  // Writes the model whose amplitudes are `amplitudes` and runs
  // "keydeck write" on it; returns the exit status, with stderr in `err`.
  int Write(const std::string& amplitudes, std::string& err) const {
    const fs::path model = folder_ / "model.json";
    std::ofstream(model) << R"({"format": "keydeck-model", "version": 1, "models": {"M": {
      "amplitudes": )" << amplitudes
                         << "}}}";
    const keydeck::test::Outcome outcome = keydeck::test::RunKeydeck(
        {"write", "-q", "-m", "M", "-o", folder_.string(), model.string()}, folder_);
    err = outcome.err;
    return outcome.status;
  }
  std::string Deck() const { return ReadFile((folder_ / "model.inp").string()); }
};

TEST_F(AmplitudesCommand, CardsStandWithTheModelDataInNameOrder) {
  std::string err;
  ASSERT_EQ(Write(R"({"b": {"type": "decay", "a0": 0, "a": 1, "start": 0, "decayTime": 2},
                      "B": {"type": "tabular", "data": [0, 0, 1, 1]}})",
                  err),
            0)
      << err;
  EXPECT_EQ(Deck(), "**\n** PARTS\n**\n**\n** ASSEMBLY\n**\n*Assembly, name=Assembly\n"
                    "*End Assembly\n"
                    "*Amplitude, name=B\n0., 0., 1., 1.\n"
                    "*Amplitude, name=b, definition=DECAY\n0., 1., 0., 2.\n");
}

TEST_F(AmplitudesCommand, BadTablesFailWithTheirPath) {
  const std::pair<const char*, const char*> cases[] = {
      {R"({"Ramp": {"type": "tabular", "data": [0, 0, 1, 1, 0.5]}})",
       "models/M/amplitudes/Ramp/data: expected pairs of time and value, found 5 numbers\n"},
      {R"({"Ramp": {"type": "tabular", "data": [0, 0, 1, 1, 0.5, 2]}})",
       "models/M/amplitudes/Ramp/data/4: the time 0.5 comes after the greater time 1\n"},
      {R"({"Wave": {"type": "periodic", "frequency": 1, "data": [1]}})",
       "models/M/amplitudes/Wave/data: expected pairs of terms A and B, found 1 number\n"},
  };
  for (const auto& [amplitudes, message] : cases) {
    SCOPED_TRACE(amplitudes);
    std::string err;
    EXPECT_EQ(Write(amplitudes, err), 1);
    EXPECT_NE(err.find(message), std::string::npos) << err;
    EXPECT_FALSE(fs::exists(folder_ / "model.inp"));
  }
}

} // namespace
