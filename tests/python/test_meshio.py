"""keydeck.from_meshio and `python3 -m keydeck import`: meshio's cells in the
deck's types and node orders, sets and physical groups by name."""

import json
import os
import subprocess
import sys

import meshio
import numpy as np
import pytest

import keydeck
from conftest import write_deck

# Nodes of a quadratic cell that lie between corners, as the index of each
# such node with the corners it is the centre of. meshio's orders are VTK's;
# the deck's are the solver's; both written out here independently of the
# conversion table under test.
MESHIO_MIDDLES = {
    "line3": {2: (0, 1)},
    "triangle6": {3: (0, 1), 4: (1, 2), 5: (2, 0)},
    "quad8": {4: (0, 1), 5: (1, 2), 6: (2, 3), 7: (3, 0)},
    "tetra10": {4: (0, 1), 5: (1, 2), 6: (2, 0), 7: (0, 3), 8: (1, 3), 9: (2, 3)},
    "wedge15": {6: (0, 1), 7: (1, 2), 8: (2, 0), 9: (3, 4), 10: (4, 5), 11: (5, 3),
                12: (0, 3), 13: (1, 4), 14: (2, 5)},
    "hexahedron20": {8: (0, 1), 9: (1, 2), 10: (2, 3), 11: (3, 0), 12: (4, 5), 13: (5, 6),
                     14: (6, 7), 15: (7, 4), 16: (0, 4), 17: (1, 5), 18: (2, 6), 19: (3, 7)},
}
MESHIO_MIDDLES["hexahedron27"] = {**MESHIO_MIDDLES["hexahedron20"], **{
    20: (0, 4, 7, 3), 21: (1, 2, 6, 5), 22: (0, 1, 5, 4), 23: (3, 2, 6, 7), 24: (0, 1, 2, 3),
    25: (4, 5, 6, 7), 26: tuple(range(8))}}

DECK_MIDDLES = {
    "T3D3": {1: (0, 2)},
    "CPS6": {3: (0, 1), 4: (1, 2), 5: (2, 0)},
    "CPS8": {4: (0, 1), 5: (1, 2), 6: (2, 3), 7: (3, 0)},
    "C3D10": {4: (0, 1), 5: (1, 2), 6: (2, 0), 7: (0, 3), 8: (1, 3), 9: (2, 3)},
    "C3D15": {6: (0, 1), 7: (1, 2), 8: (2, 0), 9: (3, 4), 10: (4, 5), 11: (5, 3),
              12: (0, 3), 13: (1, 4), 14: (2, 5)},
    "C3D20": {8: (0, 1), 9: (1, 2), 10: (2, 3), 11: (3, 0), 12: (4, 5), 13: (5, 6),
              14: (6, 7), 15: (7, 4), 16: (0, 4), 17: (1, 5), 18: (2, 6), 19: (3, 7)},
}
DECK_MIDDLES["STRI65"] = DECK_MIDDLES["CPS6"]
DECK_MIDDLES["S8R"] = DECK_MIDDLES["CPS8"]
DECK_MIDDLES["C3D27"] = {**DECK_MIDDLES["C3D20"], **{
    20: (0, 1, 2, 3), 21: (4, 5, 6, 7), 22: (0, 1, 5, 4), 23: (1, 2, 6, 5), 24: (2, 3, 7, 6),
    25: (3, 0, 4, 7), 26: tuple(range(8))}}

