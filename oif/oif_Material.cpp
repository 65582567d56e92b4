#include "oif/oif_Material.h"

#include "base/utl_Stream.h"
#include "oif/oif_Creep.h"
#include "oif/oif_Elastic.h"
#include "oif/oif_Parameters.h"
#include "oif/oif_Plastic.h"
#include "oif/oif_TableCards.h"
#include "oif/oif_Viscous.h"
#include "qkw/qkw_QuorvexName.h"

using namespace keydeck;

namespace {

using BehaviourWriter = void (*)(utl_Stream&, const kmaC_Material&);

template <auto Option, class Card> void WriteOption(utl_Stream& s, const kmaC_Material& material) {
  WriteIfPresent<Card>(s, material.*Option);
}

void WriteElastic(utl_Stream& s, const kmaC_Material& material) {
  // The model has no viscoelastic behaviour yet, so the moduli stay unnamed.
  if (material.elastic)
    oif_Elastic(*material.elastic, /*hasViscoelastic=*/false).Write(s);
}

// The order of a material's behaviours in the deck. It looks alphabetical
// but is not, and the solver expects it as it stands. The numbers are the
// places in the full order of 46 behaviours; the ones the model does not
// have yet go into their places as they come.
constexpr BehaviourWriter BehaviourOrder[] = {
    WriteOption<&kmaC_Material::creep, oif_Creep>,                                 // 6
    WriteOption<&kmaC_Material::deformationPlasticity, oif_DeformationPlasticity>, // 8
    WriteOption<&kmaC_Material::density, oif_Density>,                             // 9
    WriteElastic,                                                                  // 14
    WriteOption<&kmaC_Material::gel, oif_Gel>,                                     // 19
    WriteOption<&kmaC_Material::latentHeat, oif_LatentHeat>,                       // 26
    WriteOption<&kmaC_Material::plastic, oif_Plastic>,                             // 30
    WriteOption<&kmaC_Material::porousBulkModuli, oif_PorousBulkModuli>,           // 32
    WriteOption<&kmaC_Material::solubility, oif_Solubility>,                       // 35
    WriteOption<&kmaC_Material::specificHeat, oif_SpecificHeat>,                   // 37
    WriteOption<&kmaC_Material::viscous, oif_Viscous>,                             // 44
};

} // namespace

qkw_Keyword* oif_Material::Copy() const { return new oif_Material(*this); }

void oif_Material::Write(utl_Stream& s) const {
  s << "*Material, name=" << qkw_QuorvexName(name_, false);
  WriteRegularization(s);
  s.LineBreak();
  for (const BehaviourWriter write : BehaviourOrder)
    write(s, material_);
}

void oif_Material::WriteRegularization(utl_Stream& s) const {
  if (!material_.regularization)
    return;
  // These two parameters never break the line.
  const kmaC_Regularization& regularization = *material_.regularization;
  if (regularization.rtol != kmaC_Regularization::rtolDef)
    s << ", rtol=" << regularization.rtol;
  if (regularization.strainRateRegularization != kmaC_Regularization::Logarithmic)
    s << ", strain rate regularization=" << EnumDeckText(regularization.strainRateRegularization);
}
