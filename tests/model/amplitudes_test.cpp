#include "model/json/derive.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace keydeck;

namespace {

std::vector<std::string> FaultsOf(const kamC_Amplitude& amplitude) {
  ddb_Model model;
  model.amplitudes_.Insert("A", amplitude);
  LoadErrors errors;
  DeriveModel("models/M", model, errors);
  return errors.Messages();
}

TEST(Amplitudes, TablesOfPairs) {
  kamC_Tabular tabular;
  tabular.data = {0, 0, 1, 1, 1, 2, 3, 3};
  EXPECT_EQ(FaultsOf(tabular), std::vector<std::string>{}); // a time may repeat: a jump
  tabular.data = {0, 0, 1, 1, 2};
  EXPECT_EQ(FaultsOf(tabular),
            std::vector<std::string>{
                "models/M/amplitudes/A/data: expected pairs of time and value, found 5 numbers"});
  tabular.data = {0, 0, 1, 1, 0.5, 2, 0.25, 3};
  EXPECT_EQ(FaultsOf(tabular), std::vector<std::string>{"models/M/amplitudes/A/data/4: the time "
                                                        "0.5 comes after the greater time 1"});
  kamC_SmoothStep step;
  step.data = {2, 0, -1, 1};
  EXPECT_EQ(FaultsOf(step), std::vector<std::string>{"models/M/amplitudes/A/data/2: the time -1 "
                                                     "comes after the greater time 2"});
  kamC_Periodic periodic;
  periodic.data = {3, 1, 2}; // terms, not times: any order
  EXPECT_EQ(FaultsOf(periodic),
            std::vector<std::string>{
                "models/M/amplitudes/A/data: expected pairs of terms A and B, found 3 numbers"});
  periodic.data = {3, 1, 2, 0};
  EXPECT_EQ(FaultsOf(periodic), std::vector<std::string>{});
  kamC_EquallySpaced spaced; // single values: any count
  spaced.data = {3, 1, 2};
  EXPECT_EQ(FaultsOf(spaced), std::vector<std::string>{});
}

} // namespace
