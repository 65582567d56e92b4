#!/usr/bin/python3
"""Draws the node order and the face labels of each element family that
keydeck knows, and writes the page that shows them:

    docs/elements/{tetrahedron,wedge,brick,triangle,quadrilateral,line}.svg
    docs/elements.md

Run it from anywhere (Debian's /usr/bin/python3, standard library only):

    scripts/draw_elements.py                    writes the files
    scripts/draw_elements.py --check KEYDECK    fails when a file differs from what it
        would write, or when the command KEYDECK does not take exactly the face labels
        that the page gives for an element type

The face labels follow the loader's face table (model/element_types.cpp):
"S1" to "S6" on solids, "S1" to "S4" on plane elements (their edges), "SPOS"
and "SNEG" on shells and membranes, "END1" and "END2" on beams and trusses.
"""

import json
import math
import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
DOCS = ROOT / "docs"

# Solids are drawn in an orthographic view from the front right, above (x
# runs to the right, y away from the viewer, z up), from a direction that
# shows most of their faces.
VIEWER = (0.55, -0.75, 0.45)  # toward the viewer
SCALE, WIDTH, HEIGHT = 230.0, 480, 400


class Family:
    """One element family: reference coordinates of its corner nodes, the
    edges that carry the midside nodes of its quadratic form (numbered on
    from the last corner, in this order), its faces as corner lists, and the
    types that --check tries, each with its node count and whether its faces
    are its two sides."""

    def __init__(self, name, title, types, corners, edges, faces, checked, face_note="",
                 viewer=VIEWER):
        self.name, self.title, self.types = name, title, types
        self.corners, self.edges, self.faces = corners, edges, faces
        self.checked, self.face_note, self.viewer = checked, face_note, viewer

    def midside(self, a, b):
        """The number of the midside node on the edge of corners a and b."""
        for index, edge in enumerate(self.edges):
            if set(edge) == {a, b}:
                return len(self.corners) + index + 1
        raise KeyError((a, b))

    def positions(self):
        """Every node (corners, then midside nodes) with its coordinates."""
        nodes = {n + 1: c for n, c in enumerate(self.corners)}
        for a, b in self.edges:
            nodes[self.midside(a, b)] = tuple(
                (p + q) / 2 for p, q in zip(self.corners[a - 1], self.corners[b - 1]))
        return nodes

    def face_nodes(self, corners, quadratic):
        """The nodes of one face: its corners, then (quadratic) the midside
        nodes of its edges in the same turn."""
        if not quadratic:
            return list(corners)
        turn = list(zip(corners, corners[1:] + corners[:1]))
        if len(corners) == 2:  # an edge of a plane element has one midside node
            turn = turn[:1]
        return list(corners) + [self.midside(a, b) for a, b in turn]


TETRAHEDRON = Family(
    "tetrahedron", "Tetrahedra", "C3D4 (4 nodes), C3D10 (10 nodes)",
    [(0, 0, 0), (1, 0, 0), (0, 1, 0), (0, 0, 1)],
    [(1, 2), (2, 3), (3, 1), (1, 4), (2, 4), (3, 4)],
    {"S1": (1, 2, 3), "S2": (1, 4, 2), "S3": (2, 4, 3), "S4": (3, 4, 1)},
    [("C3D4", 4, False), ("C3D10", 10, False)],
    viewer=(-0.6, -1.0, 0.45))

WEDGE = Family(
    "wedge", "Wedges", "C3D6 (6 nodes), C3D15 (15 nodes); SC6R",
    [(0, 0, 0), (1, 0, 0), (0, 1, 0), (0, 0, 1), (1, 0, 1), (0, 1, 1)],
    [(1, 2), (2, 3), (3, 1), (4, 5), (5, 6), (6, 4), (1, 4), (2, 5), (3, 6)],
    {"S1": (1, 2, 3), "S2": (4, 6, 5), "S3": (1, 4, 5, 2), "S4": (2, 5, 6, 3),
     "S5": (3, 6, 4, 1)}, [("C3D6", 6, False), ("C3D15", 15, False), ("SC6R", 6, False)],
    viewer=(-0.55, -1.0, 0.6))

BRICK = Family(
    "brick", "Bricks", "C3D8, C3D8R (8 nodes), C3D20, C3D20R (20 nodes); SC8R",
    [(0, 0, 0), (1, 0, 0), (1, 1, 0), (0, 1, 0), (0, 0, 1), (1, 0, 1), (1, 1, 1), (0, 1, 1)],
    [(1, 2), (2, 3), (3, 4), (4, 1), (5, 6), (6, 7), (7, 8), (8, 5),
     (1, 5), (2, 6), (3, 7), (4, 8)],
    {"S1": (1, 2, 3, 4), "S2": (5, 8, 7, 6), "S3": (1, 5, 6, 2), "S4": (2, 6, 7, 3),
     "S5": (3, 7, 8, 4), "S6": (4, 8, 5, 1)},
    [("C3D8R", 8, False), ("C3D20R", 20, False), ("SC8R", 8, False)])

