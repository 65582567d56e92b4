#include "model/element_types.h"

#include <algorithm>
#include <cstdlib>
#include <string_view>

namespace keydeck {

namespace {

/// One family of element types: the labels that start with `prefix` and go
/// on with the node count (when `nodesFollow`) and any suffix letters.
struct Family {
  std::string_view prefix;
  int elementDimension;
  int spaceDimension;
  bool shell;
  bool nodesFollow;
  int fixedNodes; // when the node count does not follow the prefix
  int omissible;  // nodes that an element may leave out
  int optional;   // nodes that an element may add
};

// Longer prefixes first where one prefix begins another ("STRI" before "S",
// "C3D27" before "C3D"). A beam in space may name a third node that orients
// its section; a connector may leave out its second node (to ground); C3D27
// and C3D15V may leave out midside nodes.
constexpr Family Families[] = {
    {"C3D27", 3, 3, false, false, 27, 6, 0}, {"C3D15V", 3, 3, false, false, 18, 3, 0},
    {"C3D", 3, 3, false, true, 0, 0, 0},     {"DC3D", 3, 3, false, true, 0, 0, 0},
    {"SC", 3, 3, false, true, 0, 0, 0},      {"CPS", 2, 2, false, true, 0, 0, 0},
    {"CPE", 2, 2, false, true, 0, 0, 0},     {"CAX", 2, 2, false, true, 0, 0, 0},
    {"DC2D", 2, 2, false, true, 0, 0, 0},    {"M3D", 2, 3, true, true, 0, 0, 0},
    {"R3D", 2, 3, true, true, 0, 0, 0},      {"STRI3", 2, 3, true, false, 3, 0, 0},
    {"STRI65", 2, 3, true, false, 6, 0, 0},  {"S", 2, 3, true, true, 0, 0, 0},
    {"B21", 1, 2, false, false, 2, 0, 0},    {"B22", 1, 2, false, false, 3, 0, 0},
    {"B31", 1, 3, false, false, 2, 0, 1},    {"B32", 1, 3, false, false, 3, 0, 1},
    {"T2D", 1, 2, false, true, 0, 0, 0},     {"T3D", 1, 3, false, true, 0, 0, 0},
    {"CONN2D", 0, 2, false, true, 0, 1, 0},  {"CONN3D", 0, 3, false, true, 0, 1, 0},
};

int SolidFaces(int nodes) {
  switch (nodes) {
  case 4:
  case 10:
    return 4; // tetrahedra
  case 6:
  case 15:
  case 18:
    return 5; // wedges
  case 8:
  case 20:
  case 27:
    return 6; // bricks
  default:
    return 0;
  }
}

int PlaneFaces(int nodes) {
  if (nodes == 3 || nodes == 6)
    return 3; // triangles
  return nodes == 4 || nodes == 8 || nodes == 9 ? 4 : 0;
}

/// The node count written right after the prefix, or 0.
int LeadingNumber(std::string_view text) {
  int value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9' || value > 1000)
      break;
    value = value * 10 + (c - '0');
  }
  return value;
}

shp_Shape ShapeOf(const Family& family, std::string_view rest) {
  shp_Shape shape{family.elementDimension, family.spaceDimension, family.shell, 0, 0, 0, 0};
  shape.nodes = family.nodesFollow ? LeadingNumber(rest) : family.fixedNodes;
  shape.fewestNodes = shape.nodes - family.omissible;
  shape.mostNodes = shape.nodes + family.optional;
  if (family.shell)
    shape.faces = 2;
  else if (family.elementDimension == 3)
    shape.faces = SolidFaces(shape.nodes);
  else if (family.elementDimension == 2)
    shape.faces = PlaneFaces(shape.nodes);
  else if (family.elementDimension == 1)
    shape.faces = 2; // the two ends of a line
  return shape;
}

// The types a user names by hand, by family; the suffix letters of each are
// those the solver offers for it.
constexpr std::string_view KnownTypes[] = {
    "C3D4",     "C3D4H",   "C3D4T",   "C3D6",    "C3D6H",   "C3D6T",  "C3D8",    "C3D8H",
    "C3D8I",    "C3D8IH",  "C3D8R",   "C3D8RH",  "C3D8T",   "C3D8HT", "C3D8RT",  "C3D8RHT",
    "C3D10",    "C3D10H",  "C3D10M",  "C3D10MH", "C3D10MT", "C3D15",  "C3D15H",  "C3D15V",
    "C3D15VH",  "C3D20",   "C3D20H",  "C3D20R",  "C3D20RH", "C3D20T", "C3D20HT", "C3D20RT",
    "C3D20RHT", "C3D27",   "C3D27H",  "C3D27R",  "C3D27RH", "DC3D4",  "DC3D6",   "DC3D8",
    "DC3D10",   "DC3D15",  "DC3D20",  "SC6R",    "SC8R",    "SC6RT",  "SC8RT",   "CPS3",
    "CPS4",     "CPS4I",   "CPS4R",   "CPS4T",   "CPS4RT",  "CPS6",   "CPS6M",   "CPS8",
    "CPS8R",    "CPS8T",   "CPE3",    "CPE3H",   "CPE4",    "CPE4H",  "CPE4I",   "CPE4IH",
    "CPE4R",    "CPE4RH",  "CPE4T",   "CPE4RT",  "CPE6",    "CPE6H",  "CPE6M",   "CPE6MH",
    "CPE8",     "CPE8H",   "CPE8R",   "CPE8RH",  "CPE8T",   "CAX3",   "CAX3H",   "CAX4",
    "CAX4H",    "CAX4I",   "CAX4IH",  "CAX4R",   "CAX4RH",  "CAX4T",  "CAX4RT",  "CAX6",
    "CAX6H",    "CAX6M",   "CAX6MH",  "CAX8",    "CAX8H",   "CAX8R",  "CAX8RH",  "CAX8T",
    "DC2D3",    "DC2D4",   "DC2D6",   "DC2D8",   "M3D3",    "M3D4",   "M3D4R",   "M3D6",
    "M3D8",     "M3D8R",   "M3D9",    "M3D9R",   "R3D3",    "R3D4",   "STRI3",   "STRI65",
    "S3",       "S3R",     "S3RS",    "S3T",     "S3RT",    "S4",     "S4R",     "S4RS",
    "S4R5",     "S4T",     "S4RT",    "S8R",     "S8R5",    "S8RT",   "S9R5",    "B21",
    "B21H",     "B22",     "B22H",    "B31",     "B31H",    "B31OS",  "B32",     "B32H",
    "B32OS",    "T2D2",    "T2D2H",   "T2D3",    "T2D3H",   "T3D2",   "T3D2H",   "T3D3",
    "T3D3H",    "CONN2D2", "CONN3D2",
};

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

} // namespace

