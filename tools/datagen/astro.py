"""Records of AstrDataXML.txt: the Sun, Earth and Moon in depth, the planets and dwarf
planets, the moons of each planet, asteroids and comets (a list record and one record
per body), the constellation families and all 88 constellations, galaxy types and
galaxies by type, and named stars with magnitude and distance.

Keys start with what a person browses by: a body's own name ("sun", "mars",
"neptune moon triton"), or the kind of thing ("asteroid", "comet", "constellation",
"galaxy", "star"). Derived quantities (density, surface gravity, escape velocity) are
computed here from the package values, with the formula named in the docs.
"""

import math
import re

from common import agree, ascii_name, fail, key_words, sig
import constellation_families
import sources
import unitsource


def gnu(name, unit):
    return unitsource.gnu(name, unit)


def G():
    return gnu("G", "m^3/kg s^2")


def km(x):
    return f"{sig(x, 5)} km"


# ---- Sun, Earth, Moon ------------------------------------------------------------

def sun():
    ac = sources.astropy_constants()
    major, _ = sources.stellarium_solar_system()
    gm = gnu("GMsun", "m^3/s^2")
    mass = gm / G()
    agree("solar mass (units, astropy)", mass, ac.M_sun.value, 1e-4)
    radius = ac.R_sun.value
    agree("solar radius (astropy, Stellarium)", radius, float(major["sun"]["radius"]) * 1000, 1e-6)
    agree("solar radius (astropy, units)", radius, gnu("sunradius", "m"), 1e-3)
    luminosity = ac.L_sun.value
    agree("solar luminosity (astropy, units)", luminosity, gnu("solarluminosity", "W"), 1e-6)
    sigma = sources.codata()["Stefan-Boltzmann constant"][0]
    temperature = (luminosity / (4 * math.pi * radius ** 2 * sigma)) ** 0.25
    au = gnu("au", "m")
    c = gnu("c", "m/s")
    return [
        ("sun mass", f"Mass of the Sun: {sig(mass, 6)} kg "
                     f"({sig(mass / gnu('earthmass', 'kg'), 6)} Earth masses)"),
        ("sun mass parameter gm", f"Heliocentric gravitational constant GM of the Sun: "
                                  f"{sig(gm, 12)} m^3/s^2"),
        ("sun radius", f"Radius of the Sun (IAU nominal): {km(radius / 1000)} "
                       f"({sig(radius / gnu('earthradius_equatorial', 'm'), 4)} Earth radii)"),
        ("sun luminosity", f"Luminosity of the Sun (IAU nominal): {sig(luminosity, 4)} W"),
        ("sun temperature effective surface",
         f"Effective temperature of the Sun's surface: {sig(temperature, 4)} K"),
        ("sun density mean", f"Mean density of the Sun: "
                             f"{sig(mass / (4 / 3 * math.pi * radius ** 3), 4)} kg/m^3"),
        ("sun gravity surface", f"Surface gravity of the Sun: {sig(gm / radius ** 2, 4)} m/s^2"),
        ("sun escape velocity", f"Escape velocity at the Sun's surface: "
                                f"{sig(math.sqrt(2 * gm / radius) / 1000, 4)} km/s"),
        ("sun distance earth mean au light",
         f"Mean distance of the Sun from the Earth: 1 au = {au / 1000:.1f} km; "
         f"sunlight takes {sig(au / c, 4)} s ({sig(au / c / 60, 3)} minutes) to reach the Earth"),
        ("sun irradiance solar constant",
         f"Solar irradiance at the Earth's mean distance (solar constant): "
         f"{sig(gnu('solarirradiance', 'W/m^2'), 4)} W/m^2"),
        ("sun magnitude apparent absolute",
         f"Apparent visual magnitude of the Sun: {gnu('sunvmag', '1'):g}; "
         f"absolute magnitude {float(major['sun']['absolute_magnitude']):g}"),
        ("sun diameter angular", f"Mean angular diameter of the Sun seen from the Earth: "
                                 f"{sig(2 * gnu('sunsd', 'arcmin'), 4)} arcminutes"),
        ("sun equator tilt ecliptic", f"Tilt of the Sun's equator to the ecliptic: "
                                      f"{float(major['sun']['rot_obliquity']):g} deg"),
    ]


