"""Records of physicaldata.txt: CODATA constants, the elements, common isotopes,
energy content of fuels, specific heats, and basic data on the Sun, Earth and Moon.

A key's first word is what the search tab lists as a primary word ("constant",
"electron", "element", "isotope", "energy/content", ...); the next three words are
what its menu offers; words from the fifth on only help searching.
"""

import csv
import math
import os
import re

from common import agree, ascii_name, fail, key_words, sig
import sources
import unitsource

# ---- CODATA constants -------------------------------------------------------------
# (key, CODATA name in SciPy, label with its symbol). Subscripts are written [ ].

CONSTANTS = [
    ("constant speed light vacuum c", "speed of light in vacuum", "Speed of light in vacuum c"),
    ("constant planck h", "Planck constant", "Planck constant h"),
    ("constant planck reduced hbar", "reduced Planck constant", "Reduced Planck constant h-bar"),
    ("constant planck ev", "Planck constant in eV/Hz", "Planck constant h in eV"),
    ("constant gravitation newtonian g", "Newtonian constant of gravitation",
     "Newtonian constant of gravitation G"),
    ("constant elementary charge e electron proton", "elementary charge",
     "Elementary charge e (charge of the proton; the electron carries -e)"),
    ("constant boltzmann k", "Boltzmann constant", "Boltzmann constant k"),
    ("constant boltzmann ev k", "Boltzmann constant in eV/K", "Boltzmann constant k in eV"),
    ("constant avogadro n[a]", "Avogadro constant", "Avogadro constant N[A]"),
    ("constant gas molar r", "molar gas constant", "Molar gas constant R"),
    ("constant faraday f", "Faraday constant", "Faraday constant F"),
    ("constant stefan-boltzmann sigma", "Stefan-Boltzmann constant", "Stefan-Boltzmann constant sigma"),
    ("constant fine-structure alpha", "fine-structure constant", "Fine-structure constant alpha"),
    ("constant fine-structure inverse", "inverse fine-structure constant",
     "Inverse fine-structure constant 1/alpha"),
    ("constant rydberg r[inf]", "Rydberg constant", "Rydberg constant R[inf]"),
    ("constant rydberg energy ev", "Rydberg constant times hc in eV", "Rydberg energy R[inf]hc"),
    ("constant vacuum permittivity electric epsilon[0]", "vacuum electric permittivity",
     "Vacuum electric permittivity epsilon[0]"),
    ("constant vacuum permeability magnetic mu[0]", "vacuum mag. permeability",
     "Vacuum magnetic permeability mu[0]"),
    ("constant wien wavelength displacement b", "Wien wavelength displacement law constant",
     "Wien wavelength displacement law constant b"),
    ("constant wien frequency displacement b'", "Wien frequency displacement law constant",
     "Wien frequency displacement law constant b'"),
    ("constant radiation first c[1]", "first radiation constant", "First radiation constant c[1]"),
    ("constant radiation second c[2]", "second radiation constant", "Second radiation constant c[2]"),
    ("constant josephson k[j]", "Josephson constant", "Josephson constant K[J]"),
    ("constant von klitzing r[k]", "von Klitzing constant", "Von Klitzing constant R[K]"),
    ("constant magnetic flux quantum phi[0]", "mag. flux quantum", "Magnetic flux quantum Phi[0]"),
    ("constant conductance quantum g[0]", "conductance quantum", "Conductance quantum G[0]"),
    ("constant bohr magneton mu[b]", "Bohr magneton", "Bohr magneton mu[B]"),
    ("constant bohr magneton ev", "Bohr magneton in eV/T", "Bohr magneton mu[B] in eV"),
    ("constant nuclear magneton mu[n]", "nuclear magneton", "Nuclear magneton mu[N]"),
    ("constant bohr radius a[0]", "Bohr radius", "Bohr radius a[0]"),
    ("constant hartree energy e[h]", "Hartree energy", "Hartree energy E[h]"),
    ("constant hartree energy ev", "Hartree energy in eV", "Hartree energy E[h] in eV"),
    ("constant atomic mass unit u dalton", "atomic mass constant",
     "Atomic mass constant m[u] (unified atomic mass unit, dalton)"),
    ("constant atomic mass energy equivalent", "atomic mass constant energy equivalent in MeV",
     "Energy equivalent of the atomic mass constant m[u]c^2"),
    ("constant molar mass m[u]", "molar mass constant", "Molar mass constant M[u]"),
    ("constant molar volume ideal gas", "molar volume of ideal gas (273.15 K, 101.325 kPa)",
     "Molar volume of an ideal gas at 273.15 K and 101.325 kPa V[m]"),
    ("constant loschmidt n[0]", "Loschmidt constant (273.15 K, 101.325 kPa)",
     "Loschmidt constant at 273.15 K and 101.325 kPa n[0]"),
    ("constant fermi coupling g[f]", "Fermi coupling constant", "Fermi coupling constant G[F]/(hbar c)^3"),
    ("constant weak mixing angle", "weak mixing angle", "Weak mixing angle sin^2(theta[W])"),
    ("constant electron volt ev", "electron volt", "Electron volt eV"),
    ("constant thomson cross section sigma[e] electron", "Thomson cross section",
     "Thomson cross section sigma[e]"),
    ("constant quantum circulation", "quantum of circulation", "Quantum of circulation h/(2 m[e])"),
    ("constant sackur-tetrode s[0]", "Sackur-Tetrode constant (1 K, 101.325 kPa)",
     "Sackur-Tetrode constant at 1 K and 101.325 kPa S[0]/R"),
    ("constant standard gravity acceleration g[n]", "standard acceleration of gravity",
     "Standard acceleration of gravity g[n]"),
    ("constant standard atmosphere atm pressure", "standard atmosphere", "Standard atmosphere atm"),
    ("constant standard-state pressure", "standard-state pressure", "Standard-state pressure"),
    ("constant luminous efficacy k[cd]", "luminous efficacy", "Luminous efficacy K[cd]"),
    ("constant cesium hyperfine frequency", "hyperfine transition frequency of Cs-133",
     "Hyperfine transition frequency of Cs-133 Delta nu[Cs]"),
    ("constant planck length l[p]", "Planck length", "Planck length l[P]"),
    ("constant planck mass m[p]", "Planck mass", "Planck mass m[P]"),
    ("constant planck time t[p]", "Planck time", "Planck time t[P]"),
    ("constant planck temperature t[p]", "Planck temperature", "Planck temperature T[P]"),
    ("constant silicon lattice parameter", "lattice parameter of silicon", "Lattice parameter of silicon a"),
    ("electron mass m[e]", "electron mass", "Electron mass m[e]"),
    ("electron mass energy equivalent", "electron mass energy equivalent",
     "Electron mass energy equivalent m[e]c^2"),
    ("electron mass energy mev", "electron mass energy equivalent in MeV",
     "Electron mass energy equivalent m[e]c^2 in MeV"),
    ("electron mass u", "electron mass in u", "Electron mass m[e] in u"),
    ("electron mass molar", "electron molar mass", "Electron molar mass M(e)"),
    ("electron charge-to-mass quotient", "electron charge to mass quotient",
     "Electron charge to mass quotient -e/m[e]"),
    ("electron radius classical r[e]", "classical electron radius", "Classical electron radius r[e]"),
    ("electron compton wavelength", "Compton wavelength", "Electron Compton wavelength lambda[C]"),
    ("electron magnetic moment mu[e]", "electron mag. mom.", "Electron magnetic moment mu[e]"),
    ("electron magnetic moment anomaly", "electron mag. mom. anomaly",
     "Electron magnetic moment anomaly a[e]"),
    ("electron g factor", "electron g factor", "Electron g factor g[e]"),
    ("electron gyromagnetic ratio", "electron gyromag. ratio", "Electron gyromagnetic ratio gamma[e]"),
    ("electron proton mass ratio", "electron-proton mass ratio", "Electron-proton mass ratio m[e]/m[p]"),
    ("proton mass m[p]", "proton mass", "Proton mass m[p]"),
    ("proton mass energy equivalent", "proton mass energy equivalent",
     "Proton mass energy equivalent m[p]c^2"),
    ("proton mass energy mev", "proton mass energy equivalent in MeV",
     "Proton mass energy equivalent m[p]c^2 in MeV"),
    ("proton mass u", "proton mass in u", "Proton mass m[p] in u"),
    ("proton mass molar", "proton molar mass", "Proton molar mass M(p)"),
    ("proton radius rms charge", "proton rms charge radius", "Proton rms charge radius r[p]"),
    ("proton compton wavelength", "proton Compton wavelength", "Proton Compton wavelength lambda[C,p]"),
    ("proton magnetic moment mu[p]", "proton mag. mom.", "Proton magnetic moment mu[p]"),
    ("proton g factor", "proton g factor", "Proton g factor g[p]"),
    ("proton gyromagnetic ratio", "proton gyromag. ratio", "Proton gyromagnetic ratio gamma[p]"),
    ("proton electron mass ratio", "proton-electron mass ratio", "Proton-electron mass ratio m[p]/m[e]"),
    ("neutron mass m[n]", "neutron mass", "Neutron mass m[n]"),
    ("neutron mass energy equivalent", "neutron mass energy equivalent",
     "Neutron mass energy equivalent m[n]c^2"),
    ("neutron mass energy mev", "neutron mass energy equivalent in MeV",
     "Neutron mass energy equivalent m[n]c^2 in MeV"),
    ("neutron mass u", "neutron mass in u", "Neutron mass m[n] in u"),
    ("neutron mass molar", "neutron molar mass", "Neutron molar mass M(n)"),
    ("neutron compton wavelength", "neutron Compton wavelength", "Neutron Compton wavelength lambda[C,n]"),
    ("neutron magnetic moment mu[n]", "neutron mag. mom.", "Neutron magnetic moment mu[n]"),
    ("neutron g factor", "neutron g factor", "Neutron g factor g[n]"),
    ("neutron proton mass difference", "neutron-proton mass difference",
     "Neutron-proton mass difference m[n]-m[p]"),
    ("neutron proton mass ratio", "neutron-proton mass ratio", "Neutron-proton mass ratio m[n]/m[p]"),
    ("muon mass m[mu]", "muon mass", "Muon mass m[mu]"),
    ("muon mass energy mev", "muon mass energy equivalent in MeV", "Muon mass energy equivalent in MeV"),
    ("muon mass u", "muon mass in u", "Muon mass in u"),
    ("muon magnetic moment", "muon mag. mom.", "Muon magnetic moment mu[mu]"),
    ("muon magnetic moment anomaly", "muon mag. mom. anomaly", "Muon magnetic moment anomaly a[mu]"),
    ("muon g factor", "muon g factor", "Muon g factor g[mu]"),
    ("muon compton wavelength", "muon Compton wavelength", "Muon Compton wavelength"),
    ("tau mass m[tau]", "tau mass", "Tau mass m[tau]"),
    ("tau mass energy mev", "tau energy equivalent", "Tau mass energy equivalent in MeV"),
    ("deuteron mass m[d]", "deuteron mass", "Deuteron mass m[d]"),
    ("deuteron mass energy mev", "deuteron mass energy equivalent in MeV",
     "Deuteron mass energy equivalent in MeV"),
    ("deuteron mass u", "deuteron mass in u", "Deuteron mass in u"),
    ("deuteron radius rms charge", "deuteron rms charge radius", "Deuteron rms charge radius r[d]"),
    ("deuteron magnetic moment", "deuteron mag. mom.", "Deuteron magnetic moment mu[d]"),
    ("triton mass m[t]", "triton mass", "Triton mass m[t]"),
    ("triton mass energy mev", "triton mass energy equivalent in MeV", "Triton mass energy equivalent in MeV"),
    ("helion mass m[h]", "helion mass", "Helion mass m[h]"),
    ("helion mass energy mev", "helion mass energy equivalent in MeV", "Helion mass energy equivalent in MeV"),
    ("alpha particle mass m[alpha]", "alpha particle mass", "Alpha particle mass m[alpha]"),
    ("alpha particle mass energy mev", "alpha particle mass energy equivalent in MeV",
     "Alpha particle mass energy equivalent in MeV"),
    ("alpha particle mass u", "alpha particle mass in u", "Alpha particle mass in u"),
]

