#include "oif/oif_TransformBuilder.h"

#include "model/boundary_conditions.h"
#include "model/constraints.h"
#include "oif/oif_ModelInfo.h"
#include "oif/oif_Nset.h"
#include "oif/oif_Orientation.h"
#include "oif/oif_SetName.h"
#include "oif/oif_Transform.h"

oif_TransformBuilder::oif_TransformBuilder(oif_ModelInfo& info) : qkw_BuilderComponent(info) {}

qkw_BuilderComponent* oif_TransformBuilder::Copy() const { return new oif_TransformBuilder(*this); }

void oif_TransformBuilder::Build() {
  CollectCsysRegionsList();
  AddTransforms();
  // The "*Orientation" cards of connector orientations (each datum and
  // additional rotation once, by `GetOrientationName`) are filed here, ahead
  // of those of couplings, when that family joins the model.
  AddCouplingOrientations();
  AddInertiaReliefOrientations();
}

// The objects that refer to a datum, in this order: boundary conditions by
// key, unsuppressed, with a datum or of the symmetry kind (collected even
// without one); concentrated forces and moments by key, unsuppressed, with a
// datum; then, in constraint name order, each equation term with a datum.
void oif_TransformBuilder::CollectCsysRegionsList() {
  for (const auto& [name, bc] : keydeck::FacadeOf(*model).BCs())
    if (!bc->IsSuppressed() && (!bc->csys.IsNullRef() || bc->DynTypeId() == kbcC_SymmetryType))
      AppendCsysRegion(bc->region, bc->csys);
  for (const auto& [name, load] : keydeck::FacadeOf(*model).Loads()) { // name order
    const unsigned type = load->DynTypeId();
    if (load->IsSuppressed() ||
        (type != kloC_ConcentratedForce::TypeId() && type != kloC_Moment::TypeId()))
      continue;
    const dtmC_DatumRef& csys = type == kloC_Moment::TypeId()
                                    ? keydeck::RecordCast<kloC_Moment>(*load).csys
                                    : keydeck::RecordCast<kloC_ConcentratedForce>(*load).csys;
    if (!csys.IsNullRef())
      AppendCsysRegion(load->region, csys);
  }
  for (const auto& [name, constraint] : keydeck::FacadeOf(*model).Constraints()) { // name order
    if (constraint->DynTypeId() != kcoC_Equation::TypeId())
      continue;
    for (const kcoC_EquationTerm& term : keydeck::RecordCast<kcoC_Equation>(*constraint).terms)
      if (!term.csys.IsNullRef())
        AppendCsysRegion(term.region, term.csys);
  }
}

void oif_TransformBuilder::AppendCsysRegion(const rgnC_Region& region, const dtmC_DatumRef& datum) {
  regions_.Append(region);
  datums_.Append(datum);
}

void oif_TransformBuilder::AddTransforms() {
  const int count = datums_.Size();
  cow_List<cow_List<cow_String>> setsByDatum = cow_List<cow_List<cow_String>>::WithCapacity(count);
  for (int i = 0; i < count; ++i)
    setsByDatum.Append(cow_List<cow_String>());
  for (int i = 0; i < count; ++i) {
    const cow_String setName =
        oif_SetName(regions_.ConstGet(i), *modelInfo).UniqueSetName(oif_SetName::AssemblyScope);
    setsByDatum.Get(FirstUserOfDatum(i)).AppendUnlessMember(setName);
  }
  const ddb_Model& database = keydeck::FacadeOf(*model).Model();
  for (int i = 0; i < count; ++i) {
    // A symmetry condition without a datum has no system to transform to.
    if (setsByDatum.ConstGet(i).Empty() || datums_.ConstGet(i).IsNullRef())
      continue;
    const cow_String name = ConstGetDatumName(datums_.ConstGet(i));
    AddAssemblyDefinition(oif_Nset(name, setsByDatum.ConstGet(i)));
    AddAssemblyDefinition(oif_Transform(database, datums_.ConstGet(i), name));
  }
}

int oif_TransformBuilder::FirstUserOfDatum(int index) const {
  int first = 0;
  while (!(datums_.ConstGet(first) == datums_.ConstGet(index)))
    ++first;
  return first;
}

cow_String oif_TransformBuilder::ConstGetDatumName(const dtmC_DatumRef& datum) const {
  return "_T-" + oif_SetName::Unquote(modelInfo->GetOrientationName(datum, 0.0, ""));
}

void oif_TransformBuilder::AddCouplingOrientations() {
  for (const auto& [name, constraint] : keydeck::FacadeOf(*model).Constraints()) // name order
    if (constraint->DynTypeId() == kcoC_Coupling::TypeId())
      AddOrientation(keydeck::RecordCast<kcoC_Coupling>(*constraint).orientation);
}

void oif_TransformBuilder::AddInertiaReliefOrientations() {
  for (const auto& [name, load] : keydeck::FacadeOf(*model).Loads()) // name order
    if (!load->IsSuppressed() && load->DynTypeId() == kloC_InertiaRelief::TypeId())
      AddOrientation(keydeck::RecordCast<kloC_InertiaRelief>(*load).csys);
}

void oif_TransformBuilder::AddOrientation(const dtmC_DatumRef& csys) {
  if (csys.IsNullRef())
    return;
  const cow_String orientation = modelInfo->GetOrientationName(csys, 0.0, "");
  if (orientationNames_.AppendUnlessMember(orientation))
    AddAssemblyDefinition(oif_Orientation(keydeck::FacadeOf(*model).Model(), csys, orientation,
                                          /*withRotationLine=*/true, 0.0,
                                          ptoC_MaterialOrientation::Axis1));
}