SIDES_NOTE = ("On shells and membranes (S, STRI, M3D, R3D) the faces are the two sides: "
              "\"SPOS\" is the side that the normal points to, \"SNEG\" the other. "
              "The normal follows the node order by the right-hand rule: seen from the "
              "\"SPOS\" side, the corners run counterclockwise.")

TRIANGLE = Family(
    "triangle", "Triangles",
    "Shells S3, S3R, STRI3 (3 nodes), STRI65 (6 nodes); membranes M3D3, M3D6; "
    "plane CPS3, CPE3, CAX3, CPS6, CPE6, CAX6",
    [(0, 0, 0), (1, 0, 0), (0, 1, 0)],
    [(1, 2), (2, 3), (3, 1)],
    {"S1": (1, 2), "S2": (2, 3), "S3": (3, 1)},
    [("S3", 3, True), ("STRI65", 6, True), ("M3D6", 6, True), ("CPS3", 3, False),
     ("CAX6", 6, False)], SIDES_NOTE)

QUADRILATERAL = Family(
    "quadrilateral", "Quadrilaterals",
    "Shells S4, S4R (4 nodes), S8R (8 nodes); membranes M3D4, M3D8; "
    "plane CPS4, CPE4, CAX4, CPS8, CPE8, CAX8",
    [(0, 0, 0), (1, 0, 0), (1, 1, 0), (0, 1, 0)],
    [(1, 2), (2, 3), (3, 4), (4, 1)],
    {"S1": (1, 2), "S2": (2, 3), "S3": (3, 4), "S4": (4, 1)},
    [("S4R", 4, True), ("S8R", 8, True), ("M3D4", 4, True), ("CPE4R", 4, False),
     ("CPS8", 8, False)], SIDES_NOTE)

LINE = Family(
    "line", "Beams and trusses",
    "Beams B21, B31 (2 nodes), B22, B32 (3 nodes); trusses T2D2, T3D2, T2D3, T3D3",
    [(0, 0, 0), (1, 0, 0)], [], {"END1": (1,), "END2": (2,)},
    [("B31", 2, False), ("B32", 3, False), ("T3D2", 2, False), ("T2D3", 3, False)])

SOLIDS = [TETRAHEDRON, WEDGE, BRICK]
SURFACES = [TRIANGLE, QUADRILATERAL]


def normalized(p):
    length = math.sqrt(dot(p, p))
    return tuple(c / length for c in p)


def project(point, viewer=VIEWER):
    toward = normalized(viewer)
    right = normalized(cross((0, 0, 1), toward))
    up = cross(toward, right)
    return (dot(point, right), dot(point, up))


def subtract(p, q):
    return tuple(a - b for a, b in zip(p, q))


def centroid(points):
    return tuple(sum(c) / len(points) for c in zip(*points))


def cross(p, q):
    return (p[1] * q[2] - p[2] * q[1], p[2] * q[0] - p[0] * q[2], p[0] * q[1] - p[1] * q[0])


def dot(p, q):
    return sum(a * b for a, b in zip(p, q))



def outward(family, corners):
    """The unit outward normal of a solid's face."""
    points = [family.corners[n - 1] for n in corners]
    normal = cross(subtract(points[1], points[0]), subtract(points[2], points[0]))
    if dot(normal, subtract(centroid(points), centroid(family.corners))) < 0:
        normal = tuple(-c for c in normal)
    return normalized(normal)


def inside(point, polygon):
    """Whether a page point lies inside a convex polygon given in turn."""
    signs = set()
    for (x1, y1), (x2, y2) in zip(polygon, polygon[1:] + polygon[:1]):
        signs.add((x2 - x1) * (point[1] - y1) - (y2 - y1) * (point[0] - x1) > 0)
    return len(signs) == 1


def outline(points):
    """The convex hull of page points, in turn."""
    points = sorted(set(points))

    def half(chain):
        hull = []
        for p in chain:
            while len(hull) >= 2 and (hull[-1][0] - hull[-2][0]) * (p[1] - hull[-2][1]) - \
                    (hull[-1][1] - hull[-2][1]) * (p[0] - hull[-2][0]) <= 0:
                hull.pop()
            hull.append(p)
        return hull[:-1]

    return half(points) + half(reversed(points))


