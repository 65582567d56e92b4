#include "cli/progress.h"

#include <cstdio>
#include <unistd.h> // isatty

namespace keydeck {

ProgressLine::ProgressLine(bool quiet) : active_(!quiet && isatty(STDERR_FILENO) == 1) {}

ProgressLine::~ProgressLine() { Clear(); }

void ProgressLine::Clear() {
  if (active_)
    std::fputs("\r\033[K", stderr);
}

void ProgressLine::Show(const char* what, const char* subject) {
  if (!active_)
    return;
  std::fprintf(stderr, "\r\033[Kkeydeck: %s %s...", what, subject);
  std::fflush(stderr);
}

} // namespace keydeck
