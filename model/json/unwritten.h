#pragma once

#include "model/database.h"
#include "model/materials.h"

#include <string>
#include <string_view>

// What a model file may hold that the deck does not write: record families
// and material behaviours the writer cannot write yet, which loading refuses,
// and material behaviours the deck leaves out on purpose, which loading
// accepts with a warning. The loader and the schema generator share these
// tables; an entry leaves them when the writer learns its family.
namespace keydeck {

/// The record that would hold a key of these tables.
enum class Holder { None, Model, Part, Assembly, Instance, Material, Step };

template <class R> constexpr Holder HolderOf = Holder::None;
template <> inline constexpr Holder HolderOf<ddb_Model> = Holder::Model;
template <> inline constexpr Holder HolderOf<ddb_Part> = Holder::Part;
template <> inline constexpr Holder HolderOf<ddb_Assembly> = Holder::Assembly;
template <> inline constexpr Holder HolderOf<ddb_PartInstance> = Holder::Instance;
template <> inline constexpr Holder HolderOf<kmaC_Material> = Holder::Material;

/// A family that the writer cannot write yet. Loading refuses it with its own
/// message, so that nobody takes it for a misspelling and no part of a model
/// vanishes from a deck unnoticed.
struct PendingFamily {
  Holder holder;
  std::string_view key;
  std::string_view words; // what the message calls it
};

inline constexpr PendingFamily PendingFamilies[] = {
    {Holder::Model, "fields", "fields"},
    {Holder::Model, "interactions", "interactions"},
    {Holder::Model, "interactionProperties", "interaction properties"},
    {Holder::Model, "connectorSections", "connector sections"},
    // What an analysis step writes before its output requests.
    {Holder::Step, "controls", "solution controls"},
    {Holder::Assembly, "nodes", "assembly nodes"},
    {Holder::Assembly, "elements", "assembly elements"},
    {Holder::Assembly, "connectors", "connectors"},
    {Holder::Material, "acousticMedium", "acoustic medium"},
    {Holder::Material, "capPlasticity", "cap plasticity"},
    {Holder::Material, "castIronPlasticity", "cast iron plasticity"},
    {Holder::Material, "clayPlasticity", "clay plasticity"},
    {Holder::Material, "concrete", "concrete"},
    {Holder::Material, "concreteDamagedPlasticity", "concrete damaged plasticity"},
    {Holder::Material, "conductivity", "conductivity"},
    {Holder::Material, "damping", "damping"},
    {Holder::Material, "depvar", "depvar"},
    {Holder::Material, "dielectric", "dielectric"},
    {Holder::Material, "diffusivity", "diffusivity"},
    {Holder::Material, "druckerPrager", "Drucker-Prager plasticity"},
    {Holder::Material, "electricalConductivity", "electrical conductivity"},
    {Holder::Material, "eos", "equation of state"},
    {Holder::Material, "expansion", "thermal expansion"},
    {Holder::Material, "foam", "crushable foam"},
    {Holder::Material, "heatGeneration", "heat generation"},
    {Holder::Material, "hyperelastic", "hyperelastic"},
    {Holder::Material, "hyperfoam", "hyperfoam"},
    {Holder::Material, "hypoelastic", "hypoelastic"},
    {Holder::Material, "inelasticHeatFraction", "inelastic heat fraction"},
    {Holder::Material, "jouleHeatFraction", "Joule heat fraction"},
    {Holder::Material, "mohrCoulomb", "Mohr-Coulomb plasticity"},
    {Holder::Material, "moistureSwelling", "moisture swelling"},
    {Holder::Material, "permeability", "permeability"},
    {Holder::Material, "piezoelectric", "piezoelectric"},
    {Holder::Material, "poreFluidExpansion", "pore fluid expansion"},
    {Holder::Material, "porousElastic", "porous elastic"},
    {Holder::Material, "porousMetalPlasticity", "porous metal plasticity"},
    {Holder::Material, "sorption", "sorption"},
    {Holder::Material, "swelling", "swelling"},
    {Holder::Material, "userDefinedField", "user-defined field"},
    {Holder::Material, "userMaterial", "user material"},
    {Holder::Material, "userOutputVariables", "user output variables"},
    {Holder::Material, "viscoelastic", "viscoelastic"},
};

/// A material behaviour that the deck leaves out on purpose: the solver never
/// sees it, whatever the file says of it.
struct DroppedOption {
  Holder holder;
  std::string_view key;
};

inline constexpr DroppedOption DroppedOptions[] = {
    {Holder::Material, "brittleCracking"},
    {Holder::Material, "damageInitiation"},
    {Holder::Material, "fluidLeakoff"},
    {Holder::Material, "gapConductance"},
    {Holder::Material, "gapConvection"},
    {Holder::Material, "gapFlow"},
    {Holder::Material, "gapRadiation"},
    {Holder::Material, "lowDensityFoam"},
    {Holder::Material, "magneticPermeability"},
    {Holder::Material, "meanFieldHomogenization"},
    {Holder::Material, "mullinsEffect"},
    {Holder::Material, "shear"},
    {Holder::Material, "softRockPlasticity"},
    {Holder::Material, "superElasticity"},
    {Holder::Material, "viscosity"},
};

/// The entry of `key` in a record of `holder`, or null.
constexpr const PendingFamily* FindPendingFamily(Holder holder, std::string_view key) {
  for (const PendingFamily& family : PendingFamilies)
    if (family.holder == holder && family.key == key)
      return &family;
  return nullptr;
}

constexpr bool IsDroppedOption(Holder holder, std::string_view key) {
  for (const DroppedOption& option : DroppedOptions)
    if (option.holder == holder && option.key == key)
      return true;
  return false;
}

/// The message that refuses a pending family: "loads are not supported yet",
/// "hyperelastic behaviour is not supported yet".
inline std::string PendingMessage(const PendingFamily& family) {
  return std::string(family.words) + (family.holder == Holder::Material
                                          ? " behaviour is not supported yet"
                                          : " are not supported yet");
}

/// The warning for a behaviour that the deck leaves out on purpose.
inline constexpr std::string_view DroppedWarning =
    "the deck leaves out this behaviour; the solver will not see it";

} // namespace keydeck
