#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "model/datums.h"
#include "model/regions.h"
#include "qkw/qkw_BuilderComponent.h"

class oif_ModelInfo;

/// Files, in the assembly section, the datum systems that model objects
/// refer to: for each datum, one "*Nset" of the sets of all regions that use
/// it (named "_T-" and the datum's name) and one "*Transform" on that set.
class oif_TransformBuilder : public qkw_BuilderComponent {
public:
  explicit oif_TransformBuilder(oif_ModelInfo& info);
  void Build() override;
  qkw_BuilderComponent* Copy() const override;

protected:
  /// Collects the region and datum of every object that refers to a datum,
  /// in deck order, through `AppendCsysRegion`.
  virtual void CollectCsysRegionsList();
  void AppendCsysRegion(const rgnC_Region& region, const dtmC_DatumRef& datum);

private:
  void AddTransforms();
  /// The "*Orientation" of each coupling's datum, then of each inertia
  /// relief load's datum, once per name.
  void AddCouplingOrientations();
  void AddInertiaReliefOrientations();
  /// The "*Orientation" card of a datum without an additional rotation,
  /// once per name; nothing for a null datum.
  void AddOrientation(const dtmC_DatumRef& csys);
  /// The smallest index whose datum is the datum of `index`.
  int FirstUserOfDatum(int index) const;
  cow_String ConstGetDatumName(const dtmC_DatumRef& datum) const;

  // Parallel lists: an object's region and its datum.
  cow_List<rgnC_Region> regions_;
  cow_List<dtmC_DatumRef> datums_;
  cow_List<cow_String> orientationNames_; ///< the orientations already filed
};
