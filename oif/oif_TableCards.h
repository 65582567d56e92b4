#pragma once

#include "model/materials.h"
#include "qkw/qkw_Keyword.h"

#include <algorithm>
#include <cstddef>
#include <optional>

class utl_Stream;

// The two shapes of table card that most material behaviours take, and the
// cards that are nothing but one of them under a keyword of their own.
namespace keydeck {

/// Shape A's table: the table of a behaviour with temperature and
/// field-variable columns. Without a temperature column the temperature slot
/// is left blank, so that the field variables keep their place.
void WriteDependentTable(utl_Stream& s, const kmaC_MaterialTable& table, int dependencies,
                         bool temperatureDependency);
/// Shape B's table: the table as it is, no blank columns.
void WritePlainTable(utl_Stream& s, const kmaC_MaterialTable& table);

/// Shape A: the keyword, "dependencies=" when there are field variables, the
/// line end, the dependent table.
void WriteDependentTableCard(utl_Stream& s, const char* keyword, int dependencies,
                             bool temperatureDependency, const kmaC_MaterialTable& table);
/// Shape B: the keyword, the line end, the plain table.
void WritePlainTableCard(utl_Stream& s, const char* keyword, const kmaC_MaterialTable& table);

/// Writes the card of an optional behaviour when the record has it.
template <class Card, class Record>
void WriteIfPresent(utl_Stream& s, const std::optional<Record>& option) {
  if (option)
    Card(*option).Write(s);
}

/// A keyword as a template argument: `oif_PlainTableCard<kmaC_Gel, "*Gel">`.
template <std::size_t N> struct KeywordLiteral {
  constexpr KeywordLiteral(const char (&text)[N]) { std::copy_n(text, N, chars); } // NOLINT
  char chars[N];
};

} // namespace keydeck

/// A Shape A card with no parameters of its own: the record's table under
/// `Keyword`, over temperature and field variables.
template <class Record, keydeck::KeywordLiteral Keyword>
class oif_DependentTableCard : public qkw_Keyword {
public:
  explicit oif_DependentTableCard(const Record& record) : record_(record) {}
  qkw_Keyword* Copy() const override { return new oif_DependentTableCard(*this); }
  void Write(utl_Stream& s) const override {
    keydeck::WriteDependentTableCard(s, Keyword.chars, record_.dependencies,
                                     record_.temperatureDependency, record_.table);
  }

private:
  Record record_;
};

/// A Shape B card with no parameters of its own: the record's plain table
/// under `Keyword`.
template <class Record, keydeck::KeywordLiteral Keyword>
class oif_PlainTableCard : public qkw_Keyword {
public:
  explicit oif_PlainTableCard(const Record& record) : record_(record) {}
  qkw_Keyword* Copy() const override { return new oif_PlainTableCard(*this); }
  void Write(utl_Stream& s) const override {
    keydeck::WritePlainTableCard(s, Keyword.chars, record_.table);
  }

private:
  Record record_;
};

using oif_Density = oif_DependentTableCard<kmaC_Density, "*Density">;
using oif_SpecificHeat = oif_DependentTableCard<kmaC_SpecificHeat, "*Specific Heat">;
using oif_Solubility = oif_DependentTableCard<kmaC_Solubility, "*Solubility">;
using oif_Potential = oif_DependentTableCard<kmaC_Potential, "*Potential">;
using oif_FailStress = oif_DependentTableCard<kmaC_FailStress, "*Fail Stress">;
using oif_FailStrain = oif_DependentTableCard<kmaC_FailStrain, "*Fail Strain">;

using oif_LatentHeat = oif_PlainTableCard<kmaC_LatentHeat, "*Latent Heat">;
using oif_Gel = oif_PlainTableCard<kmaC_Gel, "*Gel">;
using oif_DeformationPlasticity =
    oif_PlainTableCard<kmaC_DeformationPlasticity, "*Deformation Plasticity">;
using oif_PorousBulkModuli = oif_PlainTableCard<kmaC_PorousBulkModuli, "*Porous Bulk Moduli">;
using oif_CycledPlastic = oif_PlainTableCard<kmaC_CycledPlastic, "*Cycled Plastic">;