def earth():
    ac = sources.astropy_constants()
    major, _ = sources.stellarium_solar_system()
    gm = gnu("earthmass", "kg") * G()
    mass = gnu("earthmass", "kg")
    agree("Earth mass (units, astropy)", mass, ac.M_earth.value, 1e-4)
    equatorial = gnu("earthradius_equatorial", "m")
    agree("Earth equatorial radius (units, Stellarium)", equatorial,
          float(major["earth"]["radius"].split("#")[0]) * 1000, 1e-6)
    polar = gnu("earthradius_polar", "m")
    mean = gnu("earthradius", "m")
    year = gnu("siderealyear", "s")
    au = gnu("au", "m")
    perihelion = gnu("earthsundist_min", "m")
    aphelion = gnu("earthsundist_max", "m")
    agree("Earth's year (units, Stellarium)", year / 86400,
          float(major["earth"]["orbit_visualization_period"]), 1e-6)
    agree("Earth's sidereal day (units, Stellarium)", gnu("siderealday", "hr"),
          float(major["earth"]["rot_periode"]), 1e-6)
    return [
        ("earth mass", f"Mass of the Earth: {sig(mass, 6)} kg"),
        ("earth mass parameter gm", f"Geocentric gravitational constant GM of the Earth: "
                                    f"{sig(gm, 12)} m^3/s^2"),
        ("earth radius equatorial", f"Equatorial radius of the Earth: {km(equatorial / 1000)}"),
        ("earth radius polar", f"Polar radius of the Earth: {km(polar / 1000)}"),
        ("earth radius mean", f"Mean radius of the Earth: {km(mean / 1000)}"),
        ("earth flattening", f"Flattening of the Earth: 1/{1 / gnu('earthflattening', '1'):.5f}"),
        ("earth density mean", f"Mean density of the Earth: "
                               f"{sig(mass / (4 / 3 * math.pi * mean ** 3), 4)} kg/m^3"),
        ("earth gravity surface equator pole",
         f"Gravity at the Earth's surface: {gnu('gravity_equatorial', 'm/s^2'):.4f} m/s^2 at the "
         f"equator, {gnu('gravity_polar', 'm/s^2'):.4f} m/s^2 at the poles; standard gravity "
         f"{gnu('gravity', 'm/s^2'):g} m/s^2"),
        ("earth escape velocity", f"Escape velocity at the Earth's surface: "
                                  f"{sig(math.sqrt(2 * gm / equatorial) / 1000, 4)} km/s"),
        ("earth day sidereal solar rotation",
         f"Length of the Earth's day: sidereal {gnu('siderealday', 's'):.5f} s "
         f"({sig(gnu('siderealday', 'hr'), 7)} h), mean solar 86400 s"),
        ("earth year sidereal tropical anomalistic",
         f"Length of the Earth's year: sidereal {gnu('siderealyear', 'day'):.6f} days, "
         f"tropical {gnu('tropicalyear', 'day'):.6f} days, "
         f"anomalistic {gnu('anomalisticyear', 'day'):.4f} days"),
        ("earth orbit distance sun perihelion aphelion",
         f"Earth's distance from the Sun: perihelion {sig(perihelion / 1e9, 6)} million km, "
         f"aphelion {sig(aphelion / 1e9, 6)} million km, mean 1 au ({au / 1e9:.4f} million km); "
         f"eccentricity {sig((aphelion - perihelion) / (aphelion + perihelion), 3)}"),
        ("earth orbit speed mean", f"Mean orbital speed of the Earth: "
                                   f"{sig(2 * math.pi * au / year / 1000, 4)} km/s"),
        ("earth area land ocean surface",
         f"Surface of the Earth: land {sig(gnu('landarea', 'km^2'), 6)} km^2, "
         f"ocean {sig(gnu('oceanarea', 'km^2'), 6)} km^2"),
        ("earth albedo", f"Geometric albedo of the Earth: {float(major['earth']['albedo']):g}"),
    ]


def moon_extremes():
    """Closest perigee and farthest apogee in km. The units package writes them as
    "356.371 km" and "406.720 km", thousands of km given as km; a value that lies far
    from the mean distance is read as such a slip only when, taken as thousands,
    it falls within 10% of the mean, and stops the run otherwise."""
    mean = gnu("moondist", "km")
    out = []
    for name in ("moondist_min", "moondist_max"):
        value = gnu(name, "km")
        if abs(value - mean) > 0.1 * mean:
            if abs(value * 1000 - mean) > 0.1 * mean:
                fail(f"{name} of the units package is {value} km, far from the mean {mean} km")
            value *= 1000
        out.append(value)
    return out


