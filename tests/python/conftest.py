"""Shared helpers of the Python tests: the repository's golden models and a way
to turn a model's numeric lists into numpy arrays."""

import json
import os
import pathlib

import numpy as np
import pytest

SOURCE = pathlib.Path(os.environ.get("KEYDECK_SOURCE_DIR", pathlib.Path(__file__).resolve().parents[2]))
GOLDEN = SOURCE / "tests" / "golden"
GOLDEN_NAMES = sorted(path.stem for path in GOLDEN.glob("*.json"))


def golden_dict(name):
    return json.loads((GOLDEN / (name + ".json")).read_text())


def golden_deck(name):
    return (GOLDEN / (name + ".inp")).read_text()


def _numbers(value):
    return all(isinstance(item, (int, float)) and not isinstance(item, bool) for item in value)


def with_numpy(value):
    """`value` with every list of numbers, and every list of such lists, made a
    numpy array: the form a script would hand over."""
    if isinstance(value, dict):
        return {key: with_numpy(item) for key, item in value.items()}
    if isinstance(value, list):
        if value and _numbers(value):
            return np.array(value)
        if value and all(isinstance(row, list) and row and _numbers(row) for row in value):
            if len({len(row) for row in value}) == 1:
                return np.array(value)
        return [with_numpy(item) for item in value]
    return value


def write_deck(model, folder, job="Job-1"):
    return pathlib.Path(model.write(job, folder)).read_text()


@pytest.fixture
def messages():
    """The messages of the KeydeckError that `call()` raises, in the loader's form."""
    import keydeck

    def run(call):
        with pytest.raises(keydeck.KeydeckError) as failure:
            call()
        return str(failure.value).splitlines()

    return run
