// Writes the model file of the write benchmark (see benchmark_model.h).
//
//   generate_model PATH [--no-sets] [--size N]
//
// N is the number of nodes along each edge of the block, 100 unless given
// (1,000,000 nodes and 970,299 bricks); --no-sets leaves out the node set and
// the element set.

#include "benchmark_model.h"

#include <cstdio>
#include <cstdlib>
#include <string>

namespace {

int Usage() {
  std::fprintf(stderr, "usage: generate_model PATH [--no-sets] [--size N]\n");
  return 2;
}

} // namespace

int main(int argc, char** argv) {
  keydeck_bench::ModelShape shape;
  std::string path;
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (arg == "--no-sets") {
      shape.withSets = false;
    } else if (arg == "--size" && i + 1 < argc) {
      shape.size = std::atoi(argv[++i]);
      if (shape.size < 2 || shape.size > 300)
        return Usage();
    } else if (!arg.empty() && arg[0] != '-' && path.empty()) {
      path = arg;
    } else {
      return Usage();
    }
  }
  if (path.empty())
    return Usage();
  const long long bytes = keydeck_bench::WriteModelFile(path, shape);
  if (bytes < 0)
    return 1;
  std::printf("generate_model: wrote %s (%.1f MB)\n", path.c_str(),
              static_cast<double>(bytes) / 1e6);
  return 0;
}
