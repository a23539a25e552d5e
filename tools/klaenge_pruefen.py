#!/usr/bin/env python3
"""Checks the sounds that tools/klaenge.sh makes: tools/klaenge_pruefen.py <folder>"""

import array
import math
import pathlib
import re
import struct
import sys

EINSTELLUNGEN = pathlib.Path(__file__).parent.parent / "data/Einstellungen/einstellungen.ini"

# A longer one would run into the next event: the next count, lamp or lap cuts it before its meaning is out.
SEKUNDEN_MAX = {"rv": 2.0, "rs": 1.0, "as": 0.4, "rd": 0.12, "sd": 0.12, "cp1": 1.0, "cp2": 1.0}
SEKUNDEN_MAX.update({f"s{zahl}": 0.6 for zahl in range(1, 11)})
SEKUNDEN_MAX_SONST = 2.0
GROESSE_MAX = 4 * 1024 * 1024

NUR_TON = {"rs", "as", "rd", "sd"}
TICKS = {"rd", "sd"}
STILL = 0.01


def db(wert):
    return 20 * math.log10(max(wert, 1e-9))


def lesen(datei):
    """The sample rate and the samples, or what is wrong with the header."""
    inhalt = datei.read_bytes()
    if len(inhalt) < 46:
        return "zu kurz", None, None
    riff, riff_laenge, wave, fmt, fmt_laenge, art, kanaele, rate, _, _, bits, data, laenge = struct.unpack(
        "<4sI4s4sIHHIIHH4sI", inhalt[:44])
    if (riff, wave, fmt, fmt_laenge, data) != (b"RIFF", b"WAVE", b"fmt ", 16, b"data"):
        return "kein schlichter RIFF-Kopf", None, None
    if riff_laenge != len(inhalt) - 8 or laenge != len(inhalt) - 44:
        return "Längen im Kopf falsch", None, None
    if (art, kanaele, bits) != (1, 1, 16) or rate not in (16000, 22050):
        return "nicht 16 Bit PCM mono", None, None
    werte = array.array("h", inhalt[44:])
    if sys.byteorder == "big":
        werte.byteswap()
    return None, rate, [wert / 32768 for wert in werte]


def filtern(werte, b0, b1, b2, a0, a1, a2):
    x1 = x2 = y1 = y2 = 0.0
    for x in werte:
        y = (b0 * x + b1 * x1 + b2 * x2 - a1 * y1 - a2 * y2) / a0
        x1, x2, y1, y2 = x, x1, y, y1
        yield y


def bewerten(werte, rate):
    """Weights as the ear does: the second order high pass and high shelf of the broadcasters' loudness."""
    w = 2 * math.pi * 38.1 / rate
    c, alpha = math.cos(w), math.sin(w)
    werte = filtern(werte, (1 + c) / 2, -1 - c, (1 + c) / 2, 1 + alpha, -2 * c, 1 - alpha)
    a = 10 ** (4 / 40)
    w = 2 * math.pi * 1682 / rate
    c, r = math.cos(w), 2 * math.sqrt(a) * math.sin(w) / math.sqrt(2)
    return filtern(werte, a * (a + 1 + (a - 1) * c + r), -2 * a * (a - 1 + (a + 1) * c), a * (a + 1 + (a - 1) * c - r),
                   a + 1 - (a - 1) * c + r, 2 * (a - 1 - (a + 1) * c), a + 1 - (a - 1) * c - r)


def lautheit(werte, rate):
    """The loudest fifth of a second; a shorter sound counts as if silence followed."""
    fenster, schritt = rate // 5, rate // 50
    quadrate = [wert * wert for wert in bewerten(werte, rate)]
    summen = [sum(quadrate[i:i + schritt]) for i in range(0, len(quadrate), schritt)]
    am_lautesten = max(sum(summen[i:i + 10]) for i in range(len(summen)))
    return 10 * math.log10(am_lautesten / fenster)


def form_pruefen(name, werte, rate):
    """What can be said of one sound by itself."""
    dauer = len(werte) / rate
    if dauer > SEKUNDEN_MAX.get(name, SEKUNDEN_MAX_SONST):
        yield f"zu lang: {dauer:.2f} s"
    spitze = db(max(abs(wert) for wert in werte))
    if spitze > -1.0:
        yield f"Spitze zu hoch: {spitze:.1f} dB"
    if name not in NUR_TON and spitze < -3.5:
        yield f"Spitze zu niedrig: {spitze:.1f} dB"
    gleichanteil = sum(werte) / len(werte)
    if abs(gleichanteil) > 0.001:
        yield f"Gleichanteil: {gleichanteil:.4f}"
    laut = [stelle for stelle, wert in enumerate(werte) if abs(wert) > STILL]
    if not laut or laut[0] / rate > 0.02:
        yield "beginnt mit Stille"
    if not laut or (len(werte) - laut[-1]) / rate > 0.08:
        yield "endet mit Stille"
    if abs(werte[0]) > STILL or abs(werte[-1]) > STILL:
        yield "knackt am Rand"


def lautheiten_pruefen(lautheiten):
    """What shows only beside the others."""
    sprache = sorted(wert for name, wert in lautheiten.items() if name not in NUR_TON)
    mitte = sprache[len(sprache) // 2]
    for name, wert in lautheiten.items():
        if name in TICKS:
            gut = mitte - 14 < wert < mitte - 6
        elif name in NUR_TON:
            gut = mitte - 4 < wert < mitte + 0.5
        else:
            gut = abs(wert - mitte) < 1.5
        if not gut:
            yield f"{name}.wav: Lautheit {wert:.1f} dB, Sprache {mitte:.1f} dB"


def pruefen(ordner):
    namen = set(re.findall(r"^sound\\(\w+)\.wav\r?$", EINSTELLUNGEN.read_text("cp1252"), re.M))
    dateien = {datei.stem: datei for datei in ordner.glob("*.wav")}
    for name in sorted(namen ^ set(dateien)):
        yield f"{name}.wav: " + ("fehlt" if name in namen else "kommt in den Einstellungen nicht vor")
    lautheiten = {}
    for name, datei in sorted(dateien.items()):
        fehler, rate, werte = lesen(datei)
        if fehler:
            yield f"{name}.wav: {fehler}"
            continue
        yield from (f"{name}.wav: {fehler}" for fehler in form_pruefen(name, werte, rate))
        lautheiten[name] = lautheit(werte, rate)
    yield from lautheiten_pruefen(lautheiten)
    groesse = sum(datei.stat().st_size for datei in dateien.values())
    if groesse > GROESSE_MAX:
        yield f"zusammen {groesse} Bytes"


if len(sys.argv) != 2:
    sys.exit("Aufruf: tools/klaenge_pruefen.py <Ordner>")
maengel = list(pruefen(pathlib.Path(sys.argv[1]) / "sound"))
print("\n".join(maengel) or "Klänge in Ordnung")
sys.exit(1 if maengel else 0)