# The same constants as astropy names them, for the cross-check.
ASTROPY_CODATA = {
    "G": "Newtonian constant of gravitation", "N_A": "Avogadro constant",
    "R": "molar gas constant", "Ryd": "Rydberg constant", "a0": "Bohr radius",
    "alpha": "fine-structure constant", "c": "speed of light in vacuum",
    "e": "elementary charge", "eps0": "vacuum electric permittivity",
    "g0": "standard acceleration of gravity", "h": "Planck constant",
    "hbar": "reduced Planck constant", "k_B": "Boltzmann constant", "m_e": "electron mass",
    "m_n": "neutron mass", "m_p": "proton mass", "mu0": "vacuum mag. permeability",
    "muB": "Bohr magneton", "sigma_T": "Thomson cross section",
    "sigma_sb": "Stefan-Boltzmann constant", "u": "atomic mass constant",
    "b_wien": "Wien wavelength displacement law constant", "atm": "standard atmosphere",
}


def number(x):
    """A CODATA number as the table writes it: shortest exact form of the double."""
    x = float(x)
    if x == int(x) and abs(x) < 1e16:
        return str(int(x))
    text = repr(x)
    if "e" in text:
        mantissa, exponent = text.split("e")
        text = f"{mantissa}e{int(exponent)}"
    return text


