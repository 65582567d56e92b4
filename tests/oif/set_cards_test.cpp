#include "oif/oif_Elset.h"
#include "oif/oif_Nset.h"
#include "oif/oif_Set.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

using keydeck::test::DeckText;

std::string Elset(const cow_List<int>& labels, const char* instance = "", bool internal = false) {
  return DeckText(oif_Elset(labels, "E", instance, internal));
}

TEST(SetCards, GenerateFormNeedsThreeInProgression) {
  EXPECT_EQ(Elset({5, 1, 3}), "*Elset, elset=E, generate\n1, 5, 2\n");
  EXPECT_EQ(Elset({1, 1, 2, 3}), "*Elset, elset=E, generate\n1, 3, 1\n");
  EXPECT_EQ(Elset({2, 1}), "*Elset, elset=E\n1,2\n");
  EXPECT_EQ(Elset({7}), "*Elset, elset=E\n7, \n");
  EXPECT_EQ(Elset({1, 2, 4}), "*Elset, elset=E\n1,2,4\n");
  EXPECT_EQ(Elset({}), "");
}

TEST(SetCards, SixteenLabelsToALine) {
  cow_List<int> labels;
  for (int i = 1; i <= 17; ++i)
    labels.Append(i * i); // no progression
  EXPECT_EQ(Elset(labels), "*Elset, elset=E\n"
                           "1,4,9,16,25,36,49,64,81,100,121,144,169,196,225,256\n"
                           "289, \n");
  labels.RemoveLast();
  EXPECT_EQ(Elset(labels), "*Elset, elset=E\n"
                           "1,4,9,16,25,36,49,64,81,100,121,144,169,196,225,256\n");
  labels.Append(289);
  labels.Append(324);
  EXPECT_EQ(Elset(labels), "*Elset, elset=E\n"
                           "1,4,9,16,25,36,49,64,81,100,121,144,169,196,225,256\n"
                           "289,324\n");
}

TEST(SetCards, ParametersAndQuoting) {
  EXPECT_EQ(DeckText(oif_Elset({3, 1, 2}, "Set A", "Part 1-1", true)),
            "*Elset, elset=\"Set A\", instance=\"Part 1-1\", internal, generate\n1, 3, 1\n");
  EXPECT_EQ(DeckText(oif_Elset("All", {"A", "B C"})),
            "*Elset, elset=All, internal\nA, \n\"B C\", \n");
  EXPECT_EQ(DeckText(oif_Nset("All", {"A", "B C"})), "*Nset, nset=All\nA, \n\"B C\", \n");
  EXPECT_EQ(DeckText(oif_Nset("None", {})), "");
}

TEST(SetCards, WritingSortsACopy) {
  const oif_Elset card({9, 3, 6, 9}, "E", "", false);
  EXPECT_EQ(DeckText(card), "*Elset, elset=E, generate\n3, 9, 3\n");
  EXPECT_EQ(DeckText(card), "*Elset, elset=E, generate\n3, 9, 3\n");
}

/// The labels on the data lines of a set card, in order.
std::vector<int> LabelsOfCard(const std::string& deck, bool& generate) {
  std::istringstream lines(deck);
  std::string line;
  std::getline(lines, line);
  generate = line.find(", generate") != std::string::npos;
  std::vector<int> labels;
  while (std::getline(lines, line)) {
    std::istringstream values(line);
    std::string value;
    while (std::getline(values, value, ','))
      if (value.find_first_not_of(' ') != std::string::npos)
        labels.push_back(std::stoi(value));
  }
  if (!generate)
    return labels;
  std::vector<int> expanded;
  for (int label = labels.at(0); label <= labels.at(1); label += labels.at(2))
    expanded.push_back(label);
  return expanded;
}

TEST(SetCards, PropertyLabelsAreTheSetSortedWithoutDuplicates) {
  std::mt19937 random(20261121);
  for (int round = 0; round < 300; ++round) {
    const int count = static_cast<int>(random() % 40);
    cow_List<int> labels;
    std::set<int> expected;
    const bool progression = round % 5 == 0;
    for (int i = 0; i < count; ++i) {
      const int label = progression ? 3 + 7 * i : 1 + static_cast<int>(random() % 60);
      labels.Append(label);
      expected.insert(label);
    }
    bool generate = false;
    const std::vector<int> written = LabelsOfCard(Elset(labels), generate);
    SCOPED_TRACE(round);
    EXPECT_EQ(written, std::vector<int>(expected.begin(), expected.end()));
    if (progression && count >= 3) {
      EXPECT_TRUE(generate);
    }
  }
}

} // namespace
