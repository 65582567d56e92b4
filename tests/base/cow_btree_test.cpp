#include "base/cow_Btree.h"
#include "base/cow_IntTable.h"
#include "base/cow_String.h"
#include "base/mdl_MapString2ObjCow.h"
#include "base/nex_Exception.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <utility>
#include <vector>

namespace {

std::vector<std::string> Strings(const cow_List<cow_String>& list) {
  std::vector<std::string> strings;
  for (const cow_String& s : list)
    strings.emplace_back(s.View());
  return strings;
}

std::string Plain(const cow_String& s) { return std::string(s.View()); }
int Plain(int i) { return i; }

// The entries in the order the named iterator visits them, with plain keys
// and values so that a failure prints them readably.
template <class K, class V> auto Visit(const cow_Btree<K, V>& tree) {
  std::vector<std::pair<decltype(Plain(K())), decltype(Plain(V()))>> entries;
  cow_BtreeIterator<K, V> it(tree);
  for (it.First(); !it.IsDone(); it.Next())
    entries.emplace_back(Plain(it.CurrentKey()), Plain(it.CurrentValue()));
  return entries;
}
using Entries = std::vector<std::pair<std::string, int>>;

// A named model object with a class of its own beneath it, to see that the
// repository keeps the class it was given.
class Record {
public:
  explicit Record(int value) : value_(value) {}
  virtual ~Record() = default;
  virtual Record* Copy() const { return new Record(*this); }
  virtual std::string Kind() const { return "record"; }
  int Value() const { return value_; }
  void SetValue(int value) { value_ = value; }

protected:
  Record(const Record&) = default;

private:
  int value_;
};

class Material : public Record {
public:
  explicit Material(int value) : Record(value) {}
  Material* Copy() const override { return new Material(*this); }
  std::string Kind() const override { return "material"; }
};

TEST(CowBtree, VisitsStringKeysInAscendingByteOrder) {
  // By unsigned bytes: "" first, capitals before small letters, a prefix
  // before its extensions, bytes above 127 last.
  cow_Btree<cow_String, int> tree;
  const char* const inserted[] = {"b", "a", "Z", "\xc3\xa9", "z", "ab", "", "B"};
  int value = 0;
  for (const char* key : inserted)
    EXPECT_TRUE(tree.Insert(key, value++));
  const std::vector<std::string> sorted = {"", "B", "Z", "a", "ab", "b", "z", "\xc3\xa9"};
  EXPECT_EQ(Strings(tree.Keys()), sorted);

  const auto entries = Visit(tree);
  ASSERT_EQ(entries.size(), sorted.size());
  const int values[] = {6, 7, 2, 1, 5, 0, 4, 3};
  for (std::size_t i = 0; i < entries.size(); ++i) {
    EXPECT_EQ(entries[i].first, sorted[i]);
    EXPECT_EQ(entries[i].second, values[i]);
  }
}

TEST(CowBtree, VisitsIntKeysNumerically) {
  cow_Btree<int, int> tree;
  for (int key : {10, -5, 0, 3, -100, INT_MIN, INT_MAX, 256, -1})
    tree.Insert(key, key / 2);
  const auto entries = Visit(tree);
  std::vector<int> keys;
  for (const auto& [key, value] : entries) {
    keys.push_back(key);
    EXPECT_EQ(value, key / 2);
  }
  EXPECT_EQ(keys, (std::vector<int>{INT_MIN, -100, -5, -1, 0, 3, 10, 256, INT_MAX}));
}

TEST(CowBtree, InsertReplacesAnExistingKey) {
  cow_Btree<cow_String, int> tree;
  EXPECT_TRUE(tree.Insert("a", 1));
  EXPECT_TRUE(tree.Insert("b", 2));
  EXPECT_FALSE(tree.Insert("a", 3));
  EXPECT_EQ(tree.Size(), 2);
  EXPECT_EQ(tree.ConstGet("a"), 3);
  tree.Get("b") = 20;
  EXPECT_EQ(tree.ConstGet("b"), 20);
  EXPECT_TRUE(tree.Remove("a"));
  EXPECT_FALSE(tree.Remove("a"));
  EXPECT_EQ(Strings(tree.Keys()), (std::vector<std::string>{"b"}));
}

TEST(CowBtree, MissingKeyGivesTheDefaultSlotAndAddsNothing) {
  cow_Btree<cow_String, cow_String> tree;
  tree.Insert("present", "value");

  EXPECT_EQ(tree.ConstGet("absent").View(), "");
  EXPECT_EQ(tree.Get("absent").View(), "");
  EXPECT_EQ(tree.Size(), 1);
  EXPECT_FALSE(tree.IsMember("absent"));

  // A write through the slot of a missing key stores nothing, and later
  // reads of missing keys still give the default value.
  tree.Get("absent") = "written";
  EXPECT_FALSE(tree.IsMember("absent"));
  EXPECT_EQ(tree.Size(), 1);
  EXPECT_EQ(tree.ConstGet("absent").View(), "");
  EXPECT_EQ(tree.ConstGet("other").View(), "");
  EXPECT_EQ(tree.Get("other").View(), "");
  EXPECT_EQ(tree.ConstGet("present").View(), "value");
  EXPECT_EQ(Strings(tree.Keys()), (std::vector<std::string>{"present"}));

  const cow_Btree<int, int> empty;
  EXPECT_EQ(empty.ConstGet(4), 0);
  EXPECT_EQ(empty.Size(), 0);
}

TEST(CowBtree, CopyChangesIndependentlyOfItsSource) {
  cow_Btree<cow_String, int> source;
  source.Insert("a", 1);
  source.Insert("b", 2);

  cow_Btree<cow_String, int> copy = source;
  copy.Insert("c", 3);
  copy.Get("a") = 10;
  copy.Remove("b");
  EXPECT_EQ(Visit(source), (Entries{{"a", 1}, {"b", 2}}));
  EXPECT_EQ(Visit(copy), (Entries{{"a", 10}, {"c", 3}}));

  const cow_Btree<cow_String, int> kept = source;
  source.Insert("a", 100);
  source.Get("b") = 200;
  source.Insert("0", 0);
  EXPECT_EQ(Visit(kept), (Entries{{"a", 1}, {"b", 2}}));
}

TEST(CowBtreeIterator, HoldsItsOwnCopyOfTheTree) {
  cow_Btree<int, int> tree;
  tree.Insert(2, 20);
  tree.Insert(1, 10);
  cow_BtreeIterator<int, int> it(tree);
  tree.Insert(0, 0);
  tree.Get(1) = 11;
  tree.Remove(2);
  std::vector<std::pair<int, int>> seen;
  for (it.First(); !it.IsDone(); it.Next())
    seen.emplace_back(it.CurrentKey(), it.CurrentValue());
  EXPECT_EQ(seen, (std::vector<std::pair<int, int>>{{1, 10}, {2, 20}}));
}

TEST(MdlMapString2ObjCow, NamesInAscendingByteOrder) {
  mdl_MapString2ObjCow<Record> repository;
  const char* const names[] = {"a", "Z", "\xc3\xa9", "z", "B", "Steel-2", "Steel-10", "aa"};
  int value = 0;
  for (const char* name : names)
    repository.Insert(name, Record(value++));
  const std::vector<std::string> sorted = {"B", "Steel-10", "Steel-2", "Z",
                                           "a", "aa",       "z",       "\xc3\xa9"};
  EXPECT_EQ(repository.Size(), 8);
  EXPECT_EQ(Strings(repository.Keys()), sorted);

  std::vector<std::string> visited;
  std::vector<int> values;
  mdl_MapString2ObjCowIT<Record> it(repository);
  for (it.First(); !it.IsDone(); it.Next()) {
    visited.emplace_back(it.CurrentKey().View());
    values.push_back(it.CurrentValue().Value());
  }
  EXPECT_EQ(visited, sorted);
  EXPECT_EQ(values, (std::vector<int>{4, 6, 5, 1, 0, 7, 3, 2}));
  EXPECT_EQ(Strings(repository.ConstGetMap().Keys()), sorted);
}

TEST(MdlMapString2ObjCow, InsertStoresAClone) {
  mdl_MapString2ObjCow<Record> repository;
  Material steel(7);
  repository.Insert("STEEL", steel);
  steel.SetValue(8);

  const Record& stored = repository.ConstGet("STEEL");
  EXPECT_NE(&stored, &steel);
  EXPECT_EQ(stored.Value(), 7);
  EXPECT_EQ(stored.Kind(), "material");
  EXPECT_NE(dynamic_cast<const Material*>(&stored), nullptr);

  repository.Insert("STEEL", Record(9));
  EXPECT_EQ(repository.Size(), 1);
  EXPECT_EQ(repository.ConstGet("STEEL").Value(), 9);
  EXPECT_EQ(repository.ConstGet("STEEL").Kind(), "record");
}

TEST(MdlMapString2ObjCow, UnknownNameRaises) {
  mdl_MapString2ObjCow<Record> repository;
  EXPECT_THROW(repository.ConstGet("STEEL"), nex_PrimException);
  repository.Insert("STEEL", Record(1));
  EXPECT_TRUE(repository.IsMember("STEEL"));
  EXPECT_FALSE(repository.IsMember("steel"));
  EXPECT_THROW(repository.ConstGet("steel"), nex_PrimException);
  EXPECT_THROW(repository.ConstGet(""), nex_PrimException);
  EXPECT_EQ(repository.Size(), 1);
}

TEST(MdlMapString2ObjCow, CopyChangesIndependentlyOfItsSource) {
  mdl_MapString2ObjCow<Record> source;
  source.Insert("A", Record(1));
  mdl_MapString2ObjCow<Record> copy = source;
  copy.Insert("B", Record(2));
  copy.Insert("A", Material(3));
  EXPECT_EQ(Strings(source.Keys()), (std::vector<std::string>{"A"}));
  EXPECT_EQ(source.ConstGet("A").Value(), 1);
  EXPECT_EQ(source.ConstGet("A").Kind(), "record");

  const mdl_MapString2ObjCow<Record> kept = copy;
  copy.Insert("C", Record(4));
  EXPECT_EQ(Strings(kept.Keys()), (std::vector<std::string>{"A", "B"}));
  EXPECT_EQ(kept.ConstGet("A").Kind(), "material");
}

TEST(CowIntTable, NegativeZeroAndPositiveKeysAreDistinct) {
  cow_IntTable<cow_String> table;
  const std::pair<int, const char*> entries[] = {
      {5, "five"}, {-5, "minus five"}, {0, "zero"},     {-1, "minus one"},
      {1, "one"},  {INT_MIN, "min"},   {INT_MAX, "max"}};
  for (const auto& [key, text] : entries)
    EXPECT_TRUE(table.Insert(key, text)) << key;
  EXPECT_EQ(table.Size(), 7);
  for (const auto& [key, text] : entries)
    EXPECT_EQ(table.ConstGet(key).View(), text) << key;

  EXPECT_FALSE(table.Insert(-5, "again"));
  EXPECT_EQ(table.Size(), 7);
  EXPECT_EQ(table.ConstGet(-5).View(), "again");
  EXPECT_EQ(table.ConstGet(5).View(), "five");

  EXPECT_FALSE(table.IsMember(2));
  EXPECT_FALSE(table.IsMember(-2));
  EXPECT_THROW(table.ConstGet(2), nex_PrimException);
  EXPECT_THROW(table.ConstGet(-2), nex_PrimException);
  EXPECT_THROW(cow_IntTable<int>().ConstGet(0), nex_PrimException);
}

TEST(CowIntTable, CopyChangesIndependentlyOfItsSource) {
  cow_IntTable<int> source;
  source.Insert(1, 10);
  cow_IntTable<int> copy = source;
  copy.Insert(1, 11);
  copy.Insert(-1, 12);
  EXPECT_EQ(source.ConstGet(1), 10);
  EXPECT_FALSE(source.IsMember(-1));

  const cow_IntTable<int> kept = source;
  source.Insert(2, 20);
  source.Insert(1, 100);
  EXPECT_EQ(kept.Size(), 1);
  EXPECT_EQ(kept.ConstGet(1), 10);
}

} // namespace
