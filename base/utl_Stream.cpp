#include "base/utl_Stream.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <string_view>

// Room for any `%g` numeral of at most 17 digits ("-0.000123456789012345678",
// "-1.7976931348623157e+308") and the "." that the deck's form may add.
static constexpr std::size_t MaxRealChars = 32;
static constexpr int MaxRealDigits = 17; // more digits tell nothing about a double
// Below this many bytes a buffer could not hold a waiting keyword line.
static constexpr std::size_t MinBufferSize = 256;

// The deck's real form of the `%g` numeral in [first, last): negative zero
// becomes "0" and a numeral of digits alone gets a "." so that the solver
// reads a real. Anything else ("0.5", "1e-10", "inf") is a real already.
// Returns the new end; writes at most one byte at `last`.
static char* ToDeckReal(char* first, char* last) {
  if (first == last)
    return last;
  if (last - first == 2 && first[0] == '-' && first[1] == '0') {
    first[0] = '0';
    last = first + 1;
  }
  for (const char* c = first; c != last; ++c)
    if ((*c < '0' || *c > '9') && *c != '-' && *c != '+')
      return last;
  *last = '.';
  return last + 1;
}

utl_Stream::utl_Stream(qio_ostream& os, int lineLimit, [[maybe_unused]] int intLayout,
                       int realLayout, std::size_t bufferSize)
    : os_(os), lineLimit_(static_cast<std::size_t>(std::max(lineLimit, 0))),
      realDigits_(std::clamp(realLayout, 1, MaxRealDigits)) {
  assert(intLayout == 6 && "the one integer layout of the deck");
  // A keyword line waiting at a mark must fit twice over, so that passing
  // the buffer on never has to judge a line before its time.
  capacity_ = std::max({bufferSize, MinBufferSize, 2 * lineLimit_ + MinBufferSize});
  buffer_ = std::make_unique_for_overwrite<char[]>(capacity_ + Spare);
  pos_ = buffer_.get();
  end_ = pos_ + capacity_;
}

utl_Stream::~utl_Stream() {
  if (closed_)
    return;
  try {
    Close();
  } catch (...) {
    // The stream may be going away while an earlier failure unwinds; a second
    // exception would end the program. Whoever wants the outcome calls Close.
  }
}

utl_Stream& utl_Stream::Print(double value, int width, int precision) {
  PrintReal(value, width, precision);
  return *this;
}

utl_Stream& utl_Stream::Print(float value, int width, int precision) {
  PrintReal(value, width, precision);
  return *this;
}

template <class Real> void utl_Stream::PrintReal(Real value, int width, int precision) {
  if (std::fabs(value) < smallReal_)
    value = 0;
  char text[MaxRealChars];
  char* const last = std::to_chars(text, text + MaxRealChars - 1, value, std::chars_format::general,
                                   std::clamp(precision, 1, MaxRealDigits))
                         .ptr;
  PutPadded(text, static_cast<std::size_t>(ToDeckReal(text, last) - text), width);
}

void utl_Stream::FixNumericString(char* text, int width) {
  char* const end = text + std::strlen(text);
  char* first = text;
  while (first != end && *first == ' ')
    ++first;
  const std::size_t length = static_cast<std::size_t>(ToDeckReal(first, end) - first);
  const std::size_t columns = std::max(static_cast<std::size_t>(std::max(width, 0)), length);
  std::memmove(text + columns - length, first, length);
  std::memset(text, ' ', columns - length);
  text[columns] = '\0';
}

void utl_Stream::LineBreak() {
  if (mark_ != nullptr)
    JudgeMark(/*atMark=*/false);
  Reserve(1);
  *pos_++ = '\n';
}

void utl_Stream::OptionalLineBreak() {
  if (mark_ != nullptr)
    JudgeMark(/*atMark=*/true);
  // A break turns the byte before the mark into the line end, so that byte
  // must still be in the buffer.
  mark_ = pos_ != buffer_.get() ? pos_ : nullptr;
}

void utl_Stream::Flush() { PassBuffer(); }

void utl_Stream::Close() {
  if (closed_)
    return;
  closed_ = true;
  if (mark_ != nullptr)
    JudgeMark(/*atMark=*/false);
  PassBuffer();
  os_.Close();
}

