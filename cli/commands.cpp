#include "cli/commands.h"

#include "base/nex_Exception.h"
#include "base/qio_ostream.h"
#include "cli/deck_file.h"
#include "cli/progress.h"
#include "model/database.h"
#include "model/json/loader.h"
#include "model/json/schema.h"
#include "oif/oif_Builder.h"
#include "oif/oif_ModelInfo.h"

#include <chrono>
#include <cstdio>
#include <exception>
#include <new>
#include <string>
#include <vector>

namespace keydeck {

namespace {

using Clock = std::chrono::steady_clock;

constexpr const char* DefaultModel = "Default Model";

int Fail(const std::string& message) {
  std::fprintf(stderr, "keydeck: %s\n", message.c_str());
  return 1;
}

void PrintWarnings(const std::vector<std::string>& warnings) {
  for (const std::string& warning : warnings)
    std::fprintf(stderr, "keydeck: warning: %s\n", warning.c_str());
}

/// What a command is doing, for a message when memory runs out.
struct Phase {
  std::string what;
};

/// Runs `command`, turning whatever it raises into a message and exit
/// status 1.
template <class F> int Guarded(const Phase& phase, F&& command) {
  try {
    return command();
  } catch (const std::bad_alloc&) {
    return Fail("out of memory while " + phase.what);
  } catch (const std::exception& failure) {
    return Fail(failure.what());
  }
}

const char* ModelFileName(const Options& options) {
  return options.FromStdin() ? "standard input" : options.modelFile.c_str();
}

/// The names of the models in a database, for a message about a missing one.
std::string ModelNames(const ddb_Ddb& ddb) {
  std::string names;
  for (const auto& [name, model] : ddb.models_)
    names += (names.empty() ? "\"" : ", \"") + std::string(name.View()) + "\"";
  return names.empty() ? "no models" : names;
}

/// The model named `name`; raises when the file has none of that name.
const ddb_Model& ModelNamed(const Options& options, const odb_Odb& odb, const std::string& name) {
  const cow_String key(name.c_str());
  if (!odb.ddb().models_.IsMember(key))
    Raise(std::string(ModelFileName(options)) + ": no model named \"" + name + "\"; the file has " +
          ModelNames(odb.ddb()));
  return odb.ddb().model(key);
}

/// All of standard input; raises when it cannot be read.
std::string ReadStdin() {
  std::string text;
  char block[1 << 16];
  std::size_t size = 0;
  while ((size = std::fread(block, 1, sizeof block, stdin)) > 0)
    text.append(block, size);
  if (std::ferror(stdin))
    Raise("cannot read the model file from standard input");
  return text;
}

/// Loads the file, printing its warnings; raises `ModelFileError` for a bad file.
odb_Odb Load(const Options& options, ProgressLine& progress) {
  progress.Show("loading", ModelFileName(options));
  std::vector<std::string> warnings;
  odb_Odb odb = options.FromStdin() ? LoadModelText(ReadStdin(), warnings)
                                    : LoadModelFile(options.modelFile.c_str(), warnings);
  progress.Clear();
  if (!options.quiet)
    PrintWarnings(warnings);
  return odb;
}

void PrintTimes(double loadSeconds, const DeckPhaseTimes& times, long long bytes) {
  const double megabytes = static_cast<double>(bytes) / 1e6;
  std::fprintf(stderr, "keydeck: load %.3f s, build %.3f s, write %.3f s (%.1f MB, %.0f MB/s)\n",
               loadSeconds, times.build, times.write, megabytes,
               times.write > 0 ? megabytes / times.write : 0.0);
}

/// Writes the deck to standard output; returns its size in bytes.
long long WriteToStdout(oif_Builder& builder, DeckPhaseTimes& times) {
  qio_ofstreamDeck os(stdout, /*owns=*/false);
  const long start = std::ftell(stdout); // -1 on a pipe
  builder.WriteInputFile(os, &times);
  return start < 0 ? 0 : std::ftell(stdout) - start;
}

/// Writes the deck to DIR/JOB.inp by way of a temporary file; returns its size.
long long WriteToFile(const Options& options, oif_Builder& builder, DeckPhaseTimes& times,
                      Phase& phase, ProgressLine& progress) {
  DeckFile deck(options.outputDir, options.job);
  for (const std::string& stale : deck.StaleRemoved())
    if (!options.quiet)
      std::fprintf(stderr, "keydeck: removed %s, left by a write that ended early\n",
                   stale.c_str());
  phase.what = "writing " + deck.FinalPath() + " from " + ModelFileName(options);
  progress.Show("writing", deck.FinalPath().c_str());
  qio_ofstreamDeck os(deck.Output(), /*owns=*/false);
  builder.WriteInputFile(os, &times);
  progress.Clear();
  deck.Commit();
  if (!options.quiet)
    std::printf("keydeck: wrote %s\n", deck.FinalPath().c_str());
  return deck.Size();
}

int WriteModel(const Options& options, const ddb_Model& model, double loadSeconds, Phase& phase,
               ProgressLine& progress) {
  phase.what = "building the deck of " + std::string(ModelFileName(options));
  oif_ModelInfo info(model);
  oif_Builder builder(info);
  DeckPhaseTimes times;
  const long long bytes = options.toStdout ? WriteToStdout(builder, times)
                                           : WriteToFile(options, builder, times, phase, progress);
  if (options.verbose)
    PrintTimes(loadSeconds, times, bytes);
  return 0;
}

} // namespace

int RunWrite(const Options& options) {
  Phase phase{std::string("loading ") + ModelFileName(options)};
  return Guarded(phase, [&] {
    ProgressLine progress(options.quiet);
    const Clock::time_point start = Clock::now();
    const odb_Odb odb = Load(options, progress);
    const double loadSeconds = std::chrono::duration<double>(Clock::now() - start).count();
    const std::string name = options.modelName.empty() ? DefaultModel : options.modelName;
    return WriteModel(options, ModelNamed(options, odb, name), loadSeconds, phase, progress);
  });
}

int RunCheck(const Options& options) {
  Phase phase{std::string("loading ") + ModelFileName(options)};
  return Guarded(phase, [&] {
    ProgressLine progress(options.quiet);
    const odb_Odb odb = Load(options, progress);
    phase.what = "checking the models of " + std::string(ModelFileName(options));
    std::string checked;
    if (!options.modelName.empty()) {
      const oif_ModelInfo info(ModelNamed(options, odb, options.modelName));
      checked = "\"" + options.modelName + "\"";
    } else {
      for (const auto& [name, model] : odb.ddb().models_)
        const oif_ModelInfo info(model); // the tables the writer needs can be built
      checked = ModelNames(odb.ddb());
    }
    if (!options.quiet)
      std::printf("keydeck: %s is a valid model file (%s)\n", ModelFileName(options),
                  checked.c_str());
    return 0;
  });
}

int RunSchema() {
  const std::string schema = ModelSchema();
  std::fwrite(schema.data(), 1, schema.size(), stdout);
  return std::fflush(stdout) == 0 ? 0 : 1;
}

} // namespace keydeck
