// Sections through the command: what it says of a bad section, profile or
// assignment, the warning for a missing section, and a section that the deck
// cannot hold.
#include "tests/support/deck_text.h"
#include "tests/support/run_keydeck.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using keydeck::test::ReadFile;

class SectionsCommand : public keydeck::test::CommandTest {
protected:
  // Writes a model of one beam part "P" (element set "All") placed as "I",
  // with a material "Steel", the `sections` and `profiles` given and the
  // part's `assignments`, and runs "keydeck write" on it (with "-q" unless
  // warnings are wanted); returns the exit status, with stderr in `err`.
  int Write(const std::string& sections, const std::string& profiles,
            const std::string& assignments, std::string& err, bool quiet = true) const {
    const fs::path model = folder_ / "model.json";
    std::ofstream(model) << R"({"format": "keydeck-model", "version": 1, "models": {"M": {
      "materials": {"Steel": {"density": {"table": [[7.8e-9]]}}},
      "sections": {)" << sections
                         << R"(}, "profiles": {)" << profiles << R"(},
      "parts": {"P": {"nodes": {"labels": [1, 2], "coordinates": [[0, 0, 0], [1, 0, 0]]},
        "elements": [{"type": "B31", "labels": [1], "connectivity": [[1, 2]]}],
        "sets": {"All": {"elements": [1]}},
        "sectionAssignments": [)"
                         << assignments << R"(]}},
      "assembly": {"instances": {"I": {"part": "P"}}}}}})";
    const keydeck::test::Outcome outcome = keydeck::test::RunKeydeck(
        quiet
            ? std::vector<std::string>{"write", "-q", "-m", "M", "-o", folder_.string(),
                                       model.string()}
            : std::vector<std::string>{"write", "-m", "M", "-o", folder_.string(), model.string()},
        folder_);
    err = outcome.err;
    return outcome.status;
  }
  std::string Deck() const { return ReadFile((folder_ / "model.inp").string()); }
};

TEST_F(SectionsCommand, BadSectionsFailWithTheirPath) {
  const char* const box = R"("Box": {"type": "box", "width": 1, "height": 1, "thickness1": 0.1})";
  struct Case {
    const char* sections;
    const char* profiles;
    const char* assignments;
    const char* message;
  };
  const Case cases[] = {
      {R"("S": {"type": "truss", "material": "Alu"})", "", "",
       "models/M/sections/S/material: no material \"Alu\" in the model\n"},
      {R"("S": {"type": "beam", "material": "Steel", "profile": "Pipe"})", box, "",
       "models/M/sections/S/profile: no profile \"Pipe\" in the model\n"},
      {"", R"("Box": {"type": "box", "width": 1, "height": -1, "thickness1": 0.1})", "",
       "models/M/profiles/Box/height: a dimension must not be negative, found -1\n"},
      {"", R"("Box": {"type": "box", "width": 1, "height": 1})", "",
       "models/M/profiles/Box: missing field \"thickness1\"\n"},
      {R"("S": {"type": "compositeSolid", "layers": []})", "", "",
       "models/M/sections/S/layers: a composite section needs at least one layer\n"},
      {R"("S": {"type": "truss", "material": "Steel"})", "", R"({"region": "Al", "section": "S"})",
       "models/M/parts/P/sectionAssignments/0/region: no element set \"Al\" in the part\n"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.message);
    std::string err;
    EXPECT_EQ(Write(c.sections, c.profiles, c.assignments, err), 1);
    EXPECT_NE(err.find(c.message), std::string::npos) << err;
    EXPECT_FALSE(fs::exists(folder_ / "model.inp"));
  }
}

TEST_F(SectionsCommand, MissingSectionWarnsAndWritesTheRegionComment) {
  std::string err;
  ASSERT_EQ(Write("", "", R"({"region": "All", "section": "Gone"})", err, /*quiet=*/false), 0)
      << err;
  EXPECT_NE(err.find("warning: models/M/parts/P/sectionAssignments/0/section: no section "
                     "\"Gone\" in the model, so the deck writes the region's comment and no "
                     "section card\n"),
            std::string::npos)
      << err;
  EXPECT_NE(Deck().find("** Region: (Gone:All)\n*End Instance\n"), std::string::npos) << Deck();
}

// A shell given by its stiffness cannot be written: the command fails with
// the writer's message and leaves no deck.
TEST_F(SectionsCommand, StiffnessShellFailsTheWrite) {
  std::string err;
  EXPECT_EQ(
      Write(R"("S": {"type": "generalShell"})", "", R"({"region": "All", "section": "S"})", err),
      1);
  EXPECT_NE(err.find("Shell general section unimplemented"), std::string::npos) << err;
  EXPECT_FALSE(fs::exists(folder_ / "model.inp"));
}

} // namespace
