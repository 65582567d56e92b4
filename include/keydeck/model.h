#pragma once

#include "keydeck/export.h"

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace keydeck {

/// The failure of `Model::Write`: the model has problems, it holds no model
/// of the name asked for, or the deck cannot be written. `what()` says which,
/// e.g. "cannot write out/job.inp: No such file or directory".
class KEYDECK_API Error : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
  ~Error() override;
};

/// A model file in memory: the models it holds, or the problems that keep
/// it from being written. Opening never throws for a bad file; it keeps
/// every problem found instead, so that a program can show them all.
class KEYDECK_API Model {
public:
  /// Reads the model file at `path` (the format: docs/model-format.md).
  static Model Open(const std::string& path);
  /// Reads a model file's JSON text, e.g. one that a program put together.
  static Model FromJson(std::string_view text);

  Model(Model&& other) noexcept;
  Model& operator=(Model&& other) noexcept;
  ~Model();

  /// Every problem found (up to 50, then a last line "... and N more"), each
  /// `path: what is wrong`, e.g. `models/Default Model/parts/Beam/nodes:
  /// missing field "labels"`. Empty when the model can be written.
  const std::vector<std::string>& Problems() const;
  /// Notes that do not stop the deck, e.g. parts of the model that the deck
  /// leaves out.
  const std::vector<std::string>& Warnings() const;
  /// The names of the models in the file, in ascending byte order; empty
  /// when there are problems.
  std::vector<std::string> Names() const;

  /// Writes the deck of the model `name` to `folder`/`job`.inp and returns
  /// that path. The deck goes to a temporary file beside it that is renamed
  /// over `job`.inp only when complete, so a failure leaves no partial deck
  /// and an older deck stays as it was. Throws `Error` on any failure.
  std::string Write(const std::string& job, const std::string& folder = ".",
                    const std::string& name = "Default Model") const;

private:
  struct Data;
  explicit Model(std::unique_ptr<Data> data);

  std::unique_ptr<Data> data_;
};

} // namespace keydeck
