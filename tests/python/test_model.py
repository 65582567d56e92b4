"""keydeck.Model from dicts, numpy arrays and files: the same decks, the same
errors with the same paths."""

import copy
import json
import os

import numpy as np
import pytest

import keydeck
from conftest import GOLDEN, GOLDEN_NAMES, golden_deck, golden_dict, with_numpy, write_deck

BRACKET = ["models", "Default Model", "parts", "Bracket"]


def at(d, path):
    for key in path:
        d = d[key]
    return d


@pytest.mark.parametrize("name", GOLDEN_NAMES)
def test_dict_numpy_and_file_give_the_golden_deck(name, tmp_path):
    expected = golden_deck(name)
    assert write_deck(keydeck.load(GOLDEN / (name + ".json")), tmp_path) == expected
    assert write_deck(keydeck.Model.from_dict(golden_dict(name)), tmp_path) == expected
    assert write_deck(keydeck.Model.from_dict(with_numpy(golden_dict(name))), tmp_path) == expected


@pytest.mark.parametrize("name", GOLDEN_NAMES)
def test_round_trip_through_a_dict_and_the_json_text(name, tmp_path):
    model = keydeck.load(GOLDEN / (name + ".json"))
    again = keydeck.Model.from_dict(model.to_dict())
    assert write_deck(again, tmp_path) == golden_deck(name)
    assert keydeck.Model.from_json(model.to_json()).to_json() == model.to_json()


def bracket_with(**arrays):
    """The bracket golden model with the given fields of its part replaced."""
    d = golden_dict("bracket")
    nodes = at(d, BRACKET + ["nodes"])
    brick = at(d, BRACKET + ["elements"])[0]
    for field, value in arrays.items():
        (nodes if field in ("labels", "coordinates") else brick)[field] = value
    return d


def test_dtypes_that_hold_the_values_are_converted(tmp_path):
    expected = golden_deck("bracket")
    for label_type in (np.int8, np.int16, np.int32, np.int64, np.uint16, np.uint64, np.float64):
        for coordinate_type in (np.float32, np.float64, np.int32):
            d = bracket_with(
                labels=np.arange(1, 13, dtype=label_type),
                coordinates=np.array(at(golden_dict("bracket"), BRACKET + ["nodes", "coordinates"]), dtype=coordinate_type),
                connectivity=np.array([[1, 2, 5, 4, 7, 8, 11, 10], [2, 3, 6, 5, 8, 9, 12, 11]], dtype=label_type),
            )
            assert write_deck(keydeck.Model.from_dict(d), tmp_path) == expected, (label_type, coordinate_type)


def test_arrays_of_any_strides_are_read_in_place(tmp_path):
    coordinates = np.array(at(golden_dict("bracket"), BRACKET + ["nodes", "coordinates"]), dtype=np.float64)
    wide = np.zeros((12, 7))
    wide[:, 1:6:2] = coordinates
    strided = wide[:, 1:6:2]  # rows 56 bytes apart, values 16
    assert not strided.flags.c_contiguous
    fortran = np.asfortranarray(coordinates)
    labels = np.arange(12, 0, -1)[::-1]  # 1 to 12 with a negative stride
    assert labels.strides[0] < 0
    connectivity = np.array([[1, 2, 5, 4, 7, 8, 11, 10], [2, 3, 6, 5, 8, 9, 12, 11]]).T.copy().T
    for points in (strided, fortran):
        d = bracket_with(labels=labels, coordinates=points, connectivity=connectivity)
        assert write_deck(keydeck.Model.from_dict(d), tmp_path) == golden_deck("bracket")


# Faulty models: each gives the same messages from its file, from the dict and
# from the dict with numpy arrays.
def _set(path, value):
    def change(d):
        at(d, path[:-1])[path[-1]] = value

    return change


def _delete(path):
    def change(d):
        del at(d, path[:-1])[path[-1]]

    return change


