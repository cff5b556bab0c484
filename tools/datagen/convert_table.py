"""The conversion table: categories of rows "source->target" whose value is the tail
of a formula written straight behind the number ("0.15" + "*745.69987158227022").

Each pair below gives the unit on both sides twice: as pint reads it and, where the
spelling differs, as the `units` program reads it. The factor comes from pint in exact
decimal arithmetic and must agree with `units` to 1e-12, or generation stops.

The part after "->" is what the program writes behind the result, so it is a unit
symbol that reads well behind a number. Rows of one category never differ only by
case: the program looks rows up without regard to case.
"""

from decimal import Decimal

from common import agree, decimal_text, exact_text, fail, rounded
import unitsource

# Rows whose meaning is built into the program: the names must be exactly these, and
# their values are never read, so they carry none.
NUMBER_ROWS = [
    "Decimal(Integer)->Hex", "Hex->Decimal", "Decimal->Oct", "Oct->Decimal",
    "Decimal->Binary", "Binary->Decimal",
]
TEMPERATURE_ROWS = [
    "Fahrenheit(F)->C", "Celsius/Centigrade(C)->F", "Kelvin(K)->C", "C->K",
    "Rankine(R)->F", "F->R", "R->K", "K->R", "F->K", "K->F",
]


class Pair:
    """Both directions between two units: "a->b" and "b->a".

    By default pint gives the exact factor and `units` checks it to 1e-12. Where the
    two packages define a unit differently on purpose, `by_units` takes the factor
    from `units` and `tolerance` says how far pint may stand off: pint keeps the US
    survey foot for acre and fathom, and carries the measured magnetic constant into
    the Gaussian units, and its ton of refrigeration counts in ISO rather than
    International Table Btu; `units` follows the international foot, the IT Btu and
    the conventional factors (1 gauss = 1e-4 T) that NIST SP 811 lists.
    """

    def __init__(self, a, b, pint_a, pint_b, gnu_a=None, gnu_b=None,
                 context=None, by_units=False, tolerance=1e-12):
        self.a, self.b = a, b
        self.pint_a, self.pint_b = pint_a, pint_b
        self.gnu_a = gnu_a or pint_a
        self.gnu_b = gnu_b or pint_b
        self.context = context
        self.by_units = by_units
        self.tolerance = tolerance

    def factor(self):
        from_pint = unitsource.exact(self.pint_a, self.pint_b, self.context)
        from_units = unitsource.gnu_decimal(self.gnu_a, self.gnu_b)
        agree(f"{self.a}->{self.b}", from_pint, from_units, self.tolerance)
        if self.by_units:
            return from_units
        if self.tolerance > 1e-12:
            fail(f"{self.a}->{self.b}: a loose tolerance needs the factor from units")
        return from_pint

    def rows(self):
        f = self.factor()
        return [(f"{self.a}->{self.b}", factor_tail(f)),
                (f"{self.b}->{self.a}", factor_tail(Decimal(1) / f))]


class Reciprocal(Pair):
    """Units that are inverse to each other, such as mpg and L/100km: the number
    goes to the power -1 first, since it stands in front of the tail. `a` and `b`
    here are the units of fuel economy (distance per volume) behind the two names,
    and `per` the distance in the name "L/100km"."""

    def __init__(self, a, b, pint_a, pint_b, gnu_a, gnu_b, per):
        super().__init__(a, b, pint_a, pint_b, gnu_a, gnu_b)
        self.per = Decimal(per)

    def rows(self):
        # x mpg is x*k km/L, so per / (x*k) litres take `per` km.
        k = self.factor()
        tail = "^(-1)*" + number_text(self.per / k)
        return [(f"{self.a}->{self.b}", tail), (f"{self.b}->{self.a}", tail)]


def number_text(d):
    text = exact_text(d)
    return text if text is not None else decimal_text(rounded(d, 16))


def factor_tail(f):
    """Exact where the factor or its inverse is a short decimal, else 16 digits."""
    text = exact_text(f)
    if text is not None:
        return "*" + text
    inverse = exact_text(Decimal(1) / f)
    if inverse is not None:
        return "/" + inverse
    return "*" + decimal_text(rounded(f, 16))


