// Writes the deck of a model file with libkeydeck:
//   write_deck MODEL.json [FOLDER]
// writes FOLDER/STEM.inp (FOLDER defaults to the current folder), or prints
// every problem of the file and exits 1.
#include <cstdio>
#include <filesystem>
#include <keydeck/keydeck.h>
#include <string>

int main(int argc, char** argv) {
  if (argc < 2 || argc > 3) {
    std::fprintf(stderr, "usage: write_deck MODEL.json [FOLDER]\n");
    return 2;
  }
  const keydeck::Model model = keydeck::Model::Open(argv[1]);
  for (const std::string& problem : model.Problems())
    std::fprintf(stderr, "write_deck: %s\n", problem.c_str());
  if (!model.Problems().empty())
    return 1;
  for (const std::string& warning : model.Warnings())
    std::fprintf(stderr, "write_deck: warning: %s\n", warning.c_str());

  const std::string job = std::filesystem::path(argv[1]).stem().string();
  try {
    const std::string deck = model.Write(job, argc == 3 ? argv[2] : ".");
    std::printf("keydeck %s wrote %s\n", keydeck::Version(), deck.c_str());
    return 0;
  } catch (const keydeck::Error& failure) {
    std::fprintf(stderr, "write_deck: %s\n", failure.what());
    return 1;
  }
}