utl_Stream& endl(utl_Stream& s) {
  s.LineBreak();
  return s;
}

// Settles the mark: breaks the line there when the line, ending at the
// current position, would be longer than the limit. A mark that a line end
// has been written after (or right before) no longer stands on this line and
// is dropped.
void utl_Stream::JudgeMark(bool atMark) {
  char* mark = mark_;
  mark_ = nullptr;
  char* const first = buffer_.get();
  const std::string_view buffered(first, static_cast<std::size_t>(pos_ - first));
  const std::size_t lineEnd = buffered.rfind('\n');
  std::size_t columns = passedColumns_ + buffered.size();
  if (lineEnd != std::string_view::npos) {
    if (first + lineEnd + 1 >= mark)
      return;
    columns = buffered.size() - lineEnd - 1;
  }
  if (atMark && pos_[-1] == ' ')
    --columns; // a break here would drop the blank of the ", "
  if (columns <= lineLimit_)
    return;
  if (mark[-1] != ' ' && pos_ == end_) {
    // No room to insert the line end: pass on the text before the mark first.
    mark_ = mark;
    PassBuffer();
    if (mark_ == nullptr)
      return; // PassBuffer has broken the line itself
    mark = mark_;
    mark_ = nullptr;
  }
  BreakAt(mark);
}

// The blank of the ", " before the mark becomes the line end; without such a
// blank a line end is inserted at the mark.
void utl_Stream::BreakAt(char* mark) {
  if (mark[-1] == ' ') {
    mark[-1] = '\n';
    return;
  }
  std::memmove(mark + 1, mark, static_cast<std::size_t>(pos_ - mark));
  *mark = '\n';
  ++pos_;
}

// Passes the buffer on. The text of a line after a mark that is still to be
// judged stays, with the byte before the mark, unless it is longer than half
// the buffer: then the line is surely too long and is broken at the mark now,
// as its judging would do.
void utl_Stream::PassBuffer() {
  char* const first = buffer_.get();
  char* keep = pos_;
  if (mark_ != nullptr) {
    const std::string_view tail(mark_ - 1, static_cast<std::size_t>(pos_ - (mark_ - 1)));
    if (tail.find('\n') != std::string_view::npos) {
      mark_ = nullptr;
    } else if (tail.size() > capacity_ / 2) {
      BreakAt(mark_);
      mark_ = nullptr;
      keep = pos_;
    } else {
      keep = mark_ - 1;
    }
  }
  const std::string_view passed(first, static_cast<std::size_t>(keep - first));
  os_.Write(passed.data(), passed.size());
  const std::size_t lineEnd = passed.rfind('\n');
  passedColumns_ = lineEnd == std::string_view::npos ? passedColumns_ + passed.size()
                                                     : passed.size() - lineEnd - 1;
  const std::size_t held = static_cast<std::size_t>(pos_ - keep);
  std::memmove(first, keep, held);
  pos_ = first + held;
  if (mark_ != nullptr)
    mark_ = first + 1;
}

void utl_Stream::MakeRoom(std::size_t size) {
  PassBuffer();
  if (static_cast<std::ptrdiff_t>(size) > end_ - pos_)
    Grow(size); // only a number in a field wider than the buffer gets here
}

void utl_Stream::Grow(std::size_t size) {
  const std::size_t held = static_cast<std::size_t>(pos_ - buffer_.get());
  const std::size_t capacity = std::max(2 * capacity_, held + size);
  auto buffer = std::make_unique_for_overwrite<char[]>(capacity + Spare);
  std::memcpy(buffer.get(), buffer_.get(), held);
  if (mark_ != nullptr)
    mark_ = buffer.get() + (mark_ - buffer_.get());
  buffer_ = std::move(buffer);
  capacity_ = capacity;
  pos_ = buffer_.get() + held;
  end_ = buffer_.get() + capacity_;
}

void utl_Stream::AppendLong(const char* text, std::size_t size) {
  while (size > 0) {
    if (pos_ == end_)
      PassBuffer(); // leaves at least half the buffer free
    const std::size_t chunk = std::min(size, static_cast<std::size_t>(end_ - pos_));
    std::memcpy(pos_, text, chunk);
    pos_ += chunk;
    text += chunk;
    size -= chunk;
  }
}
