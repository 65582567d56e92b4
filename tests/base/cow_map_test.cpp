#include "base/cow_Map.h"
#include "base/cow_String.h"
#include "base/nex_Exception.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

// The order the map's range-for visits, as plain strings.
std::vector<std::string> Order(const cow_Map<cow_String, int>& map) {
  std::vector<std::string> keys;
  for (const auto& [key, value] : map)
    keys.emplace_back(key.View());
  return keys;
}

std::vector<int> Order(const cow_Map<int, int>& map) {
  std::vector<int> keys;
  for (const auto& [key, value] : map)
    keys.push_back(key);
  return keys;
}

cow_Map<cow_String, int> Build(const std::vector<std::string>& keys) {
  cow_Map<cow_String, int> map;
  int value = 0;
  for (const std::string& key : keys)
    map.Insert(cow_String(std::string_view(key)), value++);
  return map;
}

// Each inserted key is stored with its insertion index as value, so a lookup
// that lands on the wrong node shows.
void ExpectLookups(const cow_Map<cow_String, int>& map, const std::vector<std::string>& keys) {
  for (int i = 0; i < static_cast<int>(keys.size()); ++i) {
    SCOPED_TRACE(keys[static_cast<std::size_t>(i)]);
    const cow_String key(std::string_view(keys[static_cast<std::size_t>(i)]));
    ASSERT_TRUE(map.IsMember(key));
    EXPECT_EQ(map.ConstGet(key), i);
  }
}

// Lowest bits of the letters used below: a c e g i k m o q s u w y are odd
// (bit 1), b d f h j l n p r t v x z are even (bit 0). A key of length n is
// read at depth 0, 1, 2, ... as s[0], s[n-1], s[1], s[n-2], ...; from depth
// n on the bit is 0.
struct OrderCase {
  const char* name;
  std::vector<std::string> inserted;
  std::vector<std::string> visited;
};

TEST(CowMap, IterationOrderOfHandWorkedKeySets) {
  const OrderCase cases[] = {
      // Keys differing only in the lowest bit of their one character.
      //   "a" root.
      //   "b": d0 'b'=0 -> first child of "a".
      //   "c": d0 'c'=1 -> second child of "a".
      //   "d": d0 'd'=0 -> "b"; d1 >= length 1 -> 0 -> first child of "b".
      // Pre-order: a, b, d, c (neither insertion nor sorted order).
      {"lowest bit of one character", {"a", "b", "c", "d"}, {"a", "b", "d", "c"}},

      // Keys whose characters differ but share the lowest bit go the same way
      // until a deeper character differs.
      //   "zz" root.
      //   "ab": d0 'a'=1 -> second child of "zz".
      //   "cb": d0 'c'=1 -> "ab"; d1 s[1] 'b'=0 -> first child of "ab".
      //   "ca": d0 'c'=1 -> "ab"; d1 'a'=1 -> second child of "ab".
      //   "eb": d0 'e'=1 -> "ab"; d1 'b'=0 -> "cb"; d2 >= 2 -> 0 -> first of "cb".
      // Pre-order: zz, ab, cb, eb, ca.
      {"equal lowest bits descend together",
       {"zz", "ab", "cb", "ca", "eb"},
       {"zz", "ab", "cb", "eb", "ca"}},

      // Depth reaching the key's length takes bit 0, even where reading the
      // character again would give 1.
      //   "c" root.
      //   "e":  d0 'e'=1 -> second child of "c".
      //   "ga": d0 'g'=1 -> "e"; d1 s[1] 'a'=1 -> second child of "e".
      //   "a":  d0 'a'=1 -> "e"; d1 == length 1 -> 0 -> first child of "e".
      // Pre-order: c, e, a, ga.
      {"depth at the key's length", {"c", "e", "ga", "a"}, {"c", "e", "a", "ga"}},

      // Unequal lengths, with the odd depths read from the end of each key.
      //   "x" root.
      //   "ab":  d0 'a'=1 -> second child of "x".
      //   "abc": d0 'a'=1 -> "ab"; d1 s[2] 'c'=1 -> second child of "ab".
      //   "abd": d0 -> "ab"; d1 s[2] 'd'=0 -> first child of "ab".
      //   "ad":  d0 -> "ab"; d1 s[1] 'd'=0 -> "abd"; d2 >= 2 -> 0 -> first of "abd".
      //   "adcb": d0 -> "ab"; d1 s[3] 'b'=0 -> "abd"; d2 s[1] 'd'=0 -> "ad";
      //          d3 s[2] 'c'=1 -> second child of "ad".
      //   "b":   d0 'b'=0 -> first child of "x".
      // Pre-order: x, b, ab, abd, ad, adcb, abc.
      {"keys of unequal length",
       {"x", "ab", "abc", "abd", "ad", "adcb", "b"},
       {"x", "b", "ab", "abd", "ad", "adcb", "abc"}},
  };
  for (const OrderCase& c : cases) {
    SCOPED_TRACE(c.name);
    const cow_Map<cow_String, int> map = Build(c.inserted);
    EXPECT_EQ(map.Size(), static_cast<int>(c.inserted.size()));
    EXPECT_EQ(Order(map), c.visited);
    ExpectLookups(map, c.inserted);
  }
}

