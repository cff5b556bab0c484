#!/usr/bin/python3
"""Writes the three reference files of the program from data that Debian packages
carry (see docs/data-sources.md and install-deps.sh beside this file).

    /usr/bin/python3 tools/datagen/generate.py            # write support/VXKSupport
    /usr/bin/python3 tools/datagen/generate.py --check    # compare, write nothing
    /usr/bin/python3 tools/datagen/generate.py --out DIR  # write elsewhere

Every fact that two packages carry is read from both and compared; a disagreement
beyond the stated tolerance stops the run with a message and writes nothing.
"""

import argparse
import filecmp
import os
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, HERE)
sys.dont_write_bytecode = True  # keep the source tree free of __pycache__

from common import DataError, write_convert, write_records  # noqa: E402

REPO = os.path.dirname(os.path.dirname(HERE))
SUPPORT = os.path.join(REPO, "support", "VXKSupport")
FILES = ("convert.txt", "physicaldata.txt", "AstrDataXML.txt")


def generate(out):
    import astro
    import convert_table
    import physical

    write_convert(os.path.join(out, "convert.txt"), convert_table.build())
    write_records(os.path.join(out, "physicaldata.txt"), "PhysicalData", physical.build(),
                  "Physical constants, elements, isotopes, fuels, Sun, Earth and Moon.")
    write_records(os.path.join(out, "AstrDataXML.txt"), "AstronomicalData", astro.build(),
                  "Solar system, small bodies, constellations, galaxies and stars.")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--out", default=SUPPORT, help="folder to write the files to")
    parser.add_argument("--check", action="store_true",
                        help="generate into a scratch folder and compare with --out")
    args = parser.parse_args()
    try:
        if args.check:
            with tempfile.TemporaryDirectory() as scratch:
                generate(scratch)
                stale = [name for name in FILES
                         if not os.path.exists(os.path.join(args.out, name))
                         or not filecmp.cmp(os.path.join(scratch, name),
                                            os.path.join(args.out, name), shallow=False)]
            if stale:
                print("out of date: " + ", ".join(stale), file=sys.stderr)
                return 1
            print("all three files are up to date")
            return 0
        with tempfile.TemporaryDirectory() as scratch:
            generate(scratch)
            os.makedirs(args.out, exist_ok=True)
            for name in FILES:
                os.replace(os.path.join(scratch, name), os.path.join(args.out, name))
        print(f"wrote {', '.join(FILES)} to {args.out}")
        return 0
    except DataError as error:
        print(f"datagen: {error}", file=sys.stderr)
        return 2


if __name__ == "__main__":
    sys.exit(main())