def moon():
    major, _ = sources.stellarium_solar_system()
    mass = gnu("moonmass", "kg")
    gm = mass * G()
    radius = gnu("moonradius", "m")
    agree("Moon radius (units, Stellarium)", radius / 1000, float(major["moon"]["radius"]), 2e-3)
    gravity = gnu("moongravity", "m/s^2")
    agree("Moon surface gravity (units, computed)", gravity, gm / radius ** 2, 1e-2)
    sidereal = gnu("siderealmonth", "day")
    agree("sidereal month (units, Stellarium)", sidereal,
          float(major["moon"]["orbit_visualization_period"]), 1e-5)
    return [
        ("moon mass", f"Mass of the Moon: {sig(mass, 5)} kg; the Earth is "
                      f"{sig(1 / gnu('moonearthmassratio', '1'), 5)} times as massive"),
        ("moon radius mean", f"Mean radius of the Moon: {km(radius / 1000)}"),
        ("moon density mean", f"Mean density of the Moon: "
                              f"{sig(mass / (4 / 3 * math.pi * radius ** 3), 4)} kg/m^3"),
        ("moon gravity surface", f"Surface gravity of the Moon: {gravity:g} m/s^2 "
                                 f"({sig(gravity / gnu('gravity', 'm/s^2'), 3)} g)"),
        ("moon escape velocity", f"Escape velocity at the Moon's surface: "
                                 f"{sig(math.sqrt(2 * gm / radius) / 1000, 4)} km/s"),
        ("moon distance earth mean perigee apogee",
         f"Distance of the Moon from the Earth: mean {sig(gnu('moondist', 'km'), 4)} km; "
         f"closest perigee {sig(moon_extremes()[0], 6)} km and farthest apogee "
         f"{sig(moon_extremes()[1], 6)} km in the years 1500 to 2500"),
        ("moon month sidereal synodic",
         f"Length of the Moon's month: sidereal {sidereal:.6f} days, synodic (new moon to new "
         f"moon) {gnu('synodicmonth', 'day'):.6f} days, anomalistic "
         f"{gnu('anomalisticmonth', 'day'):.6f} days, draconic "
         f"{gnu('draconicmonth', 'day'):.6f} days"),
        ("moon magnitude albedo", f"Apparent visual magnitude of the full Moon at mean distance: "
                                  f"{gnu('moonvmag', '1'):g}; geometric albedo "
                                  f"{float(major['moon']['albedo']):g}"),
        ("moon diameter angular", f"Mean angular diameter of the Moon seen from the Earth: "
                                  f"{sig(2 * gnu('moonsd', 'arcmin'), 4)} arcminutes"),
    ]


# ---- planets and dwarf planets ---------------------------------------------------

PLANETS = ["mercury", "venus", "earth", "mars", "jupiter", "saturn", "uranus", "neptune"]
DWARFS_MINOR = ["1ceres", "136108haumea", "136472makemake", "136199eris"]


def planets():
    major, _ = sources.stellarium_solar_system()
    ac = sources.astropy_constants()
    records = []
    order = []
    for name in PLANETS:
        title = name.capitalize()
        near = gnu(f"{name}sundist_min", "m")
        far = gnu(f"{name}sundist_max", "m")
        order.append(((near + far) / 2, title))
        if name == "earth":
            continue  # in depth above
        st = major[name]
        gm = gnu(f"{name}mass", "kg") * G()
        mass = gm / G()
        radius = gnu(f"{name}radius", "m")
        agree(f"radius of {title} (units, Stellarium)", radius / 1000, float(st["radius"]), 2e-3)
        year = gnu(f"{name}year", "day")
        agree(f"year of {title} (units, Stellarium)", year,
              float(st["orbit_visualization_period"]), 2e-3)
        day = gnu(f"{name}day_sidereal", "hr")
        agree(f"rotation of {title} (units, Stellarium)", day, abs(float(st["rot_periode"])), 2e-3)
        if name == "jupiter":
            agree("Jupiter mass (units, astropy)", mass, ac.M_jup.value, 1e-3)
        flattening = float(st.get("oblateness", 0) or 0)
        mean_radius = radius * (1 - flattening) ** (1 / 3)
        a = (near + far) / 2
        retro = " (retrograde)" if float(st["rot_periode"]) < 0 else ""
        records += [
            (f"{name} planet mass", f"Mass of {title}, with its moons: {sig(mass, 5)} kg "
                                    f"({sig(mass / gnu('earthmass', 'kg'), 4)} Earth masses)"),
            (f"{name} planet radius equatorial",
             f"Equatorial radius of {title}: {km(radius / 1000)} "
             f"({sig(radius / gnu('earthradius_equatorial', 'm'), 4)} Earth radii)"
             + (f"; flattening {sig(flattening, 4)}" if flattening else "")),
            (f"{name} planet density mean", f"Mean density of {title}: "
                                            f"{sig(mass / (4 / 3 * math.pi * mean_radius ** 3), 3)} kg/m^3"),
            (f"{name} planet gravity surface", f"Gravity at the equator of {title}, without "
                                               f"rotation: {sig(gm / radius ** 2, 3)} m/s^2"),
            (f"{name} planet escape velocity", f"Escape velocity of {title}: "
                                               f"{sig(math.sqrt(2 * gm / radius) / 1000, 3)} km/s"),
            (f"{name} planet day rotation sidereal solar",
             f"Day of {title}: sidereal rotation {sig(day, 6)} hours{retro}, "
             f"solar day {sig(gnu(name + 'day_solar', 'hr'), 6)} hours"),
            (f"{name} planet year orbit period",
             f"Year of {title}: {sig(year, 6)} Earth days ({sig(year / gnu('julianyear', 'day'), 5)} "
             f"Julian years)"),
            (f"{name} planet distance sun perihelion aphelion",
             f"Distance of {title} from the Sun: perihelion {sig(near / 1e9, 6)} million km, "
             f"aphelion {sig(far / 1e9, 6)} million km, mean {sig(a / gnu('au', 'm'), 5)} au; "
             f"eccentricity {sig((far - near) / (far + near), 3)}"),
            (f"{name} planet albedo magnitude",
             f"Geometric albedo of {title}: {float(st['albedo']):g}; absolute magnitude "
             f"{float(st['absolute_magnitude']):g}"),
        ]
    order.sort()
    names = ", ".join(title for _, title in order)
    listing = [("planet list solar system",
                f"The eight planets from the Sun outward: {names}. Dwarf planets here: Ceres, "
                f"Pluto, Haumea, Makemake, Eris. Search for a planet by name for its data.")]
    return listing + records


