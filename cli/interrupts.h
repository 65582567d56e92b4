#pragma once

namespace keydeck {

/// Makes SIGINT, SIGTERM, SIGHUP and SIGPIPE remove the file `name` of the
/// folder open as `folder` before the signal ends the process as it would
/// have without us. A signal the process ignores stays ignored. One file at
/// a time: a later call replaces the name. `name` must fit in 255 bytes.
void RemoveOnInterrupt(int folder, const char* name);

/// Stops removing the file; from here on the signals do what they did
/// before `RemoveOnInterrupt`.
void KeepOnInterrupt();

/// Holds the four signals back for its lifetime, so that a step that must not
/// be cut in two (renaming the finished deck, then forgetting its temporary
/// name) runs whole; a signal that arrives meanwhile acts at the end.
class InterruptsHeld {
public:
  InterruptsHeld();
  InterruptsHeld(const InterruptsHeld&) = delete;
  InterruptsHeld& operator=(const InterruptsHeld&) = delete;
  ~InterruptsHeld();
};

} // namespace keydeck