# Constants whose value is fixed by the definition of the SI units themselves; the
# table gives them in full. Other exact constants follow from these, and the table
# gives them to ten digits, cut off, as CODATA prints them.
DEFINING = {
    "speed of light in vacuum", "Planck constant", "elementary charge", "Boltzmann constant",
    "Avogadro constant", "hyperfine transition frequency of Cs-133", "luminous efficacy",
    "standard acceleration of gravity", "standard atmosphere", "standard-state pressure",
    "electron volt",
}


def constants():
    table = sources.codata()
    edition = sources.codata_edition()
    ac = sources.astropy_constants()
    for short, name in ASTROPY_CODATA.items():
        const = getattr(ac, short)
        value, _, uncertainty = table[name]
        cut = uncertainty == 0 and name not in DEFINING
        agree(f"{name} (SciPy, astropy)", value, const.si.value, 1e-9 if cut else 1e-12)
        agree(f"uncertainty of {name} (SciPy, astropy)", uncertainty, const.si.uncertainty, 1e-6)
    records = []
    seen = set()
    for key, name, label in CONSTANTS:
        if name not in table:
            fail(f"SciPy has no current CODATA value named {name!r}")
        if key in seen:
            fail(f"two constants share the key {key!r}")
        seen.add(key)
        value, unit, uncertainty = table[name]
        unit = f" {unit}" if unit else ""
        if uncertainty == 0 and name in DEFINING:
            tail = "exact"
        elif uncertainty == 0:
            tail = "exact, further digits cut off"
        else:
            tail = f"standard uncertainty {number(uncertainty)}{unit}"
        records.append((key, f"{label} = {number(value)}{unit}, {tail} ({edition})"))
    if len(records) < 80:
        fail("fewer than 80 CODATA constants")
    return records


