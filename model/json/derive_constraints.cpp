#include "model/json/derive_constraints.h"

#include "model/constraints.h"
#include "model/json/json_text.h"
#include "model/json/region_names.h"

#include <string>

namespace keydeck {

namespace {

// The kinds of region a field accepts, as bits.
enum RegionKinds : unsigned {
  Node = 1u << res_NodeSet,
  Element = 1u << res_ElementSet,
  Surface = 1u << res_FacetSet
};

const char* KindWords(unsigned kinds) {
  switch (kinds) {
  case Node:
    return "a node set";
  case Element:
    return "an element set";
  case Surface:
    return "a surface";
  default:
    return "a surface or a node set";
  }
}

// Resolves a region that the record names; an empty optional name stays
// without a region.
class RegionDeriver {
public:
  RegionDeriver(const ddb_Model& model, std::string path, LoadErrors& errors)
      : model_(model), path_(std::move(path)), errors_(errors) {}

  void operator()(ConstraintRegion& field, const char* key, unsigned kinds,
                  const char* what) const {
    if (field.name.Empty())
      return;
    const std::string at = path_ + "/" + key;
    rgnC_Region region = ResolveRegion(model_, field.name.View(), at, errors_);
    if (!region.HasSet())
      return;
    const res_SetTypeEnm found = region.ConstSet().SetType();
    if ((kinds & (1u << found)) == 0) {
      const char* const foundWords[] = {"a node set", "an element set", "a surface"};
      errors_.Add(at, QuotedJson(field.name.View()) + " is " + foundWords[found] + "; " + what +
                          " must be " + KindWords(kinds));
      return;
    }
    field.region = std::move(region);
  }

  /// The datum system named in the field `key`, when one is named.
  void Datum(const DeckName& name, dtmC_DatumRef& datum, const char* key) const {
    if (!name.Empty())
      datum = ResolveDatum(model_, name.View(), path_ + "/" + key, errors_);
  }

  void Positive(double value, const char* key, const char* what) const {
    if (value != NotGivenDouble && !(value > 0))
      errors_.Add(path_ + "/" + key, std::string(what) + " must be above 0");
  }
  void NotNegative(double value, const char* key, const char* what) const {
    if (!(value >= 0))
      errors_.Add(path_ + "/" + key, std::string(what) + " must not be negative");
  }
  void Fault(const std::string& key, const char* what) const {
    errors_.Add(path_ + "/" + key, what);
  }

private:
  const ddb_Model& model_;
  std::string path_;
  LoadErrors& errors_;
};

void Derive(kcoC_Tie& tie, const RegionDeriver& derive) {
  derive(tie.master, "main", Surface, "the main region of a tie");
  derive(tie.slave, "secondary", Surface | Node, "the secondary region of a tie");
  derive.Positive(tie.positionTolerance, "positionTolerance", "the position tolerance");
  derive.NotNegative(tie.constraintRatio == NotGivenDouble ? 0 : tie.constraintRatio,
                     "constraintRatio", "the constraint ratio");
}

void Derive(kcoC_Coupling& coupling, const RegionDeriver& derive) {
  derive(coupling.refPoint, "referenceNode", Node, "the reference node of a coupling");
  derive(coupling.surface, "surface", Surface | Node, "the coupled region");
  derive.Positive(coupling.influenceRadius, "influenceRadius", "the influence radius");
  derive.Datum(coupling.orientationName, coupling.orientation, "orientation");
  // No degree of freedom would write the bare card, which means all six.
  if (!(coupling.u1 || coupling.u2 || coupling.u3 || coupling.ur1 || coupling.ur2 || coupling.ur3))
    derive.Fault("u1", "a coupling needs at least one degree of freedom");
}

void Derive(kcoC_RigidBody& body, const RegionDeriver& derive) {
  derive(body.refPoint, "referenceNode", Node, "the reference node of a rigid body");
  derive(body.elset, "elset", Element, "the elements of a rigid body");
  derive(body.tieRegion, "tieNodes", Node, "the tied nodes of a rigid body");
  derive(body.pinRegion, "pinNodes", Node, "the pinned nodes of a rigid body");
}

void Derive(kcoC_Equation& equation, const ddb_Model& model, const std::string& path,
            LoadErrors& errors) {
  if (equation.terms.Empty())
    errors.Add(path + "/terms", "an equation needs at least one term");
  for (int i = 0; i < equation.terms.Size(); ++i) {
    kcoC_EquationTerm& term = equation.terms.Get(i);
    const RegionDeriver derive(model, path + "/terms/" + std::to_string(i), errors);
    ConstraintRegion set{term.setName, {}};
    derive(set, "set", Node, "the set of an equation term");
    term.region = std::move(set.region);
    derive.Datum(term.csysName, term.csys, "csys");
    if (term.dof < 1 || term.dof > 6)
      derive.Fault("dof", "the degree of freedom must be 1 to 6");
    if (i == 0 && term.coefficient == 0)
      derive.Fault("coefficient", "the first coefficient of an equation must not be 0");
  }
}

void Derive(kcoC_EmbeddedRegion& embedded, const RegionDeriver& derive) {
  derive(embedded.host, "host", Element, "the host of an embedded region");
  derive(embedded.embedded, "embedded", Element, "the embedded region");
  derive.NotNegative(embedded.exteriorTolerance, "exteriorTolerance", "the exterior tolerance");
  derive.NotNegative(embedded.absoluteExteriorTolerance, "absoluteExteriorTolerance",
                     "the absolute exterior tolerance");
  derive.NotNegative(embedded.roundoffTolerance, "roundoffTolerance", "the roundoff tolerance");
}

} // namespace

void DeriveConstraints(std::string_view modelPath, ddb_Model& model, LoadErrors& errors) {
  mdl_MapString2ObjCow<kcoC_Constraint>& constraints = model.constraints_;
  for (const cow_String& name : constraints.Keys()) {
    auto handle = constraints.ConstGetMap().ConstGet(name);
    const std::string path = std::string(modelPath) + "/constraints/" + std::string(name.View());
    VisitTypeIdClass<kcoC_Constraint>(handle->DynTypeId(), [&](auto type) {
      using K = typename decltype(type)::type;
      K& record = RecordCast<K>(handle.Get());
      if constexpr (std::is_same_v<K, kcoC_Equation>)
        Derive(record, model, path, errors);
      else
        Derive(record, RegionDeriver(model, path, errors));
    });
    constraints.Insert(name, std::move(handle));
  }
}

} // namespace keydeck