TEST(CowMap, PreOrderOfADeepTree) {
  // Three-letter keys read s[0], s[2], s[1] at depths 0, 1, 2.
  //   owl  root
  //   cat  d0 c=1                 -> owl.second
  //   dog  d0 d=0                 -> owl.first
  //   ace  d0 a=1, d1 e=1         -> cat.second
  //   elf  d0 e=1, d1 f=0         -> cat.first
  //   dye  d0 d=0, d1 e=1         -> dog.second
  //   bed  d0 b=0, d1 d=0         -> dog.first
  //   ape  d0 a=1, d1 e=1, d2 p=0 -> ace.first
  //   hid  d0 h=0, d1 d=0, d2 i=1 -> bed.second
  //   tnt  d0 t=0, d1 t=0, d2 n=0 -> bed.first
  //   dig  d0 d=0, d1 g=1, d2 i=1 -> dye.second
  //
  //   owl
  //   +-0 dog
  //   |   +-0 bed
  //   |   |   +-0 tnt
  //   |   |   +-1 hid
  //   |   +-1 dye
  //   |       +-1 dig
  //   +-1 cat
  //       +-0 elf
  //       +-1 ace
  //           +-0 ape
  //
  // Pre-order (node, first subtree, second subtree):
  //   owl dog bed tnt hid dye dig cat elf ace ape
  const std::vector<std::string> inserted = {"owl", "cat", "dog", "ace", "elf", "dye",
                                             "bed", "ape", "hid", "tnt", "dig"};
  const cow_Map<cow_String, int> map = Build(inserted);
  EXPECT_EQ(Order(map), (std::vector<std::string>{"owl", "dog", "bed", "tnt", "hid", "dye", "dig",
                                                  "cat", "elf", "ace", "ape"}));
  ExpectLookups(map, inserted);
  // Absent keys that follow a stored key's path down to an empty slot.
  EXPECT_FALSE(map.IsMember("dim")); // d0 d=0, d1 m=1, d2 i=1: dog, dye, dig, then empty
  EXPECT_FALSE(map.IsMember("bad")); // d0 b=0, d1 d=0, d2 a=1: dog, bed, hid, then empty
  EXPECT_FALSE(map.IsMember(""));
}

TEST(CowMap, IntKeysReadTheirBytesLeastSignificantFirst) {
  // An int key is four bytes b0 b1 b2 b3 (least significant first), read at
  // depths 0, 1, 2, 3 as b0, b3, b1, b2; the bit is each byte's lowest, so
  // value bits 0, 24, 8, 16 in turn, then 0.
  //   0         root
  //   1         bit0=1                              -> 0.second
  //   2         bit0=0                              -> 0.first
  //   256       bit0=0, bit24=0                     -> 2.first
  //   1<<24     bit0=0, bit24=1                     -> 2.second
  //   3         bit0=1, bit24=0                     -> 1.first
  //   4         bit0=0, bit24=0, bit8=0             -> 256.first
  //   260       bit0=0, bit24=0, bit8=1             -> 256.second
  //   65536     bit0=0, bit24=0, bit8=0, bit16=1    -> 4.second
  //   -1        all bits set: bit0=1, bit24=1       -> 1.second
  //   -2        bit0=0, bit24=1, bit8=1             -> (1<<24).second
  //
  //   0
  //   +-0 2
  //   |   +-0 256
  //   |   |   +-0 4
  //   |   |   |   +-1 65536
  //   |   |   +-1 260
  //   |   +-1 1<<24
  //   |       +-1 -2
  //   +-1 1
  //       +-0 3
  //       +-1 -1
  const std::vector<int> inserted = {0, 1, 2, 256, 1 << 24, 3, 4, 260, 65536, -1, -2};
  cow_Map<int, int> map;
  for (int key : inserted)
    map.Insert(key, key * 10);
  EXPECT_EQ(Order(map), (std::vector<int>{0, 2, 256, 4, 65536, 260, 1 << 24, -2, 1, 3, -1}));
  for (int key : inserted)
    EXPECT_EQ(map.ConstGet(key), key * 10) << key;
  EXPECT_FALSE(map.IsMember(5));
  EXPECT_FALSE(map.IsMember(-3));
}

