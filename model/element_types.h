#pragma once

#include "base/cow_String.h"

#include <span>
#include <string>
#include <string_view>

/// What the deck needs to know of an element type's shape: the dimension of
/// the element itself (1 a line, 2 a surface, 3 a solid; 0 a point or a type
/// we do not know), the dimension of the space it lives in (2 or 3), whether
/// it is a shell (its faces are its two sides), how many faces it has and how
/// many nodes (0 when the type is not in the table). An element of the type
/// lists from `fewestNodes` to `mostNodes` nodes: both are `nodes` except
/// where nodes may be left out (the midside nodes of C3D27 and C3D15V, the
/// second node of a connector to ground) or added (the node that orients the
/// section of a beam in space).
struct shp_Shape {
  int elementDimension = 0;
  int spaceDimension = 3;
  bool shell = false;
  int faces = 0;
  int nodes = 0;
  int fewestNodes = 0;
  int mostNodes = 0;
};

namespace keydeck {

/// The shape of an element type by its label ("C3D8R", "S4R", "B31", ...):
/// the families the table knows, with their suffix letters; any other type
/// gives a default shape with no faces and no node count.
shp_Shape ShapeOfElementType(const cow_String& type);

/// The form of every element type: letters, digits, "_" and "-" (the type
/// stands bare on its "*Element" line), as a JSON Schema pattern.
inline constexpr std::string_view ElementTypePattern = "^[A-Za-z0-9_-]+$";

/// True for a type of that form.
bool IsWellFormedElementType(std::string_view type);

/// The element types that keydeck knows by name, each one with a shape in
/// the table of `ShapeOfElementType`. Matching is case-sensitive.
std::span<const std::string_view> KnownElementTypes();

/// True for a type in `KnownElementTypes()`.
bool IsKnownElementType(std::string_view type);

/// True for the type of a user element: "U" and a number ("U1", "U202").
bool IsUserElementType(std::string_view type);

/// The facet id (0-based) of a face label on an element of that shape:
/// "S1".."Sn" on solids and plane elements, "SPOS"/"SNEG" on shells and on
/// surfaces in space, "END1"/"END2" on lines; -1 when the label does not fit.
int FacetIdOfFaceLabel(const shp_Shape& shape, const cow_String& label);

/// The face labels that fit an element of that shape, for messages: "S1 to
/// S6", "SPOS and SNEG", "END1 and END2"; empty for a shape without faces.
std::string FaceLabelsOf(const shp_Shape& shape);

} // namespace keydeck
