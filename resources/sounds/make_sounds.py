#!/usr/bin/env python3
"""Writes the program's two sounds beside this script.

201.wav  a gentle rising chime, heard when the sequential calculator opens
202.wav  a soft click, heard when an option or a check box changes

Both are PCM, 8 bit unsigned, mono. The signal is computed, never random, so that
every run writes the same bytes.
"""

import math
import struct
import wave
from pathlib import Path

MIDPOINT = 128  # silence in unsigned 8-bit samples
PEAK = 110      # keeps clear of clipping at 0 and 255


def chime(time):
    """Two bell notes, A5 and E6, the second 0.16 s after the first."""
    value = 0.0
    for start, frequency in ((0.0, 880.0), (0.16, 1318.5)):
        age = time - start
        if age < 0.0:
            continue
        phase = 2.0 * math.pi * frequency * age
        attack = min(1.0, age / 0.012)
        tone = math.sin(phase) * math.exp(-5.0 * age)
        overtone = 0.25 * math.sin(2.0 * phase) * math.exp(-9.0 * age)
        value += 0.42 * attack * (tone + overtone)
    return value


def click(time):
    """A short knock: a low tone that dies away within a few hundredths of a second."""
    phase = 2.0 * math.pi * 620.0 * time
    return 0.55 * math.sin(phase) * math.exp(-110.0 * time)


def write(name, rate, duration, fade_in, fade_out, signal):
    """Samples signal(seconds), a value from -1 to 1; times in seconds, rate in hertz."""
    samples = []
    for index in range(round(rate * duration)):
        time = index / rate
        fade = min(1.0, time / fade_in, (duration - 1.0 / rate - time) / fade_out)
        value = round(MIDPOINT + PEAK * max(0.0, fade) * signal(time))
        samples.append(min(255, max(0, value)))
    with wave.open(str(Path(__file__).with_name(name)), "wb") as sound:
        sound.setnchannels(1)
        sound.setsampwidth(1)
        sound.setframerate(rate)
        sound.writeframes(struct.pack(f"{len(samples)}B", *samples))


if __name__ == "__main__":
    write("201.wav", 11000, 1.0, 0.005, 0.12, chime)
    write("202.wav", 11025, 0.0441, 0.001, 0.010, click)
