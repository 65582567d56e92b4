"""Meshes of other tools, read by meshio, as keydeck models."""

import numpy as _np

# meshio cell type -> (deck type of a solid, deck type of a shell, node order).
# The solid column holds plane-stress elements for cells of two dimensions.
# The node order lists, for each node of the deck's element, the index of that
# node in meshio's cell; None where the two orders agree.
MESHIO_TYPES = {
    "line": ("T3D2", "T3D2", None),
    # meshio gives both ends first, then the middle node; the deck runs along.
    "line3": ("T3D3", "T3D3", [0, 2, 1]),
    "triangle": ("CPS3", "S3", None),
    "triangle6": ("CPS6", "STRI65", None),
    "quad": ("CPS4", "S4", None),
    "quad8": ("CPS8", "S8R", None),
    "tetra": ("C3D4", "C3D4", None),
    "tetra10": ("C3D10", "C3D10", None),
    "pyramid": ("C3D5", "C3D5", None),
    "wedge": ("C3D6", "C3D6", None),
    "wedge15": ("C3D15", "C3D15", None),
    "hexahedron": ("C3D8", "C3D8", None),
    "hexahedron20": ("C3D20", "C3D20", None),
    # meshio's face centres go x-, x+, y-, y+, z-, z+; the deck's z-, z+, y-,
    # x+, y+, x-.
    "hexahedron27": ("C3D27", "C3D27", list(range(20)) + [24, 25, 22, 21, 23, 20, 26]),
}

# Cells of single points are no elements; in a set they name its nodes.
_POINT_CELLS = "vertex"


def _fail(path, message):
    from . import KeydeckError, Problem

    raise KeydeckError([Problem(path, "error", message)])


def _deck_type(cell_type, index, shell):
    entry = MESHIO_TYPES.get(cell_type)
    if entry is None:
        _fail("cells/%d" % index, 'no deck element type for the meshio cell type "%s"' % cell_type)
    return entry[1] if shell else entry[0], entry[2]


def _nodes(mesh):
    points = _np.asarray(mesh.points, dtype=_np.float64)
    if points.ndim != 2 or not 1 <= points.shape[1] <= 3:
        _fail("points", "expected points of 1 to 3 coordinates, found an array of shape %s" % (points.shape,))
    if points.shape[1] < 3:  # a mesh in the plane lies at z = 0
        points = _np.hstack([points, _np.zeros((len(points), 3 - points.shape[1]))])
    return {"labels": _np.arange(1, len(points) + 1, dtype=_np.int32), "coordinates": points}


def _dimension(cell_type):
    return 0 if cell_type == _POINT_CELLS else _CELL_DIMENSIONS.get(cell_type, 3)


def _node_blocks(mesh, lower):
    """Per cell block, whether its cells only name nodes: cells of points, and
    with lower="nodes" the cells below the mesh's highest dimension."""
    if lower not in ("elements", "nodes"):
        raise ValueError('lower must be "elements" or "nodes", not %r' % (lower,))
    highest = max((_dimension(block.type) for block in mesh.cells), default=0)
    return [block.type == _POINT_CELLS or (lower == "nodes" and _dimension(block.type) < highest)
            for block in mesh.cells]


def _elements(mesh, shell, ignore, node_blocks):
    """The element classes, and per cell block the labels of its cells (None for
    a block that gives no elements)."""
    classes, block_labels = [], []
    next_label = 1
    for index, block in enumerate(mesh.cells):
        if node_blocks[index] or block.type in ignore:
            block_labels.append(None)
            continue
        deck_type, order = _deck_type(block.type, index, shell)
        cells = _np.asarray(block.data)
        connectivity = (cells if order is None else cells[:, order]) + 1
        labels = _np.arange(next_label, next_label + len(cells), dtype=_np.int32)
        next_label += len(cells)
        classes.append({"type": deck_type, "labels": labels, "connectivity": connectivity})
        block_labels.append(labels)
    return classes, block_labels


def _cell_groups(mesh):
    """Each named group of cells as a list, per cell block, of the indices of its
    cells there (None for none): meshio's cell sets, and the physical groups of
    a gmsh mesh that are not among them."""
    groups = {name: list(blocks) for name, blocks in mesh.cell_sets.items() if not name.startswith("gmsh:")}
    physical = mesh.cell_data.get("gmsh:physical")
    if physical is None:
        return groups
    for name, (tag, dimension) in mesh.field_data.items():
        if name in groups:
            continue
        blocks = []
        for block, tags in zip(mesh.cells, physical):
            match = _np.flatnonzero(_np.asarray(tags) == tag) if _dimension(block.type) == dimension else []
            blocks.append(match if len(match) else None)
        groups[name] = blocks
    return groups


_CELL_DIMENSIONS = {
    cell_type: (1 if deck[0].startswith("T") else 2 if deck[0].startswith("CPS") else 3)
    for cell_type, deck in MESHIO_TYPES.items()
}


def _sets(mesh, block_labels, node_blocks):
    sets = {name: {"nodes": _np.asarray(indices, dtype=_np.int64) + 1} for name, indices in mesh.point_sets.items()}
    for name, blocks in _cell_groups(mesh).items():
        elements, nodes = [], []
        for block, labels, indices, of_nodes in zip(mesh.cells, block_labels, blocks, node_blocks):
            if indices is None or len(indices) == 0:
                continue
            indices = _np.asarray(indices, dtype=_np.int64)
            if labels is not None:
                elements.append(labels[indices])
            elif of_nodes:
                nodes.append(_np.asarray(block.data)[indices].ravel() + 1)
        if not elements and not nodes:
            continue
        if name in sets:
            _fail("cell_sets/" + name, 'the set "%s" is also a point set of the mesh' % name)
        if elements:
            sets[name] = {"elements": _np.concatenate(elements)}
        else:
            sets[name] = {"nodes": _np.unique(_np.concatenate(nodes))}
    return sets


def from_meshio(mesh, part="Part-1", shell=False, ignore=(), lower="elements"):
    """A model file's structure (a dict) holding the meshio `mesh` as part
    `part`, with one instance of it named PART-1 and the initial step.

    Nodes are labelled 1, 2, ... in the order of the points; elements 1, 2, ...
    in the order of the cell blocks and their cells, one element class per
    block. The deck type of each block comes from MESHIO_TYPES: cells of two
    dimensions become plane-stress elements, or shells when `shell` is true.
    Node orders are converted where meshio's differs from the deck's. A cell
    type of no deck equivalent is an error that names it, unless it is in
    `ignore`; cells of single points ("vertex") give no elements. With
    lower="nodes", neither do the cells of a lower dimension than the mesh's
    highest (the faces that a gmsh mesh of a solid holds for its surface
    groups): their sets become node sets.

    Point sets become node sets; cell sets, and the physical groups of a gmsh
    mesh, become element sets of the same name (node sets for groups of
    points). Arrays stay numpy arrays, so the dict goes to Model.from_dict
    without a Python loop over the mesh.
    """
    ignore = set(ignore)
    node_blocks = _node_blocks(mesh, lower)
    classes, block_labels = _elements(mesh, shell, ignore, node_blocks)
    body = {"nodes": _nodes(mesh), "elements": classes}
    sets = _sets(mesh, block_labels, node_blocks)
    if sets:
        body["sets"] = sets
    return {
        "format": "keydeck-model",
        "version": 1,
        "models": {
            "Default Model": {
                "parts": {part: body},
                "assembly": {"instances": {part + "-1": {"part": part}}},
                "steps": [{"name": "Initial"}],
            }
        },
    }