def outside_label(start, away, hull):
    """A place for the label of a face at the back: from the face's middle
    in the page direction `away`, just past the element's outline."""
    direction = normalized((away[0], away[1], 0))
    place = start
    while inside(place, hull):
        place = (place[0] + 0.02 * direction[0], place[1] + 0.02 * direction[1])
    return (place[0] + 0.2 * direction[0], place[1] + 0.2 * direction[1])


class Svg:
    """A drawing in reference coordinates, mapped onto the page."""

    def __init__(self, title, lower_left, upper_right):
        self.items = []
        self.title = title
        (x0, y0), (x1, y1) = lower_left, upper_right
        self.scale = min((WIDTH - 80) / (x1 - x0), (HEIGHT - 110) / (y1 - y0), SCALE)
        self.offset = (WIDTH / 2 - self.scale * (x0 + x1) / 2,
                       HEIGHT / 2 + 10 + self.scale * (y0 + y1) / 2)

    def page(self, point):
        return (round(self.offset[0] + self.scale * point[0], 1),
                round(self.offset[1] - self.scale * point[1], 1))

    def line(self, p, q, css):
        (x1, y1), (x2, y2) = self.page(p), self.page(q)
        self.items.append(f'<line x1="{x1}" y1="{y1}" x2="{x2}" y2="{y2}" class="{css}"/>')

    def polygon(self, points, css):
        text = " ".join(f"{x},{y}" for x, y in map(self.page, points))
        self.items.append(f'<polygon points="{text}" class="{css}"/>')

    def circle(self, point, radius, css):
        x, y = self.page(point)
        self.items.append(f'<circle cx="{x}" cy="{y}" r="{radius}" class="{css}"/>')

    def text(self, point, words, css, shift=(0, 0)):
        x, y = self.page(point)
        self.items.append(f'<text x="{round(x + shift[0], 1)}" y="{round(y + shift[1], 1)}" '
                          f'class="{css}">{words}</text>')

    def render(self, legend):
        lines = [f'<svg xmlns="http://www.w3.org/2000/svg" width="{WIDTH}" height="{HEIGHT}" '
                 f'viewBox="0 0 {WIDTH} {HEIGHT}" font-family="sans-serif">',
                 "<style>",
                 ".edge{stroke:#222;stroke-width:2;fill:none}",
                 ".hidden{stroke:#888;stroke-width:1.2;stroke-dasharray:5 4;fill:none}",
                 ".leader{stroke:#d98880;stroke-width:1;stroke-dasharray:2 3}",
                 ".face{fill:#dde8f4;stroke:none}",
                 ".corner{fill:#222}",
                 ".mid{fill:#fff;stroke:#1f5fa8;stroke-width:1.5}",
                 ".cornerlabel{font-size:15px;font-weight:bold;fill:#222;text-anchor:middle}",
                 ".midlabel{font-size:13px;fill:#1f5fa8;text-anchor:middle}",
                 ".facelabel{font-size:14px;font-weight:bold;fill:#b03a2e;text-anchor:middle}",
                 ".backlabel{font-size:14px;font-style:italic;fill:#d98880;text-anchor:middle}",
                 ".title{font-size:16px;font-weight:bold;fill:#222}",
                 ".legend{font-size:12px;fill:#444}",
                 "</style>",
                 f'<text x="12" y="22" class="title">{self.title}</text>']
        lines += self.items
        top = HEIGHT - 13 - 15 * (len(legend) - 1)
        lines += [f'<text x="12" y="{top + 15 * i}" class="legend">{words}</text>'
                  for i, words in enumerate(legend)]
        lines.append("</svg>")
        return "\n".join(lines) + "\n"


def label_shift(svg, point, center, distance=16):
    """A page offset for a label that moves it away from the element's middle."""
    (px, py), (cx, cy) = svg.page(point), svg.page(center)
    dx, dy = px - cx, py - cy
    length = math.hypot(dx, dy) or 1.0
    return (distance * dx / length, distance * dy / length + 5)


def draw_nodes(svg, family, project_node, midside_inward=False):
    nodes = family.positions()
    middle = project_node(centroid(family.corners))
    for number, point in nodes.items():
        corner = number <= len(family.corners)
        place = project_node(point)
        svg.circle(place, 5 if corner else 4.5, "corner" if corner else "mid")
        distance = -16 if midside_inward and not corner else 16
        svg.text(place, str(number), "cornerlabel" if corner else "midlabel",
                 label_shift(svg, place, middle, distance))


