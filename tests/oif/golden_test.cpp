// Golden decks: every tests/golden/NAME.json must give exactly NAME.inp.
// Set KEYDECK_UPDATE_GOLDEN=1 to rewrite the decks; a person reads the diff
// against the deck's rules before it is committed.
#include "model/database.h"
#include "model/json/dumper.h"
#include "model/json/loader.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

using namespace keydeck::test;

std::vector<std::string> GoldenModels() {
  std::vector<std::string> names;
  for (const auto& entry :
       std::filesystem::directory_iterator(std::string(KEYDECK_SOURCE_DIR) + "/tests/golden"))
    if (entry.path().extension() == ".json")
      names.push_back(entry.path().stem().string());
  std::sort(names.begin(), names.end());
  return names;
}

std::string GoldenPath(const std::string& name, const char* extension) {
  return std::string(KEYDECK_SOURCE_DIR) + "/tests/golden/" + name + extension;
}

class Golden : public ::testing::TestWithParam<std::string> {};

TEST_P(Golden, DeckMatches) {
  std::vector<std::string> warnings;
  const odb_Odb odb = keydeck::LoadModelFile(GoldenPath(GetParam(), ".json").c_str(), warnings);
  const std::string deck = DeckOfModel(odb);
  const std::string deckPath = GoldenPath(GetParam(), ".inp");
  if (std::getenv("KEYDECK_UPDATE_GOLDEN") != nullptr) {
    std::ofstream(deckPath, std::ios::binary) << deck;
    return;
  }
  const std::string expected = ReadFile(deckPath);
  ASSERT_FALSE(expected.empty()) << "no golden deck " << deckPath;
  EXPECT_EQ(deck, expected) << FirstDifference(expected, deck);
}

TEST_P(Golden, DumpThenLoadGivesTheSameDeck) {
  std::vector<std::string> warnings;
  const odb_Odb odb = keydeck::LoadModelFile(GoldenPath(GetParam(), ".json").c_str(), warnings);
  const odb_Odb reloaded = keydeck::LoadModelText(keydeck::DumpModel(odb), warnings);
  const std::string deck = DeckOfModel(odb);
  EXPECT_EQ(DeckOfModel(reloaded), deck) << FirstDifference(deck, DeckOfModel(reloaded));
}

INSTANTIATE_TEST_SUITE_P(Models, Golden, ::testing::ValuesIn(GoldenModels()),
                         [](const auto& info) { return info.param; });

} // namespace
