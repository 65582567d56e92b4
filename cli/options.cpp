#include "cli/options.h"

#include <cstdio>
#include <filesystem>

namespace keydeck {

namespace {

bool UsageError(const std::string& message) {
  std::fprintf(stderr, "keydeck: %s\nTry 'keydeck --help'.\n", message.c_str());
  return false;
}

std::optional<Options::Command> CommandNamed(const std::string& word) {
  if (word == "write")
    return Options::Command::Write;
  if (word == "check")
    return Options::Command::Check;
  if (word == "schema")
    return Options::Command::Schema;
  return std::nullopt;
}

/// Reads one option at `args[i]`, with its value if it takes one.
bool ReadOption(const std::vector<std::string>& args, std::size_t& i, Options& options) {
  const std::string& flag = args[i];
  if (flag == "-v" || flag == "--verbose")
    return options.verbose = true;
  if (flag == "-q" || flag == "--quiet")
    return options.quiet = true;
  std::string* const target = flag == "-j" || flag == "--job"      ? &options.job
                              : flag == "-m" || flag == "--model"  ? &options.modelName
                              : flag == "-o" || flag == "--output" ? &options.outputDir
                                                                   : nullptr;
  if (target == nullptr)
    return UsageError("unknown option '" + flag + "'");
  if (i + 1 >= args.size())
    return UsageError("option '" + flag + "' needs a value");
  *target = args[++i];
  return true;
}

} // namespace

std::optional<Options> ParseOptions(const std::vector<std::string>& args) {
  Options options;
  std::vector<std::string> operands;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "-h" || arg == "--help") {
      options.command = Options::Command::Help;
      return options;
    }
    if (arg == "--version") {
      options.command = Options::Command::Version;
      return options;
    }
    if (arg.size() > 1 && arg[0] == '-') {
      if (!ReadOption(args, i, options))
        return std::nullopt;
      continue;
    }
    operands.push_back(arg);
  }
  if (operands.empty()) {
    UsageError("no command given");
    return std::nullopt;
  }
  const std::optional<Options::Command> command = CommandNamed(operands[0]);
  if (!command) {
    UsageError("unknown command '" + operands[0] + "'");
    return std::nullopt;
  }
  options.command = *command;
  const std::size_t wanted = options.command == Options::Command::Schema ? 1 : 2;
  if (operands.size() != wanted) {
    UsageError(wanted == 1 ? "'schema' takes no file"
                           : "'" + operands[0] + "' needs exactly one model file");
    return std::nullopt;
  }
  if (wanted == 2)
    options.modelFile = operands[1];
  if (options.job.empty())
    options.job = std::filesystem::path(options.modelFile).stem().string();
  return options;
}

const char* UsageText() {
  return R"(Usage: keydeck COMMAND [OPTIONS]

Turns a model file into the keyword input deck of a finite element solver.

Commands:
  write MODEL.json   write the deck DIR/JOB.inp of one model of the file
  check MODEL.json   load and validate the file; report every problem
  schema             print the JSON Schema of the model file

Options:
  -j, --job JOB      job name: the deck is JOB.inp (default: the file's stem)
  -m, --model NAME   the model to write (default: "Default Model")
  -o, --output DIR   folder of the deck (default: the current folder)
  -v, --verbose      print the time of each phase (load, build, write)
  -q, --quiet        print nothing but errors
  -h, --help         print this help
      --version      print the version

Exit status: 0 success, 1 bad model or failed write, 2 bad usage.
)";
}

} // namespace keydeck
