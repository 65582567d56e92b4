// The end-to-end write benchmark: `keydeck write` on the benchmark model
// (benchmark_model.h), run five times as a child process, with the figures
// that the bars are set on:
//
//   - the whole `keydeck write`, load included: median wall time of five runs,
//     at most 1.5 s;
//   - the deck-writing phase alone: median MB/s of deck (10^6 bytes) over the
//     write phase, as `keydeck write -v` reports it, at least 300 MB/s;
//   - peak memory (the child's peak resident set) against the model file's
//     size: median of five, at most 3 times.
//
//   write_bench [--keydeck PATH] [--model FILE | --no-sets | --size N]
//
// Without --model it generates the model into a fresh folder under $TMPDIR
// (or /tmp) and removes the folder at the end. The bars are set for the full
// model (--size 100, with sets); other sizes get the same verdicts for
// orientation only. A missed bar is a measurement, not a failure: the exit
// status is 0 unless the benchmark itself could not run.

#include "benchmark_model.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

constexpr int Runs = 5;
constexpr double WholeWriteBar = 1.5; // seconds, at most
constexpr double WritePhaseBar = 300; // MB/s of deck, at least
constexpr double MemoryBar = 3;       // times the model file's size, at most

struct Run {
  double seconds = 0;                    // wall time of the whole command
  double peakBytes = 0;                  // the child's peak resident set
  double load = 0, build = 0, write = 0; // the phases as -v reports them
  double deckMegabytes = 0, writeRate = 0;
};

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

/// Reads the timing line of `keydeck write -v` out of its stderr.
bool ParseTimes(const std::string& text, Run& run) {
  const std::size_t at = text.find("keydeck: load ");
  return at != std::string::npos &&
         std::sscanf(text.c_str() + at,
                     "keydeck: load %lf s, build %lf s, write %lf s (%lf MB, %lf MB/s)", &run.load,
                     &run.build, &run.write, &run.deckMegabytes, &run.writeRate) == 5;
}

/// Runs `keydeck write MODEL -o DIR -j JOB -v` once; false with a message on failure.
bool RunOnce(const std::string& keydeck, const std::string& model, const std::string& folder,
             Run& run) {
  int channel[2];
  if (pipe(channel) != 0) {
    std::perror("write_bench: pipe");
    return false;
  }
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child < 0) {
    std::perror("write_bench: fork");
    return false;
  }
  if (child == 0) {
    const int devNull = open("/dev/null", O_WRONLY);
    dup2(devNull, STDOUT_FILENO);
    dup2(channel[1], STDERR_FILENO);
    close(channel[0]);
    close(channel[1]);
    execl(keydeck.c_str(), keydeck.c_str(), "write", model.c_str(), "-o", folder.c_str(), "-j",
          "bench", "-v", static_cast<char*>(nullptr));
    std::fprintf(stderr, "cannot run %s: %s\n", keydeck.c_str(), std::strerror(errno));
    _exit(127);
  }
  close(channel[1]);
  std::string messages;
  char chunk[4096];
  for (ssize_t got; (got = read(channel[0], chunk, sizeof chunk)) != 0;) {
    if (got < 0 && errno == EINTR)
      continue;
    if (got < 0)
      break;
    messages.append(chunk, static_cast<std::size_t>(got));
  }
  close(channel[0]);
  int status = 0;
  rusage usage{};
  while (wait4(child, &status, 0, &usage) < 0 && errno == EINTR) {
  }
  run.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  run.peakBytes = static_cast<double>(usage.ru_maxrss) * 1024; // ru_maxrss is in KiB
  if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    std::fprintf(stderr, "write_bench: keydeck write failed:\n%s", messages.c_str());
    return false;
  }
  if (!ParseTimes(messages, run)) {
    std::fprintf(stderr, "write_bench: no timing line from keydeck write -v:\n%s",
                 messages.c_str());
    return false;
  }
  return true;
}

const char* Verdict(bool pass) { return pass ? "PASS" : "FAIL"; }

int Usage() {
  std::fprintf(stderr,
               "usage: write_bench [--keydeck PATH] [--model FILE | --no-sets | --size N]\n");
  return 2;
}

} // namespace

