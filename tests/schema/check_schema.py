"""Checks the model file's JSON Schema against the loader.

Every example and golden model must be valid under the schema that
`keydeck schema` prints, and each bad file below, whose fault the schema can
express, must be refused both by the schema and by `keydeck check`.

Usage: check_schema.py KEYDECK_BINARY SOURCE_DIR
"""

import copy
import glob
import json
import os
import subprocess
import sys
import tempfile

import jsonschema


def model(body):
    return {"format": "keydeck-model", "version": 1, "models": {"M": body}}


def part(text):
    return model({"parts": {"P": text}})


def brick(type_):
    return part({
        "nodes": {"labels": [1, 2, 3, 4, 5, 6, 7, 8],
                  "coordinates": [[0, 0, 0], [1, 0, 0], [1, 1, 0], [0, 1, 0],
                                  [0, 0, 1], [1, 0, 1], [1, 1, 1], [0, 1, 1]]},
        "elements": [{"type": type_, "labels": [1],
                      "connectivity": [[1, 2, 3, 4, 5, 6, 7, 8]]}]})


def density(fields, columns=1):
    return model({"materials": {"Steel": {"density": dict(fields, table=[[1] * columns])}}})


NODES = {"labels": [1, 2], "coordinates": [[0, 0, 0], [1, 0, 0]]}

# Files the schema can tell bad, by what is wrong with them.
BAD = {
    "empty map key": model({"parts": {"": {}}}),
    "quote in a map key": model({"parts": {"P\"": {}}}),
    "empty assembly name": model({"assembly": {"name": ""}}),
    "quote in the assembly name": model({"assembly": {"name": "A\"B"}}),
    "line break in the assembly name": model({"assembly": {"name": "A\n*Node"}}),
    "DEL in a name": model({"assembly": {"name": "A\u007f"}}),
    "C1 control in a name": model({"assembly": {"name": "A\u0085"}}),
    "tab in an instance's part": model({"parts": {"P": {}},
                                        "assembly": {"instances": {"I": {"part": "P\t"}}}}),
    "space in an element type": brick("C3D 8"),
    "empty element type": brick(""),
    "set with nodes and elements": part({"nodes": NODES,
                                         "sets": {"S": {"nodes": [1], "elements": [1]}}}),
    "set with neither nodes nor elements": part({"nodes": NODES, "sets": {"S": {}}}),
    "surface with faces and nodes": part({"nodes": NODES, "surfaces": {
        "S": {"nodes": [1], "faces": []}}}),
    "generate step 0": part({"nodes": NODES, "sets": {"S": {"nodes": {"generate": [1, 2, 0]}}}}),
    "negative dependencies": density({"dependencies": -1}),
    "dependencies beyond a deck's tables": density({"dependencies": 2147483647}),
    "NUL in raw solver text": model({"solverInput": "*Node\u0000"}),
    "escape in raw solver text": model({"topLevelSolverInput": "\u001b[2J"}),
    "unknown field": model({"partz": {}}),
    "missing version": {"format": "keydeck-model", "models": {}},
}

# Files both must accept, though they look odd.
GOOD = {
    "schema field": dict(model({}), **{"$schema": "https://example.org/model.schema.json"}),
    "name with comma and blanks": model({"assembly": {"name": "My Assembly, 2"}}),
    "tab and line ends in raw solver text": model({"solverInput": "*Preprint\t\r\n"}),
    "user element": brick("U12"),
    "dependencies at the bound": density({"dependencies": 1000}, columns=1001),
}


def refused_by_loader(keydeck, path):
    run = subprocess.run([keydeck, "check", path], capture_output=True, text=True)
    return run.returncode == 1, run.stderr.strip()


def main():
    keydeck, source = sys.argv[1], sys.argv[2]
    schema = json.loads(subprocess.run([keydeck, "schema"], capture_output=True, check=True,
                                       text=True).stdout)
    validator_class = jsonschema.validators.validator_for(schema)
    validator_class.check_schema(schema)
    validator = validator_class(schema)
    failures = []

    files = sorted(glob.glob(os.path.join(source, "examples", "*.json")) +
                   glob.glob(os.path.join(source, "tests", "golden", "*.json")))
    if not files:
        failures.append("no example or golden model found under " + source)
    for path in files:
        with open(path, encoding="utf-8") as f:
            document = json.load(f)
        for error in validator.iter_errors(document):
            failures.append(f"{path}: not valid under the schema: {error.message}")

    with tempfile.TemporaryDirectory() as folder:
        for cases, bad in ((BAD, True), (GOOD, False)):
            for name, document in cases.items():
                path = os.path.join(folder, "case.json")
                with open(path, "w", encoding="utf-8") as f:
                    json.dump(copy.deepcopy(document), f)
                schema_refuses = not validator.is_valid(document)
                loader_refuses, message = refused_by_loader(keydeck, path)
                if schema_refuses != bad:
                    failures.append(f"{name}: the schema {'accepts' if bad else 'refuses'} it")
                if loader_refuses != bad:
                    failures.append(f"{name}: keydeck check {'accepts' if bad else 'refuses'} "
                                    f"it {message}")

    for failure in failures:
        print(failure)
    print(f"{len(files)} models valid, {len(BAD)} bad and {len(GOOD)} good cases checked"
          if not failures else f"{len(failures)} failures")
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
