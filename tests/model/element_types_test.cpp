#include "model/element_types.h"

#include <gtest/gtest.h>

#include <string>

using namespace keydeck;

namespace {

TEST(ElementTypes, ShapesOfTheFamilies) {
  const struct {
    const char* type;
    int elementDimension;
    int faces;
    int fewestNodes;
    int mostNodes;
    const char* faceLabels;
  } cases[] = {
      // "C3D27" and "C3D15V" come before the family "C3D", "STRI65" before "S".
      {"C3D15V", 3, 5, 15, 18, "S1 to S5"}, {"C3D27R", 3, 6, 21, 27, "S1 to S6"},
      {"C3D10M", 3, 4, 10, 10, "S1 to S4"}, {"STRI65", 2, 2, 6, 6, "SPOS and SNEG"},
      {"CAX6", 2, 3, 6, 6, "S1 to S3"},     {"B31", 1, 2, 2, 3, "END1 and END2"},
      {"B22", 1, 2, 3, 3, "END1 and END2"}, {"CONN3D2", 0, 0, 1, 2, ""},
      {"SFM3D4", 0, 0, 0, 0, ""},           {"S", 0, 0, 0, 0, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.type);
    const shp_Shape shape = ShapeOfElementType(c.type);
    EXPECT_EQ(shape.elementDimension, c.elementDimension);
    EXPECT_EQ(shape.faces, c.faces);
    EXPECT_EQ(shape.fewestNodes, c.fewestNodes);
    EXPECT_EQ(shape.mostNodes, c.mostNodes);
    EXPECT_EQ(FaceLabelsOf(shape), c.faceLabels);
  }
}

} // namespace