# ---- elements -----------------------------------------------------------------

# Properties that pymatgen and kalzium-data give far apart (boiling points by more
# than 5%, ionization energies by more than 1%). Neither package is right in every
# case, so these are left out rather than guessed; any other disagreement stops the run.
DISPUTED = {
    ("Be", "boiling point"), ("C", "boiling point"), ("Si", "boiling point"),
    ("Ni", "boiling point"), ("Cu", "boiling point"), ("Pr", "boiling point"),
    ("Ra", "boiling point"), ("Tc", "ionization"), ("Ac", "ionization"), ("Lr", "ionization"),
}


def kelvin(text):
    """"1811 K" -> 1811.0; pymatgen writes "no data" where it has none."""
    if not text:
        return None
    match = re.match(r"\s*([0-9.]+)\s*K", str(text))
    return float(match.group(1)) if match else None


def natural(pt_element):
    return any(getattr(iso, "abundance", 0) for iso in pt_element)


def elements():
    ase = sources.ase_data()
    pt = sources.periodictable()
    kal = sources.kalzium_elements()
    unit_names = sources.units_names()
    pymatgen = sources.pymatgen_elements()
    records = []
    for z in range(1, 119):
        symbol = ase.chemical_symbols[z]
        name = ascii_name(ase.atomic_names[z])
        el = pt.elements[z]
        k = kal.get(z)
        if k is None:
            fail(f"kalzium-data has no element {z}")
        if el.symbol != symbol or k.get("symbol") != symbol:
            fail(f"element {z}: symbols {symbol}, {el.symbol}, {k.get('symbol')} differ")
        weight = ase.atomic_masses_iupac2016[z]
        has_natural = natural(el)
        if has_natural:
            agree(f"atomic weight of {name} (ASE, periodictable)", weight, el.mass, 2e-3)
            agree(f"atomic weight of {name} (ASE, kalzium)", weight, float(k["mass"]), 2e-3)
            mass_text = f"standard atomic weight {weight:g}"
        else:
            agree(f"mass of {name} (ASE, periodictable)", weight, el.mass, 5e-2)
            mass_text = (f"no stable isotopes; mass number of its longest-lived isotope "
                         f"[{round(weight)}], atomic mass {weight:g} u")
        parts = [f"{name} ({symbol}), atomic number {z}: {mass_text}"]
        density = density_text(el, unit_names)
        if density:
            parts.append(density)
        pm = pymatgen.get(symbol, {})
        for field, kfield, label in (("Melting point", "meltingpoint", "melting point"),
                                     ("Boiling point", "boilingpoint", "boiling point")):
            value = kelvin(pm.get(field))
            if value is None:
                continue
            other = float(k.get(kfield) or 0)
            if (symbol, label) in DISPUTED:
                continue
            if other > 0:
                agree(f"{label} of {name} (pymatgen, kalzium)", value, other, 0.05)
            parts.append(f"{label} {sig(value, 4)} K")
        if k.get("electronegativityPauling") and float(k["electronegativityPauling"]) > 0:
            if pm.get("X"):
                agree(f"electronegativity of {name} (kalzium, pymatgen)",
                      float(k["electronegativityPauling"]), pm["X"], 0.03)
            parts.append(f"electronegativity (Pauling) {k['electronegativityPauling']}")
        if k.get("ionization") and float(k["ionization"]) > 0 \
                and (symbol, "ionization") not in DISPUTED:
            ionization = float(k["ionization"])
            if pm.get("Ionization energies"):
                agree(f"first ionization energy of {name} (kalzium, pymatgen)",
                      ionization, pm["Ionization energies"][0], 0.01)
            parts.append(f"first ionization energy {sig(ionization, 5)} eV")
        if k.get("electronicConfiguration"):
            parts.append(f"electron configuration {k['electronicConfiguration']}")
        place = []
        if k.get("period"):
            place.append(f"period {k['period']}")
        if k.get("periodTableBlock"):
            place.append(f"{k['periodTableBlock']}-block")
        if place:
            parts.append(", ".join(place))
        names = [name.lower(), el.name.lower(), k.get("name", "").lower()]
        key = key_words("element", name, symbol, z, *names)
        records.append((key, "; ".join(parts)))
    return records


