#pragma once

// Runs the keydeck command from a test program that knows where it is
// (KEYDECK_BINARY), for the tests of the command line.
#include "tests/support/deck_text.h"

#include <cstdio>
#include <filesystem>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace keydeck::test {

struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

/// Runs the keydeck binary with `args`, capturing its output in files of
/// `folder`.
inline Outcome RunKeydeck(const std::vector<std::string>& args,
                          const std::filesystem::path& folder) {
  const std::filesystem::path out = folder / "stdout.txt";
  const std::filesystem::path err = folder / "stderr.txt";
  const pid_t pid = fork();
  if (pid == 0) {
    freopen(out.c_str(), "w", stdout);
    freopen(err.c_str(), "w", stderr);
    std::vector<char*> argv{const_cast<char*>(KEYDECK_BINARY)};
    for (const std::string& arg : args)
      argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);
    execv(KEYDECK_BINARY, argv.data());
    _exit(127);
  }
  int wstatus = 0;
  waitpid(pid, &wstatus, 0);
  return {WIFEXITED(wstatus) ? WEXITSTATUS(wstatus) : -1, ReadFile(out.string()),
          ReadFile(err.string())};
}

} // namespace keydeck::test
