#pragma once

namespace keydeck {

/// One line on stderr that tells which phase a long run is in, redrawn in
/// place. It shows only when stderr is a terminal and the user did not ask
/// for quiet; elsewhere (pipes, logs, tests) it prints nothing.
class ProgressLine {
public:
  explicit ProgressLine(bool quiet);
  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;
  /// Clears the line.
  ~ProgressLine();

  /// Replaces the line's text, e.g. "loading beam.json".
  void Show(const char* what, const char* subject);
  /// Clears the line, so a message can be printed; a later `Show` draws it again.
  void Clear();

private:
  bool active_;
};

} // namespace keydeck