# Where the two packages disagree beyond 5%: units writes 3.985 for scandium, a slip
# for 2.985 (scandium is lighter than titanium); for americium and berkelium the
# published values themselves differ, so both are shown.
DENSITY_DISPUTES = {21: "periodictable", 95: "both", 97: "both"}


def density_text(el, unit_names):
    """Density from the units package, which names the form (allotrope) of each value
    and gives gases at STP; periodictable's value must match one of the forms."""
    base = el.name.lower()
    forms = []
    for name in sorted(unit_names):
        match = re.fullmatch(base + r"(?:_([a-z]+?))?_?density", name)
        if match:
            forms.append((match.group(1) or "", unitsource.gnu(name, "g/cm^3")))
    ours = el.density
    if forms:
        forms.sort(key=lambda f: f[1])
        if len(forms) == 1 and forms[0][1] < 0.01:
            # A gas at STP; periodictable gives the liquid, so there is nothing to compare.
            return f"density of the gas at 0 C and 1 atm {sig(forms[0][1] * 1000, 4)} g/L"
        if ours and not any(abs(v - ours) <= 0.05 * v for _, v in forms):
            if DENSITY_DISPUTES.get(el.number) == "periodictable":
                return f"density {sig(ours, 4)} g/cm^3"
            if DENSITY_DISPUTES.get(el.number) == "both":
                listed = " or ".join(sig(v, 4) for v in sorted({ours} | {v for _, v in forms}))
                return f"density {listed} g/cm^3 (sources differ)"
            fail(f"density of {el.name}: periodictable {ours} matches none of {forms}")
        if len(forms) == 1:
            return f"density {sig(forms[0][1], 4)} g/cm^3"
        listed = ", ".join(f"{form or 'common form'} {sig(v, 4)}" for form, v in forms)
        return f"density {listed} g/cm^3"
    if not ours:
        return None
    caveat = el.density_caveat or ""
    if caveat.startswith("T="):
        return f"density {sig(ours, 4)} g/cm^3 at {caveat[2:]} C"
    if caveat in ("approximate", "calculated", "estimated", ""):
        return f"density {sig(ours, 4)} g/cm^3" + (f" ({caveat})" if caveat else "")
    fail(f"density of {el.name}: caveat {caveat!r} is not understood")


# ---- isotopes -----------------------------------------------------------------
# Nuclides people look up: medical, environmental, dating and nuclear fuel ones,
# and the stable isotopes that define scales.

ISOTOPES = (
    "H-1 H-2 H-3 He-3 He-4 Li-6 Li-7 Be-7 C-12 C-13 C-14 N-14 N-15 O-15 O-16 O-18 "
    "F-18 Na-22 Na-24 P-32 S-35 Cl-36 Ar-39 K-40 Ca-45 Cr-51 Mn-54 Fe-55 Fe-56 "
    "Fe-59 Co-57 Co-58 Co-60 Ni-59 Ni-63 Ge-68 Se-75 Kr-85 Rb-87 Sr-89 Sr-90 Zr-95 "
    "Mo-99 Tc-99 Ru-106 Cd-109 I-125 I-127 I-129 I-131 Cs-133 Cs-134 Cs-137 "
    "Ba-133 Ce-144 Pm-147 Sm-147 Eu-154 Gd-153 Tm-170 Lu-177 Ir-192 Au-198 "
    "Hg-203 Tl-204 Pb-206 Pb-208 Pb-210 Po-210 Ra-226 Ac-227 Th-228 Th-232 Pa-231 U-234 "
    "U-235 U-238 Pu-238 Pu-239 Pu-240 Pu-241 Am-241 Cm-244 Cf-252"
).split()

