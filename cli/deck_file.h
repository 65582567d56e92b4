#pragma once

#include <string>

namespace keydeck {

/// The deck file of one `keydeck write`: the deck is written to a temporary
/// file beside its final place and renamed over `DIR/JOB.inp` only when it
/// is complete, so a failure never leaves a partial deck and an older deck
/// stays as it was. The temporary file is removed unless `Commit` ran.
class DeckFile {
public:
  /// Creates the temporary file; raises when the folder cannot take it.
  DeckFile(const std::string& folder, const std::string& job);
  DeckFile(const DeckFile&) = delete;
  DeckFile& operator=(const DeckFile&) = delete;
  ~DeckFile();

  const std::string& TemporaryPath() const { return temporary_; }
  const std::string& FinalPath() const { return final_; }
  /// Why the temporary file could not be opened for writing, from `errno`.
  std::string OpenFailure() const;
  /// Renames the temporary file to the final path; raises on failure.
  void Commit();
  /// The size of the committed deck in bytes.
  long long Size() const;

private:
  std::string temporary_;
  std::string final_;
  bool committed_ = false;
};

} // namespace keydeck
