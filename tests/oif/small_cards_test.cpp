#include "oif/oif_BlockHeader.h"
#include "oif/oif_Comment.h"
#include "oif/oif_FileHeader.h"
#include "oif/oif_RawKeyword.h"
#include "oif/oif_Utils.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <utility>

namespace {

using keydeck::test::DeckText;

TEST(SmallCards, CommentText) {
  const std::pair<const char*, const char*> cases[] = {{"A", "** A\n"},
                                                       {"A\n", "** A\n** \n"},
                                                       {"\n", "** \n** \n"},
                                                       {"A\n\nB", "** A\n** \n** B\n"},
                                                       {"\nTITLE\n", "** \n** TITLE\n** \n"},
                                                       {"", ""}};
  for (const auto& [text, deck] : cases) {
    SCOPED_TRACE(text);
    EXPECT_EQ(DeckText(oif_Comment(text)), deck);
  }
}

TEST(SmallCards, RawKeywordEndsItsLineOnce) {
  EXPECT_EQ(DeckText(oif_RawKeyword("*Foo")), "*Foo\n");
  EXPECT_EQ(DeckText(oif_RawKeyword("*Foo\n")), "*Foo\n");
  EXPECT_EQ(DeckText(oif_RawKeyword("*A\n*B")), "*A\n*B\n");
  EXPECT_EQ(DeckText(oif_RawKeyword("")), "");
}

TEST(SmallCards, FileHeaderLeavesItsLineOpen) {
  EXPECT_EQ(DeckText(oif_FileHeader("*Foo")), "*Foo");
  EXPECT_EQ(DeckText(oif_FileHeader("*Foo\n")), "*Foo\n");
  EXPECT_EQ(DeckText(oif_FileHeader("")), "");
}

TEST(SmallCards, BlockHeaderOncePerSectionAndStep) {
  oif_BlockHeader header("LOADS");
  const char* const title = "** \n** LOADS\n** \n";
  EXPECT_EQ(DeckText(header.AssyHeader()), title);
  EXPECT_EQ(DeckText(header.AssyHeader()), "");
  // The model and each step have titles of their own, whatever came before.
  EXPECT_EQ(DeckText(header.ModelHeader()), title);
  EXPECT_EQ(DeckText(header.ModelHeader()), "");
  EXPECT_EQ(DeckText(header.StepHeader("Step-1")), title);
  EXPECT_EQ(DeckText(header.StepHeader("Step-2")), title);
  EXPECT_EQ(DeckText(header.StepHeader("Step-1")), "");
  EXPECT_EQ(DeckText(header.StepHeader("Step-2")), "");
}

TEST(SmallCards, BlockHeaderCopiesKeepTheirOwnFlags) {
  oif_BlockHeader header("FIELDS");
  (void)header.StepHeader("S");
  oif_BlockHeader copy = header;
  EXPECT_EQ(DeckText(copy.StepHeader("S")), "");
  EXPECT_NE(DeckText(copy.StepHeader("T")), "");
  EXPECT_NE(DeckText(header.StepHeader("T")), "");
}

TEST(Utils, CheckDataState) {
  EXPECT_TRUE(oif_Utils::CheckDataState(mdl_AttributeSet, true));
  EXPECT_TRUE(oif_Utils::CheckDataState(mdl_AttributeSet, false));
  EXPECT_TRUE(oif_Utils::CheckDataState(mdl_AttributePropagated, false));
  EXPECT_FALSE(oif_Utils::CheckDataState(mdl_AttributePropagated, true));
  for (const bool modifiedOnly : {true, false}) {
    EXPECT_FALSE(oif_Utils::CheckDataState(mdl_AttributeUnset, modifiedOnly));
    EXPECT_FALSE(oif_Utils::CheckDataState(mdl_AttributeModified, modifiedOnly));
  }
}

TEST(Utils, SetDeactivateOpFlags) {
  for (const mdl_PropagationStatusEnm status : {PropDeactivated, PropDeactivatedBase}) {
    bool deactivated = false;
    bool modifiedOnly = true;
    oif_Utils::SetDeactivateOpFlags(status, deactivated, modifiedOnly);
    EXPECT_TRUE(deactivated);
    EXPECT_FALSE(modifiedOnly);
  }
  for (const bool before : {true, false}) {
    bool deactivated = true;
    bool modifiedOnly = before;
    oif_Utils::SetDeactivateOpFlags(PropCreated, deactivated, modifiedOnly);
    EXPECT_FALSE(deactivated);
    EXPECT_EQ(modifiedOnly, before);
  }
}

} // namespace
