#include "tests/support/deck_text.h"

#include "base/qio_ostream.h"
#include "base/utl_Stream.h"
#include "qkw/qkw_Keyword.h"

namespace keydeck::test {

std::string DeckText(const qkw_Keyword& card) {
  qio_ostringDeck text;
  {
    utl_Stream s(text, 131, 6, 6);
    card.Write(s);
    s.Close();
  }
  return text.Text();
}

} // namespace keydeck::test
