#include "cli/commands.h"

#include "base/nex_Exception.h"
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
#include <string>
#include <vector>

namespace keydeck {

namespace {

using Clock = std::chrono::steady_clock;

int Fail(const std::string& message) {
  std::fprintf(stderr, "keydeck: %s\n", message.c_str());
  return 1;
}

void PrintWarnings(const std::vector<std::string>& warnings) {
  for (const std::string& warning : warnings)
    std::fprintf(stderr, "keydeck: warning: %s\n", warning.c_str());
}

/// The names of the models in a database, for a message about a missing one.
std::string ModelNames(const ddb_Ddb& ddb) {
  std::string names;
  for (const auto& [name, model] : ddb.models_)
    names += (names.empty() ? "\"" : ", \"") + std::string(name.View()) + "\"";
  return names.empty() ? "no models" : names;
}

/// Loads the file, printing its warnings; raises `ModelFileError` for a bad file.
odb_Odb Load(const Options& options, ProgressLine& progress) {
  progress.Show("loading", options.modelFile.c_str());
  std::vector<std::string> warnings;
  odb_Odb odb = LoadModelFile(options.modelFile.c_str(), warnings);
  progress.Clear();
  if (!options.quiet)
    PrintWarnings(warnings);
  return odb;
}

int WriteModel(const Options& options, const ddb_Model& model, double loadSeconds,
               ProgressLine& progress) {
  DeckFile deck(options.outputDir, options.job);
  progress.Show("writing", deck.FinalPath().c_str());
  oif_ModelInfo info(model);
  oif_Builder builder(info);
  DeckPhaseTimes times;
  const bool written = builder.WriteInputFile(cow_String(deck.TemporaryPath().c_str()), &times);
  progress.Clear();
  if (!written)
    return Fail("cannot write " + deck.FinalPath() + ": " + deck.OpenFailure());
  deck.Commit();
  if (options.verbose) {
    const double megabytes = static_cast<double>(deck.Size()) / 1e6;
    std::fprintf(stderr, "keydeck: load %.3f s, build %.3f s, write %.3f s (%.1f MB, %.0f MB/s)\n",
                 loadSeconds, times.build, times.write, megabytes,
                 times.write > 0 ? megabytes / times.write : 0.0);
  }
  if (!options.quiet)
    std::printf("keydeck: wrote %s\n", deck.FinalPath().c_str());
  return 0;
}

} // namespace

int RunWrite(const Options& options) {
  try {
    ProgressLine progress(options.quiet);
    const Clock::time_point start = Clock::now();
    const odb_Odb odb = Load(options, progress);
    const double loadSeconds = std::chrono::duration<double>(Clock::now() - start).count();
    const cow_String modelName(options.modelName.c_str());
    if (!odb.ddb().models_.IsMember(modelName))
      return Fail(options.modelFile + ": no model named \"" + options.modelName +
                  "\"; the file has " + ModelNames(odb.ddb()));
    return WriteModel(options, odb.ddb().model(modelName), loadSeconds, progress);
  } catch (const std::exception& failure) {
    return Fail(failure.what());
  }
}

int RunCheck(const Options& options) {
  try {
    ProgressLine progress(options.quiet);
    const odb_Odb odb = Load(options, progress);
    for (const auto& [name, model] : odb.ddb().models_)
      oif_ModelInfo info(model); // the tables the writer needs can be built
    if (!options.quiet)
      std::printf("keydeck: %s is a valid model file (%s)\n", options.modelFile.c_str(),
                  ModelNames(odb.ddb()).c_str());
    return 0;
  } catch (const std::exception& failure) {
    return Fail(failure.what());
  }
}

int RunSchema() {
  const std::string schema = ModelSchema();
  std::fwrite(schema.data(), 1, schema.size(), stdout);
  return std::fflush(stdout) == 0 ? 0 : 1;
}

} // namespace keydeck
