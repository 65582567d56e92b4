#pragma once

#include "base/cow_String.h"
#include "model/materials.h"

// The deck texts of the material enumerations, held here until the model's
// enumeration tables carry them; then `EnumDeckText` finds them there and
// this file goes. Each text is the deck's own keyword word.
namespace keydeck {

inline cow_String EnumDeckText(kmaC_Elastic::TypeEnm value) {
  switch (value) {
  case kmaC_Elastic::Isotropic:
    return "ISOTROPIC";
  case kmaC_Elastic::Orthotropic:
    return "ORTHOTROPIC";
  case kmaC_Elastic::Anisotropic:
    return "ANISOTROPIC";
  case kmaC_Elastic::EngineeringConstants:
    return "ENGINEERING CONSTANTS";
  case kmaC_Elastic::Lamina:
    return "LAMINA";
  case kmaC_Elastic::Traction:
    return "TRACTION";
  case kmaC_Elastic::CoupledTraction:
    return "COUPLED TRACTION";
  }
  return "";
}

inline cow_String EnumDeckText(kmaC_Plastic::HardeningEnm value) {
  switch (value) {
  case kmaC_Plastic::IsotropicHardening:
    return "ISOTROPIC";
  case kmaC_Plastic::Kinematic:
    return "KINEMATIC";
  case kmaC_Plastic::Mixed:
    return "MIXED";
  case kmaC_Plastic::Combined:
    return "COMBINED";
  case kmaC_Plastic::JohnsonCookHardening:
    return "JOHNSON COOK";
  case kmaC_Plastic::User:
    return "USER";
  }
  return "";
}

inline cow_String EnumDeckText(kmaC_Plastic::DataTypeEnm value) {
  switch (value) {
  case kmaC_Plastic::NoDataType:
    return "";
  case kmaC_Plastic::HalfCycle:
    return "HALF CYCLE";
  case kmaC_Plastic::Stabilized:
    return "STABILIZED";
  case kmaC_Plastic::Parameters:
    return "PARAMETERS";
  }
  return "";
}

inline cow_String EnumDeckText(kmaC_Creep::LawEnm value) {
  switch (value) {
  case kmaC_Creep::Time:
    return "TIME";
  case kmaC_Creep::Strain:
    return "STRAIN";
  case kmaC_Creep::UserLaw:
    return "USER";
  case kmaC_Creep::Anand:
    return "ANAND";
  case kmaC_Creep::Hyperbolic:
    return "HYPERBOLIC";
  case kmaC_Creep::PowerLaw:
    return "POWER LAW";
  case kmaC_Creep::TimePowerLaw:
    return "TIME POWER LAW";
  case kmaC_Creep::DoublePowerLaw:
    return "DOUBLE POWER";
  }
  return "";
}

inline cow_String EnumDeckText(kmaC_Regularization::StrainRateRegularizationEnm value) {
  switch (value) {
  case kmaC_Regularization::Logarithmic:
    return "LOGARITHMIC";
  case kmaC_Regularization::Linear:
    return "LINEAR";
  }
  return "";
}

inline cow_String EnumDeckText(kmaC_ThicknessBehavior::VariableUnitsEnm value) {
  switch (value) {
  case kmaC_ThicknessBehavior::Stress:
    return "STRESS";
  case kmaC_ThicknessBehavior::Force:
    return "FORCE";
  }
  return "";
}

} // namespace keydeck