def dwarf_planets():
    major, minor = sources.stellarium_solar_system()
    asteroids = {number_of(a): a for a in sources.kstars_asteroids()}
    records = []
    st = major["pluto"]
    radius = gnu("plutoradius", "m")
    agree("radius of Pluto (units, Stellarium)", radius / 1000, float(st["radius"]), 2e-3)
    near = gnu("plutosundist_min", "m")
    far = gnu("plutosundist_max", "m")
    year = gnu("plutoyear", "day")
    records.append(("pluto dwarf planet",
                    f"Pluto, dwarf planet of the Kuiper belt: radius {km(radius / 1000)}; mass of "
                    f"Pluto with its moons {sig(gnu('plutomass', 'kg'), 4)} kg; year "
                    f"{sig(year / gnu('julianyear', 'day'), 4)} Julian years; distance from the Sun "
                    f"{sig(near / gnu('au', 'm'), 4)} to {sig(far / gnu('au', 'm'), 4)} au; rotation "
                    f"{sig(gnu('plutoday_sidereal', 'hr'), 6)} hours (retrograde); albedo "
                    f"{float(st['albedo']):g}"))
    for section in DWARFS_MINOR:
        st = minor[section]
        name = st["name"]
        number = int(st["minor_planet_number"])
        a = float(st["orbit_SemiMajorAxis"])
        e = float(st["orbit_Eccentricity"])
        parts = [f"{name} ({number}), dwarf planet"]
        ks = asteroids.get(number)
        if ks and ks.get("diameter"):
            # Stellarium's sizes of the distant dwarf planets are only rough, so a size
            # is given where KStars' JPL extract has one and both agree.
            agree(f"radius of {name} (KStars, Stellarium)", float(ks["diameter"]) / 2,
                  float(st["radius"]), 5e-2)
            parts.append(f"mean diameter {sig(float(ks['diameter']), 4)} km")
        if name == "Ceres":
            parts.append(f"mass {sig(gnu('ceresmass', 'kg'), 4)} kg")
        if ks and ks.get("a"):
            # Osculating elements of different epochs: distant bodies drift apart.
            agree(f"orbit of {name} (Stellarium, KStars)", a, float(ks["a"]), 2e-2)
        parts.append(f"orbit: semi-major axis {sig(a, 4)} au, eccentricity {sig(e, 3)}, "
                     f"inclination {sig(float(st['orbit_Inclination']), 4)} deg, period "
                     f"{sig(a ** 1.5, 4)} years")
        parts.append(f"albedo {float(st['albedo']):g}")
        records.append((key_words(name, "dwarf planet", number), "; ".join(parts)))
    return records


# ---- moons of the planets ------------------------------------------------------

def moons():
    major, _ = sources.stellarium_solar_system()
    by_parent = {}
    for st in major.values():
        if st.get("type") == "moon" and st.get("parent") and st["parent"] != "Earth":
            by_parent.setdefault(st["parent"], []).append(st)
    records = []
    for parent in ["Mars", "Jupiter", "Saturn", "Uranus", "Neptune", "Pluto"]:
        bodies = sorted(by_parent.get(parent, []), key=moon_order)
        if not bodies:
            fail(f"Stellarium lists no moons of {parent}")
        names = [ascii_name(st["name"]) for st in bodies]
        records.append((key_words(parent, "moon list names"),
                        f"Moons of {parent} in this file ({len(names)}), from the planet outward: "
                        f"{', '.join(names)}. Search for a moon by name for its data."))
        for st, name in zip(bodies, names):
            parts = [f"{name}, moon of {parent}: mean radius {sig(float(st['radius']), 4)} km"]
            if st.get("orbit_SemiMajorAxis"):
                parts.append(f"mean distance from {parent} {sig(float(st['orbit_SemiMajorAxis']), 4)} km")
            period = st.get("orbit_Period") or st.get("orbit_visualization_period")
            if period:
                # Stellarium signs the period by the sense of motion in its frame.
                parts.append(f"orbital period {sig(abs(float(period)), 4)} days")
            if st.get("albedo"):
                parts.append(f"albedo {float(st['albedo']):g}")
            records.append((key_words(parent, "moon", name), "; ".join(parts)))
    return records


