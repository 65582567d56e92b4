#include "base/qio_ostream.h"

#include "base/nex_Exception.h"

#include <cassert>
#include <cerrno>
#include <cstring>
#include <string>

using namespace keydeck;

[[noreturn]] static void RaiseWriteFailure(int error) {
  Raise(std::string("cannot write the deck: ") + std::strerror(error));
}

qio_ofstreamDeck::~qio_ofstreamDeck() {
  if (file_ != nullptr && owns_)
    std::fclose(file_);
}

void qio_ofstreamDeck::attach(std::FILE* file, bool owns) {
  Close();
  file_ = file;
  owns_ = owns;
}

void qio_ofstreamDeck::Write(const char* data, std::size_t size) {
  assert(file_ != nullptr && "a file is attached");
  if (size == 0)
    return;
  errno = 0;
  if (std::fwrite(data, 1, size, file_) != size)
    RaiseWriteFailure(errno != 0 ? errno : EIO);
}

void qio_ofstreamDeck::Close() {
  if (file_ == nullptr)
    return;
  std::FILE* const file = file_;
  file_ = nullptr; // released whatever happens below
  errno = 0;
  int failed = std::fflush(file);
  int error = errno;
  if (owns_ && std::fclose(file) != 0 && failed == 0) {
    failed = 1;
    error = errno;
  }
  if (failed != 0)
    RaiseWriteFailure(error != 0 ? error : EIO);
}
