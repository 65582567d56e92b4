#include "keydeck/model.h"

#include "cli/deck_file.h"
#include "model/database.h"
#include "model/json/loader.h"
#include "oif/oif_ModelInfo.h"

#include <exception>
#include <utility>

namespace keydeck {

Error::~Error() = default;

/// The database when it loaded, or the problems that stopped it.
struct Model::Data {
  odb_Odb odb;
  std::vector<std::string> problems;
  std::vector<std::string> warnings;

  template <class Loader> void Load(const Loader& load);
};

namespace {

/// The lines of a failure's text: a bad file's failure holds one problem a line.
std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    lines.emplace_back(text.substr(0, end));
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
  }
  return lines;
}

} // namespace

// The library's failures become problems here, at the edge of the public
// interface, where a caller can no longer name their types.
template <class Loader> void Model::Data::Load(const Loader& load) {
  try {
    odb = load(warnings);
    for (const auto& [name, model] : odb.ddb().models_)
      oif_ModelInfo info(model); // the tables the writer needs can be built
  } catch (const std::exception& failure) {
    odb = odb_Odb();
    problems = LinesOf(failure.what());
  }
}

Model::Model(std::unique_ptr<Data> data) : data_(std::move(data)) {}
Model::Model(Model&& other) noexcept = default;
Model& Model::operator=(Model&& other) noexcept = default;
Model::~Model() = default;

Model Model::Open(const std::string& path) {
  auto data = std::make_unique<Data>();
  data->Load(
      [&](std::vector<std::string>& warnings) { return LoadModelFile(path.c_str(), warnings); });
  return Model(std::move(data));
}

Model Model::FromJson(std::string_view text) {
  auto data = std::make_unique<Data>();
  data->Load([&](std::vector<std::string>& warnings) { return LoadModelText(text, warnings); });
  return Model(std::move(data));
}

const std::vector<std::string>& Model::Problems() const { return data_->problems; }
const std::vector<std::string>& Model::Warnings() const { return data_->warnings; }

std::vector<std::string> Model::Names() const {
  std::vector<std::string> names;
  for (const auto& [name, model] : data_->odb.ddb().models_)
    names.emplace_back(name.View());
  return names;
}

std::string Model::Write(const std::string& job, const std::string& folder,
                         const std::string& name) const {
  if (!data_->problems.empty())
    throw Error("the model has problems; the first: " + data_->problems.front());
  const cow_String modelName(name.c_str());
  if (!data_->odb.ddb().models_.IsMember(modelName))
    throw Error("no model named \"" + name + "\"");
  try {
    return WriteDeckFile(data_->odb.ddb().model(modelName), folder, job);
  } catch (const Error&) {
    throw;
  } catch (const std::exception& failure) { // as in Load: no internal type leaves the library
    throw Error(failure.what());
  }
}

} // namespace keydeck