def moon_order(st):
    period = st.get("orbit_Period") or st.get("orbit_visualization_period") or "1e9"
    return abs(float(period))


# ---- asteroids and comets ---------------------------------------------------------

ASTEROID_CLASSES = {
    "MBA": "asteroid of the main belt", "IMB": "asteroid of the inner main belt",
    "OMB": "asteroid of the outer main belt", "APO": "near-Earth asteroid of the Apollo group",
    "ATE": "near-Earth asteroid of the Aten group", "AMO": "near-Earth asteroid of the Amor group",
    "MCA": "Mars-crossing asteroid", "TJN": "Jupiter trojan asteroid",
    "CEN": "centaur, an asteroid between Jupiter and Neptune",
    "IEO": "asteroid inside the Earth's orbit",
}
# Bodies beyond Neptune are no asteroids; the large ones stand under dwarf planets.
NOT_ASTEROIDS = {"TNO"}

# Asteroids known from spacecraft visits or close approaches, by name; the rest of the
# list is every asteroid of at least MIN_DIAMETER km in the KStars extract.
NOTABLE_ASTEROIDS = ["Gaspra", "Ida", "Mathilde", "Eros", "Braille", "Annefrank", "Itokawa",
                     "Steins", "Lutetia", "Toutatis", "Bennu", "Ryugu", "Didymos", "Apophis",
                     "Phaethon", "Icarus", "Hermes", "Apollo", "Amor", "Aten", "Hektor",
                     "Chiron", "Psyche", "Kleopatra", "Dinkinesh"]
MIN_DIAMETER = 200.0


def number_of(row):
    match = re.match(r"\s*(\d+)\s", row["full_name"])
    return int(match.group(1)) if match else None


def name_of(row):
    match = re.match(r"\s*\d+\s+([A-Za-z][A-Za-z' -]*?)\s*(\(|$)", row["full_name"])
    return match.group(1) if match else None


def asteroids():
    _, minor = sources.stellarium_solar_system()
    stellarium = {int(v["minor_planet_number"]): v for v in minor.values()
                  if v.get("minor_planet_number")}
    chosen = []
    for row in sources.kstars_asteroids():
        name = name_of(row)
        if not name:
            continue
        diameter = float(row["diameter"]) if row.get("diameter") else 0.0
        if row.get("class") in NOT_ASTEROIDS:
            continue
        if diameter >= MIN_DIAMETER or name in NOTABLE_ASTEROIDS:
            chosen.append((number_of(row), name, row))
    chosen.sort()
    if len(chosen) < 30:
        fail(f"only {len(chosen)} asteroids chosen from KStars' list")
    records = [("asteroid list names",
                "Asteroids in this file: " + ", ".join(f"{name} ({number})" for number, name, _ in chosen)
                + ". Search for an asteroid by name for its size and orbit.")]
    for number, name, row in chosen:
        a = float(row["a"])
        e = float(row["e"])
        st = stellarium.get(number)
        if st and st.get("orbit_SemiMajorAxis"):
            agree(f"orbit of {name} (KStars, Stellarium)", a, float(st["orbit_SemiMajorAxis"]), 1e-2)
        kind = ASTEROID_CLASSES.get(row.get("class"), "asteroid")
        parts = [f"{name} ({number}), {kind}"]
        if row.get("diameter"):
            parts.append(f"diameter {sig(float(row['diameter']), 4)} km")
        if row.get("albedo"):
            parts.append(f"albedo {sig(float(row['albedo']), 3)}")
        if row.get("rot_per"):
            parts.append(f"rotation period {sig(float(row['rot_per']), 4)} hours")
        parts.append(f"orbit: semi-major axis {sig(a, 4)} au, eccentricity {sig(e, 3)}, "
                     f"inclination {sig(float(row['i']), 3)} deg, period "
                     f"{sig(float(row['per_y']), 4)} years")
        if row.get("H"):
            parts.append(f"absolute magnitude H {float(row['H']):g}")
        records.append((key_words("asteroid", name, number), "; ".join(parts)))
    return records


# Periodic comets up to this number, and the great non-periodic ones by designation.
MAX_PERIODIC = 30
FAMOUS_COMETS = ["C/1995 O1", "C/1996 B2", "C/2020 F3", "C/2006 P1", "C/1973 E1",
                 "C/2011 W3", "C/2012 S1", "C/1980 E1", "C/1983 H1", "C/2013 A1",
                 "C/2004 Q2", "C/1969 Y1"]
COMET_CLASSES = {
    "JFc": "Jupiter-family comet", "JFC": "Jupiter-family comet", "HTC": "Halley-type comet",
    "ETc": "Encke-type comet", "CTc": "Chiron-type comet", "COM": "long-period comet",
    "PAR": "comet on a near-parabolic orbit", "HYP": "comet on a hyperbolic orbit",
}


