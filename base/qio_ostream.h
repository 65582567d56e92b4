#pragma once

#include <cstddef>
#include <cstdio>
#include <string>

/// Where the deck's bytes go: the deck stream hands over large blocks of text
/// and finally closes. A failure to pass bytes on raises `nex_PrimException`
/// from `Write` or `Close`; nothing is reported any other way.
class qio_ostream {
public:
  virtual ~qio_ostream() = default;
  /// Passes `size` bytes on, whole, or raises.
  virtual void Write(const char* data, std::size_t size) = 0;
  /// Pushes out whatever the target holds back and lets go of it. A second
  /// call does nothing; no `Write` may follow.
  virtual void Close() = 0;

protected:
  qio_ostream() = default;
  qio_ostream(const qio_ostream&) = default;
  qio_ostream& operator=(const qio_ostream&) = default;
};

/// Output to a C file. The deck opens the file itself and attaches it with
/// ownership, so that `Close` (or, failing that, the destructor) closes it.
class qio_ofstreamDeck : public qio_ostream {
public:
  qio_ofstreamDeck() = default;
  qio_ofstreamDeck(std::FILE* file, bool owns) { attach(file, owns); }
  qio_ofstreamDeck(const qio_ofstreamDeck&) = delete;
  qio_ofstreamDeck& operator=(const qio_ofstreamDeck&) = delete;
  /// Releases an owned file that was never closed, without reporting errors:
  /// call `Close` to learn whether the last bytes reached the file.
  ~qio_ofstreamDeck() override;

  /// Takes `file` as the target. Any file attached before is closed first (as
  /// `Close` does). With `owns` false the file is only flushed at `Close`,
  /// and stays open for the caller.
  void attach(std::FILE* file, bool owns);
  void Write(const char* data, std::size_t size) override;
  /// Flushes the file and, when owned, closes it. Raises "cannot write the
  /// deck: REASON" when the system refuses the bytes; the file is released
  /// all the same.
  void Close() override;

private:
  std::FILE* file_ = nullptr;
  bool owns_ = false;
};

/// Output kept in memory, for tests and for text that is wanted as a string.
class qio_ostringDeck : public qio_ostream {
public:
  void Write(const char* data, std::size_t size) override { text_.append(data, size); }
  void Close() override {}
  /// All bytes passed on so far.
  const std::string& Text() const { return text_; }

private:
  std::string text_;
};
