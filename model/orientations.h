#pragma once

#include "base/cow_List.h"
#include "base/cow_String.h"
#include "base/gsl_Vector.h"
#include "model/datums.h"
#include "model/records.h"
#include "model/regions.h"

#include <array>

/// The material orientation of the elements of a part's element set: a datum
/// coordinate system of the part, or none (the user's own system), and an
/// additional rotation of `angle` degrees about one of the system's local
/// axes.
class ptoC_MaterialOrientation {
public:
  /// The local axis of the additional rotation.
  enum axisEnm : int { Axis1 = 0, Axis2 = 1, Axis3 = 2 };

  static constexpr const char* Description =
      "the local material directions of an element set of the part";

  template <class V> void Fields(V& v) {
    v({"region", "the name of an element set of the part"}, regionName_);
    v({"datum", "the name of a datum of the part; none for the user's own directions"}, datumName_,
      cow_String());
    v({"axis", "the local axis of the additional rotation"}, axis, Axis1);
    v({"angle", "the additional rotation about that axis, in degrees"}, angle, 0.0);
  }

  cow_String regionName_; ///< an element set of the part
  cow_String datumName_;  ///< a datum of the part; empty for none
  dtmC_DatumRef csys;     ///< derived after loading from `datumName_`
  axisEnm axis = Axis1;
  double angle = 0;
};

template <> struct keydeck::EnumTable<ptoC_MaterialOrientation::axisEnm> {
  static constexpr std::string_view Noun = "rotation axis";
  static constexpr EnumEntry<ptoC_MaterialOrientation::axisEnm> Entries[] = {
      {ptoC_MaterialOrientation::Axis1, "1", "axis1"},
      {ptoC_MaterialOrientation::Axis2, "2", "axis2"},
      {ptoC_MaterialOrientation::Axis3, "3", "axis3"},
  };
};

/// The beam orientation of the elements of a part's element set: the
/// approximate direction of the beam cross-section's first axis, in the
/// part's frame. The loader refuses a direction of zero length.
class ptoC_BeamOrientation {
public:
  static constexpr const char* Description =
      "the approximate direction of the first section axis of the beams of an element set";
  gsl_Vector Direction() const { return {direction_[0], direction_[1], direction_[2]}; }

  template <class V> void Fields(V& v) {
    v({"region", "the name of an element set of the part"}, regionName_);
    v({"direction", "the approximate direction of the first section axis, in the part's frame, "
                    "of non-zero length"},
      direction_);
  }

  cow_String regionName_; ///< an element set of the part
  std::array<double, 3> direction_{0, 0, -1};
};

/// A beam orientation as an instance holds it: the region in the
/// instance's mesh and the part's record.
class ddb_BeamOrientation {
public:
  const rgnC_Region& region() const { return region_; }
  const ptoC_BeamOrientation& orientation() const { return orientation_; }

  rgnC_Region region_;
  ptoC_BeamOrientation orientation_;
};

/// A material orientation as an instance holds it: the region in the
/// instance's mesh and the part's record.
class ddb_MaterialOrientation {
public:
  const rgnC_Region& region() const { return region_; }
  const ptoC_MaterialOrientation& orientation() const { return orientation_; }

  rgnC_Region region_;
  ptoC_MaterialOrientation orientation_;
};

/// The orientations of one kind that an instance holds, in the part's order.
template <class T> class ddb_OrientationContainer {
public:
  int size() const { return entries_.Size(); }
  const T& get(int i) const { return entries_.ConstGet(i); }

  cow_List<T> entries_;
};

class ddb_BeamOrientationContainer : public ddb_OrientationContainer<ddb_BeamOrientation> {
public:
  const cow_List<ddb_BeamOrientation>& beamOrientations() const { return entries_; }
};

class ddb_MaterialOrientationContainer : public ddb_OrientationContainer<ddb_MaterialOrientation> {
public:
  const cow_List<ddb_MaterialOrientation>& materialOrientations() const { return entries_; }
};
