#include "base/cow_2DArray.h"
#include "base/cow_COW.h"
#include "base/cow_List.h"
#include "base/mdl_PropAttr.h"
#include "base/nex_Exception.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

namespace {

// A card-like base class that clones through a virtual Copy, and a class
// beneath it; both count the live objects and the clones made, so a test
// sees every copy, leak and double delete.
class Card {
public:
  explicit Card(int value) : value_(value) { ++live; }
  virtual ~Card() { --live; }
  virtual Card* Copy() const {
    ++clones;
    return new Card(*this);
  }
  virtual std::string Name() const { return "card"; }
  int Value() const { return value_; }
  void SetValue(int value) { value_ = value; }

  static inline int live = 0;
  static inline int clones = 0;

protected:
  Card(const Card& other) : value_(other.value_) { ++live; }

private:
  int value_;
};

class LoadCard : public Card {
public:
  explicit LoadCard(int value) : Card(value) {}
  LoadCard* Copy() const override {
    ++clones;
    return new LoadCard(*this);
  }
  std::string Name() const override { return "load"; }
};

using Handle = cow_ArrayCOW<Card, cow_Virtual<Card>>;

class CowHandle : public ::testing::Test {
protected:
  void SetUp() override {
    Card::live = 0;
    Card::clones = 0;
  }
  void TearDown() override { EXPECT_EQ(Card::live, 0) << "objects leaked or deleted twice"; }
};

TEST_F(CowHandle, GetOnASharedHandleClonesTheDerivedClass) {
  Handle first(new LoadCard(1));
  Handle second = first;
  EXPECT_EQ(&first.ConstGet(), &second.ConstGet());
  EXPECT_EQ(Card::clones, 0);

  Card& written = second.Get();
  EXPECT_EQ(Card::clones, 1);
  EXPECT_NE(&written, &first.ConstGet());
  EXPECT_NE(dynamic_cast<LoadCard*>(&written), nullptr);
  EXPECT_EQ(written.Name(), "load");
  written.SetValue(2);
  EXPECT_EQ(first->Value(), 1);
  EXPECT_EQ((*second).Value(), 2);
  EXPECT_EQ(Card::live, 2);
}

TEST_F(CowHandle, GetOnAnUnsharedHandleDoesNotClone) {
  Handle only(new LoadCard(1));
  const Card* before = &only.ConstGet();
  EXPECT_EQ(&only.Get(), before);
  EXPECT_EQ(Card::clones, 0);

  // Once the other holder is gone the survivor is alone again.
  {
    const Handle other = only;
    EXPECT_EQ(&only.ConstGet(), &other.ConstGet());
  }
  EXPECT_EQ(&only.Get(), before);
  EXPECT_EQ(Card::clones, 0);
  EXPECT_EQ(Card::live, 1);
}

TEST_F(CowHandle, WritesOnEitherSideStayOnThatSide) {
  Handle source(new LoadCard(1));
  Handle copy = source;
  copy.Get().SetValue(2);
  EXPECT_EQ(source->Value(), 1);

  Handle writer(new Card(10));
  Handle kept;
  kept = writer;
  writer.Get().SetValue(11);
  EXPECT_EQ(kept->Value(), 10);
  EXPECT_EQ(writer->Value(), 11);
  EXPECT_EQ(kept->Name(), "card");
}

TEST_F(CowHandle, ConstructionFromAnObjectClonesItThroughThePolicy) {
  const LoadCard original(5);
  Handle handle(original);
  EXPECT_EQ(Card::clones, 1);
  EXPECT_NE(&handle.ConstGet(), &original);
  EXPECT_EQ(handle->Name(), "load");
  handle.Get().SetValue(6);
  EXPECT_EQ(original.Value(), 5);
  EXPECT_EQ(Card::clones, 1);
}

TEST_F(CowHandle, AssignmentAndEmptyHandlesReleaseTheirObjects) {
  Handle empty;
  EXPECT_TRUE(empty.IsNull());
  EXPECT_TRUE(Handle(static_cast<Card*>(nullptr)).IsNull());
  Handle a(new Card(1));
  Handle b(new Card(2));
  EXPECT_EQ(Card::live, 2);
  a = b;
  EXPECT_EQ(Card::live, 1);
  EXPECT_EQ(a->Value(), 2);
  b = empty;
  EXPECT_TRUE(b.IsNull());
  EXPECT_EQ(Card::live, 1);
  Handle moved = std::move(a);
  EXPECT_EQ(moved->Value(), 2);
  EXPECT_EQ(Card::live, 1);
}

TEST_F(CowHandle, HandlesInACopiedListCloneOnWrite) {
  cow_List<Handle> cards;
  cards.Append(Handle(new Card(1)));
  cards.Append(Handle(new LoadCard(2)));
  cow_List<Handle> copy = cards;
  Card& written = copy.Get(1).Get();
  written.SetValue(20);
  EXPECT_EQ(Card::clones, 1);
  EXPECT_EQ(written.Name(), "load");
  EXPECT_EQ(cards[1]->Value(), 2);
  EXPECT_EQ(copy[1]->Value(), 20);
  EXPECT_EQ(&cards[0].ConstGet(), &copy[0].ConstGet());
  EXPECT_EQ(Card::live, 3);
}

// cow_Direct clones through the copy constructor; a plain value type counts them.
struct Point {
  Point(int x, int y) : x(x), y(y) {}
  Point(const Point& other) : x(other.x), y(other.y) { ++copies; }
  Point& operator=(const Point&) = default;
  int x, y;
  static inline int copies = 0;
};

TEST(CowDirect, ClonesThroughTheCopyConstructorWhenShared) {
  Point::copies = 0;
  cow_COW<Point, cow_Direct<Point>> a(new Point(1, 2));
  auto b = a;
  EXPECT_EQ(Point::copies, 0);
  b.Get().x = 10;
  EXPECT_EQ(Point::copies, 1);
  EXPECT_EQ(a->x, 1);
  EXPECT_EQ(b->x, 10);
  b.Get().y = 20;
  EXPECT_EQ(Point::copies, 1);
  EXPECT_EQ(a->y, 2);
}

TEST(Cow2DArray, RowMajorCellsAndCopyOnWrite) {
  cow_2DArray<double> source(2, 3, 0.5);
  source.Get(1, 2) = 7.0;
  source.Get(0, 1) = 3.0;
  cow_2DArray<double> copy = source;
  copy.Get(1, 2) = 8.0;
  EXPECT_EQ(source.ConstGet(1, 2), 7.0);
  EXPECT_EQ(copy.ConstGet(1, 2), 8.0);
  EXPECT_EQ(copy.ConstGet(0, 1), 3.0);
  EXPECT_EQ(copy.ConstGet(1, 0), 0.5);
  EXPECT_EQ(copy.Rows(), 2);
  EXPECT_EQ(copy.Cols(), 3);
}

TEST(MdlPropAttr, StatesAsTheDeckReadsThem) {
  // The integers are the ones the step writers test: 1 set in this step,
  // 2 inherited from an earlier step, 3 changed in this step, 0 never given.
  struct Case {
    int state;
    bool active, modified;
  };
  const Case cases[] = {{0, false, false}, {1, true, true}, {2, true, false}, {3, true, true}};
  for (const Case& c : cases) {
    SCOPED_TRACE(c.state);
    const auto state = static_cast<mdl_PropAttributeStateEnm>(c.state);
    const mdl_PropAttr<double> attr(1.5, state);
    EXPECT_EQ(attr.IsActive(), c.active);
    EXPECT_EQ(attr.IsModified(), c.modified);
    EXPECT_EQ(static_cast<int>(attr.State()), c.state);
  }
  static_assert(sizeof(mdl_PropAttributeStateEnm) == 4);
  EXPECT_FALSE(mdl_PropAttr<double>().IsActive());
}

TEST(MdlPropAttr, ComparesWithAValueOrAState) {
  // An int value of 1 next to state 2 tells the two comparisons apart.
  const mdl_PropAttr<int> attr(1, mdl_AttributePropagated);
  EXPECT_TRUE(attr == 1);
  EXPECT_FALSE(attr != 1);
  EXPECT_TRUE(attr != 2);
  EXPECT_TRUE(attr == mdl_AttributePropagated);
  EXPECT_FALSE(attr == mdl_AttributeSet);
  EXPECT_TRUE(attr != mdl_AttributeSet);
  EXPECT_FALSE(attr != mdl_AttributePropagated);
  EXPECT_EQ(attr.ConstGet(), 1);

  const mdl_PropAttr<std::string> name("AMP-1", mdl_AttributeSet);
  EXPECT_TRUE(name == std::string("AMP-1"));
  EXPECT_TRUE(name != std::string("AMP-2"));
  EXPECT_TRUE(name == mdl_AttributeSet);
}

TEST(NexException, CanDynamicCastRefRaisesOnAnotherType) {
  EXPECT_NO_THROW(nex_canDynamicCastRef(12, 12, "model.cpp", 3));
  try {
    nex_canDynamicCastRef(12, 13, "model.cpp", 40);
    FAIL() << "nothing raised";
  } catch (const nex_PrimException& e) {
    EXPECT_STREQ(e.File(), "model.cpp");
    EXPECT_EQ(e.Line(), 40);
    EXPECT_NE(e.Text().find("12"), std::string::npos) << e.Text();
    EXPECT_NE(e.Text().find("13"), std::string::npos) << e.Text();
  }
}

TEST(NexException, RaiseRecordsTheCallersPlace) {
  int line = 0;
  try {
    line = __LINE__ + 1;
    keydeck::Raise("no such step");
  } catch (const nex_PrimException& e) {
    EXPECT_EQ(e.Text(), "no such step");
    EXPECT_STREQ(e.what(), "no such step");
    EXPECT_EQ(e.Line(), line);
    EXPECT_TRUE(std::string_view(e.File()).ends_with("cow_handle_test.cpp")) << e.File();
    return;
  }
  FAIL() << "nothing raised";
}

} // namespace
