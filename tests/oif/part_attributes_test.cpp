#include "model/json/loader.h"
#include "tests/support/deck_text.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using keydeck::test::DeckOfModel;

// A model of one part "P" of three beams (element classes as `elements`
// gives them) with the element sets "All", "First", "Last" and "Tail" (2
// and 3), a datum "D", the sections "A" and "B" of material "Steel", and
// the part members `more`, placed once as instance "I".
std::string Model(const std::string& more, const std::string& elements = "") {
  const std::string classes =
      elements.empty()
          ? R"([{"type": "B31", "labels": [1, 2, 3], "connectivity": [[1, 2], [2, 3], [3, 4]]}])"
          : elements;
  return R"({"format": "keydeck-model", "version": 1, "models": {"Default Model": {
    "materials": {"Steel": {"density": {"table": [[7.8e-9]]}}},
    "sections": {"A": {"type": "homogeneousSolid", "material": "Steel"},
                 "B": {"type": "truss", "material": "Steel", "area": 2}},
    "parts": {"P": {"nodes": {"labels": [1, 2, 3, 4],
                              "coordinates": [[0, 0, 0], [1, 0, 0], [2, 0, 0], [3, 0, 0]]},
      "elements": )" +
         classes + R"(,
      "sets": {"All": {"elements": [1, 2, 3]}, "First": {"elements": [1]},
               "Last": {"elements": [3]}, "Tail": {"elements": [2, 3]}},
      "datums": {"D": {"type": "rectangular", "point1": [1, 0, 0], "point2": [0, 1, 0]}})" +
         more + R"(}},
    "assembly": {"instances": {"I": {"part": "P"}}},
    "steps": [{"name": "Initial"}]}}})";
}

// What the builder adds to the instance: the deck from the instance's
// last set card to "*End Instance".
std::string AttributesOf(const std::string& more, const std::string& elements = "") {
  std::vector<std::string> warnings;
  const std::string deck = DeckOfModel(keydeck::LoadModelText(Model(more, elements), warnings));
  const std::size_t sets = deck.find("*Elset, elset=Tail\n2,3\n");
  const std::size_t end = deck.find("*End Instance");
  if (sets == std::string::npos || end == std::string::npos)
    return deck;
  const std::size_t start = sets + std::string("*Elset, elset=Tail\n2,3\n").size();
  return deck.substr(start, end - start);
}

const char* const Orientation = "*Orientation, name=Ori-1\n"
                                "          1.,           0.,           0.,           0.,"
                                "           1.,           0.\n"
                                "1, 0.\n";

TEST(PartAttributes, UniformAssignmentIsOneClassOnItsOwnSet) {
  EXPECT_EQ(AttributesOf(R"(, "sectionAssignments": [{"region": "All", "section": "A"}])"),
            "** Region: (A:All)\n** Section: A\n*Solid Section, elset=All, material=Steel\n1.,\n");
}

// The same classes when the element classes put the elements in the order
// 1, 3, 2, so that the classes alternate along the mesh.
TEST(PartAttributes, MaterialOrientationCutsAnAssignmentIntoClasses) {
  const std::string meshOrder;
  const std::string alternating =
      R"([{"type": "B31", "labels": [1, 3], "connectivity": [[1, 2], [3, 4]]},
          {"type": "T3D2", "labels": [2], "connectivity": [[2, 3]]}])";
  for (const std::string& elements : {meshOrder, alternating}) {
    SCOPED_TRACE(elements);
    EXPECT_EQ(AttributesOf(R"(, "sectionAssignments": [{"region": "All", "section": "A"}],
                              "materialOrientations": [{"region": "Last", "datum": "D"}])",
                           elements),
              std::string("** Region: (A:All)\n*Elset, elset=_I1, internal\n1,2\n"
                          "** Section: A\n*Solid Section, elset=_I1, material=Steel\n1.,\n") +
                  Orientation +
                  "** Region: (A:All), (Material Orientation:Last)\n"
                  "*Elset, elset=_I2, internal\n3, \n"
                  "** Section: A\n*Solid Section, elset=_I2, orientation=Ori-1, material=Steel\n"
                  "1.,\n");
  }
}

