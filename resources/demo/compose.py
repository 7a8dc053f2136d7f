#!/usr/bin/env python3
"""Composes the music of the three demo stations: compose.py [NAME...] writes NAME.mp3 beside itself (needs lame).

Every piece is a loop. Notes, echoes and the reverberation that ring past its end are mixed in at its beginning, so the
loop has no seam. Its length is a whole number of MP3 frames, and the frames are taken from the middle of three encoded
rounds without the bit reservoir: the last frame is followed by the first as if the encoder had never stopped.
"""

import array
import io
import math
import os
import random
import subprocess
import sys
import wave

RATE = 44100
FRAME = 1152  # samples in one MP3 frame
HERE = os.path.dirname(os.path.abspath(__file__))

SEMITONES = {"C": 0, "D": 2, "E": 4, "F": 5, "G": 7, "A": 9, "B": 11}


def frequency(name):
    """Hertz of a note such as "F#3", in equal temperament with A4 at 440 Hz."""
    semitone = SEMITONES[name[0]] + name.count("#") - name.count("b", 1)
    return 440.0 * 2.0 ** ((semitone - 9) / 12.0 + int(name[-1]) - 4)


# Instruments: each gives one note as a list of samples around -1 to 1, which begins and ends in silence.

def fade_out(samples, seconds=0.02):
    """Takes the last moments down to silence, so that no note ends in a click."""
    count = min(len(samples), int(seconds * RATE))
    for i in range(count):
        samples[-1 - i] *= i / count
    return samples


def pad(hertz, seconds, brightness=1.7):
    """A soft choir of five slightly detuned voices, rising and falling slowly."""
    size = 4096
    partials = [n for n in range(1, 10) if n * hertz < 5000]
    table = [sum(math.sin(2 * math.pi * n * i / size) / n ** brightness for n in partials) for i in range(size)]
    attack, release = 1.6, 2.6
    count = int((seconds + release) * RATE)
    samples = [0.0] * count
    for cents, phase in ((-7, 0.1), (-3, 0.7), (0, 0.3), (4, 0.9), (8, 0.5)):
        step = hertz * 2.0 ** (cents / 1200.0) * size / RATE
        position = phase * size
        for i in range(count):
            samples[i] += table[int(position) % size]
            position += step
    for i in range(count):
        rise = min(1.0, i / (attack * RATE))
        fall = min(1.0, (count - i) / (release * RATE))
        samples[i] *= 0.2 * (0.5 - 0.5 * math.cos(math.pi * rise)) * (0.5 - 0.5 * math.cos(math.pi * fall))
    return samples


def struck(hertz, seconds, partials, strike=0.004):
    """A struck bar or bell: partials as (ratio, level, seconds to fall to a third)."""
    count = int(seconds * RATE)
    samples = [0.0] * count
    for ratio, level, decay in partials:
        if ratio * hertz > 12000:
            continue
        turn = 2 * math.pi * ratio * hertz / RATE
        fall = math.exp(-1.0 / (decay * RATE))
        amplitude = level
        for i in range(count):
            samples[i] += amplitude * math.sin(turn * i)
            amplitude *= fall
    rise = int(strike * RATE)
    for i in range(rise):
        samples[i] *= i / rise
    return fade_out(samples, 0.05)


def bell(hertz, seconds):
    return struck(hertz, 4.5, ((1.0, 0.6, 1.3), (2.0, 0.25, 0.8), (3.01, 0.08, 0.4), (5.4, 0.03, 0.15)), 0.012)


def marimba(hertz, seconds):
    ring = 0.55 * (440.0 / hertz) ** 0.5
    return struck(hertz, 4 * ring, ((1.0, 0.8, ring), (3.93, 0.22, ring / 4), (9.2, 0.06, ring / 12)))


def vibraphone(hertz, seconds):
    samples = struck(hertz, 2.6, ((1.0, 0.7, 0.9), (4.0, 0.14, 0.35), (10.1, 0.02, 0.1)), 0.006)
    for i in range(len(samples)):
        samples[i] *= 1.0 - 0.18 * (1.0 - math.cos(2 * math.pi * 4.6 * i / RATE))
    return samples