def comet_label(full_name):
    name = full_name.strip()
    match = re.match(r"(\d+)P/(.+)", name)
    if match:
        return f"{match.group(1)}P/{match.group(2)}", match.group(2), f"{match.group(1)}p"
    match = re.match(r"([CPD]/\d{4} [A-Z]+\d*) \((.+)\)", name)
    if match:
        return f"{match.group(1)} ({match.group(2)})", match.group(2), match.group(1)
    return None


def comets():
    stellarium = sources.stellarium_comets()
    chosen = []
    for row in sources.kstars_comets():
        label = comet_label(row["full_name"])
        if not label:
            continue
        full, name, designation = label
        periodic = re.match(r"(\d+)P/", full)
        if (periodic and int(periodic.group(1)) <= MAX_PERIODIC) or \
                any(full.startswith(d + " ") for d in FAMOUS_COMETS):
            chosen.append((full, name, designation, row))
    found = {d for d in FAMOUS_COMETS if any(full.startswith(d + " ") for full, *_ in chosen)}
    if found != set(FAMOUS_COMETS):
        fail(f"KStars' comet list lacks {sorted(set(FAMOUS_COMETS) - found)}")
    records = [("comets list famous names",
                "Famous comets in this file: " + ", ".join(full for full, *_ in chosen)
                + ". Search for a comet by its name (such as Halley or Hale-Bopp) "
                  "for its orbit; periodic comets also by number (such as 1P).")]
    checked = 0
    for full, name, designation, row in chosen:
        q = float(row["q"])
        e = float(row["e"])
        # Stellarium keeps one orbit per apparition; the one whose perihelion passage
        # lies nearest to KStars' is the same passage when they are a year apart at most.
        tp = float(row["tp"])
        same = [sec for sec in stellarium.values()
                if name.lower() in sec.get("name", "").lower() and sec.get("orbit_TimeAtPericenter")]
        if same:
            nearest = min(same, key=lambda sec: abs(float(sec["orbit_TimeAtPericenter"]) - tp))
            if abs(float(nearest["orbit_TimeAtPericenter"]) - tp) < 366:
                agree(f"perihelion of {full} (KStars, Stellarium)", q,
                      float(nearest["orbit_PericenterDistance"]), 2e-2)
                checked += 1
        kind = COMET_CLASSES.get(row.get("class"), "comet")
        parts = [f"Comet {full}, {kind}"]
        period = row.get("per.y")
        if period and e < 1:
            parts.append(f"period {sig(float(period), 4)} years")
        parts.append(f"perihelion distance {sig(q, 4)} au, eccentricity {sig(e, 4)}, "
                     f"inclination {sig(float(row['i']), 4)} deg"
                     + (" (retrograde)" if float(row["i"]) > 90 else ""))
        parts.append(f"last perihelion {julian_date_text(float(row['tp']))}")
        if row.get("diameter"):
            parts.append(f"nucleus diameter {sig(float(row['diameter']), 3)} km")
        records.append((key_words("comet", name.replace("-", " "), designation, name), "; ".join(parts)))
    if checked < 5:
        fail("fewer than five comets could be checked against Stellarium")
    return records


def julian_date_text(jd):
    """Calendar date (Gregorian) of a Julian date, to the day."""
    z = math.floor(jd + 0.5)
    alpha = math.floor((z - 1867216.25) / 36524.25)
    a = z + 1 + alpha - math.floor(alpha / 4)
    b = a + 1524
    c = math.floor((b - 122.1) / 365.25)
    d = math.floor(365.25 * c)
    e = math.floor((b - d) / 30.6001)
    day = b - d - math.floor(30.6001 * e)
    month = e - 1 if e < 14 else e - 13
    year = c - 4716 if month > 2 else c - 4715
    return f"{int(year):04d}-{int(month):02d}-{int(day):02d}"


# ---- constellations ------------------------------------------------------------

GREEK = {"alp": "alpha", "bet": "beta", "gam": "gamma", "del": "delta", "eps": "epsilon",
         "zet": "zeta", "eta": "eta", "the": "theta", "iot": "iota", "kap": "kappa",
         "lam": "lambda", "mu": "mu", "nu": "nu", "xi": "xi", "omi": "omicron", "pi": "pi",
         "rho": "rho", "sig": "sigma", "tau": "tau", "ups": "upsilon", "phi": "phi",
         "chi": "chi", "psi": "psi", "ome": "omega"}


def designation(genitive):
    """("alp CMa") -> ("alpha", "CMa"); Flamsteed numbers stay numbers."""
    match = re.fullmatch(r"([a-z]{2,3})\s*(\d?)\s*([A-Z][A-Za-z]{2})", genitive.strip())
    if match and match.group(1) in GREEK:
        return GREEK[match.group(1)] + match.group(2), match.group(3)
    match = re.fullmatch(r"(\d+)\s+([A-Z][A-Za-z]{2})", genitive.strip())
    if match:
        return match.group(1), match.group(2)
    return None, None


