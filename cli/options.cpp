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

/// The flag of each option without a value, and where it is kept.
bool* FlagTarget(const std::string& name, Options& options) {
  if (name == "-v" || name == "--verbose")
    return &options.verbose;
  if (name == "-q" || name == "--quiet")
    return &options.quiet;
  return name == "--stdout" ? &options.toStdout : nullptr;
}

/// The value of each option that takes one, and where it is kept.
std::string* ValueTarget(const std::string& name, Options& options) {
  return name == "-j" || name == "--job"      ? &options.job
         : name == "-m" || name == "--model"  ? &options.modelName
         : name == "-o" || name == "--output" ? &options.outputDir
                                              : nullptr;
}

/// Reads one option at `args[i]`: "--name=value", or a name followed by its
/// value in the next argument if it takes one.
bool ReadOption(const std::vector<std::string>& args, std::size_t& i, Options& options) {
  const std::string& arg = args[i];
  const std::size_t equals = arg.starts_with("--") ? arg.find('=') : std::string::npos;
  const std::string name = arg.substr(0, equals);
  if (bool* const flag = FlagTarget(name, options)) {
    if (equals != std::string::npos)
      return UsageError("option '" + name + "' takes no value");
    return *flag = true;
  }
  std::string* const target = ValueTarget(name, options);
  if (target == nullptr)
    return UsageError("unknown option '" + name + "'");
  if (equals != std::string::npos) {
    *target = arg.substr(equals + 1);
    return true;
  }
  if (i + 1 >= args.size())
    return UsageError("option '" + name + "' needs a value");
  *target = args[++i];
  return true;
}

/// Checks what the operands and options say together and fills the defaults.
bool Complete(const std::vector<std::string>& operands, Options& options) {
  if (operands.empty())
    return UsageError("no command given");
  const std::optional<Options::Command> command = CommandNamed(operands[0]);
  if (!command)
    return UsageError("unknown command '" + operands[0] + "'");
  options.command = *command;
  const std::size_t wanted = options.command == Options::Command::Schema ? 1 : 2;
  if (operands.size() != wanted)
    return UsageError(wanted == 1 ? "'schema' takes no file"
                                  : "'" + operands[0] + "' needs exactly one model file");
  if (wanted == 1)
    return true;
  options.modelFile = operands[1];
  const bool writesFile = options.command == Options::Command::Write && !options.toStdout;
  if (options.job.empty() && options.FromStdin() && writesFile)
    return UsageError("a model read from standard input needs a job name (-j) or --stdout");
  if (options.job.empty())
    options.job = std::filesystem::path(options.modelFile).stem().string();
  return true;
}

} // namespace

std::optional<Options> ParseOptions(const std::vector<std::string>& args) {
  Options options;
  std::vector<std::string> operands;
  bool optionsEnded = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (optionsEnded || arg == "-" || !arg.starts_with("-")) {
      operands.push_back(arg);
      continue;
    }
    if (arg == "--") {
      optionsEnded = true;
      continue;
    }
    if (arg == "-h" || arg == "--help") {
      options.command = Options::Command::Help;
      return options;
    }
    if (arg == "--version") {
      options.command = Options::Command::Version;
      return options;
    }
    if (!ReadOption(args, i, options))
      return std::nullopt;
  }
  if (!Complete(operands, options))
    return std::nullopt;
  return options;
}

const char* UsageText() {
  return R"(Usage: keydeck COMMAND [OPTIONS]

Turns a model file into the keyword input deck of a finite element solver.

Commands:
  write MODEL.json   write the deck DIR/JOB.inp of one model of the file
  check MODEL.json   load and validate the file; report every problem
  schema             print the JSON Schema of the model file
A MODEL.json of "-" reads the model file from standard input.

Options:
  -j, --job JOB      job name: the deck is JOB.inp (default: the file's stem;
                     needed when the model file is standard input)
  -m, --model NAME   the model to write or check (default: write "Default
                     Model", check every model of the file)
  -o, --output DIR   folder of the deck (default: the current folder)
      --stdout       write the deck to standard output instead of a file
  -v, --verbose      print the time of each phase (load, build, write)
  -q, --quiet        print nothing but errors
  -h, --help         print this help
      --version      print the version
Long options also take their value as --option=VALUE; "--" ends the options.

Exit status: 0 success, 1 bad model or failed write, 2 bad usage.
)";
}

} // namespace keydeck
