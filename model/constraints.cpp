#include "model/constraints.h"

namespace {

// The region when it is a node set, which the deck names as a node-based
// surface; a surface stands under its own name.
void AppendIfNodeSet(const rgnC_Region& region, cow_List<rgnC_Region>& out) {
  if (region.HasSet() && region.ConstSet().SetType() == res_NodeSet)
    out.Append(region);
}

} // namespace

cow_List<rgnC_Region> kcoC_Tie::NodeSurfaceRegions() const {
  cow_List<rgnC_Region> regions; // the main region is always a surface
  AppendIfNodeSet(slave.region, regions);
  return regions;
}

cow_List<rgnC_Region> kcoC_Coupling::NodeSurfaceRegions() const {
  cow_List<rgnC_Region> regions;
  AppendIfNodeSet(surface.region, regions);
  return regions;
}