bool IsWellFormedElementType(std::string_view type) {
  return !type.empty() && std::all_of(type.begin(), type.end(), [](char c) {
    return IsDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == '-';
  });
}

std::span<const std::string_view> KnownElementTypes() { return KnownTypes; }

bool IsKnownElementType(std::string_view type) {
  return std::find(std::begin(KnownTypes), std::end(KnownTypes), type) != std::end(KnownTypes);
}

bool IsUserElementType(std::string_view type) {
  return type.size() >= 2 && type[0] == 'U' && type[1] != '0' &&
         std::all_of(type.begin() + 1, type.end(), IsDigit);
}

shp_Shape ShapeOfElementType(const cow_String& type) {
  const std::string_view label = type.View();
  for (const Family& family : Families) {
    if (!label.starts_with(family.prefix))
      continue;
    const std::string_view rest = label.substr(family.prefix.size());
    if (family.nodesFollow && (rest.empty() || rest[0] < '1' || rest[0] > '9'))
      continue; // e.g. "SFM3D4": not a shell "S" followed by its node count
    return ShapeOf(family, rest);
  }
  return shp_Shape{};
}

int FacetIdOfFaceLabel(const shp_Shape& shape, const cow_String& label) {
  const std::string_view text = label.View();
  const bool sides = shape.shell || (shape.elementDimension == 2 && shape.spaceDimension == 3);
  if (sides)
    return text == "SPOS" ? 0 : text == "SNEG" ? 1 : -1;
  const std::string_view prefix = shape.elementDimension == 1 ? "END" : "S";
  if (!text.starts_with(prefix) || text.size() == prefix.size() || text[prefix.size()] == '0')
    return -1;
  const std::string_view digits = text.substr(prefix.size());
  if (digits.size() > 2 || digits.find_first_not_of("0123456789") != std::string_view::npos)
    return -1;
  const int face = LeadingNumber(digits);
  return face >= 1 && face <= shape.faces ? face - 1 : -1;
}

std::string FaceLabelsOf(const shp_Shape& shape) {
  if (shape.shell || (shape.elementDimension == 2 && shape.spaceDimension == 3))
    return "SPOS and SNEG";
  if (shape.elementDimension == 1)
    return "END1 and END2";
  if (shape.faces == 0)
    return {};
  return "S1 to S" + std::to_string(shape.faces);
}

} // namespace keydeck