// The later assignment wins; a class that is its assignment's whole set
// keeps the set's name.
TEST(PartAttributes, LaterAssignmentWins) {
  EXPECT_EQ(AttributesOf(R"(, "sectionAssignments": [{"region": "All", "section": "A"},
                                                     {"region": "First", "section": "B"}])"),
            "** Region: (B:First)\n** Section: B\n*Solid Section, elset=First, material=Steel\n"
            "2.,\n"
            "** Region: (A:All)\n*Elset, elset=_I2, internal\n2,3\n"
            "** Section: A\n*Solid Section, elset=_I2, material=Steel\n1.,\n");
}

// A material orientation shared by two classes is written once; a class
// without a section gets nothing, and the class numbers count it.
TEST(PartAttributes, SharedOrientationOnceAndUnassignedElementsSkipped) {
  EXPECT_EQ(AttributesOf(R"(, "sectionAssignments": [{"region": "Tail", "section": "A"},
                                                     {"region": "Last", "section": "B"}],
                            "materialOrientations": [{"region": "Tail", "datum": "D"}])"),
            std::string(Orientation) +
                "** Region: (A:Tail), (Material Orientation:Tail)\n"
                "*Elset, elset=_I2, internal\n2, \n"
                "** Section: A\n*Solid Section, elset=_I2, orientation=Ori-1, material=Steel\n"
                "1.,\n"
                "** Region: (B:Last), (Material Orientation:Tail)\n** Section: B\n"
                "*Solid Section, elset=Last, material=Steel\n2.,\n");
}

TEST(PartAttributes, MissingSectionLeavesTheRegionComment) {
  EXPECT_EQ(AttributesOf(R"(, "sectionAssignments": [{"region": "All", "section": "Gone"}])"),
            "** Region: (Gone:All)\n");
}

TEST(PartAttributes, ElementControls) {
  const std::string assignment = R"(, "sectionAssignments": [{"region": "All", "section": "A"}])";
  // Controls at the defaults of the job's solver make no name.
  const std::string defaults = AttributesOf(
      assignment,
      R"([{"type": "B31", "labels": [1, 2, 3], "connectivity": [[1, 2], [2, 3], [3, 4]],
          "controls": {"kinematicSplit": "centroid"}}])");
  EXPECT_EQ(defaults, "** Region: (A:All)\n** Section: A\n*Solid Section, elset=All, "
                      "material=Steel\n1.,\n");
  std::vector<std::string> warnings;
  const std::string deck = DeckOfModel(keydeck::LoadModelText(
      Model(assignment,
            R"([{"type": "B31", "labels": [1, 2], "connectivity": [[1, 2], [2, 3]],
                 "controls": {"hourglass": "enhanced", "hourglassStiffness1": 5}},
                {"type": "B31", "labels": [3], "connectivity": [[3, 4]]}])"),
      warnings));
  EXPECT_NE(deck.find("** Region: (A:All), (Controls:EC-1)\n*Elset, elset=_I1, internal\n1,2\n"
                      "** Section: A\n*Solid Section, elset=_I1, controls=EC-1, material=Steel\n"
                      "1.,\n*Hourglass Stiffness\n5., , 0., 0.\n"
                      "** Region: (A:All), (Controls:Default)\n*Elset, elset=_I2, internal\n3, \n"),
            std::string::npos)
      << deck;
  // The defaults, "EC-0", hold nothing to write; the one named setting stands once.
  EXPECT_NE(deck.find("** \n** ELEMENT CONTROLS\n** \n"
                      "*Section Controls, name=EC-1, hourglass=ENHANCED\n1., 1., 1.\n"),
            std::string::npos);
  EXPECT_EQ(deck.find("EC-0"), std::string::npos);
}

} // namespace
