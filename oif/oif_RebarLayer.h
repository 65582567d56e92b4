#pragma once

#include "base/cow_String.h"
#include "model/sections.h"
#include "qkw/qkw_Keyword.h"

/// "*Rebar Layer" blocks of a shell section: one block for the layers that
/// follow the shell's own directions (with the card's orientation, if any),
/// then one block for each layer with an orientation of its own, whose
/// angle field stays empty. A shell without layers writes nothing.
class oif_RebarLayer : public qkw_Keyword {
public:
  /// `noAngle`: the position field of every line stays empty.
  oif_RebarLayer(const kseC_RebarLayers& rebar, const cow_String& orientationName, bool noAngle)
      : rebar_(rebar), orientationName_(orientationName), noAngle_(noAngle) {}
  qkw_Keyword* Copy() const override;
  void Write(utl_Stream& s) const override;

private:
  void WriteKeywordLine(utl_Stream& s, const cow_String& orientationName) const;
  void WriteLayer(utl_Stream& s, const kseC_RebarLayer& layer, bool withAngle) const;

  kseC_RebarLayers rebar_;
  cow_String orientationName_; ///< empty for none
  bool noAngle_;
};