def plucked(hertz, seconds, brightness, decay):
    """A plucked string: a burst of noise runs around a delay line that smooths it at every round.

    `brightness` (0 to 1) is how hard the burst is, `decay` (just below 1) how long the string rings.
    """
    noise = random.Random(int(hertz * 100))
    period = RATE / hertz
    size = int(period - 0.5)
    tuning = period - 0.5 - size
    tuning = (1.0 - tuning) / (1.0 + tuning)
    line = [noise.uniform(-1.0, 1.0) for _ in range(size)]
    for _ in range(2):
        dull = line[-1]
        for i in range(size):
            dull += brightness * (line[i] - dull)
            line[i] = dull
    middle = sum(line) / size
    line = [value - middle for value in line]
    peak = max(abs(value) for value in line)
    count = int((seconds + 0.6) * RATE)
    samples = [0.0] * count
    before = passed_in = passed_out = 0.0
    for i in range(count):
        value = line[i % size]
        smooth = decay * 0.5 * (value + before)
        before = value
        passed_out = tuning * (smooth - passed_out) + passed_in  # an all-pass filter tunes the fraction of a sample
        passed_in = smooth
        line[i % size] = passed_out
        samples[i] = 0.7 * value / peak
    for i in range(60):
        samples[i] *= i / 60
    return fade_out(samples, 0.3)


def guitar(hertz, seconds):
    return plucked(hertz, seconds, 0.30, 0.995)


def string_bass(hertz, seconds):
    return plucked(hertz, seconds, 0.07, 0.992)


def electric_piano(hertz, seconds):
    """A tine: one sine bends the phase of another, less and less as the note fades; a quiet overtone at the strike."""
    count = int((seconds + 0.5) * RATE)
    turn = 2 * math.pi * hertz / RATE
    samples = [0.0] * count
    for i in range(count):
        t = i / RATE
        bend = 0.9 * math.exp(-t / 0.35) + 0.12
        tone = math.sin(turn * i + bend * math.sin(turn * i))
        tine = 0.05 * math.exp(-t / 0.06) * math.sin(7.0 * turn * i)
        samples[i] = 0.55 * (tone * math.exp(-t / 1.5) + tine) * min(1.0, t / 0.005)
    return fade_out(samples, 0.45)


def round_bass(hertz, seconds):
    count = int(seconds * RATE)
    turn = 2 * math.pi * hertz / RATE
    samples = [0.0] * count
    for i in range(count):
        t = i / RATE
        envelope = min(1.0, t / 0.012) * math.exp(-t / 0.9)
        tone = 0.75 * math.sin(turn * i) + 0.22 * math.sin(2 * turn * i) + 0.06 * math.sin(3 * turn * i)
        samples[i] = envelope * tone
    return fade_out(samples, 0.08)


def kick(hertz, seconds):
    samples = []
    angle = 0.0
    for i in range(int(0.32 * RATE)):
        t = i / RATE
        angle += 2 * math.pi * (hertz + 75.0 * math.exp(-t / 0.03)) / RATE
        samples.append(0.9 * math.sin(angle) * math.exp(-t / 0.11) * min(1.0, t / 0.002))
    return fade_out(samples)


def noise_hit(seed, low, high, decay, level):
    """Noise between two smoothing filters (0 to 1, higher is brighter) that dies away."""
    noise = random.Random(seed)
    bright = dull = 0.0
    samples = []
    for i in range(int(6 * decay * RATE)):
        bright += high * (noise.uniform(-1.0, 1.0) - bright)
        dull += low * (bright - dull)
        samples.append(level * (bright - dull) * math.exp(-i / (decay * RATE)) * min(1.0, i / 40))
    return fade_out(samples)


def snare(hertz, seconds):
    samples = noise_hit(3, 0.12, 0.45, 0.055, 0.9)
    for i in range(len(samples)):
        t = i / RATE
        samples[i] += 0.28 * math.sin(2 * math.pi * hertz * t) * math.exp(-t / 0.05) * min(1.0, t / 0.001)
    return samples


def hat(hertz, seconds):
    return noise_hit(5, 0.6, 0.95, 0.016, 0.55)