LABELS = BRACKET + ["nodes", "labels"]
COORDINATES = BRACKET + ["nodes", "coordinates"]
CONNECTIVITY = BRACKET + ["elements", 0, "connectivity"]
FAULTS = {
    "fraction in labels": _set(LABELS, [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11.5, 12]),
    "label beyond int": _set(LABELS, [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 3000000000]),
    "negative label beyond int": _set(LABELS, [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, -3000000000]),
    "repeated label": _set(LABELS, [1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 11]),
    "labels too few": _set(LABELS, [1, 2, 3]),
    "labels not an array": _set(LABELS, "all"),
    "labels null": _set(LABELS, None),
    "two coordinates per row": _set(COORDINATES, [[0, 0]] * 12),
    "coordinate beyond float": _set(COORDINATES, [[0, 0, 0]] * 11 + [[0, 1e39, 0]]),
    "connectivity names no node": _set(CONNECTIVITY, [[1, 2, 5, 4, 7, 8, 11, 99], [2, 3, 6, 5, 8, 9, 12, 11]]),
    "connectivity too short for the type": _set(CONNECTIVITY, [[1, 2, 5, 4], [2, 3, 6, 5]]),
    "connectivity fraction": _set(CONNECTIVITY, [[1, 2, 5, 4, 7, 8, 11, 10.5], [2, 3, 6, 5, 8, 9, 12, 11]]),
    "set label beyond the part": _set(BRACKET + ["sets", "Fixed", "nodes"], [1, 4, 70]),
    "range step zero": _set(BRACKET + ["sets", "Free", "nodes", "generate"], [3, 12, 0]),
    "range of two numbers": _set(BRACKET + ["sets", "Free", "nodes", "generate"], [3, 12]),
    "translation of two numbers": _set(["models", "Default Model", "assembly", "instances", "Bracket-2", "translation"], [1, 2]),
    "unknown field": _set(BRACKET + ["nodez"], {}),
    "missing field": _delete(BRACKET + ["nodes", "labels"]),
    "name with a quote": _set(["models", "Default Model", "parts", 'a"b'], {}),
    "unknown element type word": _set(BRACKET + ["elements", 0, "type"], 7),
    "wrong version": _set(["version"], 2),
    "missing models": _delete(["models"]),
}


def file_messages(d, tmp_path, messages):
    path = tmp_path / "model.json"
    path.write_text(json.dumps(d))
    prefix = str(path) + ": "
    return [m[len(prefix):] if m.startswith(prefix) else m for m in messages(lambda: keydeck.load(path))]


@pytest.mark.parametrize("fault", sorted(FAULTS))
def test_every_loader_error_arrives_from_a_dict_with_its_path(fault, tmp_path, messages):
    d = golden_dict("bracket")
    instances = at(d, ["models", "Default Model", "assembly", "instances"])
    assert "Bracket-2" in instances
    FAULTS[fault](d)
    expected = file_messages(d, tmp_path, messages)
    assert expected and all(m for m in expected)
    assert messages(lambda: keydeck.Model.from_dict(copy.deepcopy(d))) == expected
    assert messages(lambda: keydeck.Model.from_dict(with_numpy(d))) == expected


def test_problems_carry_path_kind_and_message():
    d = golden_dict("bracket")
    at(d, LABELS)[0] = 1.5
    at(d, BRACKET)["nodez"] = {}
    with pytest.raises(keydeck.KeydeckError) as failure:
        keydeck.Model.from_dict(d)
    assert failure.value.problems == [
        keydeck.Problem("models/Default Model/parts/Bracket/nodes/labels/0", "error", "expected an integer, found 1.5"),
        keydeck.Problem("models/Default Model/parts/Bracket", "error", 'unknown field "nodez"; did you mean "nodes"?'),
    ]
    assert failure.value.more == 0


def test_many_bad_values_are_counted_beyond_those_kept(messages):
    labels = np.arange(1, 13, dtype=np.float64) + 0.5
    lines = messages(lambda: keydeck.Model.from_dict(bracket_with(labels=np.tile(labels, 10))))
    assert len(lines) == 51 and lines[-1] == "... and 70 more"


ARRAY_FAULTS = [
    ("labels", np.ones(12, dtype=bool), "nodes/labels: expected an array of numbers, found an array of |b1"),
    ("labels", np.ones(12, dtype=complex), "nodes/labels: expected an array of numbers, found an array of <c16"),
    ("labels", np.arange(1, 13, dtype=">i4"), "nodes/labels: expected an array of numbers, found an array of >i4"),
    ("labels", np.arange(1, 13).reshape(6, 2), "nodes/labels: expected an array of one dimension, found an array of shape (6, 2)"),
    ("labels", np.array([1, 2**40] + list(range(3, 13)), dtype=np.uint64),
     "nodes/labels/1: expected an integer from -2147483648 to 2147483647, found 1099511627776"),
    ("labels", np.array([np.nan] + list(range(2, 13))), "nodes/labels/0: expected a finite number, found nan"),
    ("coordinates", np.zeros(36), "nodes/coordinates: expected an array of two dimensions, found an array of shape (36,)"),
    ("coordinates", np.full((12, 3), np.inf), "nodes/coordinates/0/0: expected a finite number, found inf"),
    ("connectivity", np.zeros((2, 2, 4), dtype=np.int32),
     "elements/0/connectivity: expected an array of two dimensions, found an array of shape (2, 2, 4)"),
    ("connectivity", np.zeros((2, 0), dtype=np.int32), "elements/0/connectivity/0: a connectivity row must name at least one node"),
]


