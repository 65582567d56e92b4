#include "cli/commands.h"
#include "cli/options.h"

#include <cstdio>
#include <optional>
#include <string>
#include <vector>

int main(int argc, char** argv) {
  const std::vector<std::string> args(argv + 1, argv + argc);
  const std::optional<keydeck::Options> options = keydeck::ParseOptions(args);
  if (!options)
    return 2;
  using Command = keydeck::Options::Command;
  switch (options->command) {
  case Command::Help:
    std::fputs(keydeck::UsageText(), stdout);
    return 0;
  case Command::Version:
    std::printf("keydeck %s\n", KEYDECK_VERSION);
    return 0;
  case Command::Write:
    return keydeck::RunWrite(*options);
  case Command::Check:
    return keydeck::RunCheck(*options);
  case Command::Schema:
    return keydeck::RunSchema();
  }
  return 2;
}