DECAY_WORDS = {
    "alpha": "alpha", "betaminus": "beta-minus", "betaplus": "beta-plus",
    "ec": "electron capture", "2betaminus": "double beta-minus",
    "betaminusneutron": "beta-minus with neutron emission", "proton": "proton emission",
}

SECONDS_PER = {"s": 1.0, "m": 60.0, "h": 3600.0, "d": 86400.0}


def activation_half_lives():
    """Ground-state half-lives in seconds from periodictable's activation table."""
    pt = sources.periodictable()
    path = os.path.join(os.path.dirname(pt.__file__), "activation.dat")
    year = unitsource.gnu("julianyear", "s")
    out = {}
    with open(path, encoding="latin-1") as f:
        for row in csv.reader(f, delimiter="\t"):
            if len(row) < 10 or not row[2].isdigit():
                continue
            name = row[7].rstrip("+*st ").strip()
            if not re.fullmatch(r"[A-Z][a-z]?-\d+", name):
                continue  # metastable states and daughters carry flags or an "m"
            try:
                value = float(row[8])
            except ValueError:
                continue
            unit = row[9].strip()
            seconds = value * (year if unit == "y" else SECONDS_PER.get(unit, math.nan))
            if math.isfinite(seconds):
                out.setdefault(name, seconds)
    return out


def half_life_text(seconds):
    year = unitsource.gnu("julianyear", "s")
    # Three digits: the packages' values are older than the latest evaluations and
    # differ from them in the fourth digit (C-14: 5726 against 5700 +- 30 years).
    if seconds >= 2 * year:
        return f"{sig(seconds / year, 3)} years"
    if seconds >= 2 * 86400:
        return f"{sig(seconds / 86400, 3)} days"
    if seconds >= 2 * 3600:
        return f"{sig(seconds / 3600, 3)} hours"
    if seconds >= 120:
        return f"{sig(seconds / 60, 3)} minutes"
    return f"{sig(seconds, 3)} seconds"


def half_life(nuclide, iso, activation, abundance):
    """Seconds, or None for a stable nuclide.

    kalzium-data writes most half-lives in seconds as exponent numbers; a part of its
    plain numbers are in years although labelled seconds (U-238: 4468000000). So a
    plain number is used only where a second source settles its unit: periodictable's
    activation table, or the nuclide's presence in nature, which rules out seconds
    for anything that would then have decayed long ago."""
    text = iso.get("halfLife")
    if not text:
        return None
    year = unitsource.gnu("julianyear", "s")
    stored = float(text)
    other = activation.get(nuclide)
    if re.search(r"[eE]", text):
        if other:
            agree(f"half-life of {nuclide} (kalzium, periodictable)", stored, other, 0.03)
        return stored
    if other:
        if not (abs(stored - other) <= 0.03 * other or abs(stored * year - other) <= 0.03 * other
                or abs(stored * 3600 - other) <= 0.03 * other):
            fail(f"half-life of {nuclide}: kalzium {text} fits periodictable's {other} s in no unit")
        return other
    if abundance and stored < 1e6 * year:
        return stored * year
    fail(f"half-life of {nuclide}: kalzium's {text} has no unit that a second source settles")


def leading_number(text):
    """The number at the start of a field such as "3.14[1]"; None when there is none."""
    match = re.match(r"\s*([0-9.]+(?:[eE][-+]?\d+)?)", text or "")
    value = float(match.group(1)) if match else 0.0
    return value if value > 0 else None


def plural(n, word):
    return f"{n} {word}" if n == 1 else f"{n} {word}s"


def decay_modes(iso):
    """Decay modes with their shares and decay energies, or none at all where the
    package's shares do not add up to the whole (it lists some modes twice at 100%
    and leaves others out)."""
    modes = []
    total = 0.0
    for field, word in DECAY_WORDS.items():
        share = leading_number(iso.get(field + "DecayLikeliness"))
        energy = leading_number(iso.get(field + "Decay"))
        if share is None:
            if energy is not None:
                return []
            continue
        total += share
        text = f"{word} ({sig(share, 4)}%"
        if energy is not None:
            text += f", decay energy {sig(energy, 4)} MeV"
        modes.append(text + ")")
    return modes if abs(total - 100.0) <= 0.5 else []