@pytest.mark.parametrize("field,array,message", ARRAY_FAULTS)
def test_arrays_that_do_not_fit_are_refused_with_the_path(field, array, message, messages):
    lines = messages(lambda: keydeck.Model.from_dict(bracket_with(**{field: array})))
    assert lines[0] == "models/Default Model/parts/Bracket/" + message


def test_a_numpy_array_where_no_array_belongs_is_refused(messages):
    d = golden_dict("bracket")
    at(d, BRACKET + ["elements", 0])["type"] = np.array([1, 2])
    assert messages(lambda: keydeck.Model.from_dict(d)) == [
        "models/Default Model/parts/Bracket/elements/0/type: expected a string, found null"
    ]


def test_numpy_scalars_and_tuples_read_as_their_values(tmp_path):
    d = golden_dict("bracket")
    at(d, LABELS)[:] = [np.int64(label) for label in at(d, LABELS)]
    at(d, COORDINATES)[:] = [tuple(np.float32(x) for x in point) for point in at(d, COORDINATES)]
    assert write_deck(keydeck.Model.from_dict(d), tmp_path) == golden_deck("bracket")


@pytest.mark.parametrize("value,message", [
    ({1, 2}, "models/Default Model/parts/Bracket/nodes/labels: expected a value that JSON can hold, found a set"),
    ([1, float("nan")], "models/Default Model/parts/Bracket/nodes/labels/1: expected a finite number, found nan"),
    ({3: 4}, "models/Default Model/parts/Bracket/nodes/labels: expected string keys, found the key 3"),
])
def test_python_values_that_json_cannot_hold_are_refused_with_the_path(value, message, messages):
    d = golden_dict("bracket")
    at(d, BRACKET + ["nodes"])["labels"] = value
    assert messages(lambda: keydeck.Model.from_dict(d)) == [message]


def test_check_lists_warnings_with_path_and_kind():
    d = golden_dict("bracket")
    at(d, BRACKET + ["elements"])[0]["type"] = "C3D8RR"
    problems = keydeck.Model.from_dict(d).check()
    assert [p.kind for p in problems] == ["warning"]
    assert problems[0].path == "/".join(BRACKET + ["elements", "0", "type"])
    assert 'did you mean "C3D8R"?' in problems[0].message


def test_write_is_whole_or_nothing(tmp_path):
    model = keydeck.load(GOLDEN / "bracket.json")
    with pytest.raises(OSError):
        model.write("Job-1", tmp_path / "missing")
    with pytest.raises(keydeck.KeydeckError, match='no model named "Other"'):
        model.write("Job-1", tmp_path, model="Other")
    path = model.write("Job-1", tmp_path)
    assert path == str(tmp_path / "Job-1.inp")
    assert os.listdir(tmp_path) == ["Job-1.inp"]


def test_schema_is_the_file_schema():
    schema = keydeck.schema()
    assert schema["properties"]["format"] and "models" in schema["required"]


def test_missing_file_names_the_path(tmp_path, messages):
    path = tmp_path / "none.json"
    assert messages(lambda: keydeck.load(path)) == [str(path) + ": no such file"]


def test_to_dict_gives_numpy_arrays_for_arrays_of_numbers(tmp_path):
    model = keydeck.load(GOLDEN / "materials.json")
    plain, arrays = model.to_dict(), model.to_dict(numpy=True)
    assert plain == json.loads(model.to_json())
    part = at(arrays, ["models", "Default Model", "parts", "Block"])
    assert part["nodes"]["labels"].dtype == np.int64 and part["nodes"]["coordinates"].shape == (12, 3)
    table = at(arrays, ["models", "Default Model", "materials", "Steel", "elastic", "table"])
    assert table.dtype == np.float64 and table.tolist() == [[210000, 0.3, 20], [175000, 0.3, 400]]
    assert write_deck(keydeck.Model.from_dict(arrays), tmp_path) == golden_deck("materials")


def test_a_structure_that_holds_itself_is_refused(messages):
    d = golden_dict("bracket")
    loop = []
    loop.append(loop)
    at(d, BRACKET)["solverInput"] = loop
    [message] = messages(lambda: keydeck.Model.from_dict(d))
    assert message.startswith("models/Default Model/parts/Bracket/solverInput/0/0/")
    assert message.endswith(": the value nests deeper than 1000 levels")