class Loop:
    """A stereo loop; what is mixed in past its end comes out at its beginning."""

    def __init__(self, frames):
        self.length = frames * FRAME
        self.left = array.array("d", bytes(8 * self.length))
        self.right = array.array("d", bytes(8 * self.length))
        self.notes = {}

    def play(self, instrument, note, start, seconds, level, pan=0.0):
        """Mixes in one note; `start` in samples, `pan` from -1 (left) to 1 (right), with constant loudness."""
        key = (instrument, note, seconds)
        if key not in self.notes:
            self.notes[key] = instrument(frequency(note), seconds)
        angle = (pan + 1.0) * math.pi / 4
        left_level, right_level = level * math.cos(angle) * 1.414, level * math.sin(angle) * 1.414
        place = int(start) % self.length
        left, right, length = self.left, self.right, self.length
        for sample in self.notes[key]:
            left[place] += left_level * sample
            right[place] += right_level * sample
            place += 1
            if place == length:
                place = 0

    def reverberate(self, share, tail, damping=0.35):
        """Adds a room. Every filter runs twice around the loop: the first round only fills it with the tail."""
        self.left = mixed(self.left, room(self.left, tail, damping, 0), share)
        self.right = mixed(self.right, room(self.right, tail, damping, 23), share)

    def soften(self, strength):
        """Takes the top off: a smoothing filter, started where it ends; `strength` 0 to 1, lower is duller."""
        for channel in (self.left, self.right):
            smooth = 0.0
            for sample in channel[-RATE:]:
                smooth += strength * (sample - smooth)
            for i, sample in enumerate(channel):
                smooth += strength * (sample - smooth)
                channel[i] = smooth

    def finished(self, loudness):
        """16-bit samples, left and right in turn; peaks are rounded off, never cut."""
        out = array.array("h")
        for left, right in zip(self.left, self.right):
            out.append(int(30000 * math.tanh(loudness * left)))
            out.append(int(30000 * math.tanh(loudness * right)))
        return out


def mixed(dry, wet, share):
    return array.array("d", (d + share * w for d, w in zip(dry, wet)))


def room(dry, tail, damping, spread):
    """Four damped echoes side by side, then two all-pass filters in a row; `tail` 0 to 1 says how long it rings."""
    length = len(dry)
    wet = array.array("d", bytes(8 * length))
    for delay in (1557, 1617, 1491, 1422):
        line = [0.0] * (delay + spread)
        size, place, dull = len(line), 0, 0.0
        for turn in range(2):
            for i in range(length):
                echo = line[place]
                dull += (1.0 - damping) * (echo - dull)
                line[place] = dry[i] + tail * dull
                place += 1
                if place == size:
                    place = 0
                if turn:
                    wet[i] += 0.25 * echo
    for delay in (556, 341):
        line = [0.0] * (delay + spread)
        size, place = len(line), 0
        source = array.array("d", wet)
        for turn in range(2):
            for i in range(length):
                echo = line[place]
                value = source[i] + 0.5 * echo
                line[place] = value
                place += 1
                if place == size:
                    place = 0
                if turn:
                    wet[i] = echo - 0.5 * value
    return wet


# The pieces.

def harbour():
    """Calm: eight slow chords in D, and bells that answer themselves across the room."""
    chords = (
        ("D2", "A2", "F#3", "C#4", "E4"),
        ("B1", "A2", "F#3", "D4", "E4"),
        ("G2", "B2", "F#3", "A3", "D4"),
        ("A1", "E3", "F#3", "B3", "D4"),
        ("F#2", "E3", "A3", "C#4", "E4"),
        ("G2", "D3", "A3", "B3", "F#4"),
        ("E2", "D3", "G3", "B3", "F#4"),
        ("A1", "D3", "G3", "B3", "E4"),
    )
    bells = (  # for each chord: (where in it, from 0 to 1; note)
        ((0.25, "F#5"), (0.5, "E5"), (0.75, "A5")),
        ((0.375, "D5"), (0.75, "E5")),
        ((0.25, "B5"), (0.5, "A5"), (0.875, "F#5")),
        ((0.375, "E5"), (0.75, "B4")),
        ((0.25, "C#5"), (0.5, "E5"), (0.75, "A5")),
        ((0.25, "F#5"), (0.625, "D5")),
        ((0.25, "G5"), (0.5, "F#5"), (0.75, "B4")),
        ((0.375, "E5"), (0.625, "D5"), (0.875, "B4")),
    )
    loop = Loop(1400)
    chord_length = loop.length / len(chords)
    for number, chord in enumerate(chords):
        start = number * chord_length - 0.5 * RATE
        for note, level, pan in zip(chord, (0.30, 0.22, 0.22, 0.22, 0.22), (0, 0.3, -0.3, 0.3, -0.3)):
            loop.play(pad, note, start, chord_length / RATE, level, pan)
        for place, note in bells[number]:
            start = (number + place) * chord_length
            for echo in range(3):
                pan = (-0.35, 0.5, -0.6)[echo]
                loop.play(bell, note, start + echo * chord_length / 8, 0, 0.27 * 0.42 ** echo, pan)
    loop.reverberate(0.9, 0.86)
    return loop.finished(0.60)


