"""Readers of the package data. Each returns plain Python values and knows nothing of
the program's files. A missing package is reported by name."""

import functools
import gzip
import json
import os
import re
import sqlite3
import struct
import xml.etree.ElementTree as ET

from common import fail

KALZIUM = "/usr/share/libkdeedu/data"
KSTARS = "/usr/share/kstars"
STELLARIUM = "/usr/share/stellarium"
UNITS_FILE = "/usr/share/units/definitions.units"


def need(path, package):
    if not os.path.exists(path):
        fail(f"{path} is missing: install the Debian package {package}")
    return path


# ---- CODATA ----------------------------------------------------------------------

@functools.lru_cache(maxsize=None)
def codata():
    """Current CODATA values by name: (value, unit, uncertainty), from SciPy."""
    try:
        import scipy.constants as sc
    except ImportError:
        fail("python3-scipy is not installed")
    current = set(sc.find())
    return {name: sc.physical_constants[name] for name in current}


def codata_edition():
    """The newest CODATA table that SciPy carries, which is the one find() lists."""
    import scipy.constants._codata as c
    years = [int(name[3:]) for name in dir(c) if re.fullmatch(r"txt\d{4}", name)]
    if not years:
        fail("cannot tell the CODATA edition of python3-scipy")
    return f"CODATA {max(years)}"


@functools.lru_cache(maxsize=None)
def astropy_constants():
    try:
        import astropy.constants as ac
    except ImportError:
        fail("python3-astropy is not installed")
    return ac


# ---- elements and isotopes -------------------------------------------------------

@functools.lru_cache(maxsize=None)
def kalzium_elements():
    """Blue Obelisk element data as shipped with kalzium-data, by atomic number."""
    path = need(os.path.join(KALZIUM, "elements.xml"), "kalzium-data")
    root = ET.parse(path).getroot()
    out = {}
    for atom in root.iter("{http://www.xml-cml.org/schema}atom"):
        fields = {}
        for child in atom:
            ref = child.get("dictRef", "")
            name = ref.split(":")[-1]
            if child.tag.endswith("label"):
                if child.get("{http://www.w3.org/XML/1998/namespace}lang", "en") == "en":
                    fields[name] = child.get("value")
            else:
                fields[name] = (child.text or "").strip()
                if child.get("errorValue"):
                    fields[name + "Error"] = child.get("errorValue")
        number = int(fields.get("atomicNumber", "0"))
        if number:
            out[number] = fields
    return out


@functools.lru_cache(maxsize=None)
def kalzium_isotopes():
    """Isotope data of kalzium-data by (symbol, mass number)."""
    path = need(os.path.join(KALZIUM, "isotopes.xml"), "kalzium-data")
    # One contributor's name in the header is Latin-1 inside a file declared UTF-8.
    with open(path, "rb") as f:
        root = ET.fromstring(f.read().decode("utf-8", errors="replace"))
    out = {}
    for iso in root.iter("{http://www.xml-cml.org/schema}isotope"):
        fields = {}
        for child in iso:
            name = child.get("dictRef", "").split(":")[-1]
            fields[name] = (child.text or "").strip()
            if child.get("errorValue"):
                fields[name + "Error"] = child.get("errorValue")
            if child.get("units"):
                fields[name + "Units"] = child.get("units")
        if iso.get("number") and iso.get("elementType"):
            out[(iso.get("elementType"), int(iso.get("number")))] = fields
    return out


@functools.lru_cache(maxsize=None)
def ase_data():
    try:
        import ase.data
    except ImportError:
        fail("python3-ase is not installed")
    return ase.data


@functools.lru_cache(maxsize=None)
def pymatgen_elements():
    """pymatgen's element table, read as JSON (the package need not import)."""
    path = need("/usr/lib/python3/dist-packages/pymatgen/core/periodic_table.json",
                "python3-pymatgen")
    with open(path, encoding="utf-8") as f:
        return json.load(f)


@functools.lru_cache(maxsize=None)
def periodictable():
    try:
        import periodictable as pt
    except ImportError:
        fail("python3-periodictable is not installed")
    return pt


# ---- the units definitions file, read as text -------------------------------------