def constellation_names():
    stellarium = sources.stellarium_constellations()
    kstars = sources.kstars_constellations()
    # KStars splits Serpens into its head and tail; the IAU counts one constellation.
    kstars = {("Ser" if k in ("SCp", "SCd") else k): v for k, v in kstars.items()}
    if set(stellarium) != set(kstars) or len(stellarium) != 88:
        fail("Stellarium and KStars do not list the same 88 constellations")
    for abbrev, name in stellarium.items():
        if not kstars[abbrev].upper().startswith(ascii_name(name).upper()):
            fail(f"constellation {abbrev}: {name!r} against {kstars[abbrev]!r}")
    return {abbrev: ascii_name(name) for abbrev, name in stellarium.items()}


def constellations():
    names = constellation_names()
    families = constellation_families.FAMILIES
    members = [m for _, ms in families for m in ms]
    if sorted(members) != sorted(names.values()) or len(set(members)) != 88:
        extra = set(members) ^ set(names.values())
        fail(f"the families do not hold each of the 88 constellations once: {sorted(extra)}")
    family_of = {m: family for family, ms in families for m in ms}
    brightest = {}
    for star in sources.kstars_stars():
        _, abbrev = designation(star["genitive"])
        if abbrev in names and (abbrev not in brightest or star["mag"] < brightest[abbrev]["mag"]):
            brightest[abbrev] = star
    records = [("constellation family list all famliy",
                "The 88 constellations fall into eight families: "
                + ", ".join(f"{family} ({len(ms)})" for family, ms in families)
                + ". Search for a family by name for its members, then for a constellation by name.")]
    for family, ms in families:
        records.append((key_words("constellation family", family),
                        f"The {family} family of constellations ({len(ms)}): {', '.join(ms)}"))
    for abbrev in sorted(names, key=lambda a: names[a]):
        name = names[abbrev]
        parts = [f"{name} ({abbrev}), constellation of the {family_of[name]} family"]
        star = brightest.get(abbrev)
        if star:
            letter, _ = designation(star["genitive"])
            label = f"{star['name']} ({letter} {abbrev})" if star["name"] else f"{letter} {abbrev}"
            parts.append(f"brightest star {label}, magnitude {star['mag']:g}")
        records.append((key_words("constellation", name, abbrev), "; ".join(parts)))
    return records


# ---- galaxies ----------------------------------------------------------------------

GALAXY_TYPES = ["spiral", "barred spiral", "lenticular", "elliptical", "irregular", "dwarf spheroidal"]
GALAXY_OTYPES = {0, 1, 2, 3}  # Stellarium: galaxy, active, radio and interacting galaxy
# Names of the group or cluster a galaxy belongs to, which are not names of the galaxy.
GROUP_NAME = re.compile(r"\b(Group|Chain|Triplet|Cluster|Quartet|Quintet|Trio|Pair|Sextet)\b")


def galaxy_type(mtype):
    """The broad type of a de Vaucouleurs class such as "SAB(rs)cd" or "E5 pec"."""
    t = mtype.strip()
    if re.match(r"(dSph|dE|dS0)", t):
        return "dwarf spheroidal"
    if re.match(r"(c?E|E\+|E\d)", t):
        return "elliptical"
    if re.match(r"(SA|SB|SAB|S)0", t) or t.startswith("S0"):
        return "lenticular"
    if re.match(r"(SB|SAB)", t):
        return "barred spiral"
    if re.match(r"(SA|S)[a-dm(]", t) or re.match(r"S[a-d]", t):
        return "spiral"
    if re.match(r"(I|dI|IB|IAB)", t):
        return "irregular"
    return None