def draw_solid(family):
    def project_node(point):
        return project(point, family.viewer)

    projected = [project_node(c) for c in family.corners]
    svg = Svg(family.title,
              (min(p[0] for p in projected) - 0.35, min(p[1] for p in projected) - 0.35),
              (max(p[0] for p in projected) + 0.35, max(p[1] for p in projected) + 0.35))
    front = {label: dot(outward(family, corners), family.viewer) > 0
             for label, corners in family.faces.items()}
    for label, corners in family.faces.items():
        if front[label]:
            svg.polygon([project_node(family.corners[n - 1]) for n in corners], "face")
    for a, b in family.edges:  # every edge of a solid carries a midside node
        seen = any(front[label] for label, corners in family.faces.items()
                   if a in corners and b in corners)
        svg.line(project_node(family.corners[a - 1]), project_node(family.corners[b - 1]),
                 "edge" if seen else "hidden")
    draw_nodes(svg, family, project_node)
    hull = outline(projected)
    for label, corners in family.faces.items():
        middle = project_node(centroid([family.corners[n - 1] for n in corners]))
        if front[label]:
            svg.text(middle, label, "facelabel", (0, 5))
            continue
        normal = project_node(outward(family, corners))  # its direction on the page
        place = outside_label(middle, normal, hull)
        svg.line(middle, place, "leader")
        svg.text(place, label, "backlabel", (0, 5))
    return svg.render(["filled: corner nodes; open: midside nodes (quadratic elements only)",
                       "dashed: hidden edges; pale labels: faces at the back"])


def draw_surface(family):
    flat = [(x, y) for x, y, _ in family.corners]
    svg = Svg(f"{family.title}", (-0.35, -0.35), (1.35, 1.35))
    svg.polygon(flat, "face")
    for a, b in family.edges:
        svg.line(flat[a - 1], flat[b - 1], "edge")
    draw_nodes(svg, family, lambda p: (p[0], p[1]), midside_inward=True)
    middle = centroid(flat)
    for label, (a, b) in family.faces.items():
        edge_middle = centroid([flat[a - 1], flat[b - 1]])
        svg.text(edge_middle, label, "facelabel", label_shift(svg, edge_middle, middle, 30))
    svg.circle(middle, 9, "mid")
    svg.circle(middle, 2.5, "corner")
    return svg.render(["filled: corner nodes; open: midside nodes (quadratic elements only)",
                       "S1...: the edges of plane elements",
                       "shells: the normal (circled dot) points to you; SPOS is the side you see"])


def draw_line(family):
    svg = Svg(f"{family.title}", (-0.2, -0.6), (1.2, 0.6))
    for height, nodes in ((0.3, [(1, 0.0), (2, 1.0)]), (-0.3, [(1, 0.0), (2, 0.5), (3, 1.0)])):
        svg.line((0.0, height), (1.0, height), "edge")
        for number, x in nodes:
            corner = x in (0.0, 1.0)
            svg.circle((x, height), 5 if corner else 4.5, "corner" if corner else "mid")
            svg.text((x, height), str(number), "cornerlabel" if corner else "midlabel", (0, -12))
        svg.text((0.0, height), "END1", "facelabel", (-30, 5))
        svg.text((1.0, height), "END2", "facelabel", (32, 5))
        svg.text((0.5, height), f"{len(nodes)} nodes", "legend", (0, 26))
    return svg.render(["filled: end nodes; open: the middle node of 3-node elements",
                       "a beam in space may add one more node that orients its section"])


def node_table(family):
    rows = ["| node | where |", "|---|---|", f"| 1 to {len(family.corners)} | the corners |"]
    for a, b in family.edges:
        rows.append(f"| {family.midside(a, b)} | middle of edge {a}-{b} (quadratic) |")
    return rows


def face_table(family):
    rows = ["| face | nodes, linear | nodes, quadratic |", "|---|---|---|"]
    for label, corners in family.faces.items():
        linear = " ".join(map(str, family.face_nodes(corners, quadratic=False)))
        quadratic = " ".join(map(str, family.face_nodes(corners, quadratic=True)))
        rows.append(f"| `{label}` | {linear} | {quadratic} |")
    return rows


def line_section():
    return ["| element | nodes | `END1` | `END2` |", "|---|---|---|---|",
            "| 2-node (B21, B31, T2D2, T3D2) | 1 2 | node 1 | node 2 |",
            "| 3-node (B22, B32, T2D3, T3D3) | 1 2 3 (2 in the middle) | node 1 | node 3 |"]


