#pragma once

#include "base/nex_Exception.h"

#include <source_location>
#include <string>
#include <string_view>
#include <vector>

namespace keydeck {

/// The failure of loading a model file: every problem found, one message each,
/// in the form `path: what is wrong`. `what()` gives them one per line, with a
/// last line "... and N more" when more were found than kept.
class ModelFileError : public nex_PrimException {
public:
  ModelFileError(std::vector<std::string> messages, int moreCount,
                 std::source_location where = std::source_location::current());

  const std::vector<std::string>& Messages() const { return messages_; }
  /// How many problems were found beyond those in `Messages()`.
  int MoreCount() const { return moreCount_; }

private:
  std::vector<std::string> messages_;
  int moreCount_;
};

/// The problems found while loading, in the order found. It keeps the first
/// `MaxKept` messages and counts the rest.
class LoadErrors {
public:
  static constexpr int MaxKept = 50;

  /// Records `what` at `path`; an empty path gives the message `what` alone.
  void Add(std::string_view path, std::string_view what);
  /// True while another message would still be kept, so a caller can skip
  /// building the path of one that would not.
  bool Keeping() const { return count_ < MaxKept; }
  int Count() const { return count_; }
  bool Empty() const { return count_ == 0; }
  /// Marks the end of reading the file: the checks after it ask
  /// `AnyAtOrUnder` about what reading found.
  void EndReading() { droppedWhileReading_ = count_ - static_cast<int>(messages_.size()); }
  /// True when a kept message lies at `path` or below it, or when messages of
  /// reading were dropped (and so might). Messages dropped after reading do
  /// not count, so that the checks after it go on counting their problems.
  bool AnyAtOrUnder(std::string_view path) const;
  /// Forgets every message.
  void Clear();
  const std::vector<std::string>& Messages() const { return messages_; }
  /// Throws `ModelFileError` with the messages.
  [[noreturn]] void Throw() const;

private:
  std::vector<std::string> messages_;
  int count_ = 0;
  int droppedWhileReading_ = 0;
};

} // namespace keydeck
