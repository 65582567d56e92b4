#pragma once

#include <cstdio>
#include <string>
#include <vector>

class ddb_Model;

namespace keydeck {

/// The deck file of one `keydeck write`: the deck is written to a temporary
/// file beside its final place and renamed over `DIR/JOB.inp` only when it
/// is complete, so a failure never leaves a partial deck and an older deck
/// stays as it was.
///
/// The temporary file is made new (never an existing file or a symlink),
/// with the permissions the umask gives a new file, and written only
/// through the descriptor that made it; it is removed unless `Commit` ran,
/// also when SIGINT, SIGTERM, SIGHUP or SIGPIPE end the process. Its name,
/// ".keydeck-XXXXXX.JOB.inp" (JOB shortened where the name would be too
/// long), lets a later run in the same folder find it: temporary decks of
/// the same user last changed more than a day ago are removed.
class DeckFile {
public:
  /// Opens the folder, removes stale temporary decks and creates the
  /// temporary file; raises when the folder is missing or cannot take it.
  DeckFile(const std::string& folder, const std::string& job);
  DeckFile(const DeckFile&) = delete;
  DeckFile& operator=(const DeckFile&) = delete;
  ~DeckFile();

  const std::string& FinalPath() const { return final_; }
  /// The paths of the stale temporary decks that were removed.
  const std::vector<std::string>& StaleRemoved() const { return staleRemoved_; }
  /// The temporary file, open for writing; it stays owned by this object.
  std::FILE* Output() const { return output_; }
  /// Closes the temporary file and renames it to the final path, provided
  /// the name still holds the file made here; raises otherwise.
  void Commit();
  /// The size of the committed deck in bytes.
  long long Size() const { return size_; }

private:
  void RemoveStale();
  void CreateTemporary(const std::string& job);
  /// Creates the file `name` in the folder and has interrupts remove it;
  /// returns its descriptor, or -1 with `errno` set.
  int CreateNew(const std::string& name);

  std::string folder_;
  std::string final_;
  std::string finalName_;
  std::string temporaryName_;
  std::vector<std::string> staleRemoved_;
  int folderDescriptor_ = -1;
  std::FILE* output_ = nullptr;
  long long size_ = 0;
};

/// Writes the deck of `model` to FOLDER/JOB.inp through a `DeckFile`, as
/// `keydeck write` does, and returns the deck's path: the library's and the
/// Python module's write. Stale temporary decks go without a word; a failure
/// raises and leaves no deck.
std::string WriteDeckFile(const ddb_Model& model, const std::string& folder,
                          const std::string& job);

} // namespace keydeck
