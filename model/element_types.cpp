#include "model/element_types.h"

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

} // namespace

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
