// What a model file can make `keydeck write` spend: memory grows with the
// file, not with what its ranges say, and running out of memory is a message.
#include "bench/benchmark_model.h"
#include "tests/support/run_keydeck.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <unistd.h>
#include <vector>

#if defined(__SANITIZE_ADDRESS__)
#define KEYDECK_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KEYDECK_ASAN 1
#endif
#endif

namespace {

namespace fs = std::filesystem;
using keydeck::test::Outcome;
using keydeck::test::RunKeydeck;

// The memory a write may take beyond three times its file: the program, its
// libraries and the fixed tables of the writer.
constexpr long AllowanceKilobytes = 32 * 1024;

class Resources : public keydeck::test::CommandTest {
protected:
  /// A block of `size`^3 nodes with `sets` as the part's sets; returns the
  /// file's size in bytes.
  long long WriteModel(const fs::path& path, int size, const std::string& sets) const {
    keydeck_bench::ModelShape shape;
    shape.size = size;
    shape.withSets = false;
    const keydeck_bench::TextBuffer buffer = keydeck_bench::ModelText(shape);
    std::string text(buffer.Data(), buffer.Size());
    text.insert(text.find("\n}\n},\n\"assembly\""), ",\n\"sets\": {" + sets + "}");
    std::ofstream(path, std::ios::binary) << text;
    return static_cast<long long>(text.size());
  }
};

TEST_F(Resources, RangesCostNoMemoryPerLabel) {
  // 27,000 nodes and bricks; 300 node sets and 300 element sets over all of
  // them (and every third of them) would take about 100 MB spelt out.
  std::string sets;
  for (int i = 0; i < 300; ++i)
    sets += (i == 0 ? "" : ",\n") + ("\"N" + std::to_string(i)) +
            "\": {\"nodes\": {\"generate\": [1, 27000, " + std::to_string(1 + i % 3) + "]}}" +
            (",\n\"E" + std::to_string(i)) + "\": {\"elements\": {\"generate\": [1, 24389, 1]}}";
  const fs::path model = folder_ / "ranges.json";
  [[maybe_unused]] const long long bytes = WriteModel(model, 30, sets);
  const Outcome run =
      RunKeydeck({"write", model.string(), "-o", Out().string(), "-j", "job", "-q"}, folder_);
  ASSERT_EQ(run.status, 0) << run.err;
  const std::string deck = keydeck::test::ReadFile((Out() / "job.inp").string());
  EXPECT_NE(deck.find("*Nset, nset=N299, generate\n1, 26998, 3\n"), std::string::npos);
  EXPECT_NE(deck.find("*Elset, elset=E0, generate\n1, 24389, 1\n"), std::string::npos);
#ifndef KEYDECK_ASAN // the sanitizers' own memory would swamp the figure
  EXPECT_LT(run.peakKilobytes, 3 * bytes / 1024 + AllowanceKilobytes)
      << "file " << bytes / 1024 << " kB";
#endif
}

TEST_F(Resources, RangesOverLabelsThatDoNotExist) {
  const fs::path model = folder_ / "beyond.json";
  [[maybe_unused]] const long long bytes =
      WriteModel(model, 10,
                 R"("Far": {"nodes": {"generate": [1, 2000000000, 1]}},)"
                 R"("Huge": {"elements": {"generate": [700, 2147483000, 1000]}})");
  const Outcome run = RunKeydeck({"write", model.string(), "-o", Out().string()}, folder_);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.err,
            "keydeck: models/Default Model/parts/Block/sets/Far/nodes/generate: no node 1001 in "
            "the part\n"
            "models/Default Model/parts/Block/sets/Huge/elements/generate: no element 1700 in the "
            "part\n");
  EXPECT_TRUE(Written().empty());
#ifndef KEYDECK_ASAN
  EXPECT_LT(run.peakKilobytes, 3 * bytes / 1024 + AllowanceKilobytes);
#endif
}

#ifndef KEYDECK_ASAN // the sanitizers need more address space than any limit here
TEST_F(Resources, RunningOutOfMemoryIsAMessage) {
  // Find the least address space a write needs, then run it with a little
  // less, step by step: every run ends with exit status 1 and one message that
  // says what ran out, and leaves nothing in the folder.
  const fs::path model = folder_ / "block.json";
  WriteModel(model, 40, "");
  const std::vector<std::string> args = {"write", model.string(), "-o", Out().string(), "-q"};
  const auto runWith = [&](rlim_t limit) {
    return keydeck::test::FinishKeydeck(keydeck::test::StartKeydeck(args, folder_, {}, limit),
                                        folder_);
  };
  rlim_t enough = rlim_t{4} << 30;
  rlim_t tooLittle = rlim_t{8} << 20;
  ASSERT_EQ(runWith(enough).status, 0);
  while (enough - tooLittle > (rlim_t{64} << 10)) {
    const rlim_t middle = tooLittle + (enough - tooLittle) / 2;
    (runWith(middle).status == 0 ? enough : tooLittle) = middle;
  }
  fs::remove_all(Out());
  fs::create_directories(Out());
  int named = 0;
  for (rlim_t less = 64 << 10; less <= (rlim_t{6} << 20); less += 256 << 10) {
    const Outcome run = runWith(enough - less);
    SCOPED_TRACE(run.err);
    ASSERT_EQ(run.signal, 0);
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err.find("bad_alloc"), std::string::npos);
    EXPECT_NE(run.err.find("out of memory"), std::string::npos);
    named += run.err.find("keydeck: out of memory while ") == 0 &&
             run.err.find(model.string()) != std::string::npos;
    EXPECT_TRUE(Written().empty());
  }
  EXPECT_GT(named, 0);
}
#endif

} // namespace

