#pragma once

#include "base/cow_COW.h"
#include "base/cow_String.h"
#include "base/gsl_Vector.h"
#include "model/profiles.h"
#include "model/sections.h"

class utl_Stream;

/// What a beam section card and a beam general section card share: the
/// keyword line with its parameters (each of which brings its own trailing
/// ", "), the profile's "section=" and data line, the direction line and the
/// fluid inertia. Five hooks differ between the two cards.
class oif_BeamSectionCommon {
public:
  virtual ~oif_BeamSectionCommon() = default;

protected:
  /// `profile` null when the model has none of the section's name: the deck
  /// then says the profile is illegal.
  oif_BeamSectionCommon(const char* keyword, const cow_String& elsetName,
                        const kseC_Section& section, const gsl_Vector& direction,
                        const kbpC_BeamProfile* profile);
  oif_BeamSectionCommon(const oif_BeamSectionCommon&) = default;

  /// The whole card; nothing for a section that is not a beam section.
  void WriteData(utl_Stream& s) const;
  const kseC_BeamSection& Section() const;
  /// The profile; only for a card that has one.
  const kbpC_BeamProfile& Profile() const { return *profile_; }

  /// A generalized profile cannot go with an integrated section: an error
  /// line in the deck.
  virtual void WriteGeneralizedProfile(utl_Stream& s) const;
  virtual void WriteDensity(utl_Stream&) const {}
  virtual void WriteOptions(utl_Stream&) const {}
  virtual void WriteTempData(utl_Stream& s) const = 0;
  virtual void WriteMaterialBehavior(utl_Stream& s) const = 0;

private:
  void WriteProfile(utl_Stream& s) const;
  void WriteArbitraryProfile(utl_Stream& s) const;
  void WriteBoxProfile(utl_Stream& s) const;
  void WritePoissons(utl_Stream& s) const;
  void DumpOrientation(utl_Stream& s) const;
  void WriteFluidInertia(utl_Stream& s) const;

  cow_String elsetName_;
  cow_String keyword_;
  cow_ArrayCOW<kseC_Section> section_;
  gsl_Vector direction_;
  cow_ArrayCOW<kbpC_BeamProfile> profile_; ///< empty when the model has none
};