CORNERS = {  # corners of each kind of cell, a little out of shape so no two centres agree
    "line": [[0, 0, 0], [2, 0.1, 0]],
    "triangle": [[0, 0, 0], [2, 0.1, 0], [0.2, 1.5, 0]],
    "quad": [[0, 0, 0], [2, 0.1, 0], [2.2, 1.5, 0], [0.1, 1.3, 0]],
    "tetra": [[0, 0, 0], [2, 0.1, 0], [0.2, 1.5, 0], [0.3, 0.2, 1.7]],
    "pyramid": [[0, 0, 0], [2, 0.1, 0], [2.2, 1.5, 0], [0.1, 1.3, 0], [1, 0.7, 1.4]],
    "wedge": [[0, 0, 0], [2, 0.1, 0], [0.2, 1.5, 0], [0.1, 0, 1.6], [2.1, 0.2, 1.7], [0.3, 1.4, 1.8]],
    "hexahedron": [[0, 0, 0], [2, 0.1, 0], [2.2, 1.5, 0], [0.1, 1.3, 0],
                   [0.1, 0, 1.6], [2.1, 0.2, 1.7], [2.3, 1.6, 1.9], [0.2, 1.4, 1.8]],
}
CORNERS["line3"] = CORNERS["line"]
CORNERS["triangle6"] = CORNERS["triangle"]
CORNERS["quad8"] = CORNERS["quad"]
CORNERS["tetra10"] = CORNERS["tetra"]
CORNERS["wedge15"] = CORNERS["wedge"]
CORNERS["hexahedron20"] = CORNERS["hexahedron27"] = CORNERS["hexahedron"]


def one_cell(cell_type):
    """A mesh of one cell of the type, its nodes in meshio's order."""
    if cell_type not in meshio._mesh.topological_dimension:
        pytest.skip("this meshio cannot make cells of type " + cell_type)
    points = [np.array(p, dtype=float) for p in CORNERS[cell_type]]
    for index, corners in sorted(MESHIO_MIDDLES.get(cell_type, {}).items()):
        assert index == len(points)
        points.append(np.mean([points[c] for c in corners], axis=0))
    return meshio.Mesh(np.array(points), [(cell_type, np.arange(len(points))[None, :])])


def part_of(model_dict, name="Part-1"):
    return model_dict["models"]["Default Model"]["parts"][name]


@pytest.mark.parametrize("cell_type", sorted(keydeck.MESHIO_TYPES))
@pytest.mark.parametrize("shell", [False, True])
def test_each_cell_type_lands_in_the_deck_order(cell_type, shell):
    model = keydeck.Model.from_dict(keydeck.from_meshio(one_cell(cell_type), shell=shell))
    part = part_of(model.to_dict())
    [element_class] = part["elements"]
    deck_type = keydeck.MESHIO_TYPES[cell_type][1 if shell else 0]
    assert element_class["type"] == deck_type
    coordinates = dict(zip(part["nodes"]["labels"], np.array(part["nodes"]["coordinates"])))
    row = [coordinates[label] for label in element_class["connectivity"][0]]
    middles = DECK_MIDDLES.get(deck_type, {})
    corners = iter(CORNERS[cell_type])  # the deck's other nodes are the corners, in order
    for index, point in enumerate(row):
        expected = np.mean([row[c] for c in middles[index]], axis=0) if index in middles else next(corners)
        np.testing.assert_allclose(point, expected, atol=1e-6, err_msg="node %d of %s" % (index + 1, deck_type))


def test_quadratic_hexahedron_row_in_the_deck(tmp_path):
    # meshio's cell lists nodes 0..26; the deck's face centres come in its own order.
    deck = write_deck(keydeck.Model.from_dict(keydeck.from_meshio(one_cell("hexahedron27"))), tmp_path)
    lines = deck[deck.index("*Element, type=C3D27\n"):].splitlines()[1:]
    numbers = []
    for line in lines:
        if line.startswith("*"):
            break
        numbers += [int(n) for n in line.replace(",", " ").split()]
    assert numbers == [1] + list(range(1, 21)) + [25, 26, 23, 22, 24, 21, 27]


def test_a_cell_type_without_a_deck_type_fails_by_name():
    mesh = meshio.Mesh(np.zeros((9, 3)), [("quad", np.array([[0, 1, 2, 3]])), ("quad9", np.arange(9)[None, :])])
    with pytest.raises(keydeck.KeydeckError) as failure:
        keydeck.from_meshio(mesh)
    assert failure.value.problems == [keydeck.Problem("cells/1", "error", 'no deck element type for the meshio cell type "quad9"')]
    part = part_of(keydeck.from_meshio(mesh, ignore=["quad9"]))
    assert [c["type"] for c in part["elements"]] == ["CPS4"]


