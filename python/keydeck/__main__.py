"""python3 -m keydeck import MESH -o MODEL.json: a mesh file of any format that
meshio reads, as a keydeck model file."""

import argparse
import sys

from . import KeydeckError, Model, from_meshio


def _import(arguments):
    import meshio

    try:
        mesh = meshio.read(arguments.mesh)
    except SystemExit:  # meshio's way to refuse a file of no format it knows
        raise OSError("%s: meshio cannot read the file" % arguments.mesh) from None
    except Exception as failure:  # meshio raises many kinds for a file it cannot read
        raise OSError("%s: %s" % (arguments.mesh, failure)) from failure
    lower = "nodes" if arguments.lower_as_nodes else "elements"
    model = Model.from_dict(
        from_meshio(mesh, part=arguments.part, shell=arguments.shell, ignore=arguments.ignore, lower=lower))
    with open(arguments.output, "w", encoding="utf-8") as out:
        out.write(model.to_json())


def main(argv=None):
    parser = argparse.ArgumentParser(prog="python3 -m keydeck", description=__doc__.splitlines()[0])
    commands = parser.add_subparsers(dest="command", required=True)
    command = commands.add_parser("import", help="a mesh file as a model file")
    command.add_argument("mesh", help="the mesh file, of any format meshio reads")
    command.add_argument("-o", "--output", required=True, help="the model file to write")
    command.add_argument("--part", default="Part-1", help="the name of the part (default Part-1)")
    command.add_argument("--shell", action="store_true", help="cells of two dimensions as shells")
    command.add_argument("--lower-as-nodes", action="store_true",
                         help="cells below the mesh's dimension as node sets, not elements")
    command.add_argument("--ignore", nargs="*", default=[], metavar="TYPE",
                         help="meshio cell types to leave out")
    arguments = parser.parse_args(argv)
    try:
        _import(arguments)
    except KeydeckError as failure:
        for line in str(failure).splitlines():
            print("keydeck: " + line, file=sys.stderr)
        return 1
    except OSError as failure:
        print("keydeck: %s" % failure, file=sys.stderr)
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