def isotopes():
    pt = sources.periodictable()
    ase = sources.ase_data()
    kal = sources.kalzium_isotopes()
    activation = activation_half_lives()
    records = []
    for nuclide in ISOTOPES:
        symbol, mass_number = nuclide.split("-")
        a = int(mass_number)
        iso = kal.get((symbol, a))
        if iso is None:
            fail(f"kalzium-data has no isotope {nuclide}")
        z = ase.atomic_numbers[symbol]
        name = ascii_name(ase.atomic_names[z])
        pt_iso = pt.elements[z][a]
        mass = float(iso["exactMass"])
        agree(f"mass of {nuclide} (kalzium, periodictable)", mass, pt_iso.mass, 1e-6)
        abundance = getattr(pt_iso, "abundance", 0) or 0
        seconds = half_life(nuclide, iso, activation, abundance)
        parts = [f"{name}-{a} ({nuclide}), {plural(z, 'proton')} and {plural(a - z, 'neutron')}"]
        if seconds is None:
            parts.append("stable")
        else:
            parts.append(f"half-life {half_life_text(seconds)}")
            modes = decay_modes(iso)
            if modes:
                parts.append("decays by " + ", ".join(modes))
        if abundance:
            parts.append(f"natural abundance {sig(abundance, 6)}%")
        parts.append(f"atomic mass {iso['exactMass']} u")
        if iso.get("spin"):
            parts.append(f"spin {iso['spin']}")
        state = "stable" if seconds is None else "radioactive"
        # The element's symbol and atomic number are in the key as in the element's
        # own, so that the menu row "cobalt co 27" finds the element with its isotopes.
        key = key_words("isotope", nuclide, f"{name}-{a}", state, name, f"{a}{symbol}",
                        symbol, z)
        records.append((key, "; ".join(parts)))
    return records


# ---- energy content and specific heat (units package) ----------------------------
# (key words, name in definitions.units, what it is, SI unit to show, extra unit)

FUELS = [
    ("coal bituminous", "coal_bituminous", "bituminous coal", "MJ/kg", None),
    ("coal lignite brown", "coal_lignite", "lignite (brown coal)", "MJ/kg", None),
    ("coal us average", "coal_US", "average US coal (1995)", "MJ/kg", None),
    ("coal equivalent tce", "toncoal", "one tonne of coal equivalent", "GJ", None),
    ("charcoal", "charcoal", "charcoal", "MJ/kg", None),
    ("wood dry", "woodenergy_dry", "dry wood (higher heating value)", "MJ/kg", None),
    ("wood air-dried", "woodenergy_airdry", "air-dried wood, 20% moisture", "MJ/kg", None),
    ("oil equivalent toe", "tonoil", "one tonne of oil equivalent", "GJ", None),
    ("oil crude barrel", "barreloil", "one barrel of crude oil", "GJ", None),
    ("heating oil", "heating", "heating oil", "MJ/L", None),
    ("fuel oil", "fueloil", "low-sulphur fuel oil", "MJ/L", None),
    ("gasoline petrol hhv", "gasoline_HHV", "gasoline, higher heating value", "MJ/L", "Btu/gal(US)"),
    ("gasoline petrol lhv", "gasoline_LHV", "gasoline, lower heating value", "MJ/L", "Btu/gal(US)"),
    ("diesel", "diesel", "diesel fuel", "MJ/L", "Btu/gal(US)"),
    ("ethanol hhv", "ethanol_HHV", "ethanol, higher heating value", "MJ/L", "Btu/gal(US)"),
    ("ethanol lhv", "ethanol_LHV", "ethanol, lower heating value", "MJ/L", "Btu/gal(US)"),
    ("natural gas hhv", "naturalgas_HHV", "natural gas, higher heating value", "MJ/m^3", "Btu/ft^3"),
    ("natural gas lhv", "naturalgas_LHV", "natural gas, lower heating value", "MJ/m^3", "Btu/ft^3"),
    ("propane", "propane", "propane gas", "MJ/m^3", None),
    ("butane", "butane", "butane gas", "MJ/m^3", None),
    ("uranium-235 fission", "uranium_pure", "pure uranium-235, complete fission", "TJ/kg", None),
    ("uranium natural fission", "uranium_natural", "natural uranium, fission of its U-235", "TJ/kg", None),
]

UNIT_EXPRESSIONS = {
    "MJ/kg": "MJ/kg", "GJ": "GJ", "MJ/L": "MJ/liter", "MJ/m^3": "MJ/m^3", "TJ/kg": "TJ/kg",
    "Btu/gal(US)": "btu_IT/usgallon", "Btu/ft^3": "btu_IT/ft^3",
}


