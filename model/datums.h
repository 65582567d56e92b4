#pragma once

#include "base/cow_String.h"
#include "base/gsl_Matrix.h"
#include "base/gsl_Vector.h"
#include "model/records.h"

#include <array>

/// A reference from a record to a datum of the model: its id, 0 for none.
class dtmC_DatumRef {
public:
  dtmC_DatumRef() = default;
  explicit dtmC_DatumRef(int id) : id_(id) {}
  bool IsNullRef() const { return id_ == 0; }
  /// The id that `ddb_Model::datum` takes.
  int Id() const { return id_; }
  friend bool operator==(const dtmC_DatumRef&, const dtmC_DatumRef&) = default;

private:
  int id_ = 0;
};

/// What a datum is. The database stores coordinate systems only.
enum dtu_DatumType : int { dtu_CoordinateSystem = 4 };

/// The kind of a datum coordinate system.
enum dtu_DatumCsysType : int {
  dtu_Rectangular = 1,
  dtu_Cylindrical = 2,
  dtu_Spherical = 3,
};

// The cards spell each kind in two ways of their own, so the deck texts
// here are the solver's names of the systems.
template <> struct keydeck::EnumTable<dtu_DatumCsysType> {
  static constexpr std::string_view Noun = "coordinate system type";
  static constexpr EnumEntry<dtu_DatumCsysType> Entries[] = {
      {dtu_Rectangular, "RECTANGULAR", "rectangular"},
      {dtu_Cylindrical, "CYLINDRICAL", "cylindrical"},
      {dtu_Spherical, "SPHERICAL", "spherical"},
  };
};

/// A datum coordinate system. The file gives its origin, a point on its x
/// axis and a point in its x-y plane; the loader derives the three unit axes
/// from them (x towards the first point, z normal to the plane of the three
/// points, y completing a right-handed system) and checks that the first
/// point is apart from the origin and that the three points span a plane.
/// For a cylindrical or spherical system, z is the polar axis.
class ddb_DatumCsys {
public:
  static constexpr const char* Description =
      "a datum coordinate system given by its origin, a point on its x axis and a point in "
      "its x-y plane";
  const gsl_Point& GetOrigin() const { return origin_; }
  const gsl_Vector& GetXaxis() const { return xAxis_; }
  const gsl_Vector& GetYaxis() const { return yAxis_; }
  const gsl_Vector& GetZaxis() const { return zAxis_; }
  dtu_DatumCsysType GetCsysType() const { return type_; }

  template <class V> void Fields(V& v) {
    v({"type", "the kind of coordinate system; z is the polar axis of the curved ones"}, type_);
    v({"origin", "the origin of the system"}, originPoint_, std::array<double, 3>{0, 0, 0});
    v({"point1", "a point on the x axis, apart from the origin"}, point1_);
    v({"point2", "a point in the x-y plane, off the x axis, on the side of positive y"}, point2_);
  }

  /// Derives the axes from the three points; false when the first point is
  /// the origin (`zeroAxis`) or the points do not span a plane.
  bool DeriveAxes(bool& zeroAxis);
  /// Moves the system by a rigid motion.
  void Move(const gsl_Matrix& matrix);

private:
  dtu_DatumCsysType type_ = dtu_Rectangular;
  std::array<double, 3> originPoint_{0, 0, 0};
  std::array<double, 3> point1_{1, 0, 0};
  std::array<double, 3> point2_{0, 1, 0};
  // Derived after loading:
  gsl_Point origin_;
  gsl_Vector xAxis_{1, 0, 0};
  gsl_Vector yAxis_{0, 1, 0};
  gsl_Vector zAxis_{0, 0, 1};
};

/// A datum of the model as the writer reaches it by id: its name and its
/// coordinate system, in the frame of the block that refers to it (a part's
/// own datum in the part's frame, an instance's datum in the assembly's).
class ddb_Datum {
public:
  ddb_Datum() = default;
  ddb_Datum(const cow_String& name, const ddb_DatumCsys& csys) : name_(name), csys_(csys) {}

  /// Always a coordinate system: the database stores no other datum.
  dtu_DatumType GetDatumType() const { return dtu_CoordinateSystem; }
  /// Moves the datum by a rigid motion, as into the frame of the assembly.
  void TransformData(const gsl_Matrix& matrix) { csys_.Move(matrix); }
  const ddb_DatumCsys& CvtDatumCsys() const { return csys_; }
  /// The datum's name: its key; "instance_datum" for a part's datum as an
  /// instance places it in the assembly (an underscore, since a dot in a
  /// deck name scopes a set).
  const cow_String& Shortcut() const { return name_; }

private:
  cow_String name_;
  ddb_DatumCsys csys_;
};
