#pragma once

#include <string>

class qkw_Keyword;

namespace keydeck::test {

/// The text that one card writes to a fresh deck stream.
std::string DeckText(const qkw_Keyword& card);

} // namespace keydeck::test
