"""keydeck from Python: a model from dicts, numpy arrays, a model file or a
meshio mesh, and the solver's input deck written from it.

    import keydeck
    model = keydeck.Model.from_dict(d)     # the structure of a model file
    model.write("Job-1", "out")            # out/Job-1.inp

The dict has the same fields as the model file (docs/model-format.md); wherever
the file holds an array of numbers, a numpy array may stand, and it is read
without a Python call per value. Every problem found raises one KeydeckError.
"""

import json as _json
from collections import namedtuple as _namedtuple

from . import _keydeck
from ._meshio import from_meshio, MESHIO_TYPES

__all__ = ["Model", "KeydeckError", "Problem", "load", "schema", "from_meshio", "MESHIO_TYPES"]

Problem = _namedtuple("Problem", "path kind message")
Problem.__doc__ = """One problem of a model: `path` in the model ("models/M/parts/P/nodes"),
`kind` ("error" or "warning") and `message`, what is wrong there."""


def _problem(kind, text):
    # The loader's messages read "path: what is wrong"; one without a path is
    # about the model as a whole. A path never holds ": " before the message,
    # except inside a name that holds it itself.
    path, separator, message = text.partition(": ")
    if not separator or " " in path and "/" not in path:
        return Problem("", kind, text)
    return Problem(path, kind, message)


class KeydeckError(Exception):
    """Every problem that stops a model: `problems` is the list of Problem,
    `more` counts those found beyond them (the loader keeps the first 50)."""

    def __init__(self, problems, more=0):
        self.problems = list(problems)
        self.more = more
        lines = [(p.path + ": " if p.path else "") + p.message for p in self.problems]
        if more:
            lines.append("... and %d more" % more)
        super().__init__("\n".join(lines))


def _call(function, *arguments):
    try:
        return function(*arguments)
    except _keydeck.ModelFileError as failure:
        messages, more = failure.args
        raise KeydeckError([_problem("error", m) for m in messages], more) from None


class Model:
    """A database of one or more models, checked and ready to write."""

    __slots__ = ("_loaded",)

    def __init__(self, loaded):
        self._loaded = loaded

    @classmethod
    def from_dict(cls, d):
        """The model of `d`, a dict of the structure of a model file."""
        return cls(_call(_keydeck.load_python, d))

    @classmethod
    def from_json(cls, text):
        """The model of a model file's text."""
        return cls(_call(_keydeck.load_text, text))

    @property
    def names(self):
        """The names of the models, in byte order."""
        return self._loaded.model_names()

    @property
    def warnings(self):
        """What loading noted but does not stop the deck, as Problems."""
        return [_problem("warning", w) for w in self._loaded.warnings]

    def to_json(self):
        """The model file's text: loading it gives back this model."""
        return self._loaded.dump()

    def to_dict(self, numpy=False):
        """The model as a dict of the model file's structure, as loading the
        model file's text with the json module gives it. With `numpy`, every
        array of numbers is a numpy array instead (2-D for an array of equal
        rows; int64 when all its numbers are integers, else float64): the
        fast form for a large mesh."""
        return self._loaded.to_python(bool(numpy))

    def check(self):
        """Every problem of the model, as a list of Problem: the warnings of
        loading and what would stop the deck of each model. Empty for a model
        whose decks can all be written without a note."""
        errors = [Problem(path, "error", message) for path, message in self._loaded.writer_problems()]
        return errors + self.warnings

    def write(self, job, folder=".", model="Default Model"):
        """Writes the deck of `model` to FOLDER/JOB.inp, whole or not at all
        (an older deck stays as it was on failure); returns its path."""
        return _call(self._loaded.write, str(job), str(folder), model)


def load(path):
    """The model of the model file at `path`."""
    return Model(_call(_keydeck.load_file, str(path)))


def schema():
    """The JSON Schema of the model file, as a dict."""
    return _json.loads(_keydeck.schema())
