#include "base/cow_List.h"
#include "base/cow_String.h"
#include "base/nex_Exception.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace {

std::vector<int> Items(const cow_List<int>& list) { return {list.begin(), list.end()}; }

// The text the call raised with, or a note that it raised nothing.
std::string RaisedText(const std::function<void()>& call) {
  try {
    call();
  } catch (const nex_PrimException& e) {
    return e.Text();
  }
  return "<nothing raised>";
}

TEST(CowList, IndexOutsideTheListRaisesWithTheIndex) {
  struct Case {
    const char* name;
    int index;
    std::function<void(cow_List<int>&, int)> call;
  };
  const Case cases[] = {
      {"ConstGet past the end", 3, [](cow_List<int>& l, int i) { l.ConstGet(i); }},
      {"ConstGet negative", -1, [](cow_List<int>& l, int i) { l.ConstGet(i); }},
      {"operator[]", 3, [](cow_List<int>& l, int i) { (void)l[i]; }},
      {"operator[] negative", -2, [](cow_List<int>& l, int i) { (void)l[i]; }},
      {"Get", 7, [](cow_List<int>& l, int i) { l.Get(i) = 0; }},
      {"Get negative", -1, [](cow_List<int>& l, int i) { l.Get(i) = 0; }},
      {"CheckIndex", 3, [](cow_List<int>& l, int i) { l.CheckIndex(i); }},
      {"RemoveIndex", 3, [](cow_List<int>& l, int i) { l.RemoveIndex(i); }},
      {"InsertIndex beyond the end", 4, [](cow_List<int>& l, int i) { l.InsertIndex(i, 0); }},
      {"InsertIndex negative", -1, [](cow_List<int>& l, int i) { l.InsertIndex(i, 0); }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    cow_List<int> list{10, 20, 30};
    const std::string text = RaisedText([&] { c.call(list, c.index); });
    EXPECT_NE(text.find("index " + std::to_string(c.index)), std::string::npos) << text;
    EXPECT_EQ(Items(list), (std::vector<int>{10, 20, 30}));
  }

  cow_List<int> empty;
  EXPECT_NE(RaisedText([&] { empty.Pop(); }).find("index -1"), std::string::npos);
  EXPECT_NE(RaisedText([&] { empty.RemoveLast(); }).find("index -1"), std::string::npos);
  EXPECT_NE(RaisedText([&] { empty.ConstGet(0); }).find("index 0"), std::string::npos);
  EXPECT_EQ(empty.Size(), 0);
}

TEST(CowList, UncheckedConstGetReadsInRange) {
  const cow_List<int> list{10, 20, 30};
  EXPECT_EQ(list.UncheckedConstGet(0), 10);
  EXPECT_EQ(list.UncheckedConstGet(2), 30);
  EXPECT_EQ(list.ConstGet(2), 30);
  EXPECT_NO_THROW(list.CheckIndex(0));
  EXPECT_NO_THROW(list.CheckIndex(2));
}

TEST(CowList, InsertAndRemoveAtAnIndex) {
  cow_List<int> list{1, 2, 3};
  list.InsertIndex(0, 0);
  EXPECT_EQ(Items(list), (std::vector<int>{0, 1, 2, 3}));
  list.InsertIndex(2, 9);
  EXPECT_EQ(Items(list), (std::vector<int>{0, 1, 9, 2, 3}));
  list.InsertIndex(list.Size(), 4); // the size itself appends
  EXPECT_EQ(Items(list), (std::vector<int>{0, 1, 9, 2, 3, 4}));
  list.Prepend(-1);
  EXPECT_EQ(Items(list), (std::vector<int>{-1, 0, 1, 9, 2, 3, 4}));

  list.RemoveIndex(3);
  EXPECT_EQ(Items(list), (std::vector<int>{-1, 0, 1, 2, 3, 4}));
  list.RemoveIndex(0);
  EXPECT_EQ(Items(list), (std::vector<int>{0, 1, 2, 3, 4}));
  list.RemoveLast();
  EXPECT_EQ(Items(list), (std::vector<int>{0, 1, 2, 3}));
  EXPECT_EQ(list.Pop(), 3);
  EXPECT_EQ(list.Pop(), 2);
  EXPECT_EQ(Items(list), (std::vector<int>{0, 1}));

  cow_List<int> empty;
  empty.InsertIndex(0, 5);
  EXPECT_EQ(Items(empty), (std::vector<int>{5}));
}

TEST(CowList, SliceClampsToTheList) {
  const cow_List<int> list{0, 1, 2, 3, 4, 5};
  struct Case {
    int from, to;
    std::vector<int> items;
  };
  const Case cases[] = {
      {1, 4, {1, 2, 3}}, {0, 6, {0, 1, 2, 3, 4, 5}},
      {-3, 2, {0, 1}},   {4, 100, {4, 5}},
      {3, 3, {}},        {4, 2, {}},
      {6, 8, {}},        {-5, -1, {}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(std::to_string(c.from) + ".." + std::to_string(c.to));
    EXPECT_EQ(Items(list.Slice(c.from, c.to)), c.items);
  }
  cow_List<int> slice = list.Slice(1, 3);
  slice.Get(0) = 100;
  EXPECT_EQ(Items(list), (std::vector<int>{0, 1, 2, 3, 4, 5}));
}

TEST(CowList, Concatenate) {
  cow_List<int> list{1, 2};
  list.Concatenate(cow_List<int>{3});
  EXPECT_EQ(Items(list), (std::vector<int>{1, 2, 3}));
  list.Concatenate(cow_List<int>());
  EXPECT_EQ(Items(list), (std::vector<int>{1, 2, 3}));

  cow_List<int> empty;
  const cow_List<int> tail{7, 8};
  empty.Concatenate(tail);
  empty.Append(9);
  EXPECT_EQ(Items(empty), (std::vector<int>{7, 8, 9}));
  EXPECT_EQ(Items(tail), (std::vector<int>{7, 8}));

  cow_List<int> self{1, 2};
  self.Concatenate(self);
  EXPECT_EQ(Items(self), (std::vector<int>{1, 2, 1, 2}));

  cow_List<int> shared{1, 2};
  const cow_List<int> copy = shared;
  shared.Concatenate(copy); // both sides hold the same items
  EXPECT_EQ(Items(shared), (std::vector<int>{1, 2, 1, 2}));
  EXPECT_EQ(Items(copy), (std::vector<int>{1, 2}));
  shared.Concatenate(shared);
  EXPECT_EQ(Items(shared), (std::vector<int>{1, 2, 1, 2, 1, 2, 1, 2}));
  EXPECT_EQ(Items(copy), (std::vector<int>{1, 2}));
}

TEST(CowList, AppendUnlessMember) {
  cow_List<cow_String> names{"STEEL", "Steel"};
  EXPECT_FALSE(names.AppendUnlessMember("STEEL"));
  EXPECT_TRUE(names.AppendUnlessMember("steel"));
  EXPECT_FALSE(names.AppendUnlessMember("steel"));
  EXPECT_TRUE(names.AppendUnlessMember(""));
  ASSERT_EQ(names.Size(), 4);
  EXPECT_EQ(names[2].View(), "steel");
  EXPECT_EQ(names[3].View(), "");
  EXPECT_TRUE(names.IsMember("Steel"));
  EXPECT_FALSE(names.IsMember("STEE"));
}

TEST(CowList, ResizeFillAndArrays) {
  cow_List<int> list{1, 2, 3};
  list.Resize(5);
  EXPECT_EQ(Items(list), (std::vector<int>{1, 2, 3, 0, 0}));
  list.Resize(2);
  EXPECT_EQ(Items(list), (std::vector<int>{1, 2}));
  list.Fill(3, 7);
  EXPECT_EQ(Items(list), (std::vector<int>{7, 7, 7}));
  list.Fill(0, 7);
  EXPECT_TRUE(list.Empty());

  const int numbers[] = {4, 5, 6};
  list.SetFromArray(numbers, 3);
  EXPECT_EQ(Items(list), (std::vector<int>{4, 5, 6}));
  const int* array = list.GetCArray();
  EXPECT_EQ(array[0], 4);
  EXPECT_EQ(array[2], 6);

  list.Clear();
  EXPECT_EQ(list.Size(), 0);
  list.Append(1);
  EXPECT_EQ(Items(list), (std::vector<int>{1}));

  std::vector<int> items{7, 8};
  const int* const storage = items.data();
  const cow_List<int> adopted = cow_List<int>::Adopt(std::move(items));
  EXPECT_EQ(Items(adopted), (std::vector<int>{7, 8}));
  EXPECT_EQ(adopted.GetCArray(), storage); // taken over, not copied
}

TEST(CowList, CopyChangesIndependentlyOfItsSource) {
  // Every write on one side, in turn; the other side must keep its items.
  const std::pair<const char*, std::function<void(cow_List<int>&)>> writes[] = {
      {"Append", [](cow_List<int>& l) { l.Append(4); }},
      {"Prepend", [](cow_List<int>& l) { l.Prepend(0); }},
      {"Get", [](cow_List<int>& l) { l.Get(1) = 20; }},
      {"InsertIndex", [](cow_List<int>& l) { l.InsertIndex(1, 5); }},
      {"RemoveIndex", [](cow_List<int>& l) { l.RemoveIndex(1); }},
      {"Pop", [](cow_List<int>& l) { l.Pop(); }},
      {"Resize", [](cow_List<int>& l) { l.Resize(1); }},
      {"Fill", [](cow_List<int>& l) { l.Fill(2, 9); }},
      {"Clear", [](cow_List<int>& l) { l.Clear(); }},
      {"SetFromArray", [](cow_List<int>& l) { l.SetFromArray(nullptr, 0); }},
      {"Concatenate", [](cow_List<int>& l) { l.Concatenate(l); }},
  };
  for (const auto& [name, write] : writes) {
    SCOPED_TRACE(name);
    const cow_List<int> source{1, 2, 3};
    cow_List<int> copy = source;
    write(copy);
    EXPECT_EQ(Items(source), (std::vector<int>{1, 2, 3}));
    EXPECT_NE(Items(copy), (std::vector<int>{1, 2, 3}));

    cow_List<int> writer{1, 2, 3};
    cow_List<int> kept;
    kept = writer;
    write(writer);
    EXPECT_EQ(Items(kept), (std::vector<int>{1, 2, 3}));
  }
}

TEST(CowListIter, HoldsItsOwnCopyOfTheList) {
  cow_List<cow_String> list{"a", "b", "c"};
  cow_ListIter<cow_String> it(list);
  list.Get(0) = "changed";
  list.Append("d");
  list.RemoveIndex(1);
  std::vector<std::string> seen;
  for (it.First(); !it.IsDone(); it.Next())
    seen.emplace_back(it.CurrentItem().View());
  EXPECT_EQ(seen, (std::vector<std::string>{"a", "b", "c"}));

  list.Clear();
  it.First();
  EXPECT_EQ(it.CurrentItem().View(), "a");
  it.Next();
  it.Next();
  it.Next();
  EXPECT_TRUE(it.IsDone());
  EXPECT_THROW(it.CurrentItem(), nex_PrimException);
}

} // namespace
