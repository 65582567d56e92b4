#pragma once

#include <optional>
#include <string>
#include <vector>

namespace keydeck {

/// What the user asked for on the command line.
struct Options {
  enum class Command { Write, Check, Schema, Help, Version };
  Command command = Command::Help;
  std::string modelFile; ///< "-": standard input
  std::string job;       ///< default: the model file's stem
  std::string modelName; ///< empty: "Default Model" for write, every model for check
  std::string outputDir = ".";
  bool toStdout = false; ///< the deck goes to standard output, not to a file
  bool verbose = false;
  bool quiet = false;

  /// Whether the model file is standard input.
  bool FromStdin() const { return modelFile == "-"; }
};

/// Reads the arguments (without the program name). Returns the options, or
/// nothing after printing a usage error to stderr.
std::optional<Options> ParseOptions(const std::vector<std::string>& args);

/// The text of `keydeck --help`.
const char* UsageText();

} // namespace keydeck
