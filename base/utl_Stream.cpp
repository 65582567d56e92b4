#include "base/utl_Stream.h"

#include <algorithm>
#include <bit>
#include <cassert>
#include <cmath>
#include <cstdint>
#include <string_view>

static constexpr int MaxRealDigits = 17; // more digits tell nothing about a double
// Room for a few numbers at least.
static constexpr std::size_t MinBufferSize = 64;

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

// printf's "%.Pg" for P up to 9, the digits of node coordinates and of most
// data, is worked out here from one product with a power of ten; general
// conversion costs several times more. Powers up to 10^22 are exact doubles,
// so the product is off by half a unit in its last place at most, and its
// rounding to P digits is right unless it lies that close to a tie: such
// values, and all others, go to std::to_chars.
static constexpr int MaxQuickDigits = 9;
static constexpr int MaxExactPower = 22;
static constexpr double Powers[MaxExactPower + 1] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                                     1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                                     1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// Writes "%.Pg" of a finite nonzero magnitude at `out` and returns the end,
// or returns null where the quick way cannot be sure.
static char* QuickGeneral(char* out, double magnitude, int precision) {
  // floor(log10(2^e)) for the binary exponent e: the decimal exponent of the
  // magnitude or one less.
  const int binaryExponent =
      static_cast<int>((std::bit_cast<std::uint64_t>(magnitude) >> 52) & 0x7ff) - 1023;
  int exponent = (binaryExponent * 78913) >> 18;
  int scale = precision - 1 - exponent;
  if (scale <= -MaxExactPower || scale > MaxExactPower)
    return nullptr;
  double scaled = scale >= 0 ? magnitude * Powers[scale] : magnitude / Powers[-scale];
  if (scaled >= Powers[precision]) {
    ++exponent;
    --scale;
    scaled = scale >= 0 ? magnitude * Powers[scale] : magnitude / Powers[-scale];
  }
  const double whole = std::floor(scaled);
  const double fraction = scaled - whole;
  if (std::fabs(fraction - 0.5) <= scaled * 0x1p-50)
    return nullptr;
  auto digits = static_cast<std::uint64_t>(whole) + (fraction > 0.5 ? 1 : 0);
  if (static_cast<double>(digits) == Powers[precision]) { // rounded up to the next decade
    digits /= 10;
    ++exponent;
  }
  char text[MaxQuickDigits + 1];
  std::to_chars(text, text + sizeof text, digits);
  int kept = precision; // significant digits without trailing zeros
  while (kept > 1 && text[kept - 1] == '0')
    --kept;
  if (exponent < -4 || exponent >= precision) {
    *out++ = text[0];
    if (kept > 1) {
      *out++ = '.';
      out = std::copy(text + 1, text + kept, out);
    }
    *out++ = 'e';
    *out++ = exponent < 0 ? '-' : '+';
    const int power = exponent < 0 ? -exponent : exponent;
    if (power < 10)
      *out++ = '0';
    return std::to_chars(out, out + 3, power).ptr;
  }
  if (exponent < 0) {
    *out++ = '0';
    *out++ = '.';
    out = std::fill_n(out, -exponent - 1, '0');
    return std::copy(text, text + kept, out);
  }
  out = std::copy(text, text + exponent + 1, out);
  if (kept > exponent + 1) {
    *out++ = '.';
    out = std::copy(text + exponent + 1, text + kept, out);
  }
  return out;
}

// printf's "%.Pg" of `value`; `out` has room for any of them and one byte more.
static char* GeneralForm(char* out, double value, int precision) {
  if (value == 0) {
    *out = '0';
    return out + 1;
  }
  if (precision <= MaxQuickDigits && std::isfinite(value)) {
    if (char* const end = QuickGeneral(value < 0 ? out + 1 : out, std::fabs(value), precision)) {
      if (value < 0)
        *out = '-';
      return end;
    }
  }
  return std::to_chars(out, out + 30, value, std::chars_format::general, precision).ptr;
}

utl_Stream::utl_Stream(qio_ostream& os, int lineLimit, [[maybe_unused]] int intLayout,
                       int realLayout, std::size_t bufferSize)
    : os_(os), lineLimit_(static_cast<std::size_t>(std::max(lineLimit, 0))),
      realDigits_(std::clamp(realLayout, 1, MaxRealDigits)) {
  assert(intLayout == 6 && "the one integer layout of the deck");
  capacity_ = std::max(bufferSize, MinBufferSize);
  buffer_ = std::make_unique_for_overwrite<char[]>(capacity_);
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

// A float's "%g" text is that of the same value as a double.
void utl_Stream::PrintReal(double value, int width, int precision) {
  if (std::fabs(value) < smallReal_)
    value = 0;
  char text[NumberChars];
  char* const last = GeneralForm(text, value, std::clamp(precision, 1, MaxRealDigits));
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
  if (mark[-1] != ' ' && pos_ == end_) { // no room to insert the line end
    mark_ = mark;
    MakeRoom(1); // keeps the line from the byte before the mark, and moves it
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

// Passes the buffer on, but for the line after a mark still to be judged,
// which stays from the byte before the mark on. A line end written after the
// mark settles it for good (it no longer stands on the current line), so the
// text passed on never depends on when the buffer happens to fill.
void utl_Stream::PassBuffer() {
  char* const first = buffer_.get();
  char* keep = pos_;
  if (mark_ != nullptr) {
    const std::string_view tail(mark_ - 1, static_cast<std::size_t>(pos_ - (mark_ - 1)));
    if (tail.find('\n') == std::string_view::npos)
      keep = mark_ - 1;
    else
      mark_ = nullptr;
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

// A number in a field wider than the buffer, or a single line longer than
// it that waits at a mark, makes the buffer grow.
void utl_Stream::MakeRoom(std::size_t size) {
  PassBuffer();
  if (static_cast<std::ptrdiff_t>(size) > end_ - pos_)
    Grow(size);
}

void utl_Stream::Grow(std::size_t size) {
  const std::size_t held = static_cast<std::size_t>(pos_ - buffer_.get());
  const std::size_t capacity = std::max(2 * capacity_, held + size);
  auto buffer = std::make_unique_for_overwrite<char[]>(capacity);
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
      MakeRoom(1);
    const std::size_t chunk = std::min(size, static_cast<std::size_t>(end_ - pos_));
    std::memcpy(pos_, text, chunk);
    pos_ += chunk;
    text += chunk;
    size -= chunk;
  }
}
