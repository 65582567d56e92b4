#pragma once

#include "tests/support/deck_text.h"

#include <cstdio>
#include <fstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

// Inline, since only the test programs know where the command was built
// (KEYDECK_BINARY).
namespace keydeck::test {

/// What one run of the keydeck command gave.
struct Outcome {
  int status = -1; ///< the exit status; -1 when the command did not exit
  std::string out;
  std::string err;
};

/// Runs the keydeck binary with `args` and `input` on its standard input,
/// keeping its output in files of `folder`.
inline Outcome RunKeydeck(const std::vector<std::string>& args, const std::string& folder,
                          const std::string& input = {}) {
  const std::string in = folder + "/stdin.txt";
  const std::string out = folder + "/stdout.txt";
  const std::string err = folder + "/stderr.txt";
  std::ofstream(in, std::ios::binary) << input;
  const pid_t pid = fork();
  if (pid == 0) {
    if (!std::freopen(in.c_str(), "r", stdin) || !std::freopen(out.c_str(), "w", stdout) ||
        !std::freopen(err.c_str(), "w", stderr))
      _exit(127);
    std::vector<char*> argv{const_cast<char*>(KEYDECK_BINARY)};
    for (const std::string& arg : args)
      argv.push_back(const_cast<char*>(arg.c_str()));
    argv.push_back(nullptr);
    execv(KEYDECK_BINARY, argv.data());
    _exit(127);
  }
  int wstatus = 0;
  waitpid(pid, &wstatus, 0);
  return {WIFEXITED(wstatus) ? WEXITSTATUS(wstatus) : -1, ReadFile(out), ReadFile(err)};
}

} // namespace keydeck::test