P = Pair

CATEGORIES = [
    ("Length", [
        P("in", "cm", "inch", "cm"),
        P("in", "mm", "inch", "mm"),
        P("ft", "m", "foot", "m"),
        P("yd", "m", "yard", "m"),
        P("mi", "km", "mile", "km"),
        P("nmi", "km", "nautical_mile", "km", "nauticalmile"),
        P("mil(thou)", "mm", "thou", "mm", "mil", "mm"),
        P("fathom", "m", "fathom", "m", by_units=True, tolerance=3e-6),
                P("Angstrom", "nm", "angstrom", "nm"),
        P("au", "km", "astronomical_unit", "km", "au"),
        P("ly", "km", "light_year", "km", "lightyear"),
        P("pc", "ly", "parsec", "light_year", "parsec", "lightyear"),
    ]),
    ("Area", [
        P("in^2", "cm^2", "inch**2", "cm**2", "inch^2", "cm^2"),
        P("ft^2", "m^2", "foot**2", "m**2", "ft^2", "m^2"),
        P("yd^2", "m^2", "yard**2", "m**2", "yd^2", "m^2"),
        P("mi^2", "km^2", "mile**2", "km**2", "mile^2", "km^2"),
        P("acre", "m^2", "acre", "m**2", "acre", "m^2", by_units=True, tolerance=5e-6),
        P("acre", "ha", "acre", "hectare", "acre", "hectare", by_units=True, tolerance=5e-6),
        P("ha", "m^2", "hectare", "m**2", "hectare", "m^2"),
        P("km^2", "ha", "km**2", "hectare", "km^2", "hectare"),
        P("barn", "m^2", "barn", "m**2", "barn", "m^2"),
    ]),
    ("Volume", [
        P("m^3", "L", "m**3", "liter", "m^3", "liter"),
        P("gal(US)", "L", "gallon", "liter", "usgallon", "liter"),
        P("gal(Imp)", "L", "imperial_gallon", "liter", "brgallon", "liter"),
        P("gal(US)", "gal(Imp)", "gallon", "imperial_gallon", "usgallon", "brgallon"),
        P("qt(US)", "L", "quart", "liter", "usquart", "liter"),
        P("pt(US)", "L", "pint", "liter", "uspint", "liter"),
        P("pt(Imp)", "L", "imperial_pint", "liter", "brpint", "liter"),
        P("cup(US)", "mL", "cup", "mL", "uscup", "mL"),
        P("floz(US)", "mL", "fluid_ounce", "mL", "usfloz", "mL"),
        P("floz(Imp)", "mL", "imperial_fluid_ounce", "mL", "brfloz", "mL"),
        P("tbsp(US)", "mL", "tablespoon", "mL", "ustablespoon", "mL"),
        P("tsp(US)", "mL", "teaspoon", "mL", "usteaspoon", "mL"),
        P("ft^3", "L", "foot**3", "liter", "ft^3", "liter"),
        P("in^3", "cm^3", "inch**3", "cm**3", "inch^3", "cm^3"),
        P("yd^3", "m^3", "yard**3", "m**3", "yd^3", "m^3"),
        P("bbl(oil)", "L", "oil_barrel", "liter", "petroleumbarrel", "liter"),
        P("acre-ft", "m^3", "acre_foot", "m**3", "acrefoot", "m^3", by_units=True, tolerance=1e-5),
    ]),
    ("Mass", [
        P("lb", "kg", "pound", "kg"),
        P("oz", "g", "ounce", "g", "ounce", "g"),
        P("ton(short)", "kg", "short_ton", "kg", "shortton", "kg"),
        P("ton(long)", "kg", "long_ton", "kg", "longton", "kg"),
        P("t(metric)", "kg", "metric_ton", "kg", "tonne", "kg"),
        P("st(stone)", "kg", "stone", "kg"),
        P("gr(grain)", "mg", "grain", "mg"),
        P("ozt(troy)", "g", "troy_ounce", "g", "troyounce", "g"),
        P("ct(carat)", "mg", "carat", "mg", "carat", "mg"),
        P("slug", "kg", "slug", "kg"),
        P("u", "kg", "atomic_mass_constant", "kg", "u", "kg"),
    ]),
    ("Time", [
        P("hr", "s", "hour", "second"),
        P("min", "s", "minute", "second"),
        P("day", "hr", "day", "hour"),
        P("day", "s", "day", "second"),
        P("wk", "day", "week", "day"),
        P("yr(Julian)", "day", "julian_year", "day", "julianyear", "day"),
        P("yr(Julian)", "s", "julian_year", "second", "julianyear", "second"),
    ]),
    ("Speed", [
        P("mph", "km/h", "mile/hour", "km/hour", "mile/hour", "km/hour"),
        P("mph", "m/s", "mile/hour", "m/s", "mile/hour", "m/s"),
        P("km/h", "m/s", "km/hour", "m/s", "km/hour", "m/s"),
        P("kn", "km/h", "knot", "km/hour", "knot", "km/hour"),
        P("kn", "mph", "knot", "mile/hour", "knot", "mile/hour"),
        P("ft/s", "m/s", "foot/s", "m/s", "ft/s", "m/s"),
        P("ft/min", "m/s", "foot/minute", "m/s", "ft/min", "m/s"),
        P("c(light)", "km/s", "speed_of_light", "km/s", "c", "km/s"),
    ]),
    ("Acceleration", [
        P("g(standard)", "m/s^2", "g_0", "m/s**2", "gravity", "m/s^2"),
        P("g(standard)", "ft/s^2", "g_0", "foot/s**2", "gravity", "ft/s^2"),
        P("ft/s^2", "m/s^2", "foot/s**2", "m/s**2", "ft/s^2", "m/s^2"),
        P("Gal", "m/s^2", "galileo", "m/s**2", "galileo", "m/s^2"),
    ]),
    ("Force", [
        P("lbf", "N", "force_pound", "newton", "lbf", "newton"),
        P("kgf", "N", "force_kilogram", "newton", "kgf", "newton"),
        P("dyn", "N", "dyne", "newton", "dyne", "newton"),
        P("kip", "kN", "kip", "kN", "kip", "kN"),
        P("pdl(poundal)", "N", "poundal", "newton"),
        P("ozf", "N", "force_ounce", "newton", "ounce force", "newton"),
    ]),
    ("Pressure", [
        P("atm", "Pa", "atmosphere", "pascal", "atm", "Pa"),
        P("atm", "kPa", "atmosphere", "kPa", "atm", "kPa"),
        P("atm", "psi", "atmosphere", "psi", "atm", "psi"),
        P("atm", "bar", "atmosphere", "bar", "atm", "bar"),
        P("psi", "kPa", "psi", "kPa"),
        P("bar", "kPa", "bar", "kPa"),
        P("bar", "psi", "bar", "psi"),
        P("mmHg", "Pa", "mmHg", "pascal", "mmHg", "Pa"),
        P("torr", "Pa", "torr", "pascal", "torr", "Pa"),
        P("inHg", "kPa", "inHg", "kPa", "inHg", "kPa"),
        P("inH2O", "Pa", "inch * water * g_0", "pascal", "inH2O", "Pa"),
    ]),
    ("Energy", [
        P("Btu", "J", "Btu_it", "joule", "btu_IT", "J"),
        P("Btu", "kWh", "Btu_it", "kWh", "btu_IT", "kWh"),
        P("cal(th)", "J", "thermochemical_calorie", "joule", "cal_th", "J"),
        P("cal(IT)", "J", "international_calorie", "joule", "cal_IT", "J"),
        P("kcal(food)", "kJ", "kilocalorie", "kJ", "kcal", "kJ"),
        P("kWh", "MJ", "kWh", "MJ"),
        P("Wh", "J", "watt_hour", "joule", "Wh", "J"),
        P("eV", "J", "electron_volt", "joule", "eV", "J"),
        P("erg", "J", "erg", "joule"),
        P("ft-lbf", "J", "foot * force_pound", "joule", "ft lbf", "J"),
        P("toe", "GJ", "tonne_of_oil_equivalent", "GJ", "toe", "GJ"),
        P("kt(TNT)", "TJ", "kiloton_TNT", "TJ", "kiloton tnt", "TJ"),
    ]),
    ("Power", [
        P("hp", "W", "horsepower", "watt", "hp", "W"),
        P("hp", "kW", "horsepower", "kW", "hp", "kW"),
        P("hp(metric)", "W", "metric_horsepower", "watt", "metrichorsepower", "W"),
        P("Btu/hr", "W", "Btu_it/hour", "watt", "btu_IT/hour", "W"),
        P("ton(refrig)", "kW", "refrigeration_ton", "kW", "tonrefrigeration", "kW",
          by_units=True, tolerance=1e-6),
        P("ft-lbf/s", "W", "foot * force_pound / second", "watt", "ft lbf / s", "W"),
        P("cal(th)/s", "W", "thermochemical_calorie / second", "watt", "cal_th / s", "W"),
    ]),
    ("Density", [
        P("g/cm^3", "kg/m^3", "g/cm**3", "kg/m**3", "g/cm^3", "kg/m^3"),
        P("lb/ft^3", "kg/m^3", "pound/foot**3", "kg/m**3", "lb/ft^3", "kg/m^3"),
        P("lb/in^3", "g/cm^3", "pound/inch**3", "g/cm**3", "lb/in^3", "g/cm^3"),
        P("lb/gal(US)", "kg/m^3", "pound/gallon", "kg/m**3", "lb/usgallon", "kg/m^3"),
        P("oz/in^3", "g/cm^3", "ounce/inch**3", "g/cm**3", "ounce/in^3", "g/cm^3"),
    ]),
    ("Flow", [
        P("gal(US)/min", "L/s", "gallon/minute", "liter/second", "usgallon/min", "liter/s"),
        P("gal(US)/min", "m^3/h", "gallon/minute", "m**3/hour", "usgallon/min", "m^3/hour"),
        P("gal(Imp)/min", "L/s", "imperial_gallon/minute", "liter/second", "brgallon/min", "liter/s"),
        P("ft^3/s", "m^3/s", "foot**3/second", "m**3/second", "ft^3/s", "m^3/s"),
        P("ft^3/min", "L/s", "foot**3/minute", "liter/second", "ft^3/min", "liter/s"),
        P("L/min", "m^3/h", "liter/minute", "m**3/hour", "liter/min", "m^3/hour"),
        P("bbl(oil)/day", "m^3/day", "oil_barrel/day", "m**3/day", "petroleumbarrel/day", "m^3/day"),
    ]),
    ("Angle", [
        P("deg", "rad", "degree", "radian"),
        P("deg", "grad", "degree", "grade", "degree", "gon"),
        P("rev", "deg", "revolution", "degree", "revolution", "degree"),
        P("rev", "rad", "revolution", "radian", "revolution", "radian"),
        P("arcmin", "deg", "arcminute", "degree", "arcmin", "degree"),
        P("arcsec", "deg", "arcsecond", "degree", "arcsec", "degree"),
        P("arcsec", "rad", "arcsecond", "radian", "arcsec", "radian"),
    ]),
    ("Frequency", [
        P("rpm", "Hz", "revolution/minute", "revolution/second", "rpm", "rev/s"),
        P("Hz", "rad/s", "revolution/second", "radian/second", "rev/s", "radian/s"),
        P("rpm", "rad/s", "revolution/minute", "radian/second", "rpm", "radian/s"),
        P("deg/s", "rpm", "degree/second", "revolution/minute", "degree/s", "rpm"),
    ]),
    ("Data", [
        P("byte", "bit", "byte", "bit"),
        P("kB", "KiB", "kilobyte", "kibibyte"),
        P("MB", "MiB", "megabyte", "mebibyte"),
        P("GB", "GiB", "gigabyte", "gibibyte"),
        P("TB", "TiB", "terabyte", "tebibyte"),
        P("KiB", "byte", "kibibyte", "byte"),
        P("MiB", "KiB", "mebibyte", "kibibyte"),
        P("GiB", "MiB", "gibibyte", "mebibyte"),
        P("MB", "Mbit", "megabyte", "megabit"),
    ]),
    ("Fuel economy", [
        P("mpg(US)", "km/L", "mile/gallon", "km/liter", "mile/usgallon", "km/liter"),
        P("mpg(Imp)", "km/L", "mile/imperial_gallon", "km/liter", "mile/brgallon", "km/liter"),
        P("mpg(US)", "mpg(Imp)", "mile/gallon", "mile/imperial_gallon", "mile/usgallon", "mile/brgallon"),
        Reciprocal("mpg(US)", "L/100km", "mile/gallon", "km/liter",
                   "mile/usgallon", "km/liter", per=100),
        Reciprocal("mpg(Imp)", "L/100km", "mile/imperial_gallon", "km/liter",
                   "mile/brgallon", "km/liter", per=100),
    ]),
    ("Electric", [
        P("Ah", "C", "ampere_hour", "coulomb", "Ah", "C"),
        P("mAh", "C", "milliampere_hour", "coulomb", "mAh", "C"),
        P("statC", "C", "statcoulomb", "coulomb", "statcoulomb", "C",
          context="Gaussian", by_units=True, tolerance=1e-9),
        P("abC", "C", "abcoulomb", "coulomb", "abcoulomb", "C"),
        P("statV", "V", "statvolt", "volt", "statvolt", "V",
          context="Gaussian", by_units=True, tolerance=1e-9),
        P("abA", "A", "abampere", "ampere", "abampere", "A"),
        P("abohm", "ohm", "abohm", "ohm"),
        P("gauss", "T", "gauss", "tesla", "gauss", "T",
          context="Gaussian", by_units=True, tolerance=1e-9),
        P("Mx(maxwell)", "Wb", "maxwell", "weber", "maxwell", "Wb",
          context="Gaussian", by_units=True, tolerance=1e-9),
        P("Oe", "A/m", "oersted", "ampere/meter", "oersted", "A/m",
          context="Gaussian", by_units=True, tolerance=1e-9),
    ]),
    ("Radiation", [
        P("Ci", "GBq", "curie", "GBq", "curie", "GBq"),
        P("mCi", "MBq", "millicurie", "MBq", "millicurie", "MBq"),
        P("uCi", "kBq", "microcurie", "kBq", "microcurie", "kBq"),
        P("rad(dose)", "Gy", "rads", "gray", "rad", "Gy"),
        P("rem", "Sv", "rem", "sievert", "rem", "Sv"),
        P("mrem", "uSv", "millirem", "microsievert", "millirem", "microsievert"),
        P("R(roentgen)", "C/kg", "roentgen", "coulomb/kilogram", "roentgen", "C/kg"),
    ]),
    ("Torque", [
        P("lbf-ft", "N-m", "force_pound * foot", "newton * meter", "lbf ft", "N m"),
        P("lbf-in", "N-m", "force_pound * inch", "newton * meter", "lbf inch", "N m"),
        P("kgf-m", "N-m", "force_kilogram * meter", "newton * meter", "kgf m", "N m"),
    ]),
    ("Viscosity", [
        P("cP", "Pa-s", "centipoise", "pascal * second", "centipoise", "Pa s"),
        P("P(poise)", "Pa-s", "poise", "pascal * second", "poise", "Pa s"),
        P("cSt", "m^2/s", "centistokes", "m**2/second", "centistokes", "m^2/s"),
        P("St(stokes)", "m^2/s", "stokes", "m**2/second", "stokes", "m^2/s"),
    ]),
    ("Light", [
        P("fc", "lx", "lumen/foot**2", "lux", "footcandle", "lux"),
        P("fL", "cd/m^2", "candela/pi/foot**2", "candela/m**2", "footlambert", "cd/m^2"),
    ]),
]


def build():
    """The categories in file order, each as (name, [(row, value)])."""
    table = [("Number", [(row, None) for row in NUMBER_ROWS]),
             ("Temperature", [(row, None) for row in TEMPERATURE_ROWS])]
    for name, pairs in CATEGORIES:
        rows = []
        for pair in pairs:
            rows.extend(pair.rows())
        table.append((name, rows))
    count = sum(len(rows) for _, rows in table)
    if not 280 <= count <= 360:
        fail(f"the conversion table has {count} rows, not about 300")
    return table
