// Throughput of the deck stream on the deck's largest blocks: 1,000,000 node
// lines and 1,000,000 lines of 8-node connectivity, written to a real file.
//
//   stream_bench [PATH]     (default /tmp/keydeck_stream_bench.inp)
//
// Runs five times, prints the median in MB/s of deck (10^6 bytes) and
// removes the file.

#include "base/utl_Stream.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <vector>

namespace {

constexpr int Count = 1000000;
constexpr int Runs = 5;

struct Mesh {
  std::vector<std::array<float, 3>> coordinates;
  std::vector<std::array<int, 8>> connectivity;
};

// A block of bricks, 100 nodes a row, with coordinates that use all digits.
Mesh MakeMesh() {
  Mesh mesh;
  mesh.coordinates.resize(Count);
  mesh.connectivity.resize(Count);
  for (int i = 0; i < Count; ++i) {
    const float x = static_cast<float>(i % 100) * 0.0123457f;
    const float y = static_cast<float>(i / 100 % 100) * -1.37f + 0.001f * static_cast<float>(i % 7);
    const float z = static_cast<float>(i / 10000) * 25.4f / 3.f;
    mesh.coordinates[i] = {x, y, z};
    const int n = i + 1;
    mesh.connectivity[i] = {n, n + 1, n + 101, n + 100, n + 10000, n + 10001, n + 10101, n + 10100};
  }
  return mesh;
}

void WriteDeck(const Mesh& mesh, const char* path) {
  qio_ofstreamDeck file(std::fopen(path, "wb"), /*owns=*/true);
  utl_Stream s(file, 131, 6, 6);
  s << "*Node\n";
  for (int i = 0; i < Count; ++i) {
    const auto& xyz = mesh.coordinates[i];
    s.Print(i + 1, 7) << ", ";
    s.Print(xyz[0], 12, 7) << ", ";
    s.Print(xyz[1], 12, 7) << ", ";
    s.Print(xyz[2], 12, 7) << "\n";
  }
  s.Flush();
  s << "*Element, type=C3D8\n";
  for (int i = 0; i < Count; ++i) {
    s.Print(i + 1, 7);
    for (const int node : mesh.connectivity[i]) {
      s << ", ";
      s.Print(node, 7);
    }
    s << "\n";
  }
  s.Flush();
  s.Close();
}

} // namespace

int main(int argc, char** argv) {
  const char* const path = argc > 1 ? argv[1] : "/tmp/keydeck_stream_bench.inp";
  if (std::FILE* probe = std::fopen(path, "wb"))
    std::fclose(probe);
  else {
    std::fprintf(stderr, "stream_bench: cannot open %s\n", path);
    return 1;
  }
  const Mesh mesh = MakeMesh();
  std::vector<double> seconds;
  for (int run = 0; run < Runs; ++run) {
    const auto start = std::chrono::steady_clock::now();
    WriteDeck(mesh, path);
    seconds.push_back(
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
  const auto bytes = std::filesystem::file_size(path);
  std::sort(seconds.begin(), seconds.end());
  const double median = seconds[Runs / 2];
  std::printf("deck bytes: %llu\n", static_cast<unsigned long long>(bytes));
  std::printf("runs (s):");
  for (const double s : seconds)
    std::printf(" %.3f", s);
  std::printf("\nmedian: %.3f s, %.0f MB/s\n", median, static_cast<double>(bytes) / median / 1e6);
  std::remove(path);
  return 0;
}
