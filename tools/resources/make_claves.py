#!/usr/bin/python3
"""Synthesises claves.wav, the short wooden click of the program.

    make_claves.py OUTPUT_FILE

Two hardwood sticks struck together ring at a high pitch for a few tens of
milliseconds: a strike transient, then a few inharmonic partials that die away
fast. 16-bit mono at 44.1 kHz, about an eighth of a second, fixed noise seed so the
file comes out the same every time.
"""
import math
import random
import struct
import sys
import wave

RATE = 44100
LENGTH = 0.13

# (frequency in Hz, amplitude, decay time constant in seconds)
PARTIALS = [(2480.0, 1.00, 0.030), (3720.0, 0.35, 0.018), (6150.0, 0.18, 0.010), (1240.0, 0.10, 0.022)]


def samples():
    noise = random.Random(7)
    out = []
    for n in range(int(RATE * LENGTH)):
        t = n / RATE
        value = sum(a * math.exp(-t / tau) * math.sin(2 * math.pi * f * t) for f, a, tau in PARTIALS)
        # The strike: a millisecond of noise at the very start.
        value += 0.6 * math.exp(-t / 0.0008) * (noise.random() * 2 - 1)
        # A soft attack of a fraction of a millisecond keeps the first sample from clicking.
        value *= min(1.0, t / 0.0003)
        out.append(value)
    peak = max(abs(v) for v in out)
    return [int(v / peak * 0.8 * 32767) for v in out]


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    with wave.open(sys.argv[1], "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(b"".join(struct.pack("<h", s) for s in samples()))
    print(f"wrote {sys.argv[1]}")


if __name__ == "__main__":
    main()
