#include "python/python_to_json.h"

#include "model/json/json_text.h"
#include "model/json/load_errors.h"

#include <charconv>
#include <cmath>
#include <pybind11/numpy.h>
#include <string_view>
#include <utility>

namespace py = pybind11;

namespace keydeck {

namespace {

// Walks the Python objects depth first, keeping the path of the value at
// hand for messages in the loader's form.
class Walker {
public:
  static constexpr std::size_t MaxDepth = 1000;

  explicit Walker(PythonModelText& out)
      : out_(out), generic_(py::module_::import("numpy").attr("generic")) {}

  void Value(py::handle value) {
    // As deep as the loader reads; a structure that holds itself stops here too.
    if (path_.size() > MaxDepth)
      Fail("the value nests deeper than " + std::to_string(MaxDepth) + " levels");
    PyObject* const object = value.ptr();
    if (object == Py_None)
      out_.json += "null";
    else if (PyBool_Check(object))
      out_.json += object == Py_True ? "true" : "false";
    else if (PyLong_Check(object))
      Integer(value);
    else if (PyFloat_Check(object))
      Real(PyFloat_AS_DOUBLE(object));
    else if (PyUnicode_Check(object))
      out_.json += QuotedJson(Utf8(value));
    else if (PyDict_Check(object))
      Object(value);
    else if (PyList_Check(object) || PyTuple_Check(object))
      Array(value);
    else if (py::isinstance<py::array>(value))
      NumpyArray(py::reinterpret_borrow<py::array>(value));
    else if (py::isinstance(value, generic_))
      Value(value.attr("item")()); // a numpy scalar: its Python value
    else
      Fail("expected a value that JSON can hold, found a " +
           std::string(py::str(value.get_type().attr("__name__"))));
  }

private:
  void Integer(py::handle value) {
    int overflow = 0;
    const long long number = PyLong_AsLongLongAndOverflow(value.ptr(), &overflow);
    if (overflow != 0) { // the loader names such a number as written
      out_.json += std::string(py::str(value));
      return;
    }
    char digits[24];
    out_.json.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
  }

  // A float is written as Python writes it, with a point or an exponent, so
  // that 2.0 is no more an integer here than in a file written by Python.
  void Real(double value) {
    if (!std::isfinite(value)) {
      char digits[8];
      Fail("expected a finite number, found " +
           std::string(digits, std::to_chars(digits, digits + sizeof digits, value).ptr));
    }
    char digits[32];
    const char* const end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    const std::string_view text(digits, static_cast<std::size_t>(end - digits));
    out_.json += text;
    if (text.find_first_of(".e") == std::string_view::npos)
      out_.json += ".0";
  }

  std::string Utf8(py::handle text) {
    Py_ssize_t size = 0;
    const char* const data = PyUnicode_AsUTF8AndSize(text.ptr(), &size);
    if (data == nullptr) {
      PyErr_Clear();
      Fail("the string holds a character that UTF-8 cannot encode");
    }
    return std::string(data, static_cast<std::size_t>(size));
  }

  void Object(py::handle value) {
    out_.json += '{';
    bool first = true;
    for (const auto& [key, item] : py::reinterpret_borrow<py::dict>(value)) {
      if (!PyUnicode_Check(key.ptr()))
        Fail("expected string keys, found the key " + std::string(py::repr(key)));
      const std::string name = Utf8(key);
      out_.json += first ? "" : ",";
      out_.json += QuotedJson(name);
      out_.json += ':';
      first = false;
      path_.push_back(name);
      Value(item);
      path_.pop_back();
    }
    out_.json += '}';
  }

  void Array(py::handle value) {
    out_.json += '[';
    std::size_t index = 0;
    for (const py::handle item : value) {
      out_.json += index == 0 ? "" : ",";
      path_.push_back(std::to_string(index++));
      Value(item);
      path_.pop_back();
    }
    out_.json += ']';
  }

  void NumpyArray(const py::array& array) {
    if (array.ndim() == 0) {
      Value(array.attr("item")());
      return;
    }
    const py::dtype type = array.dtype();
    ExternalArray external;
    external.data = array.data();
    external.itemSize = static_cast<int>(type.itemsize());
    external.typeName = py::str(type.attr("str")); // "<i8": the size and the byte order too
    const bool native = type.attr("isnative").cast<bool>();
    switch (native ? type.kind() : '?') {
    case 'i':
      external.kind = ExternalArray::Kind::Signed;
      break;
    case 'u':
      external.kind = ExternalArray::Kind::Unsigned;
      break;
    case 'f':
      external.kind = ExternalArray::Kind::Real;
      break;
    default:
      external.kind = ExternalArray::Kind::Other;
    }
    for (py::ssize_t i = 0; i < array.ndim(); ++i) {
      external.shape.push_back(array.shape(i));
      external.strides.push_back(array.strides(i));
    }
    out_.arrays.Append(out_.json, std::move(external));
    out_.keep.push_back(py::reinterpret_borrow<py::object>(array));
  }

  [[noreturn]] void Fail(const std::string& what) {
    std::string path;
    for (const std::string& segment : path_)
      path.append(path.empty() ? "" : "/").append(segment);
    LoadErrors errors;
    errors.Add(path, what);
    errors.Throw();
  }

  PythonModelText& out_;
  py::object generic_;
  std::vector<std::string> path_;
};

} // namespace

PythonModelText ModelTextFromPython(py::handle value) {
  PythonModelText text;
  Walker(text).Value(value);
  return text;
}

} // namespace keydeck
