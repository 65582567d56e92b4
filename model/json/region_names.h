#pragma once

#include "model/database.h"
#include "model/json/load_errors.h"
#include "model/regions.h"

#include <string_view>
#include <vector>

namespace keydeck {

/// Splits a scoped region name at its dots, "Beam-1.Tip" into "Beam-1" and
/// "Tip". A name that holds a dot is written in double quotes, and a dot
/// inside quotes does not split: "\"a.b\".Tip" gives "a.b" and "Tip". The
/// pieces point into `scopedName`. Returns false, with the reason in `why`,
/// when a quote is not closed or does not enclose a whole piece.
bool SplitScopedName(std::string_view scopedName, std::vector<std::string_view>& pieces,
                     std::string& why);

/// The region that a record names by `scopedName`: "Tip", a set or surface of
/// the assembly, or "Beam-1.Tip", one of instance Beam-1 (names quoted as
/// `SplitScopedName` reads them). The region's path is "rootAssembly.setData"
/// or "rootAssembly.mesh[N].setData" with N the instance's mesh index, its
/// set index the set's place in that list, and its set a copy of the set data.
/// The model must be derived (`DeriveModel`). A name that finds nothing adds
/// `path: what is wrong` to `errors` and gives a region without a set.
rgnC_Region ResolveRegion(const ddb_Model& model, std::string_view scopedName,
                          std::string_view path, LoadErrors& errors);

/// The datum coordinate system that a record names by `scopedName` in the
/// assembly's frame: "Datum" of the assembly or "Instance.Datum", which the
/// assembly holds as "Instance_Datum". A name that finds none adds
/// `path: no datum ...` to `errors` and gives a null reference.
dtmC_DatumRef ResolveDatum(const ddb_Model& model, std::string_view scopedName,
                           const std::string& path, LoadErrors& errors);

} // namespace keydeck
