#pragma once

#include "base/cow_String.h"
#include "base/qio_ostream.h"

#include <charconv>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

/// The deck stream: every byte of the deck passes through it on its way to a
/// `qio_ostream`. It buffers the text, lays out numbers and keeps keyword
/// lines within the line limit.
///
/// Numbers. Integers from `operator<<` are plain decimal in as few columns as
/// they need ("7", "-12"). Reals are always written so that the solver reads
/// them as reals: printf's `%g` digits (no locale), and a "." added when those
/// are a bare integer, so one is "1.", zero "0.", minus one "-1.". An exponent
/// stays as `%g` writes it ("1e-10", "1.23457e+08"), since it marks a real
/// already. Negative zero is written "0.". Infinities and NaN, which a loaded
/// model never holds, come out as `%g` spells them ("inf", "-inf", "nan"). `operator<<`
/// writes reals with the stream's default number of significant digits and
/// no padding ("0.1", "1e+06"). A width pads on the left with blanks; a value
/// wider than its width is written whole, never cut.
///
/// Line breaks. `OptionalLineBreak` marks a point, right after the ", " that
/// separates two parameters of a keyword line, where the line may be broken.
/// At the next mark, `LineBreak`, `endl` or `Close`, the stream judges the
/// line that runs up to there: when it would end past the line limit, it is
/// broken at the earlier mark, by turning the blank of its ", " into the line
/// end, so the broken line ends in "," and the rest goes on at the start of
/// the next line. (At a mark the line is judged as it would end there, without
/// the blank of the ", " before it.) So a line longer than the limit arises
/// only where a single stretch between two marks is longer. Lines that hold
/// no mark, such as node and element lines written with a literal "\n", cost
/// nothing here: the column is found only when a mark is judged, by looking
/// back for the last line end.
///
/// The buffer is passed on when full, at `Flush` and at `Close`, except the
/// text from a mark that is still to be judged, which waits in the buffer (a
/// single line longer than the buffer makes it grow). So the text does not
/// depend on where the buffer happens to fill.
/// A failing output surfaces as an exception from the call that passes the
/// text on: any write that fills the buffer, `Flush` or `Close`.
class utl_Stream {
public:
  static constexpr std::size_t DefaultBufferSize = std::size_t{1} << 20;

  /// `lineLimit`: the longest keyword line, in characters without the line
  /// end, that `OptionalLineBreak` leaves whole (the deck uses 131).
  /// `intLayout`: the layout of integers written by `operator<<`; the deck
  /// uses the one layout there is, 6, plain decimal with no padding.
  /// `realLayout`: the significant digits of reals written by `operator<<`
  /// (the deck uses 6, as `%g` does); clamped to 1 to 17.
  /// `bufferSize`: the size of the buffer to begin with (at least 64 bytes).
  utl_Stream(qio_ostream& os, int lineLimit, int intLayout, int realLayout,
             std::size_t bufferSize = DefaultBufferSize);
  utl_Stream(const utl_Stream&) = delete;
  utl_Stream& operator=(const utl_Stream&) = delete;
  /// Closes the stream as `Close` does, if that was not done, but swallows
  /// any failure: call `Close` to learn whether the deck was written.
  ~utl_Stream();

  utl_Stream& operator<<(const char* text) { return Print(text); }
  utl_Stream& operator<<(const cow_String& text) { return Print(text); }
  utl_Stream& operator<<(int value);
  utl_Stream& operator<<(double value) { return Print(value, 0, realDigits_); }
  utl_Stream& operator<<(float value) { return Print(value, 0, realDigits_); }
  utl_Stream& operator<<(utl_Stream& (*manipulator)(utl_Stream&)) { return manipulator(*this); }

  /// Ends the current line.
  void LineBreak();
  /// Marks a point where the current keyword line may be broken; see the
  /// class comment. A mark made with nothing before it in the buffer (at the
  /// very start, or right after `Flush`) cannot be used and is ignored.
  void OptionalLineBreak();

  /// Appends the text as it is.
  utl_Stream& Print(const char* text) {
    Append(text, std::strlen(text));
    return *this;
  }
  utl_Stream& Print(const cow_String& text) { return Print(text.View()); }
  utl_Stream& Print(std::string_view text) {
    Append(text.data(), text.size());
    return *this;
  }
  /// The integer right-aligned in `width` columns.
  utl_Stream& Print(int value, int width);
  /// The real right-aligned in `width` columns with `precision` significant
  /// digits (clamped to 1 to 17), in the real form of the class comment.
  utl_Stream& Print(double value, int width, int precision);
  utl_Stream& Print(float value, int width, int precision);

