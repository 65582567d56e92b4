#pragma once

#include <optional>
#include <string>
#include <vector>

namespace keydeck {

/// What the user asked for on the command line.
struct Options {
  enum class Command { Write, Check, Schema, Help, Version };
  Command command = Command::Help;
  std::string modelFile;
  std::string job; ///< default: the model file's stem
  std::string modelName = "Default Model";
  std::string outputDir = ".";
  bool verbose = false;
  bool quiet = false;
};

/// Reads the arguments (without the program name). Returns the options, or
/// nothing after printing a usage error to stderr.
std::optional<Options> ParseOptions(const std::vector<std::string>& args);

/// The text of `keydeck --help`.
const char* UsageText();

} // namespace keydeck