@functools.lru_cache(maxsize=None)
def units_names():
    """Names defined at the start of a line of definitions.units."""
    names = set()
    with open(need(UNITS_FILE, "units"), encoding="utf-8") as f:
        for line in f:
            match = re.match(r"([A-Za-z_][A-Za-z0-9_]*)\s", line)
            if match:
                names.add(match.group(1))
    return names


# ---- Stellarium -----------------------------------------------------------------

def _ini(path):
    sections = {}
    current = None
    with open(path, encoding="utf-8") as f:
        for line in f:
            line = line.strip()
            if not line or line.startswith(("#", ";")):
                continue
            if line.startswith("["):
                current = {}
                sections[line.strip("[]")] = current
            elif "=" in line and current is not None:
                key, value = line.split("=", 1)
                current[key.strip()] = value.strip()
    return sections


@functools.lru_cache(maxsize=None)
def stellarium_solar_system():
    """Sections of Stellarium's major and minor solar system files, merged."""
    base = os.path.join(STELLARIUM, "data")
    major = _ini(need(os.path.join(base, "ssystem_major.ini"), "stellarium-data"))
    minor = _ini(need(os.path.join(base, "ssystem_minor.ini"), "stellarium-data"))
    return major, minor


@functools.lru_cache(maxsize=None)
def stellarium_comets():
    return _ini(need(os.path.join(STELLARIUM, "data", "ssystem_1000comets.ini"),
                     "stellarium-data"))


@functools.lru_cache(maxsize=None)
def stellarium_constellations():
    """Abbreviation -> English name of the western sky culture."""
    path = need(os.path.join(STELLARIUM, "skycultures", "western",
                             "constellation_names.eng.fab"), "stellarium-data")
    out = {}
    with open(path, encoding="utf-8") as f:
        for line in f:
            match = re.match(r'(\w+)\s+"([^"]+)"', line)
            if match:
                out[match.group(1)] = match.group(2)
    return out


@functools.lru_cache(maxsize=None)
def stellarium_star_names():
    """Proper name -> Hipparcos number, from the western sky culture."""
    path = need(os.path.join(STELLARIUM, "skycultures", "western", "star_names.fab"),
                "stellarium-data")
    out = {}
    with open(path, encoding="utf-8") as f:
        for line in f:
            match = re.match(r'\s*(\d+)\|_\("([^"]+)"\)', line)
            if match:
                out.setdefault(match.group(2), int(match.group(1)))
    return out


def _tab_file(name):
    out = {}
    path = need(os.path.join(STELLARIUM, "stars", "default", name), "stellarium-data")
    with open(path, encoding="utf-8") as f:
        for line in f:
            if line.startswith("#") or not line.strip():
                continue
            parts = line.split()
            out[int(parts[0])] = [float(p) for p in parts[1:]]
    return out


@functools.lru_cache(maxsize=None)
def stellarium_proper_motions():
    return _tab_file("hip_pm.dat")


@functools.lru_cache(maxsize=None)
def stellarium_parallax_errors():
    return _tab_file("hip_plx_err.dat")


@functools.lru_cache(maxsize=None)
def stellarium_dso():
    """Stellarium's deep-sky catalogue: a gzip'd Qt data stream of fixed records."""
    path = need(os.path.join(STELLARIUM, "nebulae", "default", "catalog.dat"),
                "stellarium-data")
    data = gzip.decompress(open(path, "rb").read())
    pos = 0

    def take(fmt):
        nonlocal pos
        value = struct.unpack_from(fmt, data, pos)[0]
        pos += struct.calcsize(fmt)
        return value

    def qstring():
        nonlocal pos
        length = take(">I")
        if length == 0xFFFFFFFF:
            return ""
        text = data[pos:pos + length].decode("utf-16-be")
        pos += length
        return text

    version = qstring()
    qstring()
    if not version.startswith("3."):
        fail(f"unknown Stellarium DSO catalogue version {version}")
    records = []
    numbers = ("NGC", "IC", "M", "C", "B", "Sh2", "VdB", "RCW", "LDN", "LBN", "Cr",
               "Mel", "PGC", "UGC")
    while pos < len(data):
        r = {"id": take(">i"), "ra": take(">d"), "dec": take(">d"), "bmag": take(">d"),
             "vmag": take(">d"), "otype": take(">i"), "mtype": qstring(),
             "major": take(">d"), "minor": take(">d"), "pa": take(">i"), "z": take(">d"),
             "zerr": take(">d"), "plx": take(">d"), "plxerr": take(">d"),
             "dist": take(">d"), "disterr": take(">d")}
        for name in numbers:
            r[name] = take(">i")
        r["Ced"] = qstring()
        r["Arp"] = take(">i")
        r["VV"] = take(">i")
        for name in ("PK", "PNG", "SNRG", "ACO", "HCG", "ESO", "VdBH"):
            r[name] = qstring()
        for name in ("DWB", "Tr", "St", "Ru", "VdBHa"):
            r[name] = take(">i")
        if r["id"] != len(records) + 1:
            fail("Stellarium DSO catalogue: records out of step; format changed?")
        records.append(r)
    return records


