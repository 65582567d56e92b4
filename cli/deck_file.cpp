#include "cli/deck_file.h"

#include "base/nex_Exception.h"
#include "base/qio_ostream.h"
#include "cli/interrupts.h"
#include "oif/oif_Builder.h"
#include "oif/oif_ModelInfo.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <dirent.h>
#include <fcntl.h>
#include <filesystem>
#include <random>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace keydeck {

namespace {

constexpr std::string_view TemporaryPrefix = ".keydeck-";
constexpr std::string_view DeckSuffix = ".inp";
constexpr std::string_view RandomLetters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789";
constexpr std::size_t RandomLength = 6;
constexpr std::time_t StaleSeconds = 24 * 60 * 60;
constexpr long LongestName = 255; // the most the interrupt handler holds

std::string SystemError() { return std::strerror(errno); }

/// Whether `name` has the form of a temporary deck: ".keydeck-XXXXXX.JOB.inp".
bool IsTemporaryName(std::string_view name) {
  const std::size_t head = TemporaryPrefix.size() + RandomLength + 1;
  if (name.size() < head + DeckSuffix.size() || !name.starts_with(TemporaryPrefix) ||
      !name.ends_with(DeckSuffix) || name[head - 1] != '.')
    return false;
  const std::string_view random = name.substr(TemporaryPrefix.size(), RandomLength);
  return random.find_first_not_of(RandomLetters) == std::string_view::npos;
}

/// `job` cut to at most `size` bytes, not inside a UTF-8 sequence.
std::string_view Shortened(std::string_view job, std::size_t size) {
  if (job.size() <= size)
    return job;
  while (size > 0 && (static_cast<unsigned char>(job[size]) & 0xC0) == 0x80)
    --size;
  return job.substr(0, size);
}

std::string RandomPart() {
  static std::mt19937 generator{std::random_device{}()};
  std::uniform_int_distribution<std::size_t> pick(0, RandomLetters.size() - 1);
  std::string random(RandomLength, ' ');
  for (char& letter : random)
    letter = RandomLetters[pick(generator)];
  return random;
}

int OpenFolder(const std::string& folder) {
  const int descriptor = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor >= 0)
    return descriptor;
  if (errno == ENOENT)
    Raise("the output folder \"" + folder + "\" does not exist");
  if (errno == ENOTDIR)
    Raise("the output folder \"" + folder + "\" is not a folder");
  Raise("cannot open the output folder \"" + folder + "\": " + SystemError());
}

} // namespace

DeckFile::DeckFile(const std::string& folder, const std::string& job)
    : folder_(folder), final_((std::filesystem::path(folder) / (job + ".inp")).string()),
      finalName_(job + ".inp") {
  if (job.empty() || job.find('/') != std::string::npos || job == "." || job == "..")
    Raise("the job name \"" + job + "\" is not a file name");
  folderDescriptor_ = OpenFolder(folder);
  long nameMax = fpathconf(folderDescriptor_, _PC_NAME_MAX);
  if (nameMax <= 0 || nameMax > LongestName)
    nameMax = LongestName;
  if (finalName_.size() > static_cast<std::size_t>(nameMax)) {
    close(folderDescriptor_);
    Raise("the job name is too long: " + std::to_string(finalName_.size()) +
          " bytes with \".inp\", and \"" + folder + "\" takes file names of at most " +
          std::to_string(nameMax));
  }
  RemoveStale();
  const long fixed =
      static_cast<long>(TemporaryPrefix.size() + RandomLength + 1 + DeckSuffix.size());
  CreateTemporary(
      std::string(Shortened(job, static_cast<std::size_t>(std::max(nameMax - fixed, 1L)))));
}

DeckFile::~DeckFile() {
  if (output_ != nullptr) {
    std::fclose(output_);
    unlinkat(folderDescriptor_, temporaryName_.c_str(), 0);
    KeepOnInterrupt();
  }
  close(folderDescriptor_);
}

