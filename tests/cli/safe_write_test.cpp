// What `keydeck write` does to the output folder when others share it, when
// it is interrupted, and when it finds what an earlier run left.
#include "bench/benchmark_model.h"
#include "model/json/loader.h"
#include "oif/oif_Writer.h"
#include "tests/support/deck_text.h"
#include "tests/support/run_keydeck.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>

// The library entry removes an older deck and then makes the file. To win the
// race between the two every time, this test program's `remove` (which the
// writer calls) can plant a symlink right after it removed the file.
namespace {
const char* plantedTarget = nullptr;
} // namespace

extern "C" int remove(const char* path) noexcept {
  int result = unlink(path);
  if (result != 0 && errno == EISDIR)
    result = rmdir(path);
  if (plantedTarget != nullptr && symlink(plantedTarget, path) != 0)
    std::abort();
  plantedTarget = nullptr;
  return result;
}

namespace {

namespace fs = std::filesystem;
using keydeck::test::FinishKeydeck;
using keydeck::test::Outcome;
using keydeck::test::ReadFile;
using keydeck::test::RunKeydeck;
using keydeck::test::StartKeydeck;

const char* const SmallModel = R"({"format": "keydeck-model", "version": 1,
  "models": {"Default Model": {"parts": {"P": {}},
    "assembly": {"instances": {"P-1": {"part": "P"}}}}}})";

class SafeWrite : public keydeck::test::CommandTest {
protected:
  void SetUp() override {
    CommandTest::SetUp();
    small_ = folder_ / "small.json";
    std::ofstream(small_) << SmallModel;
  }
  /// A model whose write takes long enough to be caught in the middle.
  fs::path LargeModel() const {
    const fs::path path = folder_ / "large.json";
    keydeck_bench::ModelShape shape;
    shape.size = 40;
    EXPECT_GT(keydeck_bench::WriteModelFile(path.string(), shape), 0);
    return path;
  }
  /// Starts a write of `model` as job "job" and stops the process as soon as
  /// its temporary deck exists; returns the process and the deck's name.
  std::pair<pid_t, std::string> StopWhileWriting(const fs::path& model) {
    const pid_t pid =
        StartKeydeck({"write", model.string(), "-o", Out().string(), "-j", "job"}, folder_);
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (std::chrono::steady_clock::now() < deadline) {
      for (const auto& entry : fs::directory_iterator(Out())) {
        const std::string name = entry.path().filename().string();
        if (!name.starts_with(".keydeck-"))
          continue;
        kill(pid, SIGSTOP);
        return {pid, name};
      }
      std::this_thread::sleep_for(std::chrono::microseconds(200));
    }
    ADD_FAILURE() << "no temporary deck appeared";
    return {pid, ""};
  }

  fs::path small_;
};

TEST_F(SafeWrite, NewDecksTakeTheUmaskAndReplaceWhatIsThere) {
  const fs::path deck = Out() / "job.inp";
  const fs::path target = folder_ / "target.txt";
  std::ofstream(target) << "not a deck\n";
  fs::create_symlink(target, deck);
  const mode_t previous = umask(027);
  const Outcome run =
      RunKeydeck({"write", small_.string(), "-o", Out().string(), "-j", "job"}, folder_);
  umask(previous);
  ASSERT_EQ(run.status, 0) << run.err;
  // The symlink itself is replaced; what it pointed at stays as it was.
  EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(deck)));
  EXPECT_EQ(ReadFile(target.string()), "not a deck\n");
  struct stat status {};
  ASSERT_EQ(stat(deck.c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0640u);

  // A read-only deck is replaced too: what counts is the folder's permission.
  fs::permissions(deck, fs::perms::owner_read);
  const Outcome again =
      RunKeydeck({"write", small_.string(), "-o", Out().string(), "-j", "job"}, folder_);
  EXPECT_EQ(again.status, 0) << again.err;
  EXPECT_EQ(Written(), std::vector<std::string>{"job.inp"});
}

TEST_F(SafeWrite, TheTemporaryDeckIsNeverReopenedByName) {
  // Replace the temporary deck by a symlink to another file while the write
  // is stopped in the middle: a writer that opened the name again would
  // write into that file, and one that renamed whatever the name holds would
  // make the symlink the deck.
  const fs::path model = LargeModel();
  const fs::path target = folder_ / "target.txt";
  std::ofstream(target) << "someone else's file\n";
  std::ofstream(Out() / "job.inp") << "older deck\n";
  const auto [pid, name] = StopWhileWriting(model);
  ASSERT_FALSE(name.empty());
  ASSERT_TRUE(fs::exists(Out() / name)) << "the write ended before it could be stopped";
  const fs::path planted = Out() / "planted";
  fs::create_symlink(target, planted);
  fs::rename(planted, Out() / name);
  kill(pid, SIGCONT);
  const Outcome run = FinishKeydeck(pid, folder_);

  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.err.find("is no longer the deck this run wrote"), std::string::npos) << run.err;
  EXPECT_EQ(ReadFile(target.string()), "someone else's file\n");
  EXPECT_EQ(ReadFile((Out() / "job.inp").string()), "older deck\n");
  EXPECT_TRUE(fs::is_symlink(Out() / name)); // not ours: left alone
}

