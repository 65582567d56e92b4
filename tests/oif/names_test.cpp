#include "base/omu_QuorvexName.h"
#include "base/qio_ostream.h"
#include "base/utl_Stream.h"
#include "model/database.h"
#include "model/json/loader.h"
#include "model/json/region_names.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_Region.h"
#include "oif/oif_SetName.h"
#include "oif/oif_Utils.h"
#include "qkw/qkw_QuorvexName.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace {

TEST(Names, QuoteIfNeededRule) {
  const std::pair<const char*, const char*> cases[] = {
      {"Part-1", "Part-1"},   {"_set", "_set"},   {"a1_b-2", "a1_b-2"},
      {"Set A", "\"Set A\""}, {"a,b", "\"a,b\""}, {"a.b", "\"a.b\""},
      {"1set", "\"1set\""},   {"-x", "\"-x\""},   {"caf\xc3\xa9", "\"caf\xc3\xa9\""},
      {"a\"b", "\"a\"b\""},   {"a*b", "\"a*b\""}, {"", ""}};
  for (const auto& [name, printed] : cases) {
    SCOPED_TRACE(name);
    EXPECT_EQ(omu_QuorvexName::QuoteIfNeeded(name), printed);
    EXPECT_EQ(qkw_QuorvexName(name, false).Printable(), printed);
  }
}

TEST(Names, FileNameModeQuotesOnlyBlanks) {
  EXPECT_EQ(qkw_QuorvexName("my job.inp", true).PrintableFileName(), "\"my job.inp\"");
  EXPECT_EQ(qkw_QuorvexName("a.b,c", true).PrintableFileName(), "a.b,c");
  EXPECT_EQ(qkw_QuorvexName("", true).PrintableFileName(), "");
  qio_ostringDeck text;
  {
    utl_Stream s(text, 131, 6, 6);
    s << qkw_QuorvexName("x y", true) << "|" << qkw_QuorvexName("x y", false);
    s.Close();
  }
  EXPECT_EQ(text.Text(), "\"x y\"|\"x y\"");
}

TEST(Names, ScopedNamesSplitIntoInstanceAndSet) {
  struct Case {
    const char* scoped;
    const char* instance;
    const char* set;
  };
  const Case cases[] = {{"a", "", "a"},
                        {"i.a", "i", "a"},
                        {"x.i.a", "i", "a"},
                        {"a.b.c.d", "", ""},
                        {"\"a.b\".c", "\"a.b\"", "c"},
                        {"i.", "i", ""},
                        {"", "", ""}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.scoped);
    const oif_SetName name(c.scoped, false);
    EXPECT_EQ(name.InstanceName(), c.instance);
    EXPECT_EQ(name.UniqueSetName(oif_SetName::InstanceScope), oif_SetName::QuoteIfNeeded(c.set));
  }
  EXPECT_EQ(oif_SetName("i.a", false).UniqueSetName(oif_SetName::AssemblyScope), "i.a");
  EXPECT_EQ(oif_SetName("Part 1.Set A", false).UniqueSetName(oif_SetName::AssemblyScope),
            "\"Part 1\".\"Set A\"");
  // A node set found through its scoped name is not known to be one: no "_CNS_".
  EXPECT_EQ(oif_SetName("i.a", false).UniqueSurfaceName(oif_SetName::AssemblyScope), "i.a");
}

TEST(Names, RenamingThroughUniqueSetNameStays) {
  const oif_SetName name("i.a", false);
  EXPECT_EQ(name.UniqueSetName("b c", oif_SetName::AssemblyScope), "i.\"b c\"");
  EXPECT_EQ(name.UniqueSetName(oif_SetName::InstanceScope), "\"b c\"");
}

TEST(Names, QuotingPieceByPiece) {
  const std::pair<const char*, const char*> cases[] = {
      {"plain", "plain"},
      {"\"quoted\"", "\"quoted\""},
      {"Part-1.Set A", "Part-1.\"Set A\""},
      {"\"I 1\".S", "\"I 1\".S"},
      {"a b.\"c d\"", "\"a b\".\"c d\""},
      {"\"\"", "\"\"\"\""}, // two quotes alone are not a quoted name
  };
  for (const auto& [name, quoted] : cases) {
    SCOPED_TRACE(name);
    EXPECT_EQ(oif_SetName::QuoteIfNeeded(name), quoted);
  }
  EXPECT_FALSE(oif_SetName::IsQuoted("\"\""));
  EXPECT_TRUE(oif_SetName::IsQuoted("\"a\""));
  EXPECT_EQ(oif_SetName::Unquote("\"a b\""), "a b");
  EXPECT_EQ(oif_SetName::Unquote("\"\""), "\"\"");
  EXPECT_EQ(oif_Utils::GetConnectorSetName("Wire Set"), "\"Wire Set\"");
}

TEST(Names, FaceLabels) {
  const std::pair<int, const char*> rows[] = {
      {1001, "S1"}, {2005, "S5"},  {1000, "E0"}, {103, "E3"}, {101, "E1"}, {100, "S0"}, {12, "S2"},
      {11, "S1"},   {10, "END10"}, {2, "END2"},  {1, "END1"}, {0, ""},     {-4, ""}};
  for (const auto& [face, label] : rows) {
    SCOPED_TRACE(face);
    EXPECT_EQ(oif_getLabel(face), label);
  }
}

} // namespace

namespace {

TEST(Names, RegionsOfTheModel) {
  std::vector<std::string> warnings;
  const odb_Odb odb =
      keydeck::LoadModelFile(KEYDECK_SOURCE_DIR "/tests/golden/bracket.json", warnings);
  const ddb_Model& model = odb.ddb().model("Default Model");
  const oif_ModelInfo info(model);
  keydeck::LoadErrors errors;
  struct Case {
    const char* scoped;
    const char* setName;     // UniqueSetName in the assembly scope
    const char* surfaceName; // UniqueSurfaceName in the assembly scope
    const char* fullName;    // oif_Region
  };
  const Case cases[] = {{"Bracket-2.Tip", "Bracket-2.Tip", "Bracket-2_Tip_CNS_", "Bracket-2.Tip"},
                        {"Bracket-1.All", "Bracket-1.All", "Bracket-1.All", "Bracket-1.All"},
                        {"Roots", "Roots", "Roots_CNS_", "Roots"}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.scoped);
    const rgnC_Region region = keydeck::ResolveRegion(model, c.scoped, "test", errors);
    const oif_SetName name(region, info);
    EXPECT_EQ(name.UniqueSetName(oif_SetName::AssemblyScope), c.setName);
    EXPECT_EQ(name.UniqueSurfaceName(oif_SetName::AssemblyScope), c.surfaceName);
    EXPECT_EQ(oif_Region(info.Model(), region).FullName(), c.fullName);
  }
  const oif_SetName none(rgnC_Region(), info);
  EXPECT_EQ(none.UniqueSetName(oif_SetName::AssemblyScope), "");
  EXPECT_EQ(oif_Region(info.Model(), rgnC_Region()).FullName(), "");
}

} // namespace