def orchard():
    """A waltz in G: marimba tune, plucked chords, a bass on the first beat."""
    chords = {
        "G": ("G2", "B3", "D4", "G4"), "Bm": ("B2", "B3", "D4", "F#4"), "C": ("C3", "C4", "E4", "G4"),
        "D": ("D3", "A3", "D4", "F#4"), "Em": ("E2", "B3", "E4", "G4"), "Am": ("A2", "C4", "E4", "A4"),
        "F": ("F2", "C4", "F4", "A4"), "D7": ("D2", "C4", "D4", "F#4"),
    }
    bars = (  # chord; tune as (note, beats)
        ("G", ("B4", 1), ("D5", 1), ("G5", 1)),
        ("Bm", ("F#5", 2), ("D5", 1)),
        ("C", ("E5", 1), ("G5", .5), ("E5", .5), ("C5", 1)),
        ("D", ("D5", 2), ("A4", 1)),
        ("Em", ("G4", 1), ("B4", 1), ("E5", 1)),
        ("C", ("E5", 2), ("C5", 1)),
        ("Am", ("C5", .5), ("B4", .5), ("A4", 1), ("C5", 1)),
        ("D", ("D5", 2), ("A4", .5), ("F#4", .5)),
        ("Em", ("E5", 1), ("G5", 1), ("B5", 1)),
        ("Bm", ("A5", 1.5), ("F#5", .5), ("D5", 1)),
        ("C", ("G5", 2), ("E5", 1)),
        ("G", ("D5", 1), ("B4", 1), ("D5", 1)),
        ("Am", ("C5", 1), ("E5", 1), ("A5", 1)),
        ("Em", ("G5", 1.5), ("F#5", .5), ("E5", 1)),
        ("F", ("F5", 1), ("A5", 1), ("G5", .5), ("F5", .5)),
        ("D", ("F#5", 2), ("A5", .5), ("F#5", .5)),
        ("C", ("G5", 1), ("E5", .5), ("G5", .5), ("C6", 1)),
        ("D", ("A5", 2), ("F#5", 1)),
        ("Bm", ("F#5", 1), ("D5", .5), ("F#5", .5), ("B5", 1)),
        ("Em", ("G5", 2), ("E5", 1)),
        ("Am", ("E5", 1), ("C5", .5), ("E5", .5), ("A5", 1)),
        ("D", ("F#5", 1), ("E5", .5), ("D5", .5), ("A4", 1)),
        ("G", ("B4", 1), ("D5", 1), ("G5", 1)),
        ("D7", ("F#5", 1), ("C5", 1), ("A4", 1)),
    )
    loop = Loop(1296)
    beat = loop.length / len(bars) / 3
    hand = random.Random(7)
    for number, (chord, *tune) in enumerate(bars):
        start = number * 3 * beat
        bass, *inner = chords[chord]
        loop.play(string_bass, bass, start, 1.1, 1.25, -0.1)
        for step in range(4):  # the broken chord: four eighths from the second beat on
            place = start + (1 + step / 2) * beat + hand.uniform(0, 250)
            loop.play(guitar, inner[(0, 1, 2, 1)[step]], place, 0.9, 0.40 - 0.05 * (step % 2), 0.45)
        place = start
        for note, beats in tune:
            loop.play(marimba, note, place + hand.uniform(0, 250), 0, 0.42 if place == start else 0.36, -0.3)
            place += beats * beat
    loop.reverberate(0.30, 0.72)
    return loop.finished(0.53)