int main(int argc, char** argv) {
  std::string keydeck = KEYDECK_PATH;
  std::string model;
  keydeck_bench::ModelShape shape;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--keydeck" && i + 1 < argc) {
      keydeck = argv[++i];
    } else if (arg == "--model" && i + 1 < argc) {
      model = argv[++i];
    } else if (arg == "--no-sets") {
      shape.withSets = false;
    } else if (arg == "--size" && i + 1 < argc) {
      shape.size = std::atoi(argv[++i]);
      if (shape.size < 2 || shape.size > 300)
        return Usage();
    } else {
      return Usage();
    }
  }

  namespace fs = std::filesystem;
  const char* const tmp = std::getenv("TMPDIR");
  std::string pattern =
      (fs::path(tmp != nullptr && *tmp != '\0' ? tmp : "/tmp") / "keydeck_write_bench.XXXXXX")
          .string();
  if (mkdtemp(pattern.data()) == nullptr) {
    std::perror("write_bench: mkdtemp");
    return 1;
  }
  const std::string folder = pattern;
  const bool generated = model.empty();
  if (generated) {
    model = (fs::path(folder) / "model.json").string();
    const auto start = std::chrono::steady_clock::now();
    if (keydeck_bench::WriteModelFile(model, shape) < 0) {
      fs::remove_all(folder);
      return 1;
    }
    std::printf("model: %d^3 nodes, %s, generated in %.2f s\n", shape.size,
                shape.withSets ? "with a node set and an element set" : "no sets",
                std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
  std::error_code failure;
  const double fileBytes = static_cast<double>(fs::file_size(model, failure));
  if (failure) {
    std::fprintf(stderr, "write_bench: cannot read %s\n", model.c_str());
    fs::remove_all(folder);
    return 1;
  }

  std::vector<Run> runs;
  const std::string deck = (fs::path(folder) / "bench.inp").string();
  double deckBytes = 0;
  for (int r = 0; r < Runs; ++r) {
    Run run;
    if (!RunOnce(keydeck, model, folder, run)) {
      fs::remove_all(folder);
      return 1;
    }
    deckBytes = static_cast<double>(fs::file_size(deck));
    fs::remove(deck); // each run writes a new deck, not over an old one
    runs.push_back(run);
  }
  fs::remove_all(folder);

  std::vector<double> seconds, rates, peaks, loads, builds, writes;
  std::printf("run   whole (s)   load (s)  build (s)  write (s)  write MB/s  peak MB\n");
  for (int r = 0; r < Runs; ++r) {
    const Run& run = runs[static_cast<std::size_t>(r)];
    std::printf("%3d %11.3f %10.3f %10.3f %10.3f %11.0f %8.0f\n", r + 1, run.seconds, run.load,
                run.build, run.write, run.writeRate, run.peakBytes / 1e6);
    seconds.push_back(run.seconds);
    rates.push_back(run.writeRate);
    peaks.push_back(run.peakBytes);
    loads.push_back(run.load);
    builds.push_back(run.build);
    writes.push_back(run.write);
  }
  const double whole = Median(seconds);
  const double rate = Median(rates);
  const double peak = Median(peaks);
  const double ratio = peak / fileBytes;
  std::printf("median phases: load %.3f s, build %.3f s, write %.3f s\n", Median(loads),
              Median(builds), Median(writes));
  std::printf("model file: %.1f MB (%s)\n", fileBytes / 1e6, model.c_str());
  std::printf("deck: %.1f MB\n", deckBytes / 1e6);
  std::printf("whole keydeck write, median of %d: %.3f s   bar <= %.1f s     %s\n", Runs, whole,
              WholeWriteBar, Verdict(whole <= WholeWriteBar));
  std::printf("deck-writing phase, median:      %.0f MB/s   bar >= %.0f MB/s  %s\n", rate,
              WritePhaseBar, Verdict(rate >= WritePhaseBar));
  std::printf("peak memory, median:             %.0f MB = %.2f x file   bar <= %.0f x  %s\n",
              peak / 1e6, ratio, MemoryBar, Verdict(ratio <= MemoryBar));
  if (!generated || shape.size != 100 || !shape.withSets)
    std::printf("(the bars are set for the generated 100^3 model with sets; this run is for "
                "orientation)\n");
  return 0;
}