def fuels():
    records = []
    for words, name, what, unit, extra in FUELS:
        value = unitsource.gnu(name, UNIT_EXPRESSIONS[unit])
        text = f"Energy content of {what}: {sig(value, 4)} {unit}"
        if extra:
            text += f" ({sig(unitsource.gnu(name, UNIT_EXPRESSIONS[extra]), 4)} {extra})"
        text += "; a typical value, real fuels vary"
        records.append((key_words("energy/content", words, "fuel heat"), text))
    return records


def specific_heats():
    pt = sources.periodictable()
    elements = {pt.elements[z].name.lower(): pt.elements[z] for z in range(1, 119)}
    records = []
    names = sorted(n for n in sources.units_names() if n.startswith("specificheat_"))
    for name in names:
        substance = name[len("specificheat_"):].replace("_", " ")
        if substance == "plutonum":
            substance = "plutonium"
        value = unitsource.gnu(name, "J/g K")
        # An element's symbol and number join its key, as in the element's own key.
        el = elements.get(substance)
        extra = (el.symbol, el.number) if el else ()
        records.append((key_words("specific-heat", substance, "capacity", *extra),
                        f"Specific heat capacity of {substance}: {sig(value, 4)} J/(g K) "
                        f"near room temperature"))
    return records


# ---- Sun, Earth and Moon -----------------------------------------------------

def bodies():
    ac = sources.astropy_constants()
    g = unitsource.gnu("G", "m^3/kg s^2")
    agree("G (units, CODATA)", g, ac.G.value, 1e-9)
    sun_mass = unitsource.gnu("sunmass", "kg")
    agree("solar mass (units, astropy)", sun_mass, ac.M_sun.value, 1e-4)
    sun_radius = ac.R_sun.value
    agree("solar radius (astropy, units)", sun_radius, unitsource.gnu("sunradius", "m"), 1e-3)
    sun_luminosity = ac.L_sun.value
    agree("solar luminosity (astropy, units)", sun_luminosity,
          unitsource.gnu("solarluminosity", "W"), 1e-6)
    earth_mass = unitsource.gnu("earthmass", "kg")
    agree("Earth mass (units, astropy)", earth_mass, ac.M_earth.value, 1e-4)
    earth_eq = unitsource.gnu("earthradius_equatorial", "m")
    agree("Earth equatorial radius (units, astropy)", earth_eq, ac.R_earth.value, 1e-5)
    earth_polar = unitsource.gnu("earthradius_polar", "m")
    moon_mass = unitsource.gnu("moonmass", "kg")
    moon_radius = unitsource.gnu("moonradius", "m")
    major, _ = sources.stellarium_solar_system()
    agree("Moon radius (units, Stellarium)", moon_radius / 1000,
          float(major["moon"]["radius"]), 2e-3)
    au = unitsource.gnu("au", "m")
    return [
        ("sun mass", f"Mass of the Sun: {sig(sun_mass, 6)} kg"),
        ("sun radius", f"Radius of the Sun (IAU nominal): {sig(sun_radius, 6)} m"),
        ("sun luminosity", f"Luminosity of the Sun (IAU nominal): {sig(sun_luminosity, 4)} W"),
        ("sun distance earth mean au", f"Mean distance of the Sun from Earth: 1 au = {au:.0f} m"),
        ("earth mass", f"Mass of the Earth: {sig(earth_mass, 6)} kg"),
        ("earth radius equatorial", f"Equatorial radius of the Earth: {sig(earth_eq, 8)} m"),
        ("earth radius polar", f"Polar radius of the Earth: {sig(earth_polar, 8)} m"),
        ("earth gravity standard acceleration",
         f"Standard acceleration of gravity at the Earth's surface: "
         f"{number(sources.codata()['standard acceleration of gravity'][0])} m/s^2 (exact)"),
        ("moon mass", f"Mass of the Moon: {sig(moon_mass, 5)} kg"),
        ("moon radius mean", f"Mean radius of the Moon: {sig(moon_radius, 4)} m"),
        ("moon distance earth mean",
         f"Mean distance of the Moon from Earth: {sig(unitsource.gnu('moondist', 'm'), 4)} m"),
        ("moon gravity surface",
         f"Surface gravity of the Moon: {sig(unitsource.gnu('moongravity', 'm/s^2'), 3)} m/s^2"),
    ]


def build():
    records = constants() + elements() + isotopes() + fuels() + specific_heats() + bodies()
    keys = [k for k, _ in records]
    if len(set(keys)) != len(keys):
        dup = sorted({k for k in keys if keys.count(k) > 1})
        fail(f"duplicate keys in the physical data: {dup}")
    return records