@functools.lru_cache(maxsize=None)
def stellarium_dso_names():
    """(prefix, number) -> list of proper names, first the preferred one."""
    path = need(os.path.join(STELLARIUM, "nebulae", "default", "names.dat"),
                "stellarium-data")
    out = {}
    with open(path, encoding="utf-8") as f:
        for line in f:
            if line.startswith("#") or not line.strip():
                continue
            prefix = line[0:5].strip()
            ident = line[5:20].strip()
            match = re.search(r'_\("([^"]+)"\)', line[20:])
            if match:
                out.setdefault((prefix, ident), []).append(match.group(1))
    return out


# ---- KStars -----------------------------------------------------------------------

def _sbdb(name):
    path = need(os.path.join(KSTARS, name), "kstars-data")
    with open(path, encoding="utf-8") as f:
        doc = json.load(f)
    fields = doc["fields"]
    return [dict(zip(fields, row)) for row in doc["data"]]


@functools.lru_cache(maxsize=None)
def kstars_asteroids():
    return _sbdb("asteroids.dat")


@functools.lru_cache(maxsize=None)
def kstars_comets():
    return _sbdb("comets.dat")


@functools.lru_cache(maxsize=None)
def kstars_constellations():
    """Abbreviation -> upper-case name of the western constellations (cnames.dat)."""
    path = need(os.path.join(KSTARS, "cnames.dat"), "kstars-data")
    out = {}
    culture = None
    with open(path, encoding="utf-8") as f:
        for line in f:
            if line.startswith("C "):
                culture = line[2:].strip()
                continue
            if culture != "Western" or len(line) < 17:
                continue
            abbrev = line[13:16].strip()
            name = line[16:].strip()
            if abbrev and name:
                out[abbrev] = name
    return out


@functools.lru_cache(maxsize=None)
def kstars_stars():
    """Bright stars of KStars' Hipparcos extract with their names."""
    path = need(os.path.join(KSTARS, "stars.dat"), "kstars-data")
    out = []
    with open(path, encoding="latin-1") as f:
        for line in f:
            if line.startswith("#") or len(line) < 60:
                continue
            try:
                star = {
                    "pmra": float(line[20:29]), "pmdec": float(line[29:38]),
                    "plx": float(line[38:45]), "mag": float(line[45:51]),
                    "bv": float(line[51:56]), "sp": line[56:58].strip(),
                }
            except ValueError:
                continue
            names = line.rstrip("\n").split(",")
            star["genitive"] = names[1].strip() if len(names) > 1 else ""
            star["name"] = names[2].strip() if len(names) > 2 else ""
            out.append(star)
    return out


@functools.lru_cache(maxsize=None)
def kstars_dso():
    """OpenNGC as KStars ships it: name -> (type, magnitude, long name)."""
    path = need(os.path.join(KSTARS, "OpenNGC.kscat"), "kstars-data")
    con = sqlite3.connect(f"file:{path}?mode=ro", uri=True)
    out = {}
    for kind, mag, name, long_name, ident in con.execute(
            "select type, magnitude, name, long_name, catalog_identifier from cat"):
        out[ident] = (kind, mag, name, long_name)
    con.close()
    return out
