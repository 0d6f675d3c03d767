#!/usr/bin/env python3
"""Makes the two sounds of the buttons: a press, like a finger on a wooden key, and its release, a
third higher and softer. The same bytes at every run.

    tools/make_sounds.py            writes assets/sounds/100.res and 101.res
"""
import math
import pathlib
import random
import struct
import wave

FOLDER = pathlib.Path(__file__).resolve().parent.parent / "assets" / "sounds"
RATE = 44100

# Partials of a small bar: multiple of its lowest tone, strength, seconds until it has faded to 1/e.
PARTIALS = ((1.0, 1.0, 0.0130), (2.76, 0.45, 0.0060), (5.40, 0.18, 0.0025))

# File, lowest tone in hertz, loudness 0..1, strength of the tap, length in seconds.
SOUNDS = (("100.res", 440.0, 0.42, 0.30, 0.075), ("101.res", 554.37, 0.26, 0.18, 0.065))


def sample(seconds, tone, tap, noise):
    """One moment of a sound, about -1..1."""
    attack = min(1.0, seconds / 0.0008)
    ring = sum(strength * math.exp(-seconds / fade) * math.sin(2 * math.pi * tone * multiple * seconds)
               for multiple, strength, fade in PARTIALS)
    return attack * (ring + tap * noise * math.exp(-seconds / 0.0018))


def sound(tone, loudness, tap, length):
    """All samples as 16-bit numbers, fading out to silence at the end."""
    noise = random.Random(tone)
    count = int(length * RATE)
    raw = [sample(n / RATE, tone, tap, noise.uniform(-1, 1)) for n in range(count)]
    peak = max(abs(value) for value in raw)
    fade = count // 5
    return [round(32767 * loudness * value / peak * min(1.0, (count - 1 - n) / fade))
            for n, value in enumerate(raw)]


def main():
    FOLDER.mkdir(parents=True, exist_ok=True)
    for name, tone, loudness, tap, length in SOUNDS:
        values = sound(tone, loudness, tap, length)
        with wave.open(str(FOLDER / name), "wb") as file:
            file.setnchannels(1)
            file.setsampwidth(2)
            file.setframerate(RATE)
            file.writeframes(struct.pack(f"<{len(values)}h", *values))


if __name__ == "__main__":
    main()
