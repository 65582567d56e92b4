#pragma once

#include <string>

class qkw_Keyword;
class odb_Odb;

namespace keydeck::test {

/// The text that one card writes to a fresh deck stream.
std::string DeckText(const qkw_Keyword& card);

/// The whole deck of a model of the database, written through the writer
/// into a temporary file and read back.
std::string DeckOfModel(const odb_Odb& odb, const char* modelName = "Default Model");

/// The bytes of a file; empty when it cannot be read.
std::string ReadFile(const std::string& path);

/// The deck without the lines that ask for no output, which every analysis
/// step without output requests writes: for tests of other cards of a step.
std::string WithoutNoOutputLines(std::string deck);

/// The deck from the first line that begins with `from` on, less the step
/// banners, "*Step" lines and static procedure cards; each "** STEP: NAME"
/// banner becomes a line "-- NAME". For tests of the cards a builder files
/// in each step.
std::string StepBlocks(const std::string& deck, const std::string& from);

/// The first line where two texts differ, as "line N: expected ... / got ...".
std::string FirstDifference(const std::string& expected, const std::string& actual);

} // namespace keydeck::test
