#include "model/database.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_RawKeyword.h"
#include "qkw/qkw_BuilderComponent.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

using keydeck::test::DeckText;

/// A builder whose Build does nothing, so tests file cards by hand.
class HandBuilder : public qkw_BuilderComponent {
public:
  explicit HandBuilder(qkw_ModelInfo& info) : qkw_BuilderComponent(info) {}
  void Build() override {}
  qkw_BuilderComponent* Copy() const override { return new HandBuilder(*this); }
  using qkw_BuilderComponent::AddInstanceDefinition;
  using qkw_BuilderComponent::AddPartDefinition;
  using qkw_BuilderComponent::AddStepDefinition;
};

std::string Text(const qkw_BuilderComponent::KeywordList& cards) {
  std::string text;
  for (const auto& card : cards)
    text += DeckText(*card);
  return text;
}

class BuilderComponent : public ::testing::Test {
protected:
  oif_ModelInfo info{ddb_Model()};
  HandBuilder builder{info};
};

TEST_F(BuilderComponent, UnknownKeysGiveEmptyListsAndAddNoKey) {
  builder.AddStepDefinition("Step-1", oif_RawKeyword("*A"), "LC");
  EXPECT_TRUE(builder.PartDefinition("P").Empty());
  EXPECT_TRUE(builder.InstanceDefinition("I").Empty());
  EXPECT_TRUE(builder.StepDefinition("Step-2", "LC").Empty());
  EXPECT_TRUE(builder.StepDefinition("Step-1", "Other").Empty());
  // Asking did not create the keys: the step still has only its load case.
  EXPECT_TRUE(builder.StepDefinition("Step-1").Empty());
  EXPECT_EQ(Text(builder.StepDefinition("Step-1", "LC")), "*A\n");
}

TEST_F(BuilderComponent, StepKeysKeepLoadCasesApart) {
  builder.AddStepDefinition("S", oif_RawKeyword("*A"), "A");
  builder.AddStepDefinition("S", oif_RawKeyword("*Own"));
  builder.AddStepDefinition("S", oif_RawKeyword("*A2"), "A");
  builder.AddStepDefinition("T", oif_RawKeyword("*T"));
  EXPECT_EQ(Text(builder.StepDefinition("S")), "*Own\n");
  EXPECT_EQ(Text(builder.StepDefinition("S", "")), "*Own\n");
  EXPECT_EQ(Text(builder.StepDefinition("S", "A")), "*A\n*A2\n");
  EXPECT_EQ(Text(builder.StepDefinition("T")), "*T\n");
}

TEST_F(BuilderComponent, SlotsKeepOrderOfAdding) {
  builder.AddPartDefinition("P", oif_RawKeyword("*1"));
  builder.AddInstanceDefinition("I", oif_RawKeyword("*i"));
  builder.AddPartDefinition("P", oif_RawKeyword("*2"));
  builder.AddModelDefinition(oif_RawKeyword("*m1"));
  builder.AddModelDefinition(oif_RawKeyword("*m2"));
  builder.AddAssemblyDefinition(oif_RawKeyword("*a"));
  EXPECT_EQ(Text(builder.PartDefinition("P")), "*1\n*2\n");
  EXPECT_EQ(Text(builder.InstanceDefinition("I")), "*i\n");
  EXPECT_EQ(Text(builder.ModelDefinition()), "*m1\n*m2\n");
  EXPECT_EQ(Text(builder.AssemblyDefinition()), "*a\n");
  EXPECT_TRUE(builder.AtomOptionDefinition().Empty());
  EXPECT_TRUE(builder.DesignAreaDefinition().Empty());
}

/// A card whose text can change after it was filed.
class MutableCard : public qkw_Keyword {
public:
  explicit MutableCard(std::string text) : text_(std::move(text)) {}
  qkw_Keyword* Copy() const override { return new MutableCard(*this); }
  void Write(utl_Stream& s) const override { oif_RawKeyword(text_.c_str()).Write(s); }
  std::string text_;
};

TEST_F(BuilderComponent, FiledCardsAreCopies) {
  MutableCard card("*Before");
  builder.AddModelDefinition(card);
  card.text_ = "*After";
  EXPECT_EQ(Text(builder.ModelDefinition()), "*Before\n");
}

TEST_F(BuilderComponent, CopiesShareSlotsUntilOneSideAdds) {
  builder.AddModelDefinition(oif_RawKeyword("*A"));
  builder.AddStepDefinition("S", oif_RawKeyword("*S"));
  const std::unique_ptr<qkw_BuilderComponent> copy(builder.Copy());
  EXPECT_TRUE(copy->ModelDefinition().SharesWith(builder.ModelDefinition()));

  auto& copied = static_cast<HandBuilder&>(*copy);
  copied.AddModelDefinition(oif_RawKeyword("*B"));
  copied.AddStepDefinition("S", oif_RawKeyword("*S2"));
  EXPECT_EQ(Text(builder.ModelDefinition()), "*A\n");
  EXPECT_EQ(Text(copy->ModelDefinition()), "*A\n*B\n");
  EXPECT_EQ(Text(builder.StepDefinition("S")), "*S\n");
  EXPECT_EQ(Text(copy->StepDefinition("S")), "*S\n*S2\n");
}

} // namespace