  /// Passes the buffered text on, but for a keyword line's text after a mark
  /// still to be judged. Meant for the end of a line.
  void Flush();
  /// Settles the last mark, passes all text on and closes the output. A
  /// second call does nothing; nothing may be written after the first.
  void Close();

  /// Puts a real that `sprintf` wrote with `%W.Pg` (W = `width`, or `%.Pg`
  /// with `width` 0) into the deck's real form, in place: the one rule of
  /// the class comment, right-aligned again in `width` columns. `text` is
  /// zero-terminated; leading blanks are taken as padding. The buffer must
  /// have room for one character more than the text holds, or than `width`
  /// if that is larger, besides the terminating zero.
  static void FixNumericString(char* text, int width);

private:
  friend class utl_StreamSmallReal;

  static constexpr std::size_t MaxIntChars = 11; // "-2147483648"
  // The text of a number is laid out in a scratch array of this size, which
  // is copied whole, so that no copy depends on the length of the number.
  static constexpr std::size_t NumberChars = 32;

  void PrintReal(double value, int width, int precision);
  void PutPadded(const char (&text)[NumberChars], std::size_t length, int width);

  /// Makes room for `size` bytes; one compare unless the buffer is full.
  void Reserve(std::size_t size) {
    if (static_cast<std::ptrdiff_t>(size) > end_ - pos_)
      MakeRoom(size);
  }
  void Append(const char* text, std::size_t size) {
    if (static_cast<std::ptrdiff_t>(size) > end_ - pos_)
      return AppendLong(text, size);
    std::memcpy(pos_, text, size);
    pos_ += size;
  }
  [[gnu::noinline]] void MakeRoom(std::size_t size);
  [[gnu::noinline]] void AppendLong(const char* text, std::size_t size);
  void PassBuffer();
  void JudgeMark(bool atMark);
  void BreakAt(char* mark);
  void Grow(std::size_t size);

  qio_ostream& os_;
  std::unique_ptr<char[]> buffer_;
  std::size_t capacity_;
  char* pos_;            // end of the buffered text
  char* end_;            // `buffer_` + `capacity_`
  char* mark_ = nullptr; // the mark still to be judged, or null
  // Characters of the current line already passed on, ahead of the buffer.
  std::size_t passedColumns_ = 0;
  std::size_t lineLimit_;
  int realDigits_;
  double smallReal_ = 0; // reals of a smaller magnitude are written as zero
  bool closed_ = false;
};

/// Ends the line: `s << "*Node" << endl;`.
utl_Stream& endl(utl_Stream& s);

/// While it lives, reals whose magnitude is below `threshold` are written as
/// zero on the stream; on destruction the threshold in force before returns,
/// so guards nest. A threshold of 0 changes nothing.
class utl_StreamSmallReal {
public:
  utl_StreamSmallReal(utl_Stream& s, double threshold) : s_(s), previous_(s.smallReal_) {
    s.smallReal_ = threshold;
  }
  utl_StreamSmallReal(const utl_StreamSmallReal&) = delete;
  utl_StreamSmallReal& operator=(const utl_StreamSmallReal&) = delete;
  ~utl_StreamSmallReal() { s_.smallReal_ = previous_; }

private:
  utl_Stream& s_;
  double previous_;
};

inline utl_Stream& utl_Stream::operator<<(int value) {
  Reserve(MaxIntChars);
  pos_ = std::to_chars(pos_, pos_ + MaxIntChars, value).ptr;
  return *this;
}

inline utl_Stream& utl_Stream::Print(int value, int width) {
  char digits[NumberChars];
  const char* const last = std::to_chars(digits, digits + MaxIntChars, value).ptr;
  PutPadded(digits, static_cast<std::size_t>(last - digits), width);
  return *this;
}

// The fixed-size copies write past the number's end, inside the room reserved;
// the bytes there count for nothing and are overwritten by the next text.
inline void utl_Stream::PutPadded(const char (&text)[NumberChars], std::size_t length, int width) {
  constexpr std::size_t ShortPadding = 16;
  const std::size_t columns = width > 0 ? static_cast<std::size_t>(width) : 0;
  const std::size_t padding = columns > length ? columns - length : 0;
  Reserve(padding + NumberChars);
  if (padding <= ShortPadding)
    std::memset(pos_, ' ', ShortPadding);
  else
    std::memset(pos_, ' ', padding);
  std::memcpy(pos_ + padding, text, NumberChars);
  pos_ += padding + length;
}
