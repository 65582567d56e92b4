#include "tests/support/deck_text.h"

#include "base/qio_ostream.h"
#include "base/utl_Stream.h"
#include "model/database.h"
#include "oif/oif_Builder.h"
#include "oif/oif_ModelInfo.h"
#include "qkw/qkw_Keyword.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string_view>
#include <unistd.h>

namespace keydeck::test {

std::string DeckText(const qkw_Keyword& card) {
  qio_ostringDeck text;
  {
    utl_Stream s(text, 131, 6, 6);
    card.Write(s);
    s.Close();
  }
  return text.Text();
}

std::string DeckOfModel(const odb_Odb& odb, const char* modelName) {
  static int decksWritten = 0; // tests run in parallel processes: the pid keeps them apart
  const std::filesystem::path path =
      std::filesystem::temp_directory_path() /
      ("keydeck-test-" + std::to_string(getpid()) + "-" + std::to_string(++decksWritten) + ".inp");
  oif_ModelInfo info(odb.ddb().model(modelName));
  oif_Builder builder(info);
  EXPECT_TRUE(builder.WriteInputFile(cow_String(path.c_str())));
  std::string text = ReadFile(path.string());
  std::filesystem::remove(path);
  return text;
}

std::string ReadFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

std::string WithoutNoOutputLines(std::string deck) {
  for (const std::string_view line :
       {"*Output, field, frequency=0\n", "*Output, history, frequency=0\n",
        "*Output, field, variable=PRESELECT, number interval=0\n"})
    for (std::size_t at = deck.find(line); at != std::string::npos; at = deck.find(line, at))
      deck.erase(at, line.size());
  return deck;
}

std::string FirstDifference(const std::string& expected, const std::string& actual) {
  std::istringstream want(expected);
  std::istringstream got(actual);
  std::string wantLine;
  std::string gotLine;
  for (int line = 1;; ++line) {
    const bool moreWanted = static_cast<bool>(std::getline(want, wantLine));
    const bool moreGot = static_cast<bool>(std::getline(got, gotLine));
    if (!moreWanted && !moreGot)
      return expected == actual ? "" : "the texts differ in their final line end";
    if (!moreWanted || !moreGot || wantLine != gotLine)
      return "line " + std::to_string(line) + ": expected \"" +
             (moreWanted ? wantLine : "<end of deck>") + "\", got \"" +
             (moreGot ? gotLine : "<end of deck>") + "\"";
  }
}

std::string StepBlocks(const std::string& deck, const std::string& from) {
  std::string blocks;
  std::size_t at = deck.find(from);
  while (at < deck.size()) {
    const std::size_t end = deck.find('\n', at);
    const std::string line = deck.substr(at, end - at + 1);
    at = end + 1;
    if (line.starts_with("** STEP: "))
      blocks += "-- " + line.substr(9);
    else if (!(line.starts_with("** ---") || line == "** \n" || line.starts_with("*Step") ||
               line.starts_with("*Static") || line.starts_with("1., 1.") ||
               line.starts_with("*End Step")))
      blocks += line;
  }
  return blocks;
}

} // namespace keydeck::test
