#pragma once

// Runs the keydeck binary as a user would, for the tests of the command: from a
// test program that knows where it was built (KEYDECK_BINARY).

#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace keydeck::test {

/// How a run of the command ended.
struct Outcome {
  int status = -1; ///< exit status; -1 when a signal ended it
  int signal = 0;  ///< the signal that ended it, if one did
  std::string out;
  std::string err;
  long peakKilobytes = 0; ///< the child's peak resident memory
};

/// Starts the keydeck binary with `args`; its standard output and error go to
/// files in `folder`, its standard input comes from `input` (when given), and
/// its address space is limited to `addressLimit` bytes (when not 0).
inline pid_t StartKeydeck(const std::vector<std::string>& args, const std::filesystem::path& folder,
                          const std::filesystem::path& input = {}, rlim_t addressLimit = 0) {
  const std::filesystem::path out = folder / "stdout.txt";
  const std::filesystem::path err = folder / "stderr.txt";
  const pid_t pid = fork();
  if (pid != 0)
    return pid;
  if (std::freopen(out.c_str(), "w", stdout) == nullptr ||
      std::freopen(err.c_str(), "w", stderr) == nullptr ||
      (!input.empty() && std::freopen(input.c_str(), "r", stdin) == nullptr))
    _exit(126);
  const rlimit limit{addressLimit, addressLimit};
  if (addressLimit != 0 && setrlimit(RLIMIT_AS, &limit) != 0)
    _exit(126);
  std::vector<char*> argv{const_cast<char*>(KEYDECK_BINARY)};
  for (const std::string& arg : args)
    argv.push_back(const_cast<char*>(arg.c_str()));
  argv.push_back(nullptr);
  execv(KEYDECK_BINARY, argv.data());
  _exit(127);
}

/// Waits for a run that `StartKeydeck` began and collects what it left.
inline Outcome FinishKeydeck(pid_t pid, const std::filesystem::path& folder) {
  int wstatus = 0;
  rusage usage{};
  wait4(pid, &wstatus, 0, &usage);
  Outcome outcome;
  outcome.status = WIFEXITED(wstatus) ? WEXITSTATUS(wstatus) : -1;
  outcome.signal = WIFSIGNALED(wstatus) ? WTERMSIG(wstatus) : 0;
  outcome.out = ReadFile((folder / "stdout.txt").string());
  outcome.err = ReadFile((folder / "stderr.txt").string());
  outcome.peakKilobytes = usage.ru_maxrss;
  return outcome;
}

/// Runs the keydeck binary with `args` to its end.
inline Outcome RunKeydeck(const std::vector<std::string>& args, const std::filesystem::path& folder,
                          const std::filesystem::path& input = {}) {
  return FinishKeydeck(StartKeydeck(args, folder, input), folder);
}

/// A test of the command with a fresh folder of its own, `folder_`, holding an
/// empty output folder `Out()`; both go when the test ends.
class CommandTest : public ::testing::Test {
protected:
  void SetUp() override {
    const ::testing::TestInfo* test = ::testing::UnitTest::GetInstance()->current_test_info();
    folder_ = std::filesystem::temp_directory_path() /
              ("keydeck-" + std::string(test->test_suite_name()) + "-" + std::to_string(getpid()) +
               "-" + test->name());
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(Out());
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::filesystem::path Out() const { return folder_ / "out"; }
  /// The names in `Out()`, sorted.
  std::vector<std::string> Written() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(Out()))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }

  /// Runs "keydeck write -q -m M" on a model "M" of one 8-node brick part "P"
  /// with the node set "Tip" (nodes 5 and 6), the element set "All" and the
  /// surface "Top", placed once as "P-1", and then the model members
  /// `members` (text that begins with ", "); returns the exit status, with
  /// stderr in `err`.
  int WriteBrickModel(const std::string& members, std::string& err) const {
    const std::filesystem::path model = folder_ / "model.json";
    std::ofstream(model) << R"({"format": "keydeck-model", "version": 1, "models": {"M": {
      "parts": {"P": {
        "nodes": {"labels": [1, 2, 3, 4, 5, 6, 7, 8],
                  "coordinates": [[0, 0, 0], [1, 0, 0], [1, 1, 0], [0, 1, 0],
                                  [0, 0, 1], [1, 0, 1], [1, 1, 1], [0, 1, 1]]},
        "elements": [{"type": "C3D8R", "labels": [1], "connectivity": [[1, 2, 3, 4, 5, 6, 7, 8]]}],
        "sets": {"Tip": {"nodes": [5, 6]}, "All": {"elements": [1]}},
        "surfaces": {"Top": {"faces": [{"face": "S2", "elements": [1]}]}}}},
      "assembly": {"instances": {"P-1": {"part": "P"}}})"
                         << members << "}}}";
    const Outcome outcome =
        RunKeydeck({"write", "-q", "-m", "M", "-o", folder_.string(), model.string()}, folder_);
    err = outcome.err;
    return outcome.status;
  }

  std::filesystem::path folder_;
};

} // namespace keydeck::test