INTRO = """# Element node order and face labels

<!-- Written by scripts/draw_elements.py; change the script, not this page. -->

An element's `connectivity` in the model file lists its nodes in the order
that the deck and the solver expect, and a surface names an element's faces
by label. This page shows both for each element family keydeck knows. The
drawings are made by `scripts/draw_elements.py`, which writes this page too.

A quadratic element lists its corner nodes first, in the order of its linear
form, then its midside nodes. Which labels fit which element types:

| element types | face labels |
|---|---|
| solids: tetrahedra, wedges, bricks (`C3D...`, `DC3D...`, continuum shells `SC6R`, `SC8R`) | `S1` to `S4` (tetrahedra), `S5` (wedges), `S6` (bricks) |
| plane and axisymmetric elements (`CPS`, `CPE`, `CAX`, `DC2D`) | `S1` to `S3` (triangles) or `S4` (quadrilaterals): the edges |
| shells and membranes (`S`, `STRI`, `M3D`, `R3D`) | `SPOS`, `SNEG`: the two sides |
| beams and trusses (`B21`, `B22`, `B31`, `B32`, `T2D`, `T3D`) | `END1`, `END2`: the two ends |

Shells take no edge labels: a surface on a shell's edge is given by its nodes.
`C3D27` (a brick with face and centre nodes) and `C3D15V` (a wedge with face
nodes) have the faces of the brick and the wedge; their extra nodes are not
drawn here. A nine-node shell (`S9R5`) adds node 9 at the centre to the
eight nodes drawn.
"""


def page():
    lines = [INTRO]
    for family in SOLIDS + SURFACES + [LINE]:
        lines += [f"## {family.title}", "", f"{family.types}.", "",
                  f"![{family.title}](elements/{family.name}.svg)", ""]
        if family is LINE:
            lines += line_section() + [""]
            continue
        if family.face_note:
            lines += [family.face_note, "", "On plane elements the faces are the edges:", ""]
        lines += face_table(family) + [""]
        lines += node_table(family) + [""]
    return "\n".join(lines).rstrip("\n") + "\n"


def outputs():
    files = {DOCS / "elements.md": page()}
    for family in SOLIDS:
        files[DOCS / "elements" / f"{family.name}.svg"] = draw_solid(family)
    for family in SURFACES:
        files[DOCS / "elements" / f"{family.name}.svg"] = draw_surface(family)
    files[DOCS / "elements" / "line.svg"] = draw_line(LINE)
    return files


def labelled_types():
    """Element types with their node count, the face labels the page gives
    them, and one label that must not fit."""
    types = []
    for family in SOLIDS + SURFACES + [LINE]:
        for element_type, nodes, sides in family.checked:
            labels = ["SPOS", "SNEG"] if sides else list(family.faces)
            extra = "S1" if sides else "END3" if family is LINE else f"S{len(labels) + 1}"
            types.append((family.name, element_type, nodes, labels, extra))
    return types


def model_text(element_type, nodes, labels):
    """A model of one element of the type with a surface on the given faces."""
    part = {"nodes": {"labels": list(range(1, nodes + 1)),
                      "coordinates": [[n, n % 3, n % 5] for n in range(nodes)]},
            "elements": [{"type": element_type, "labels": [1],
                          "connectivity": [list(range(1, nodes + 1))]}],
            "surfaces": {"Faces": {"faces": [{"face": f, "elements": [1]} for f in labels]}}}
    return json.dumps({"format": "keydeck-model", "version": 1,
                       "models": {"Default Model": {"parts": {"P": part},
                                                    "steps": [{"name": "Initial"}]}}})


def wrong_labels(keydeck):
    """The element types whose face labels the command reads otherwise than the page."""
    wrong = []
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "model.json"
        for family, element_type, nodes, labels, extra in labelled_types():
            for faces, fits in ((labels, True), (labels + [extra], False)):
                path.write_text(model_text(element_type, nodes, faces))
                run = subprocess.run([keydeck, "check", "-q", str(path)], capture_output=True)
                if (run.returncode == 0) != fits:
                    wrong.append(f"{element_type} ({family}): the command "
                                 f"{'refuses' if fits else 'takes'} {', '.join(faces)}")
    return wrong


def main(arguments):
    check = len(arguments) == 2 and arguments[0] == "--check"
    if arguments and not check:
        print("usage: draw_elements.py [--check KEYDECK]", file=sys.stderr)
        return 2
    stale = wrong_labels(arguments[1]) if check else []
    for path, text in outputs().items():
        if check:
            if not path.exists() or path.read_text() != text:
                stale.append(f"{path.relative_to(ROOT)} is not what the script writes")
            continue
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_text(text)
    for problem in stale:
        print(f"draw_elements.py: {problem}", file=sys.stderr)
    return 1 if stale else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