def two_blocks():
    """Two tetrahedra and two boundary triangles, with gmsh's physical groups
    and a point set."""
    points = np.array([[0, 0, 0], [1, 0, 0], [0, 1, 0], [0, 0, 1], [1, 1, 1]], dtype=float)
    cells = [("triangle", np.array([[0, 1, 2], [1, 2, 4]])), ("tetra", np.array([[0, 1, 2, 3], [1, 2, 3, 4]])),
             ("vertex", np.array([[3]]))]
    return meshio.Mesh(
        points, cells,
        point_sets={"Apex": np.array([4])},
        cell_data={"gmsh:physical": [np.array([7, 8]), np.array([5, 5]), np.array([9])],
                   "gmsh:geometrical": [np.array([1, 2]), np.array([1, 1]), np.array([1])]},
        field_data={"Bottom": np.array([7, 2]), "Slant": np.array([8, 2]), "Solid": np.array([5, 3]),
                    "Tip": np.array([9, 0])},
    )


def test_sets_and_physical_groups_arrive_with_their_labels():
    d = keydeck.from_meshio(two_blocks())
    model = keydeck.Model.from_dict(d)
    part = part_of(model.to_dict())
    assert [(c["type"], c["labels"]) for c in part["elements"]] == [("CPS3", [1, 2]), ("C3D4", [3, 4])]
    assert part["sets"] == {"Apex": {"nodes": [5]}, "Bottom": {"elements": [1]}, "Slant": {"elements": [2]},
                            "Solid": {"elements": [3, 4]}, "Tip": {"nodes": [4]}}


def test_cells_of_a_lower_dimension_may_name_nodes_only():
    part = part_of(keydeck.Model.from_dict(keydeck.from_meshio(two_blocks(), lower="nodes")).to_dict())
    assert [(c["type"], c["labels"]) for c in part["elements"]] == [("C3D4", [1, 2])]
    assert part["sets"] == {"Apex": {"nodes": [5]}, "Bottom": {"nodes": [1, 2, 3]}, "Slant": {"nodes": [2, 3, 5]},
                            "Solid": {"elements": [1, 2]}, "Tip": {"nodes": [4]}}


def test_a_gmsh_file_through_the_import_command(tmp_path):
    mesh_file, model_file = tmp_path / "block.msh", tmp_path / "block.json"
    meshio.write(str(mesh_file), two_blocks(), file_format="gmsh22", binary=False)
    command = [sys.executable, "-m", "keydeck", "import", str(mesh_file), "-o", str(model_file), "--part", "Block"]
    subprocess.run(command, check=True, env=dict(os.environ))
    part = part_of(json.loads(model_file.read_text()), "Block")
    assert sorted(part["sets"]) == ["Bottom", "Slant", "Solid", "Tip"]
    assert part["sets"]["Solid"] == {"elements": [3, 4]}
    binary = os.environ.get("KEYDECK_BINARY")
    if binary:  # the command writes the deck of the imported model
        subprocess.run([binary, "write", "-q", "-o", str(tmp_path), str(model_file)], check=True)
        assert "*Element, type=C3D4\n3, 1, 2, 3, 4\n" in (tmp_path / "block.inp").read_text().replace("  ", " ")


def test_import_of_a_bad_file_fails_and_writes_nothing(tmp_path):
    bad = tmp_path / "bad.msh"
    bad.write_text("not a mesh")
    result = subprocess.run([sys.executable, "-m", "keydeck", "import", str(bad), "-o", str(tmp_path / "m.json")],
                            capture_output=True, text=True)
    assert result.returncode == 1  # meshio may have said why before us
    assert result.stderr.splitlines()[-1] == "keydeck: " + str(bad) + ": meshio cannot read the file"
    assert not (tmp_path / "m.json").exists()
