#include "cli/interrupts.h"

#include <array>
#include <csignal>
#include <cstring>
#include <fcntl.h>  // AT_FDCWD
#include <unistd.h> // unlinkat

namespace keydeck {

namespace {

constexpr std::array<int, 4> Interrupts = {SIGINT, SIGTERM, SIGHUP, SIGPIPE};

// What the handler removes. It reads these only while `armed` is set, and
// they change only while it is clear.
volatile std::sig_atomic_t armed = 0;
int folderDescriptor = AT_FDCWD;
char fileName[256];

struct sigaction previous[Interrupts.size()];
bool installed = false;

extern "C" void RemoveAndResignal(int signal) {
  // Only async-signal-safe calls here: unlinkat, sigaction, raise.
  if (armed != 0)
    unlinkat(folderDescriptor, fileName, 0);
  struct sigaction fallback {};
  fallback.sa_handler = SIG_DFL;
  sigaction(signal, &fallback, nullptr);
  raise(signal); // acts once the handler returns, since the signal is held
}

void Install() {
  struct sigaction handler {};
  handler.sa_handler = RemoveAndResignal;
  sigemptyset(&handler.sa_mask);
  for (std::size_t i = 0; i < Interrupts.size(); ++i) {
    sigaction(Interrupts[i], nullptr, &previous[i]);
    if (previous[i].sa_handler != SIG_IGN) // e.g. SIGHUP under nohup
      sigaction(Interrupts[i], &handler, nullptr);
  }
  installed = true;
}

sigset_t InterruptSet() {
  sigset_t set;
  sigemptyset(&set);
  for (const int signal : Interrupts)
    sigaddset(&set, signal);
  return set;
}

} // namespace

void RemoveOnInterrupt(int folder, const char* name) {
  armed = 0;
  folderDescriptor = folder;
  std::strncpy(fileName, name, sizeof fileName - 1);
  fileName[sizeof fileName - 1] = '\0';
  armed = 1;
  if (!installed)
    Install();
}

void KeepOnInterrupt() {
  armed = 0;
  if (!installed)
    return;
  for (std::size_t i = 0; i < Interrupts.size(); ++i)
    sigaction(Interrupts[i], &previous[i], nullptr);
  installed = false;
}

InterruptsHeld::InterruptsHeld() {
  const sigset_t set = InterruptSet();
  sigprocmask(SIG_BLOCK, &set, nullptr);
}

InterruptsHeld::~InterruptsHeld() {
  const sigset_t set = InterruptSet();
  sigprocmask(SIG_UNBLOCK, &set, nullptr);
}

} // namespace keydeck