namespace {

TEST_F(Resources, SetsKeepTheirDeckForm) {
  // Labels in any order, repeated or stepping, come out sorted and once
  // each, in generate form when at least three step evenly.
  const fs::path model = folder_ / "forms.json";
  WriteModel(model, 4,
             R"("A": {"nodes": [9, 5, 1, 13, 5]}, "B": {"nodes": {"generate": [2, 3, 1]}},)"
             R"("C": {"nodes": [64, 63, 1]}, "D": {"elements": [27, 26, 25, 24]},)"
             R"("E": {"elements": [7, 7, 7]}, "F": {"nodes": {"generate": [10, 64, 27]}})");
  const Outcome run = RunKeydeck({"write", model.string(), "--stdout", "-q"}, folder_);
  ASSERT_EQ(run.status, 0) << run.err;
  const std::size_t from = run.out.find("*Nset, nset=A");
  ASSERT_NE(from, std::string::npos) << run.out;
  EXPECT_EQ(run.out.substr(from, run.out.find("*End Instance") - from),
            "*Nset, nset=A, generate\n1, 13, 4\n"
            "*Nset, nset=B\n2,3\n"
            "*Nset, nset=C\n1,63,64\n"
            "*Elset, elset=D, generate\n24, 27, 1\n"
            "*Elset, elset=E\n7, \n"
            "*Nset, nset=F, generate\n10, 64, 27\n");
}

} // namespace

namespace {

TEST_F(Resources, ARangeWritesTheDeckOfItsLabels) {
  // Two element classes, so that ranges cross from one to the other: a deck
  // from ranges equals the deck from the same labels spelt out.
  const auto model = [](const std::string& nodes, const std::string& elements,
                        const std::string& instanceNodes) {
    return R"({"format": "keydeck-model", "version": 1, "models": {"Default Model": {
      "parts": {"P": {
        "nodes": {"labels": [1, 2, 3, 4, 5, 6, 7, 8, 9, 10],
                  "coordinates": [[0,0,0],[1,0,0],[2,0,0],[3,0,0],[4,0,0],
                                  [5,0,0],[6,0,0],[7,0,0],[8,0,0],[9,0,0]]},
        "elements": [{"type": "T3D2", "labels": [1, 2, 3, 4, 5],
                      "connectivity": [[1,2],[2,3],[3,4],[4,5],[5,6]]},
                     {"type": "B31", "labels": [6, 7, 8, 9],
                      "connectivity": [[6,7],[7,8],[8,9],[9,10]]}],
        "sets": {"N": {"nodes": )" +
           nodes + R"(}, "E": {"elements": )" + elements + R"(}}}},
      "assembly": {"instances": {"P-1": {"part": "P"}},
        "sets": {"A": {"nodes": [{"instance": "P-1", "labels": )" +
           instanceNodes + R"(}]},
                 "B": {"elements": [{"instance": "P-1", "labels": )" +
           elements + R"(}]}}}}}})";
  };
  const std::vector<std::vector<std::string>> cases = {
      {R"({"generate": [2, 10, 4]})", "[2, 6, 10]", R"({"generate": [1, 10, 1]})",
       "[1, 2, 3, 4, 5, 6, 7, 8, 9, 10]", R"({"generate": [2, 9, 3]})", "[2, 5, 8]"},
      {R"({"generate": [3, 8, 1]})", "[3, 4, 5, 6, 7, 8]", R"({"generate": [6, 9, 1]})",
       "[6, 7, 8, 9]", R"({"generate": [1, 9, 4]})", "[1, 5, 9]"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c[0] + " " + c[2] + " " + c[4]);
    const fs::path ranges = folder_ / "ranges.json";
    const fs::path lists = folder_ / "lists.json";
    std::ofstream(ranges) << model(c[0], c[4], c[2]);
    std::ofstream(lists) << model(c[1], c[5], c[3]);
    const Outcome fromRanges = RunKeydeck({"write", ranges.string(), "--stdout", "-q"}, folder_);
    const Outcome fromLists = RunKeydeck({"write", lists.string(), "--stdout", "-q"}, folder_);
    ASSERT_EQ(fromRanges.status, 0) << fromRanges.err;
    ASSERT_EQ(fromLists.status, 0) << fromLists.err;
    EXPECT_EQ(fromRanges.out, fromLists.out);
    EXPECT_NE(fromRanges.out.find("*Elset, elset=E"), std::string::npos) << fromRanges.out;
  }
}

} // namespace