def galaxies():
    names = sources.stellarium_dso_names()
    openngc = sources.kstars_dso()
    chosen = []
    for r in sources.stellarium_dso():
        if r["otype"] not in GALAXY_OTYPES:
            continue
        kind = galaxy_type(r["mtype"])
        if not kind:
            continue
        proper = [n for key in (("M", r["M"]), ("NGC", r["NGC"]), ("IC", r["IC"])) if key[1]
                  for n in names.get((key[0], str(key[1])), []) if not GROUP_NAME.search(n)]
        magnitude = r["vmag"] if r["vmag"] < 30 else r["bmag"]
        if magnitude >= 30:
            continue
        if not (r["M"] or (proper and magnitude <= 10.5)):
            continue
        chosen.append((r, kind, proper[0] if proper else None, magnitude))
    # OpenNGC as KStars ships it has a few placeholder magnitudes, so the check that
    # both catalogues mean the same objects is taken over the whole selection.
    mismatches = 0
    for r, _, _, magnitude in chosen:
        other = openngc.get(f"NGC{r['NGC']:04d}") if r["NGC"] else None
        if other and other[1] is not None and abs(other[1] - magnitude) > 1.5:
            mismatches += 1
    if mismatches > len(chosen) // 10:
        fail(f"{mismatches} of {len(chosen)} galaxy magnitudes differ between Stellarium and KStars")
    records = [("galaxy type list",
                "Types of galaxies in this file: " + ", ".join(GALAXY_TYPES)
                + ". Search for a type (such as spiral) for the galaxies of that type, "
                  "then for a galaxy by name.")]
    by_type = {t: [] for t in GALAXY_TYPES}
    body = []
    for r, kind, proper, magnitude in sorted(chosen, key=lambda c: c[3]):
        ids = []
        if r["M"]:
            ids.append(f"M{r['M']}")
        if r["NGC"]:
            ids.append(f"NGC {r['NGC']}")
        elif r["IC"]:
            ids.append(f"IC {r['IC']}")
        title = ascii_name(proper) if proper else ids[0]
        by_type[kind].append(f"{title} ({', '.join(ids)})" if proper else title)
        parts = [f"{title} ({', '.join(ids)}): {kind} galaxy, class {r['mtype']}",
                 f"apparent magnitude {magnitude:.1f}"]
        if r["dist"] > 0:
            kpc = r["dist"]
            ly = kpc * 1000 * gnu("parsec", "lightyear")
            parts.append(f"distance {sig(kpc / 1000, 3)} Mpc ({sig(ly / 1e6, 3)} million light-years)")
        if r["major"] > 0:
            parts.append(f"apparent size {sig(r['major'] * 60, 3)} arcminutes")
        # "STAR" must list stars only, so a galaxy's name words that hold "star"
        # (Starburst Galaxy) stay out of its key; its catalogue numbers still find it.
        words = [w for w in re.split(r"[\s-]+", title.lower()) if w != "galaxy" and "star" not in w]
        body.append((key_words("galaxy", *words, *[i.replace(" ", "") for i in ids], kind),
                     "; ".join(parts)))
    present = [kind for kind in GALAXY_TYPES if by_type[kind]]
    if len(present) < 5:
        fail(f"galaxies of only {len(present)} types chosen")
    records[0] = ("galaxy type list",
                  "Types of galaxies in this file: " + ", ".join(present)
                  + ". Search for a type (such as spiral) for the galaxies of that type, "
                    "then for a galaxy by name.")
    for kind in present:
        records.append((key_words("galaxy type", kind),
                        f"{kind.capitalize()} galaxies in this file, brightest first: "
                        + ", ".join(by_type[kind])))
    return records + body


# ---- stars ---------------------------------------------------------------------

def stars():
    names = constellation_names()
    hip = sources.stellarium_star_names()
    motions = sources.stellarium_proper_motions()
    errors = sources.stellarium_parallax_errors()
    ly_per_pc = gnu("parsec", "lightyear")
    records = []
    checked = 0
    seen = set()
    for star in sorted(sources.kstars_stars(), key=lambda s: s["mag"]):
        if not star["name"] or star["plx"] <= 0 or star["name"] in seen:
            continue
        seen.add(star["name"])
        name = ascii_name(star["name"])
        letter, abbrev = designation(star["genitive"])
        number = hip.get(star["name"])
        error = None
        if number in motions:
            pm_ra, pm_dec = motions[number][0], motions[number][1]
            # The same proper motion shows that both catalogues give the name to the same
            # star; only then is Stellarium's parallax error used.
            if abs(pm_ra - star["pmra"]) <= 3 and abs(pm_dec - star["pmdec"]) <= 3:
                checked += 1
                error = errors.get(number, [None])[0]
        parsecs = 1000 / star["plx"]
        where = f" ({letter} {abbrev}, in {names[abbrev]})" if abbrev in names else ""
        parts = [f"{name}{where}: apparent visual magnitude {star['mag']:g}"]
        distance = f"distance {sig(parsecs * ly_per_pc, 3)} light-years ({sig(parsecs, 3)} pc)"
        if error:
            distance += f", from a parallax of {star['plx']:g} +- {sig(error, 2)} mas"
            if star["plx"] < 5 * error:
                distance += " (uncertain)"
        parts.append(distance)
        parts.append(f"colour index B-V {star['bv'] + 0.0:.2f}")
        constellation = names.get(abbrev, "")
        records.append((key_words("star", name, f"{letter}-{abbrev}" if letter else "",
                                  constellation), "; ".join(parts)))
    if checked < 150:
        fail(f"only {checked} stars could be matched with Stellarium")
    return records


def build():
    records = (sun() + earth() + moon() + planets() + dwarf_planets() + moons()
               + asteroids() + comets() + constellations() + galaxies() + stars())
    keys = [k for k, _ in records]
    if len(set(keys)) != len(keys):
        dup = sorted({k for k in keys if keys.count(k) > 1})
        fail(f"duplicate keys in the astronomical data: {dup}")
    return records
