"""The Python path against the command, on the benchmark model of write_bench
(bench/benchmark_model.h): a block of 8-node bricks on an N x N x N grid of
nodes, N = 100 by default (1,000,000 nodes, 970,299 bricks), one instance, a
node set and an element set of every tenth label, an initial and a static step.

The model is built as numpy arrays; the Python path is the whole way from the
arrays to the deck on disk: Model.from_dict and Model.write. Beside it, in the
same run, the command writes the deck of the same model (saved as a model file
first) and reports its deck-writing phase with -v. Each run writes a new deck,
not over the last one, as write_bench does. Each is timed five times; the
medians are compared against the bar: the Python path takes at most 1.3 times
the command's writing phase.

    PYTHONPATH=build/python /usr/bin/python3 bench/python_bench.py build/keydeck [--size N] [--runs R]
"""

import argparse
import os
import re
import statistics
import subprocess
import sys
import tempfile
import time

import numpy as np

import keydeck

BAR = 1.3


def benchmark_model(n):
    """The model of benchmark_model.h as a dict of numpy arrays."""
    spacing, origin = 0.37, (-12.5, 3.25, 100.0)
    k, j, i = np.meshgrid(np.arange(n), np.arange(n), np.arange(n), indexing="ij")
    # Each coordinate is the float nearest to origin + index * spacing, as in the file.
    coordinates = np.stack([origin[0] + i.ravel() * spacing, origin[1] + j.ravel() * spacing,
                            origin[2] + k.ravel() * spacing], axis=1).astype(np.float32)
    a = (1 + i + j * n + k * n * n)[:-1, :-1, :-1].ravel()  # the first corner of each brick
    row, layer = n, n * n
    connectivity = np.stack([a, a + 1, a + 1 + row, a + row, a + layer, a + 1 + layer,
                             a + 1 + row + layer, a + row + layer], axis=1).astype(np.int32)
    nodes, cells = n ** 3, len(a)
    return {
        "format": "keydeck-model",
        "version": 1,
        "models": {"Default Model": {
            "parts": {"Block": {
                "nodes": {"labels": np.arange(1, nodes + 1, dtype=np.int32), "coordinates": coordinates},
                "elements": [{"type": "C3D8R", "labels": np.arange(1, cells + 1, dtype=np.int32),
                              "connectivity": connectivity}],
                "sets": {"E10": {"elements": {"generate": [1, cells, 10]}},
                         "N10": {"nodes": {"generate": [1, nodes, 10]}}},
            }},
            "assembly": {"instances": {"Block-1": {"part": "Block"}}},
            "steps": [{"name": "Initial"}, {"name": "Load", "procedure": "static"}],
        }},
    }


def python_path(d, folder):
    """The seconds of from_dict and of write; freeing the model counts too."""
    start = time.perf_counter()
    model = keydeck.Model.from_dict(d)
    loaded = time.perf_counter()
    model.write("python", folder)
    del model
    return loaded - start, time.perf_counter() - loaded


def command_write_phase(command, model_file, folder):
    result = subprocess.run([command, "write", "-v", "-j", "command", "-o", folder, model_file],
                            capture_output=True, text=True, check=True)
    return float(re.search(r"write ([0-9.]+) s", result.stderr).group(1))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("command", help="the keydeck command")
    parser.add_argument("--size", type=int, default=100, help="nodes along each edge (default 100)")
    parser.add_argument("--runs", type=int, default=5, help="runs of each (default 5)")
    arguments = parser.parse_args()

    d = benchmark_model(arguments.size)
    with tempfile.TemporaryDirectory() as folder:
        model_file = os.path.join(folder, "model.json")
        with open(model_file, "w") as out:
            out.write(keydeck.Model.from_dict(d).to_json())
        python, loading, command = [], [], []
        decks = [os.path.join(folder, name) for name in ("python.inp", "command.inp")]
        for run in range(arguments.runs):  # interleaved, so that both see the same machine
            if run > 0:  # a new deck each run, as in write_bench: replacing one costs its removal
                for deck in decks:
                    os.remove(deck)
            load, write = python_path(d, folder)
            python.append(load + write)
            loading.append(load)
            command.append(command_write_phase(arguments.command, model_file, folder))
        with open(decks[0], "rb") as a, open(decks[1], "rb") as b:
            same = a.read() == b.read()
        size = os.path.getsize(os.path.join(folder, "python.inp"))

    p, c = statistics.median(python), statistics.median(command)
    print("model: %d nodes, %d bricks; deck %.1f MB, %s" % (
        arguments.size ** 3, (arguments.size - 1) ** 3, size / 1e6,
        "the same from both" if same else "DIFFERENT DECKS"))
    print("python, arrays to deck:  median %.3f s (%.0f MB/s)  runs %s" % (p, size / 1e6 / p, " ".join("%.3f" % t for t in python)))
    print("command, writing phase:  median %.3f s (%.0f MB/s)  runs %s" % (c, size / 1e6 / c, " ".join("%.3f" % t for t in command)))
    print("of the python path, from_dict alone: median %.3f s" % statistics.median(loading))
    ratio = p / c
    print("ratio %.2f, bar %.2f: %s" % (ratio, BAR, "met" if ratio <= BAR and same else "NOT MET"))
    return 0 if ratio <= BAR and same else 1


if __name__ == "__main__":
    sys.exit(main())
