#include "cli/deck_file.h"

#include "base/nex_Exception.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <stdlib.h> // mkstemp
#include <unistd.h> // close
#include <vector>

namespace keydeck {

namespace {

std::string SystemError() { return std::strerror(errno); }

} // namespace

DeckFile::DeckFile(const std::string& folder, const std::string& job)
    : final_((std::filesystem::path(folder) / (job + ".inp")).string()) {
  if (job.empty() || job.find('/') != std::string::npos)
    Raise("the job name \"" + job + "\" is not a file name");
  std::string pattern = (std::filesystem::path(folder) / ("." + job + ".inp.XXXXXX")).string();
  std::vector<char> name(pattern.begin(), pattern.end());
  name.push_back('\0');
  const int descriptor = mkstemp(name.data());
  if (descriptor < 0)
    Raise("cannot write a deck in \"" + folder + "\": " + SystemError());
  close(descriptor);
  temporary_ = name.data();
}

DeckFile::~DeckFile() {
  if (!committed_)
    std::remove(temporary_.c_str());
}

std::string DeckFile::OpenFailure() const { return SystemError(); }

void DeckFile::Commit() {
  if (std::rename(temporary_.c_str(), final_.c_str()) != 0)
    Raise("cannot rename " + temporary_ + " to " + final_ + ": " + SystemError());
  committed_ = true;
}

long long DeckFile::Size() const {
  std::error_code failure;
  const auto size = std::filesystem::file_size(final_, failure);
  return failure ? 0 : static_cast<long long>(size);
}

} // namespace keydeck
