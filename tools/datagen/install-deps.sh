#!/bin/sh
# The Debian packages the data generator reads. Only the generator needs them: the
# generated files are committed, and building or running the program needs none.
set -e
SUDO=""
[ "$(id -u)" = 0 ] || SUDO=sudo
$SUDO apt-get install -y \
  python3-scipy python3-astropy python3-pint python3-periodictable python3-ase \
  python3-pymatgen units kalzium-data stellarium-data kstars-data