void DeckFile::RemoveStale() {
  const int listing = dup(folderDescriptor_);
  DIR* const entries = listing < 0 ? nullptr : fdopendir(listing);
  if (entries == nullptr) {
    if (listing >= 0)
      close(listing);
    return; // a folder that cannot be listed has no stale decks we can find
  }
  const std::time_t before = std::time(nullptr) - StaleSeconds;
  while (const dirent* entry = readdir(entries)) {
    struct stat status {};
    if (!IsTemporaryName(entry->d_name) ||
        fstatat(folderDescriptor_, entry->d_name, &status, AT_SYMLINK_NOFOLLOW) != 0 ||
        !S_ISREG(status.st_mode) || status.st_uid != geteuid() || status.st_mtime >= before)
      continue;
    if (unlinkat(folderDescriptor_, entry->d_name, 0) == 0)
      staleRemoved_.push_back((std::filesystem::path(folder_) / entry->d_name).string());
  }
  closedir(entries);
}

void DeckFile::CreateTemporary(const std::string& job) {
  // Like mkstemp, but relative to the open folder and with the mode that the
  // umask gives a new file.
  for (int attempt = 0; attempt < 100; ++attempt) {
    std::string name = std::string(TemporaryPrefix) + RandomPart() + "." + job + ".inp";
    const int descriptor = CreateNew(name);
    if (descriptor < 0 && errno == EEXIST)
      continue;
    if (descriptor < 0)
      break;
    temporaryName_ = std::move(name);
    output_ = fdopen(descriptor, "w");
    if (output_ != nullptr)
      return;
    close(descriptor);
    unlinkat(folderDescriptor_, temporaryName_.c_str(), 0);
    KeepOnInterrupt();
    break;
  }
  const std::string reason = SystemError();
  close(folderDescriptor_);
  Raise("cannot write a deck in \"" + folder_ + "\": " + reason);
}

int DeckFile::CreateNew(const std::string& name) {
  const InterruptsHeld held; // no moment when the file exists and a signal leaves it
  const int descriptor = openat(folderDescriptor_, name.c_str(),
                                O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
  if (descriptor >= 0)
    RemoveOnInterrupt(folderDescriptor_, name.c_str());
  return descriptor;
}

void DeckFile::Commit() {
  struct stat made {};
  struct stat found {};
  const bool statted = std::fflush(output_) == 0 && fstat(fileno(output_), &made) == 0;
  std::FILE* const output = output_;
  output_ = nullptr; // from here the destructor leaves the name alone
  if (std::fclose(output) != 0 || !statted) {
    const std::string reason = SystemError();
    unlinkat(folderDescriptor_, temporaryName_.c_str(), 0);
    KeepOnInterrupt();
    Raise("cannot write " + final_ + ": " + reason);
  }
  const std::string temporary = (std::filesystem::path(folder_) / temporaryName_).string();
  const InterruptsHeld held;
  KeepOnInterrupt();
  if (fstatat(folderDescriptor_, temporaryName_.c_str(), &found, AT_SYMLINK_NOFOLLOW) != 0 ||
      found.st_dev != made.st_dev || found.st_ino != made.st_ino)
    Raise(temporary + " is no longer the deck this run wrote; " + final_ + " is left as it was");
  if (renameat(folderDescriptor_, temporaryName_.c_str(), folderDescriptor_, finalName_.c_str()) !=
      0) {
    const std::string reason = SystemError();
    unlinkat(folderDescriptor_, temporaryName_.c_str(), 0);
    Raise("cannot rename " + temporary + " to " + final_ + ": " + reason);
  }
  size_ = static_cast<long long>(made.st_size);
}

std::string WriteDeckFile(const ddb_Model& model, const std::string& folder,
                          const std::string& job) {
  DeckFile deck(folder, job);
  oif_ModelInfo info(model);
  oif_Builder builder(info);
  qio_ofstreamDeck os(deck.Output(), /*owns=*/false);
  builder.WriteInputFile(os);
  deck.Commit();
  return deck.FinalPath();
}

} // namespace keydeck
