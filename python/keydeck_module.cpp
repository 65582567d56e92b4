// The compiled half of the Python module `keydeck`: loading, dumping and
// writing; keydeck/__init__.py builds the Python interface on it.

#include "cli/deck_file.h"
#include "model/database.h"
#include "model/json/dumper.h"
#include "model/json/loader.h"
#include "model/json/schema.h"
#include "oif/oif_ModelInfo.h"
#include "python/json_to_python.h"
#include "python/python_to_json.h"

#include <exception>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>
#include <string>
#include <utility>
#include <vector>

namespace py = pybind11;
using namespace keydeck;

namespace {

/// A loaded database with the warnings of its loading.
struct LoadedModel {
  odb_Odb odb;
  std::vector<std::string> warnings;

  const ddb_Model& Model(const std::string& name) const {
    const cow_String key(name.c_str());
    if (odb.ddb().models_.IsMember(key))
      return odb.ddb().model(key);
    std::string names;
    for (const auto& [modelName, model] : odb.ddb().models_)
      names += (names.empty() ? "\"" : ", \"") + std::string(modelName.View()) + "\"";
    LoadErrors errors;
    errors.Add("", "no model named \"" + name + "\"; the model file has " +
                       (names.empty() ? "no models" : names));
    errors.Throw();
  }
};

LoadedModel LoadFile(const std::string& path) {
  std::vector<std::string> warnings;
  odb_Odb odb = LoadModelFile(path.c_str(), warnings);
  return {std::move(odb), std::move(warnings)};
}

LoadedModel LoadText(const std::string& json) {
  std::vector<std::string> warnings;
  odb_Odb odb = LoadModelText(json, warnings);
  return {std::move(odb), std::move(warnings)};
}

LoadedModel LoadPython(py::handle value) {
  const PythonModelText text = ModelTextFromPython(value);
  std::vector<std::string> warnings;
  odb_Odb odb;
  {
    py::gil_scoped_release released; // the arrays stay alive in `text.keep`
    odb = LoadModelText(text.json, text.arrays, warnings);
  }
  return {std::move(odb), std::move(warnings)};
}

/// The problems that stop a deck which loading does not see: the writer's
/// tables of each model, built as `keydeck check` builds them.
std::vector<std::pair<std::string, std::string>> WriterProblems(const LoadedModel& loaded) {
  std::vector<std::pair<std::string, std::string>> problems;
  for (const auto& [name, model] : loaded.odb.ddb().models_) {
    try {
      oif_ModelInfo info(model);
    } catch (const std::exception& failure) {
      problems.emplace_back("models/" + std::string(name.View()), failure.what());
    }
  }
  return problems;
}

/// Writes the deck of model `modelName` to FOLDER/JOB.inp as `keydeck write`
/// does: whole or not at all. Returns the deck's path.
std::string WriteDeck(const LoadedModel& loaded, const std::string& job, const std::string& folder,
                      const std::string& modelName) {
  const ddb_Model& model = loaded.Model(modelName);
  py::gil_scoped_release released;
  return WriteDeckFile(model, folder, job);
}

} // namespace

PYBIND11_MODULE(_keydeck, module) {
  module.doc() = "The compiled part of keydeck; use the package `keydeck`.";

  // Every failure of loading reaches Python as keydeck.KeydeckError with the
  // messages, so that the package can split them into problems.
  static py::exception<ModelFileError> modelError(module, "ModelFileError");
  py::register_exception_translator([](std::exception_ptr failure) {
    try {
      if (failure)
        std::rethrow_exception(failure);
    } catch (const ModelFileError& error) {
      py::tuple arguments = py::make_tuple(error.Messages(), error.MoreCount());
      PyErr_SetObject(modelError.ptr(), arguments.ptr());
    } catch (const nex_PrimException& error) {
      PyErr_SetString(PyExc_OSError, error.what());
    }
  });

  py::class_<LoadedModel>(module, "LoadedModel")
      .def_readonly("warnings", &LoadedModel::warnings)
      .def("model_names",
           [](const LoadedModel& loaded) {
             std::vector<std::string> names;
             for (const auto& [name, model] : loaded.odb.ddb().models_)
               names.emplace_back(name.View());
             return names;
           })
      .def("dump", [](const LoadedModel& loaded) { return DumpModel(loaded.odb); })
      .def(
          "to_python",
          [](const LoadedModel& loaded, bool numpy) {
            return PythonFromJson(DumpModel(loaded.odb), numpy);
          },
          py::arg("numpy"))
      .def("writer_problems", &WriterProblems)
      .def("write", &WriteDeck, py::arg("job"), py::arg("folder"), py::arg("model"));

  module.def("load_file", &LoadFile, py::arg("path"));
  module.def("load_text", &LoadText, py::arg("json"));
  module.def("load_python", &LoadPython, py::arg("value"));
  module.def("schema", &ModelSchema);
}