TEST_F(SafeWrite, TheLibraryEntryDoesNotFollowASymlink) {
  std::vector<std::string> warnings;
  const odb_Odb odb = keydeck::LoadModelText(SmallModel, warnings);
  const fs::path target = folder_ / "target.txt";
  std::ofstream(target) << "someone else's file\n";
  const fs::path here = fs::current_path();
  fs::current_path(Out());

  // A symlink at the deck's name is removed, not followed.
  fs::create_symlink(target, "job.inp");
  oif_Writer(odb).WriteInputFile("job");
  EXPECT_EQ(ReadFile(target.string()), "someone else's file\n");
  EXPECT_TRUE(fs::is_regular_file(fs::symlink_status("job.inp")));
  EXPECT_NE(ReadFile("job.inp").find("*Part, name=P"), std::string::npos);

  // One that appears between the removal and the opening makes the writer
  // give up (the entry reports no such failure) rather than write through it.
  const std::string targetName = target.string();
  plantedTarget = targetName.c_str();
  oif_Writer(odb).WriteInputFile("job");
  EXPECT_EQ(plantedTarget, nullptr); // the writer did call remove
  EXPECT_EQ(ReadFile(target.string()), "someone else's file\n");
  EXPECT_TRUE(fs::is_symlink("job.inp"));
  fs::current_path(here);
}

TEST_F(SafeWrite, InterruptsLeaveNoTemporaryDeck) {
  const fs::path model = LargeModel();
  for (const int signal : {SIGTERM, SIGINT, SIGHUP, SIGPIPE}) {
    SCOPED_TRACE(strsignal(signal));
    std::ofstream(Out() / "job.inp") << "older deck\n";
    const auto [pid, name] = StopWhileWriting(model);
    ASSERT_FALSE(name.empty());
    ASSERT_TRUE(fs::exists(Out() / name)) << "the write ended before it could be stopped";
    kill(pid, signal);
    kill(pid, SIGCONT);
    const Outcome run = FinishKeydeck(pid, folder_);
    EXPECT_EQ(run.signal, signal); // it ends as the signal would have ended it
    EXPECT_EQ(Written(), std::vector<std::string>{"job.inp"});
    EXPECT_EQ(ReadFile((Out() / "job.inp").string()), "older deck\n");
  }
}

TEST_F(SafeWrite, StaleTemporaryDecksAreRemoved) {
  const auto age = [this](const std::string& name, int hours) {
    std::ofstream(Out() / name) << "part of a deck";
    const fs::file_time_type now = fs::file_time_type::clock::now();
    fs::last_write_time(Out() / name, now - std::chrono::hours(hours));
  };
  age(".keydeck-Ab3dE9.old job.inp", 25);
  age(".keydeck-Zz0000.fresh.inp", 23); // young: another run may be writing it
  age(".keydeck-Ab3dE.short.inp", 48);  // not a name keydeck makes
  age(".keydeck-Ab3dE9.other.txt", 48); // nor this
  const Outcome run =
      RunKeydeck({"write", small_.string(), "-o", Out().string(), "-j", "job"}, folder_);
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.err, "keydeck: removed " + (Out() / ".keydeck-Ab3dE9.old job.inp").string() +
                         ", left by a write that ended early\n");
  EXPECT_EQ(Written(),
            (std::vector<std::string>{".keydeck-Ab3dE.short.inp", ".keydeck-Ab3dE9.other.txt",
                                      ".keydeck-Zz0000.fresh.inp", "job.inp"}));
}

TEST_F(SafeWrite, LongJobNames) {
  // Every job name whose deck name fits works, however long the temporary name
  // would be; one byte more is refused before anything is written.
  const std::string longest(251, 'j');
  const Outcome run =
      RunKeydeck({"write", small_.string(), "-o", Out().string(), "-j", longest}, folder_);
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(Written(), std::vector<std::string>{longest + ".inp"});
  const std::string accented = std::string(249, 'j') + "\xC3\xA9"; // cut before, not inside, é
  EXPECT_EQ(
      RunKeydeck({"write", small_.string(), "-o", Out().string(), "-j", accented}, folder_).status,
      0);
  const Outcome tooLong =
      RunKeydeck({"write", small_.string(), "-o", Out().string(), "-j", longest + "j"}, folder_);
  EXPECT_EQ(tooLong.status, 1);
  EXPECT_NE(tooLong.err.find("the job name is too long"), std::string::npos) << tooLong.err;
  EXPECT_EQ(Written(), (std::vector<std::string>{longest + ".inp", accented + ".inp"}));
}

} // namespace
