#pragma once

class odb_Odb;

/// The public entry of the library: writes the deck of the model "Default
/// Model" of an open database.
class oif_Writer {
public:
  explicit oif_Writer(const odb_Odb& odb) : odb_(odb) {}

  /// Writes `jobName` + ".inp", relative to the current directory. An older
  /// file of that name is removed first and the deck goes to a file made new
  /// (a symlink planted at the name is neither followed nor overwritten); a
  /// file that cannot be opened is not reported. Failures of the model raise.
  void WriteInputFile(const char* jobName);

private:
  const odb_Odb& odb_;
};
