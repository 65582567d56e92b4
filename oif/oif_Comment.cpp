#include "oif/oif_Comment.h"

#include "base/utl_Stream.h"

#include <string_view>

qkw_Keyword* oif_Comment::Copy() const { return new oif_Comment(*this); }

void oif_Comment::Write(utl_Stream& s) const {
  const std::string_view text = text_.View();
  std::size_t position = 0;
  while (position < text.size()) {
    const std::size_t lineEnd = text.find('\n', position);
    const std::size_t segmentEnd = lineEnd == std::string_view::npos ? text.size() : lineEnd;
    s << "** ";
    s.Print(text.substr(position, segmentEnd - position)) << endl;
    if (lineEnd == text.size() - 1)
      s << "** " << endl;
    position = segmentEnd + 1;
  }
}