def lamplight():
    """A slow swinging groove: electric piano, round bass, brushed drums, a few vibraphone notes."""
    chords = {
        "Dm9": ("D2", "F3", "A3", "C4", "E4"), "G13": ("G1", "F3", "A3", "B3", "E4"),
        "Cmaj9": ("C2", "E3", "G3", "B3", "D4"), "Am9": ("A1", "E3", "G3", "B3", "C4"),
        "Fmaj9": ("F1", "A3", "C4", "E4", "G4"), "Em7": ("E2", "G3", "B3", "D4", "E4"),
        "A9": ("A1", "G3", "B3", "C#4", "E4"),
    }
    bars = (  # chord; tune as (sixteenth of the bar, note)
        ("Dm9", (4, "A4"), (6, "C5"), (8, "E5")),
        ("G13", (6, "D5"), (10, "B4")),
        ("Cmaj9", (4, "G4"), (6, "B4"), (8, "D5"), (14, "E5")),
        ("Am9", (4, "C5"), (10, "A4")),
        ("Fmaj9", (2, "C5"), (6, "E5"), (8, "G5")),
        ("Em7", (4, "F#5"), (6, "E5"), (8, "D5"), (12, "B4")),
        ("Dm9", (4, "C5"), (6, "D5"), (8, "F5"), (14, "E5")),
        ("Cmaj9", (4, "D5"), (10, "B4")),
        ("Dm9", (4, "A4"), (6, "C5"), (8, "E5"), (12, "D5")),
        ("G13", (2, "E5"), (6, "D5"), (10, "B4")),
        ("Em7", (4, "B4"), (6, "D5"), (8, "E5")),
        ("A9", (4, "E5"), (6, "C#5"), (10, "B4"), (14, "G4")),
    )
    loop = Loop(1344)
    bar_length = loop.length / len(bars)
    hand = random.Random(11)

    def place(bar, sixteenth):
        swing = 0.62 if sixteenth % 4 == 2 else 0.5  # an off-beat comes late
        beat, part = divmod(sixteenth, 4)
        return (bar + (beat + {0: 0, 1: swing / 2, 2: swing, 3: 0.81}[part]) / 4) * bar_length + hand.uniform(0, 300)

    for bar, (chord, *tune) in enumerate(bars):
        bass, *hands = chords[chord]
        for sixteenth, seconds, level in ((0, 1.5, 0.20), (6, 0.4, 0.13), (11, 1.0, 0.16)):
            for voice, note in enumerate(hands):
                start = place(bar, sixteenth) + voice * 260
                loop.play(electric_piano, note, start, seconds, level, -0.3 + 0.15 * voice)
        for sixteenth, seconds, level in ((0, 1.2, 0.50), (10, 0.5, 0.38), (14, 0.35, 0.32)):
            loop.play(round_bass, bass, place(bar, sixteenth), seconds, level)
        for sixteenth in (0, 7, 10) if bar % 2 else (0, 10):
            loop.play(kick, "G1", place(bar, sixteenth), 0, 0.55 if sixteenth == 0 else 0.42)
        for sixteenth in (4, 12):
            loop.play(snare, "A3", place(bar, sixteenth), 0, 0.34, 0.05)
        for sixteenth in range(0, 16, 2):
            loop.play(hat, "A4", place(bar, sixteenth), 0, 0.20 if sixteenth % 4 else 0.13, 0.3)
        for sixteenth, note in tune:
            loop.play(vibraphone, note, place(bar, sixteenth), 0, 0.28, 0.35)
    loop.soften(0.5)
    loop.reverberate(0.22, 0.74)
    return loop.finished(0.88)


PIECES = {"harbour": harbour, "orchard": orchard, "lamplight": lamplight}


def encode(samples, target):
    """Writes the frames of one round of the loop, taken from the middle of three."""
    rounds = io.BytesIO()
    with wave.open(rounds, "wb") as sound:
        sound.setnchannels(2)
        sound.setsampwidth(2)
        sound.setframerate(RATE)
        sound.writeframes(samples.tobytes() * 3)
    command = ["lame", "--quiet", "-m", "j", "--cbr", "-b", "128", "-q", "0", "--nores", "-t", "-", "-"]
    mp3 = subprocess.run(command, input=rounds.getvalue(), stdout=subprocess.PIPE, check=True).stdout
    count = len(samples) // 2 // FRAME
    frames = mp3_frames(mp3)[count:2 * count]
    with open(target, "wb") as file:
        file.write(b"".join(frames))


def mp3_frames(mp3):
    """The frames of a 128 kbit/s, 44.1 kHz stream; the padding bit makes a frame one byte longer."""
    frames = []
    place = 0
    while place + 4 <= len(mp3):
        if mp3[place] != 0xFF or mp3[place + 1] & 0xFE != 0xFA or mp3[place + 2] & 0xFC != 0x90:
            raise ValueError("no frame at byte %d" % place)
        size = 144 * 128000 // RATE + (mp3[place + 2] >> 1 & 1)
        frames.append(mp3[place:place + size])
        place += size
    return frames


def main():
    for name in sys.argv[1:] or PIECES:
        encode(PIECES[name](), os.path.join(HERE, name + ".mp3"))


if __name__ == "__main__":
    main()