TEST(CowMap, InsertingAnExistingKeyReplacesValueAndKeepsPlace) {
  cow_Map<cow_String, int> map = Build({"a", "b", "c", "d"});
  EXPECT_FALSE(map.Insert("b", 42));
  EXPECT_FALSE(map.Insert("a", 7));
  EXPECT_EQ(map.Size(), 4);
  EXPECT_EQ(map.ConstGet("b"), 42);
  EXPECT_EQ(map.ConstGet("a"), 7);
  EXPECT_EQ(Order(map), (std::vector<std::string>{"a", "b", "d", "c"}));
  EXPECT_TRUE(map.Insert("e", 5));
  EXPECT_EQ(map.Size(), 5);

  cow_Map<int, int> ints;
  EXPECT_TRUE(ints.Insert(-7, 1));
  EXPECT_FALSE(ints.Insert(-7, 2));
  EXPECT_EQ(ints.Size(), 1);
  EXPECT_EQ(ints.ConstGet(-7), 2);
}

TEST(CowMap, MissingKeyRaises) {
  cow_Map<cow_String, int> empty;
  EXPECT_THROW(empty.ConstGet("a"), nex_PrimException);
  EXPECT_THROW(empty.Get("a"), nex_PrimException);

  cow_Map<cow_String, int> map = Build({"owl", "cat", "dog"});
  EXPECT_THROW(map.ConstGet("cow"), nex_PrimException);
  EXPECT_THROW(map.Get("dig"), nex_PrimException);
  EXPECT_EQ(map.Size(), 3);

  cow_Map<int, int> ints;
  ints.Insert(1, 1);
  EXPECT_THROW(ints.ConstGet(3), nex_PrimException);
  EXPECT_THROW(ints.Get(0), nex_PrimException);
}

TEST(CowMap, GetWritesInPlace) {
  cow_Map<cow_String, int> map = Build({"owl", "cat", "dog"});
  map.Get("dog") = 99;
  EXPECT_EQ(map.ConstGet("dog"), 99);
  EXPECT_EQ(map.ConstGet("cat"), 1);
  EXPECT_EQ(map.Size(), 3);
}

TEST(CowMap, CopyChangesIndependentlyOfItsSource) {
  const cow_Map<cow_String, int> original = Build({"a", "b", "c"});

  cow_Map<cow_String, int> copy = original;
  copy.Insert("d", 3);
  copy.Get("a") = 100;
  EXPECT_EQ(Order(original), (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_EQ(original.ConstGet("a"), 0);
  EXPECT_FALSE(original.IsMember("d"));

  cow_Map<cow_String, int> source = Build({"a", "b", "c"});
  const cow_Map<cow_String, int> kept = source;
  source.Insert("d", 3);
  source.Get("b") = 50;
  source.Insert("c", 60);
  EXPECT_EQ(Order(kept), (std::vector<std::string>{"a", "b", "c"}));
  EXPECT_EQ(kept.ConstGet("b"), 1);
  EXPECT_EQ(kept.ConstGet("c"), 2);
  EXPECT_EQ(Order(source), (std::vector<std::string>{"a", "b", "d", "c"}));
}

TEST(CowConstMapIterator, VisitsInRangeForOrderWithKeysAndValues) {
  // The deep tree of PreOrderOfADeepTree.
  const cow_Map<cow_String, int> map =
      Build({"owl", "cat", "dog", "ace", "elf", "dye", "bed", "ape", "hid", "tnt", "dig"});
  std::vector<std::string> keys;
  std::vector<int> values;
  cow_ConstMapIterator<cow_String, int> it(map);
  for (it.First(); !it.IsDone(); it.Next()) {
    keys.emplace_back(it.CurrentKey().View());
    values.push_back(it.CurrentValue());
  }
  EXPECT_EQ(keys, Order(map));
  EXPECT_EQ(values, (std::vector<int>{0, 2, 6, 9, 8, 5, 10, 1, 4, 3, 7}));

  std::vector<std::string> listed;
  for (const cow_String& key : cow_Keys(map))
    listed.emplace_back(key.View());
  EXPECT_EQ(listed, Order(map));
}

TEST(CowConstMapIterator, HoldsItsOwnCopyOfTheMap) {
  cow_Map<cow_String, int> map = Build({"a", "b"});
  cow_ConstMapIterator<cow_String, int> it(map);
  map.Insert("c", 2);
  map.Get("a") = 10;
  std::vector<std::string> keys;
  std::vector<int> values;
  for (it.First(); !it.IsDone(); it.Next()) {
    keys.emplace_back(it.CurrentKey().View());
    values.push_back(it.CurrentValue());
  }
  EXPECT_EQ(keys, (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(values, (std::vector<int>{0, 1}));
}

TEST(CowConstMapIterator, EmptyMapIsDoneAtOnce) {
  const cow_Map<int, int> map;
  cow_ConstMapIterator<int, int> it(map);
  it.First();
  EXPECT_TRUE(it.IsDone());
  EXPECT_EQ(cow_Keys(map).Size(), 0);
}

} // namespace
