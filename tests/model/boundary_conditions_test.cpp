// Boundary conditions read from the model file: the propagation rule row by
// row, and what the loader completes (region, datum) after reading.
#include "model/boundary_conditions.h"
#include "tests/model/loading.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace keydeck;
using namespace keydeck::test;

namespace {

std::string ModelWith(const std::string& steps, const std::string& conditions) {
  return InModel(R"({
    "parts": {"Beam": {"nodes": {"labels": [1, 2], "coordinates": [[0, 0, 0], [1, 0, 0]]},
                       "sets": {"Tip": {"nodes": [2]}},
                       "datums": {"Cyl": {"type": "cylindrical", "point1": [1, 0, 0],
                                          "point2": [0, 1, 0]}}}},
    "assembly": {"instances": {"Beam-1": {"part": "Beam"}},
                 "sets": {"Ends": {"nodes": [{"instance": "Beam-1", "labels": [1, 2]}]}},
                 "datums": {"Rect": {"type": "rectangular", "point1": [1, 0, 0],
                                     "point2": [0, 1, 0]}}},
    "amplitudes": {"Ramp": {"type": "tabular", "data": [0, 0, 1, 1]}},
    "steps": )" + steps +
                 R"(, "boundaryConditions": )" + conditions + "}");
}

const char* const EightSteps = R"([{"name": "Initial"},
    {"name": "S1", "procedure": "static"}, {"name": "S2", "procedure": "static"},
    {"name": "S3", "procedure": "static"}, {"name": "S4", "procedure": "static"},
    {"name": "S5", "procedure": "static"}, {"name": "S6", "procedure": "static"},
    {"name": "S7", "procedure": "static"}])";

// One row of the rule: the status in a step and the states of u1 and of the
// amplitude there, with the value of u1.
struct Row {
  const char* step;
  mdl_PropagationStatusEnm status;
  mdl_PropAttributeStateEnm u1;
  mdl_PropAttributeStateEnm amplitude;
  double value;
};

TEST(BoundaryConditionRecords, PropagationRuleFromTheFileRowByRow) {
  const odb_Odb odb = Load(ModelWith(EightSteps, R"({"Pull": {
      "type": "displacement", "region": "Beam-1.Tip", "createdIn": "S1", "u1": 1,
      "steps": {"S3": {"u1": 2}, "S4": {"status": "deactivated"},
                "S6": {"status": "created", "amplitude": "Ramp"},
                "S7": {"status": "propagatedBase"}}}})"));
  const kbcC_BC& bc = OnlyModel(odb).boundaryConditions().ConstGet("Pull");
  const auto& pull = RecordCast<kbcC_DisplacementBC>(bc);
  const auto unset = mdl_AttributeUnset;
  const auto set = mdl_AttributeSet;
  const auto inherited = mdl_AttributePropagated;
  const Row rows[] = {
      {"Initial", PropNotInForce, unset, unset, 0},        // before the creating step
      {"S1", PropCreated, set, unset, 1},                  // created
      {"S2", PropPropagated, inherited, unset, 1},         // no entry
      {"S3", PropModified, set, unset, 2},                 // sets u1
      {"S4", PropDeactivated, inherited, unset, 2},        // deactivated
      {"S5", PropNotInForce, inherited, unset, 2},         // after the deactivation
      {"S6", PropCreated, inherited, set, 2},              // created again, with what it had
      {"S7", PropPropagatedBase, inherited, inherited, 2}, // an explicit status word
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.step);
    EXPECT_EQ(bc.Status(row.step), row.status);
    const kbcC_DisplacementState& state = pull.ConstGetState(row.step);
    EXPECT_EQ(state.Real(0).State(), row.u1);
    EXPECT_EQ(state.amplitude.State(), row.amplitude);
    EXPECT_EQ(state.Real(0).ConstGet(), row.value);
    EXPECT_EQ(state.Real(1).State(), unset); // never given
  }
  EXPECT_EQ(bc.BCState("S6").amplitude.ConstGet(), "Ramp");
}

TEST(BoundaryConditionRecords, RegionsAndDatumsResolvedByScopedName) {
  const odb_Odb odb = Load(ModelWith(R"([{"name": "Initial"}])", R"({
      "A": {"type": "symmetry", "region": "Ends", "createdIn": "Initial", "symmetry": "xSymmetry",
            "csys": "Rect"},
      "B": {"type": "temperature", "region": "Beam-1.Tip", "createdIn": "Initial",
            "magnitude": 20, "csys": "Beam-1.Cyl"}})"));
  const ddb_Model& model = OnlyModel(odb);
  const kbcC_BC& a = model.boundaryConditions().ConstGet("A");
  const kbcC_BC& b = model.boundaryConditions().ConstGet("B");
  EXPECT_EQ(a.region.Path(), "rootAssembly.setData");
  EXPECT_EQ(b.region.Path(), "rootAssembly.mesh[1].setData");
  EXPECT_EQ(a.region.ConstSet().Name(), "Ends");
  EXPECT_EQ(b.region.ConstSet().Name(), "Tip");
  // A part's datum reaches the assembly under the instance's name.
  EXPECT_EQ(model.datum(a.csys.Id()).Shortcut(), "Rect");
  EXPECT_EQ(model.datum(b.csys.Id()).Shortcut(), "Beam-1_Cyl");
  EXPECT_EQ(model.datum(b.csys.Id()).CvtDatumCsys().GetCsysType(), dtu_Cylindrical);
}

} // namespace
