"""Two independent readings of unit definitions.

`exact` evaluates with pint's definitions in decimal arithmetic, so a factor that is
defined exactly (1 ft = 0.3048 m) comes out exactly. `gnu` asks the `units` program
of the Debian package `units`, which reads /usr/share/units/definitions.units and
answers with 15 significant digits. Every factor the generator writes is taken from
the first and checked against the second.
"""

import decimal
import functools
import shutil
import subprocess

from common import fail

decimal.getcontext().prec = 50

UNITS_PROGRAM = "/usr/bin/units"
UNITS_DEFINITIONS = "/usr/share/units/definitions.units"


@functools.lru_cache(maxsize=None)
def _registry():
    try:
        import pint
    except ImportError:
        fail("python3-pint is not installed (see tools/datagen/install-deps.sh)")
    return pint.UnitRegistry(non_int_type=decimal.Decimal)


def exact(source, target, context=None):
    """Factor f with 1 source = f target, from pint in 50-digit decimal arithmetic.
    Both sides are unit expressions without numbers; `context` names a pint context
    such as "Gaussian" for the units that need one."""
    ureg = _registry()
    quantity = ureg.Quantity(decimal.Decimal(1), source)
    if context:
        with ureg.context(context):
            value = quantity.to(target).magnitude
    else:
        value = quantity.to(target).magnitude
    if not isinstance(value, decimal.Decimal):
        fail(f"pint did not keep decimal arithmetic for {source} -> {target}")
    return value


def gnu_decimal(source, target):
    """The units program's answer as a Decimal. With fewer than 15 significant digits
    the answer was not rounded, so it is the exact value of a definition."""
    text = _gnu_text(source, target)
    return decimal.Decimal(text)


def _units_available():
    if not shutil.which(UNITS_PROGRAM):
        fail("the units program is missing (Debian package `units`)")


def gnu(source, target="1"):
    """Factor from the units program; target "1" evaluates a dimensionless number."""
    return float(_gnu_text(source, target))


@functools.lru_cache(maxsize=None)
def _gnu_text(source, target):
    _units_available()
    # A dimensionless quantity converts to "1"; without a target units would print
    # the definition as well as the value.
    args = [UNITS_PROGRAM, "-f", UNITS_DEFINITIONS, "-t", "-d", "15", "--", source, target]
    result = subprocess.run(args, capture_output=True, text=True,
                            env={"LC_ALL": "C", "PATH": "/usr/bin:/bin"})
    answer = result.stdout.strip()
    if result.returncode != 0 or not answer:
        fail(f"units cannot convert {source!r} to {target!r}: {answer} {result.stderr.strip()}")
    first = answer.split()[0]
    try:
        float(first)
    except ValueError:
        fail(f"units answered {answer!r} for {source!r} to {target!r}")
    return first


def gnu_si(source, si_unit):
    """A quantity that the definitions file names (moonmass, sunradius), in an SI unit."""
    return gnu(source, si_unit)
